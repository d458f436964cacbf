// The one source of the present moment, so that tests can stop it.
#pragma once

#include "platform/values/DateTime.h"

namespace quartela::Clock {

// Local date and time of the machine, or the moment that a test has set.
DateTime now();
DateTime today();

// Stops the clock at `moment` until it is given back.
void stopAt(DateTime moment);
void run();

}  // namespace quartela::Clock
