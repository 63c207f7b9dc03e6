#pragma once
// The page store: blocks of 100 pages in tlexikon.dll, one block in memory at a time.
#include "platform/textlist.h"

#include <stdexcept>
#include <string>

namespace lexicon {

// A malformed number where the data needs one; the global handler shows its text.
struct ConversionError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// StrToInt with the run time's message on failure.
int strToInt(const std::string& s);

class PageStore {
public:
    explicit PageStore(std::string lexikonpfad = {});
    void setLexikonpfad(const std::string& p) { lexikonpfad_ = p; blocknummer = -1; }

    // Fetch "t<block>", inflate, replace seitenblock. Opens and closes the container each time.
    void ladeblock(const std::string& name);
    // Loads block n / 100 + 1 unless it is the one in memory.
    void blockFuerSeite(int seite);
    // The head line of page n: the line index L of its marker line (<= 0: no content).
    int kopfzeile(int seite);
    // The keyword list "ms".
    platform::StringList stichwortliste() const;
    // The last block number, derived from the data (the highest "t<k>" present).
    int letzterBlock() const;

    int blocknummer = -1;
    platform::StringList seitenblock;

private:
    std::string lexikonpfad_;
};

// The page number behind the tab of a keyword line: only the up to 5 characters read.
int seitennummerAusStichwort(const std::string& zeile);
// The text before the tab.
std::string stichwortText(const std::string& zeile);

}  // namespace lexicon
