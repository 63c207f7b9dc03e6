#pragma once
namespace app {
int runQuorix(int argc, char** argv);
}
