// The one place that reads the clock.
#pragma once

#include <functional>

#include "base/dates.h"

/// The current moment, local time.
DateTime Now();
inline Date Today() { return Now().date; }

/// Puts another clock in place; an empty one brings the system's back. For tests.
void SetClock(std::function<DateTime()> clock);
