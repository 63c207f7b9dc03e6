// Text metrics need a GUI application; offscreen, so no display is needed.
#include <QApplication>

namespace {
int argc = 1;
char name[] = "test_app";
char* argv[] = {name, nullptr};
QApplication* app = [] {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QApplication(argc, argv);
}();
}  // namespace
