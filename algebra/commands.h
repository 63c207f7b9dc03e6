#pragma once
// Headless commands of the algebra workbench: algebra.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> algebraCommands();
