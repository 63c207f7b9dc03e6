#pragma once
// Painting text needs a GUI application; the tests share one on the offscreen platform.
#include <QApplication>

inline void ensureGuiApp()
{
    if (QApplication::instance())
        return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "test_platform";
    static char* argv[] = {name, nullptr};
    new QApplication(argc, argv);
}
