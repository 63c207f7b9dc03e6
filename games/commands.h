#pragma once
// Headless commands of the games: muehle (the engine's move for a position, self-play).
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> gamesCommands();
