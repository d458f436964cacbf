// How this engine looks for damage in a file (platform/database/Damage.h).
#pragma once

#include "platform/database/Damage.h"

namespace quartela::sqlite {

// A copy is made in small steps and looked at; the file is read only.
QStringList findDamage(const QString& path, CheckDepth depth, const std::atomic_bool& cancelled);

}  // namespace quartela::sqlite
