#pragma once
// Headless commands of the factoring tools: `isprime` and `factor`.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> factorCommands();
