#pragma once
// The one offscreen QApplication of a test program: text metrics, pictures and windows need it.
// Include this from exactly one source file per test folder (its qt_umgebung.cpp).
#include <QApplication>

namespace quorix_test {
inline int argc = 1;
inline char name[] = "quorix_test";
inline char* argv[] = {name, nullptr};
inline QApplication* app = [] {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return new QApplication(argc, argv);
}();
}  // namespace quorix_test
