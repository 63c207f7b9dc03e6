#pragma once
// Headless commands of the stochastics subsystem: statistik, verteilung, simulation.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> stochasticsCommands();
