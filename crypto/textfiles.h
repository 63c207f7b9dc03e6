#pragma once
// Loading and saving the texts of the cipher windows.
#include <QString>

class QWidget;
#include <string>

namespace crypto {

// Reads a text file as Windows-1252: a file that is valid UTF-8 is converted, any other is
// taken byte for byte, as the program itself writes. `ok` is false if it cannot be read.
std::string readTextFile(const QString& path, bool& ok);
// Writes Windows-1252 with CR LF through a temporary file, so a crash never leaves half a file.
bool writeTextFile(const QString& path, const std::string& cp1252);
// "Text laden": asks for a file and reads it; false if none was chosen or it could not be read
// (then the user has been told).
bool askAndReadTextFile(QWidget* owner, std::string& text);

}  // namespace crypto
