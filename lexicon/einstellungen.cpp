#include "lexicon/einstellungen.h"

#include "kernel/realtostr.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace lexicon {

Einstellungen einstellungen;

namespace {

std::string stringLesen(const platform::StringList& z, const std::string& key)
{
    std::string w;
    iniWertSuchen(z, key, w);
    return w;
}

double realLesen(const platform::StringList& z, const std::string& key, double vorgabe)
{
    std::string w;
    if (!iniWertSuchen(z, key, w))
        return vorgabe;
    // The run time's conversion: the whole text must be a number with a decimal point.
    size_t i = 0;
    while (i < w.size() && w[i] == ' ')
        ++i;
    const char* start = w.c_str() + i;
    char* end = nullptr;
    const double v = std::strtod(start, &end);
    if (end == start)
        return vorgabe;
    while (*end == ' ')
        ++end;
    return *end ? vorgabe : v;
}

int intLesen(const platform::StringList& z, const std::string& key)
{
    std::string w;
    if (!iniWertSuchen(z, key, w))
        return 0;
    char* end = nullptr;
    const long v = std::strtol(w.c_str(), &end, 10);
    if (end == w.c_str() || *end)
        return 0;
    return static_cast<int>(v);
}

bool flagLesen(const platform::StringList& z, const std::string& key)
{
    return stringLesen(z, key) == "1";
}

std::string trimmed(const std::string& s)
{
    size_t i = 0, j = s.size();
    while (i < j && (s[i] == ' ' || s[i] == '\t'))
        ++i;
    while (j > i && (s[j - 1] == ' ' || s[j - 1] == '\t'))
        --j;
    return s.substr(i, j - i);
}

}  // namespace

bool iniWertSuchen(const platform::StringList& zeilen, const std::string& key, std::string& wert)
{
    // The hit ignores case: "Lexikonschrift=12" in front of "Schrift=..." answers for
    // "Schrift", which is why the factory file keeps "Schrift" first.
    std::string k = key;
    for (char& c : k)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const auto& z0 : zeilen) {
        std::string z = z0;
        for (char& c : z)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        if (z.find(k) == std::string::npos)
            continue;
        const size_t eq = z0.find('=');
        wert = eq == std::string::npos ? std::string() : z0.substr(eq + 1, 255);
        return true;
    }
    return false;
}

void einstellungenLesen(Einstellungen& e, const platform::StringList& z)
{
    e.x1 = realLesen(z, "X1", e.x1);
    e.x2 = realLesen(z, "X2", e.x2);
    e.y1 = realLesen(z, "Y1", e.y1);
    e.y2 = realLesen(z, "Y2", e.y2);
    e.schrift = stringLesen(z, "Schrift");
    e.druckschrift = stringLesen(z, "Druckschrift");
    e.druckfontsize = intLesen(z, "Druckfontsize");
    e.lexikonschrift = intLesen(z, "Lexikonschrift");
    e.lexikonseite = intLesen(z, "Lexikonseite");
    e.linksDruck = intLesen(z, "LinksDruck");
    e.rechtsDruck = intLesen(z, "RechtsDruck");
    e.obenDruck = intLesen(z, "ObenDruck");
    e.untenDruck = intLesen(z, "UntenDruck");
    e.zeitstrahl = intLesen(z, "Zeitstrahl");
    for (int i = 0; i < 5; ++i)
        e.farbe[i] = intLesen(z, "Farbe" + std::to_string(i + 1));
    e.sucheX = intLesen(z, "SucheX");
    e.sucheY = intLesen(z, "SucheY");
    e.linksDruck = intLesen(z, "LinksDruck");
    e.druckfontsize = intLesen(z, "Druckgroesse");
    e.listboxschrift = intLesen(z, "Listboxschrift");
    e.spieler = stringLesen(z, "Spieler");
    e.gOrt = stringLesen(z, "GOrt");
    e.drucker = stringLesen(z, "Drucker");
    e.komma = flagLesen(z, "Komma");
    e.querv = flagLesen(z, "Querv");
    e.raster = flagLesen(z, "Raster");
    e.achsenbreit = flagLesen(z, "Achsenbreit");
    e.maxfenster = flagLesen(z, "Maxfenster");
    e.xyIntervall = flagLesen(z, "XYIntervall");
    e.fDruck = flagLesen(z, "FDruck");
    e.gBreite = realLesen(z, "GBreite", e.gBreite);
    e.gLaenge = realLesen(z, "GLaenge", e.gLaenge);
    e.gZeit = realLesen(z, "GZeit", e.gZeit);
    e.grGeschw = realLesen(z, "GrGeschw", e.grGeschw);
    {
        const std::string g = stringLesen(z, "GrafikSchrift");
        e.grafikSchrift = g.empty() ? 10 : intLesen(z, "GrafikSchrift");
    }
    e.faktorE = intLesen(z, "FaktorE");
    e.faktorI = intLesen(z, "FaktorI");
    e.faktorS = intLesen(z, "FaktorS");

    if (e.schrift.empty())
        e.schrift = "Verdana";
    if (e.druckschrift.empty())
        e.druckschrift = "Verdana";
    if (e.gOrt.empty())
        e.gOrt = "Neuhafen, D";
    if (e.listboxschrift < 8)
        e.listboxschrift = 8;
    if (e.lexikonschrift < 6)  // a page can't be laid out without a font size
        e.lexikonschrift = 10;
    if (!(e.x1 < e.x2)) { e.x1 = -5; e.x2 = 5; }
    if (!(e.y1 < e.y2)) { e.y1 = -4; e.y2 = 4; }
}

