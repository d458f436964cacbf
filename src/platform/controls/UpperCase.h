// Fields whose letters are written in capitals.
#pragma once

class QLineEdit;

namespace quartela {

// Turns each letter typed or pasted into its capital, accents kept; the caret stays where it is.
void typeUpperCase(QLineEdit& field);

}  // namespace quartela
