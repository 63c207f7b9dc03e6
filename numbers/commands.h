#pragma once
// Headless commands of the long-number calculators: `mp` and `bigfloat`.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> numbersCommands();