void iniSchreiben(platform::StringList& zeilen, const std::string& sektion, const std::string& key,
                  const std::string& wert)
{
    const std::string kopf = "[" + sektion + "]";
    size_t s = 0;
    for (; s < zeilen.size(); ++s)
        if (trimmed(zeilen[s]) == kopf)
            break;
    if (s == zeilen.size()) {
        if (!zeilen.empty() && !zeilen.back().empty())
            zeilen.push_back("");
        zeilen.push_back(kopf);
        zeilen.push_back(key + "=" + wert);
        return;
    }
    size_t ende = s + 1;
    for (; ende < zeilen.size(); ++ende) {
        const std::string t = trimmed(zeilen[ende]);
        if (!t.empty() && t[0] == '[')
            break;
        const size_t eq = t.find('=');
        if (eq != std::string::npos && trimmed(t.substr(0, eq)) == key) {
            zeilen[ende] = key + "=" + wert;
            return;
        }
    }
    // New key: behind the section's last non-empty line.
    size_t pos = ende;
    while (pos > s + 1 && trimmed(zeilen[pos - 1]).empty())
        --pos;
    zeilen.insert(zeilen.begin() + static_cast<long>(pos), key + "=" + wert);
}

void iniLoeschen(platform::StringList& zeilen, const std::string& sektion, const std::string& key)
{
    const std::string kopf = "[" + sektion + "]";
    bool drin = false;
    for (size_t i = 0; i < zeilen.size(); ++i) {
        const std::string t = trimmed(zeilen[i]);
        if (!t.empty() && t[0] == '[') {
            drin = t == kopf;
            continue;
        }
        const size_t eq = t.find('=');
        if (drin && eq != std::string::npos && trimmed(t.substr(0, eq)) == key) {
            zeilen.erase(zeilen.begin() + static_cast<long>(i));
            return;
        }
    }
}

platform::StringList einstellungenSchreiben(const Einstellungen& e, const platform::StringList& vorher)
{
    platform::StringList z = vorher;
    const std::string s = "QuorixLexikon";
    auto w = [&](const std::string& k, const std::string& v) { iniSchreiben(z, s, k, v); };
    auto wi = [&](const std::string& k, int v) { w(k, std::to_string(v)); };
    auto wb = [&](const std::string& k, bool v) { w(k, v ? "1" : "0"); };
    w("X1", kernel::RealToStrDot(1, 10, e.x1));
    w("X2", kernel::RealToStrDot(1, 10, e.x2));
    w("Y1", kernel::RealToStrDot(1, 10, e.y1));
    w("Y2", kernel::RealToStrDot(1, 10, e.y2));
    w("Schrift", e.schrift);
    w("Druckschrift", e.druckschrift);
    w("Drucker", e.drucker);
    wi("Lexikonschrift", e.lexikonschrift);
    wi("Druckfontsize", e.druckfontsize);
    wi("Lexikonseite", e.lexikonseite);
    wi("Listboxschrift", e.listboxschrift);
    w("Spieler", e.spieler);
    w("GOrt", e.gOrt);
    w("GBreite", kernel::RealToStrDot(1, 10, e.gBreite));
    w("GLaenge", kernel::RealToStrDot(1, 10, e.gLaenge));
    w("GZeit", kernel::RealToStrDot(1, 10, e.gZeit));
    w("GrGeschw", kernel::RealToStrDot(1, 10, e.grGeschw));
    wi("GrafikSchrift", e.grafikSchrift);
    wi("LinksDruck", e.linksDruck);
    wi("RechtsDruck", e.rechtsDruck);
    wi("ObenDruck", e.obenDruck);
    wi("UntenDruck", e.untenDruck);
    wi("Druckgroesse", e.druckfontsize);
    wi("Zeitstrahl", e.zeitstrahl);
    for (int i = 0; i < 5; ++i)
        wi("Farbe" + std::to_string(i + 1), e.farbe[i]);
    wi("FaktorE", e.faktorE);
    wi("FaktorI", e.faktorI);
    wi("FaktorS", e.faktorS);
    wi("SucheX", e.sucheX);
    wi("SucheY", e.sucheY);
    wb("FDruck", e.fDruck);
    wb("Maxfenster", e.maxfenster);
    wb("XYIntervall", e.xyIntervall);
    wb("Querv", e.querv);
    wb("Raster", e.raster);
    wb("Achsenbreit", e.achsenbreit);
    wb("Komma", e.komma);
    return z;
}

bool textDateiLesen(const std::string& pfad, platform::StringList& zeilen)
{
    std::string raw;
    if (!platform::readFile(pfad, raw))
        return false;
    zeilen = platform::splitLines(raw);
    return true;
}

}  // namespace lexicon
