// quorix-pack DATA_DIR BUILD_DIR: turns the UTF-8 sources into the program's containers.
#include "tools/packer.h"

#include <QGuiApplication>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "Aufruf: quorix-pack DATENVERZEICHNIS BUILDVERZEICHNIS\n";
        return 2;
    }
    QGuiApplication app(argc, argv);  // fonts and SVG rendering for generated pictures
    try {
        std::cout << "quorix-pack: " << packer::packAll(argv[1], argv[2]) << "\n";
    } catch (const std::exception& e) {
        std::cerr << e.what() << "\n";
        return 1;
    }
    return 0;
}
