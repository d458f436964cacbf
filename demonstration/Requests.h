// The papers that stand beside the processes: standalone requisitions and requests for goods and
// services.
#pragma once

#include "demonstration/Random.h"
#include "demonstration/Town.h"
#include "platform/values/DateTime.h"

namespace quartela::demonstration {

// Writes `count` rows into each of ReqAvulso, Produtos and Servicos, dated within the last year.
void writeRequests(database::NewDatabase& database, const Town& town, Random& random,
                   DateTime today, std::int32_t count);

}  // namespace quartela::demonstration
