#pragma once
// One QApplication for all tests of this folder: drawing text needs it.
#include <QApplication>

inline QApplication& testApp()
{
    static int argc = 1;
    static char name[] = "test_graphs";
    static char* argv[] = {name, nullptr};
    // left alive to the end: tearing Qt down among the static destructors crashes
    static QApplication* a = new QApplication(argc, argv);
    return *a;
}
