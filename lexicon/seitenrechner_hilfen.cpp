#include "lexicon/seitenrechner_intern.h"

#include "kernel/realtostr.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>

namespace lexicon::rechner {

void zeileAus(R& r, const std::string& text) { r.zeilen.push_back(text); }
void leerzeile(R& r) { r.zeilen.push_back(""); }
void zahlAus(R& r, int64_t n) { r.zeilen.push_back(std::to_string(n)); }
void tabAus(R& r, const std::string& text) { r.zeilen.push_back("\t" + text); }
void einrueckAus(R& r, const std::string& text) { r.zeilen.push_back("    " + text); }
void fehlerEingabe(R& r) { r.zeilen.push_back("Fehlerhafte Eingabe"); }

void ziffernAus(R& r, const std::string& s)
{
    for (size_t i = 0; i < s.size(); i += 20) {
        std::string zeile = "  " + s.substr(i, 10);
        if (i + 10 < s.size())
            zeile += " " + s.substr(i + 10, 10);
        r.zeilen.push_back(zeile);
    }
    r.zeilen.push_back("hat " + std::to_string(s.size()) + " Ziffern");
}

double wertFeld(const std::string& feld, bool& ok)
{
    const double v = feldWertLesen(feld, ok);
    if (!std::isfinite(v))
        ok = false;
    return ok ? v : 0.0;
}

bool ganzFeld(const std::string& feld, int64_t& v)
{
    size_t a = feld.find_first_not_of(" \t");
    size_t e = feld.find_last_not_of(" \t");
    if (a == std::string::npos)
        return false;
    const std::string t = feld.substr(a, e - a + 1);
    // Digits first, so 64-bit values keep every digit; a term goes through the reader.
    errno = 0;
    char* ende = nullptr;
    const long long g = std::strtoll(t.c_str(), &ende, 10);
    if (ende != t.c_str() && *ende == 0 && errno == 0) {
        v = g;
        return true;
    }
    bool ok = false;
    const double d = wertFeld(t, ok);
    if (!ok || std::fabs(d) >= 9.2e18)
        return false;
    v = std::llround(d);
    return true;
}

int64_t ganzGrenzen(std::string& feld, int64_t min, int64_t max)
{
    int64_t v = 0;
    if (!ganzFeld(feld, v))
        v = 0;
    if (v < min)
        v = min;
    if (v > max)
        v = max;
    feld = std::to_string(v);
    return v;
}

bool datumZerlegen(const std::string& text, int& tag, int& monat, int& jahr)
{
    int64_t teile[3];
    size_t start = 0;
    for (int i = 0; i < 3; ++i) {
        size_t p = text.find('.', start);
        if (i < 2 && p == std::string::npos)
            return false;
        const std::string stueck = text.substr(start, i < 2 ? p - start : std::string::npos);
        if (!ganzFeld(stueck, teile[i]) || std::llabs(teile[i]) > 1000000)
            return false;
        start = p + 1;
    }
    tag = static_cast<int>(teile[0]);
    monat = static_cast<int>(teile[1]);
    jahr = static_cast<int>(teile[2]);
    return true;
}

bool datumEd1(R& r, int& tag, int& monat, int& jahr)
{
    if (!datumZerlegen(r.ed1, tag, monat, jahr))
        return false;
    r.ed1 = std::to_string(tag) + "." + std::to_string(monat) + "." + std::to_string(jahr);
    return true;
}

std::string zahl(double x, int stellen) { return kernel::RealToStr(1, stellen, x); }

bool weiter(R& r)
{
    if (r.nachrichtenschleife)
        r.nachrichtenschleife();
    return !r.zeitaufwaendig || *r.zeitaufwaendig;
}

}  // namespace lexicon::rechner
