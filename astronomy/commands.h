#pragma once
// Headless commands of the astronomy subsystem: jd, date, sun, moon, planet, moonphases,
// eclipses, calendar, easter.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> astronomyCommands();
