// quorix: with no argument the main window, with a command the headless face.
#include "app/commands.h"

int main(int argc, char** argv)
{
    return app::runQuorix(argc, argv);
}
