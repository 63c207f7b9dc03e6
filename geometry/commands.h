#pragma once
// Headless commands of the geometry subsystem: dreieck, konstruktion.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> geometryCommands();
