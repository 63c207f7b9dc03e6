#include "lexicon/linkroute.h"

#include "kernel/realtostr.h"

#include <cmath>
#include <cstdio>
#include <numbers>

namespace lexicon {

int linkAnPunkt(const std::vector<LinkEintrag>& links, int x, int y)
{
    for (size_t i = 0; i < links.size(); ++i) {
        const auto& l = links[i];
        if (l.x1 < x && x < l.x2 && l.y1 < y && y < l.y1 + kLinkHoehe)
            return static_cast<int>(i);
    }
    return -1;
}

int stichwortIndex(const platform::StringList& lb1, const std::string& text)
{
    std::string klein = text;
    if (!klein.empty() && klein[0] >= 'A' && klein[0] <= 'Z')
        klein[0] = static_cast<char>(klein[0] + 32);
    for (size_t k = 0; k < lb1.size(); ++k)
        if (lb1[k].rfind(text, 0) == 0 || lb1[k].rfind(klein, 0) == 0)
            return static_cast<int>(k);
    return -1;
}

std::string markerWert(const std::string& text)
{
    std::string wert = text.size() > 4 ? text.substr(3, text.size() - 4) : std::string();
    // "»F: X^2«" and "»F:X^2«" mean the same: the value is what follows "F: ".
    while (!wert.empty() && wert[0] == ' ')
        wert.erase(0, 1);
    return wert;
}

KlickAktion klickAuswerten(const std::vector<LinkEintrag>& links, int x, int y,
                           const platform::StringList& lb1, const ToolCatalog& katalog)
{
    KlickAktion a;
    if (links.empty())
        return a;
    int i = linkAnPunkt(links, x, y);
    const bool getroffen = i >= 0;
    if (!getroffen)
        i = static_cast<int>(links.size()) - 1;
    const std::string& text = links[static_cast<size_t>(i)].text;
    // The web rule looks at link i even when nothing was hit: kept as the program always did.
    if (text.find("http") != std::string::npos)
        a.url = text;
    if (!getroffen)
        return a;
    a.linkIndex = i;
    a.text = text;
    const int i2 = stichwortIndex(lb1, text);
    const bool werkzeugText = text.rfind("\xBB", 0) == 0;
    if (i2 < 0 && !werkzeugText)
        return a;
    if (!werkzeugText) {
        a.art = KlickAktion::Stichwort;
        a.index = i2;
        return a;
    }
    const std::string key = text.substr(1);
    if (katalog.suche(key, a.werkzeug)) {
        a.art = KlickAktion::Werkzeug;
        a.text = key;
        return a;
    }
    a.wert = markerWert(text);
    if (text.find("F:") != std::string::npos) {
        a.art = KlickAktion::Funktionsplot;
    } else if (text.find("C:") != std::string::npos) {
        a.art = KlickAktion::Zusatzbild;
    } else if (text.find("T:") != std::string::npos) {
        if (!a.wert.empty() && a.wert[0] == '#') {
            a.art = KlickAktion::Pdf;
            a.wert = a.wert.substr(1);
        } else {
            a.art = KlickAktion::Tabelle;
        }
    } else if (text.find("G:") != std::string::npos) {
        if (!a.wert.empty() && a.wert[0] == '#') {
            a.art = KlickAktion::Begleitprogramm;
            a.wert = a.wert.substr(1);
        } else {
            a.art = KlickAktion::GifFenster;
        }
    } else if (text.find("V:") != std::string::npos) {
        a.art = KlickAktion::Weiter;
    } else if (text.find("R:") != std::string::npos) {
        a.art = KlickAktion::Zurueck;
    } else if (text.find("\xAB") != std::string::npos) {
        a.art = KlickAktion::Lexikonrechnung;
    }
    return a;
}

PlotAuftrag plotAuftragAusWert(const std::string& wert)
{
    PlotAuftrag p;
    if (!wert.empty() && (wert[0] == 'D' || wert[0] == 'K')) {
        p.flaeche = true;
        p.kurvenmodus = wert[0] == 'K';
        p.flaechenname = wert.substr(1);
        return p;
    }
    p.plotliste.push_back(" ");
    const double pi = std::numbers::pi;
    auto kurvenblock = [&](const char* kopf, double von) {
        p.plotliste.push_back(kopf);
        p.plotliste.push_back("");
        p.plotliste.push_back(kernel::RealToStrDot(1, 10, von));
        p.plotliste.push_back(kernel::RealToStrDot(1, 10, pi));
        p.plotliste.push_back(kernel::RealToStrDot(1, 10, 0.01));
        p.plotliste.push_back("0");
        p.plotliste.push_back("0");
    };
    if (wert.rfind("~k", 0) == 0) {
        const std::string rest = wert.substr(2);
        const size_t bar = rest.find('|');
        p.feldX = rest.substr(0, bar);
        p.feldY = bar == std::string::npos ? std::string() : rest.substr(bar + 1);
        kurvenblock("#K", -pi);
        p.skalierung = 1;
        return p;
    }
    if (wert.rfind("~", 0) == 0) {
        const bool doppelt = wert.rfind("~~", 0) == 0;
        std::string term = wert.substr(doppelt ? 2 : 1);
        int d = 1;
        if (term.size() >= 2 && term[0] == ';' && term[1] >= '0' && term[1] <= '9') {
            d = term[1] - '0';
            term = term.substr(2);
        }
        p.feldX = term;
        kurvenblock("#P", -d * pi);
        if (doppelt)
            kurvenblock("#W", -d * pi);
        p.skalierung = 1;
        return p;
    }
    size_t start = 0;
    while (start <= wert.size()) {
        const size_t semi = wert.find(';', start);
        const std::string term = wert.substr(start, semi == std::string::npos ? std::string::npos : semi - start);
        if (!term.empty()) {
            p.plotliste.push_back("#F");
            p.plotliste.push_back(term);
        }
        if (semi == std::string::npos)
            break;
        start = semi + 1;
    }
    return p;
}

}  // namespace lexicon
