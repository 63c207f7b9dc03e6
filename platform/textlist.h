#pragma once
// String lists as the program keeps them: Windows-1252 lines, CR LF on disk, zlib as a whole.
#include <stdexcept>
#include <string>
#include <vector>

namespace platform {

using StringList = std::vector<std::string>;

struct ResourceError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// One-shot zlib at level 9 with header.
std::string zlibCompress(const std::string& data);
// Inflates a whole stream; the output buffer grows in steps of the input size rounded to 256.
std::string zlibInflate(const std::string& data);  // throws ResourceError on a corrupt stream

// Splits at CR LF (a lone LF also ends a line); a trailing line break adds no empty line.
StringList splitLines(const std::string& text);
// Every line followed by CR LF.
std::string joinLines(const StringList& lines);

// The two shared routines of the .c00 files.
bool LoadCompressedList(StringList& list, const std::string& path);  // false: missing, list empty
void SaveCompressedList(const StringList& list, const std::string& path);  // temp file + rename

// Whole-file helpers; writing goes through a temporary file and a rename.
bool readFile(const std::string& path, std::string& data);
void writeFileSafely(const std::string& path, const std::string& data);

}  // namespace platform
