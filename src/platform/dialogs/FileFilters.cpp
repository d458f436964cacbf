#include "platform/dialogs/FileFilters.h"

namespace quartela {
namespace {

// The patterns of one pair, each in its own case and in capitals and small letters.
QString bothCases(const QString& patterns) {
  QStringList all;
  for (const QString& part : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    const QString pattern = part.trimmed();
    all << pattern << pattern.toUpper() << pattern.toLower();
  }
  all.removeAll(QString());
  all.removeDuplicates();
  return all.join(QLatin1Char(' '));
}

}  // namespace

QStringList toolkitFilters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = bothCases(parts[i + 1]);
    if (!patterns.isEmpty()) {
      filters << QStringLiteral("%1 (%2)").arg(parts[i].trimmed(), patterns);
    }
  }
  return filters;
}

QString firstExtension(const QString& filter) {
  const QString patterns = filter.section(QLatin1Char('|'), 1, 1);
  const QString first = patterns.section(QLatin1Char(';'), 0, 0).trimmed();
  const qsizetype dot = first.lastIndexOf(QLatin1Char('.'));
  const QString extension = dot < 0 ? QString() : first.mid(dot + 1).toLower();
  return extension.contains(QLatin1Char('*')) ? QString() : extension;
}

}  // namespace quartela
