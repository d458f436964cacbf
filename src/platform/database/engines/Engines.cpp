#include <QStringList>

#include "platform/database/Damage.h"
#include "platform/database/engines/Engine.h"
#include "platform/database/engines/sqlite/DamageCheck.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/files/ProgramFolder.h"

namespace quartela {
namespace {

// The value of the setting "Data Source"; the settings that the file does not need are passed over.
QString dataSource(const QString& connectionText) {
  const QStringList settings = connectionText.split(QLatin1Char(';'));
  for (const QString& setting : settings) {
    const qsizetype sign = setting.indexOf(QLatin1Char('='));
    if (sign >= 0 && QStringView(setting).left(sign).trimmed().compare(QLatin1String("Data Source"),
                                                                       Qt::CaseInsensitive) == 0) {
      return setting.mid(sign + 1).trimmed();
    }
  }
  return {};
}

}  // namespace

std::shared_ptr<Engine> openEngine(const QString& connectionText, const SchemaSteps& steps) {
  return std::make_shared<SqliteSession>(nativePath(dataSource(connectionText)), steps);
}

QStringList findDamage(const QString& path, CheckDepth depth, const std::atomic_bool& cancelled) {
  return sqlite::findDamage(path, depth, cancelled);
}

}  // namespace quartela
