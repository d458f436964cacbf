// The numbered changes of a database's schema and stored queries, by which older files are brought
// forward at their opening.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace quartela {

struct SchemaStep {
  // The version that a file has behind this step.
  int version = 0;
  // What tells it apart for a technician, such as "0002-consultas-em-ordem".
  QString name;
  // Plain statements of the engine, UTF-8, without a transaction of their own.
  QByteArray sql;
};

// In ascending order of their versions. Empty: files are taken as they are, whatever their version.
using SchemaSteps = std::vector<SchemaStep>;

}  // namespace quartela
