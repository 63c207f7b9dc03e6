#pragma once
// Headless commands of the fractal tools: fraktal (picture), fluchtzeit, feigenbaum, ljapunow.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> chaosCommands();
