// One offscreen QApplication for this test program.
#include "tests/qt_umgebung.h"
