#pragma once
// The packer: data/ (UTF-8 sources) -> resource containers, factory ini and built-in resources.
#include "platform/textlist.h"

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace packer {

// A refusal names the source line: "file:line: reason".
struct PackError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct SourcePage {
    int number = -1;
    std::string title;                  // Windows-1252
    std::vector<std::string> keywords;  // first is the page's own keyword, then synonyms
    platform::StringList body;          // Windows-1252, page markup
    std::string file;
    int line = 0;
};

// Reads one page source file. Refuses a page without title or keyword and malformed heads.
std::vector<SourcePage> parsePageSource(const std::string& utf8Text, const std::string& fileName);

// Builds the blocks "t1".."tN" (index 0 = "t1") from all pages; refuses duplicate numbers.
std::vector<platform::StringList> buildBlocks(const std::vector<SourcePage>& pages);
// The keyword list "ms", sorted as LB1 shows it; refuses a keyword claimed twice.
platform::StringList buildKeywordList(const std::vector<SourcePage>& pages);
// Checks the catalogue (title line, "a b c" line, ...) and converts it to Windows-1252.
platform::StringList buildCatalog(const std::string& utf8Text, const std::string& fileName);

// Converts UTF-8 to Windows-1252 or refuses with file:line.
std::string toCp1252Checked(const std::string& utf8, const std::string& file, int line);

// Packs everything; returns a short summary for the build log.
std::string packAll(const std::string& dataDir, const std::string& buildDir);

}  // namespace packer
