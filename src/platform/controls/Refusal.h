// How a field shows that it does not take what was typed or pasted.
#pragma once

#include <QString>

class QWidget;

namespace quartela {

// Outlines the field; called at the end of its paintEvent.
void paintRefusal(QWidget& field);

// Says why, on the spot, beside the field.
void tellRefusal(QWidget& field, const QString& why);

}  // namespace quartela
