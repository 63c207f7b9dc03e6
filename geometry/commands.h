#pragma once
// Headless commands of the geometry subsystem: dreieck.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> geometryCommands();
