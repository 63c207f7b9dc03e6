#include "app/commands.h"

#include <QApplication>

namespace app {

int runQuorix(int argc, char** argv)
{
    QApplication a(argc, argv);
    return 0;
}

}  // namespace app
