#pragma once
// Text stays Windows-1252 bytes everywhere and becomes Unicode only at the screen.
#include <QString>
#include <string>

namespace platform {

QString fromCp1252(const std::string& bytes);
std::string toCp1252(const QString& text);  // characters outside the code page become '?'
std::string utf8ToCp1252(const std::string& utf8);
std::string cp1252ToUtf8(const std::string& bytes);

// The page markup writes formulas in the Symbol font's own code page and markers in Wingdings;
// these map those bytes to characters that DejaVu Sans can show.
QChar symbolToUnicode(unsigned char b);
QString symbolText(const std::string& bytes);
QChar wingdingsToUnicode(unsigned char b);
QString wingdingsText(const std::string& bytes);

}  // namespace platform
