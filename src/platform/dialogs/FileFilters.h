// From the program's file filters ("Words (*.MDB)|*.MDB|More words|*.txt;*.csv|") to the toolkit's.
#pragma once

#include <QString>
#include <QStringList>

namespace quartela {

// One toolkit filter a pair of words and patterns; every pattern matches in capitals and in small
// letters. The words stand as they are. No usable pair: an empty list.
QStringList toolkitFilters(const QString& filter);

// The extension of the first pattern, without its dot and in small letters; empty where it has none
// or is a wildcard itself. For names typed without one.
QString firstExtension(const QString& filter);

}  // namespace quartela
