// The changes of the database's schema and stored queries since its first delivery, which are part
// of the program: one file a step in database/steps.
#pragma once

#include "platform/database/SchemaSteps.h"

namespace quartela {

// All steps, the oldest first. Empty only in a program that was built wrong.
const SchemaSteps& passos_do_banco();

}  // namespace quartela
