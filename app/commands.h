#pragma once
#include "kernel/headless.h"

#include <vector>

namespace app {
int runQuorix(int argc, char** argv);
std::vector<quorix::HeadlessCommand> appCommands();
std::vector<quorix::HeadlessCommand> alleBefehle();
}
