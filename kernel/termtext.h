#pragma once
// Term text between the outside world (UTF-8) and the interpreter (Windows-1252 bytes): only
// the characters a term can hold beyond ASCII matter (É, é, ·, ã, ...), all in Latin-1.
#include <string>

namespace quorix {

// UTF-8 to Windows-1252 for the Latin-1 range; other characters become "?".
std::string termFromUtf8(const std::string& utf8);
// Windows-1252 to UTF-8 for the Latin-1 range.
std::string termToUtf8(const std::string& bytes);

}  // namespace quorix
