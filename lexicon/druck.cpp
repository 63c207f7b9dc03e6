#include "lexicon/druck.h"
#include "lexicon/markuptext.h"

#include "lexicon/einstellungen.h"
#include "lexicon/pagestore.h"
#include "platform/container.h"

#include <algorithm>
#include <cmath>

namespace lexicon {

using platform::TColor;

namespace {

using markup::beginntMit;
using markup::istFormatToken;
using markup::trim;

void linksSchneiden(std::string& s, const std::string& anfang)
{
    size_t p;
    while ((p = s.find(anfang)) != std::string::npos) {
        size_t e = s.find('\xAB', p);
        e = e == std::string::npos ? s.size() : std::min(s.size(), e + 3);
        while (e < s.size() && s[e] == ' ')
            ++e;
        // At most 2000 characters of the rest are kept, as the reader's buffer held.
        s = s.substr(0, p) + s.substr(e, 2000);
    }
}

int randPixel(int dpi, int zehntelZentimeter, int versatz)
{
    const int r = static_cast<int>(std::lround(dpi * zehntelZentimeter / 25.0)) - versatz;
    return std::max(0, r);
}

const TColor kNavy = platform::rgb(0, 0, 128);
const TColor kBlau = platform::rgb(0, 0, 255);
const TColor kRot = platform::rgb(255, 0, 0);

}  // namespace

std::string druckzeileFiltern(const std::string& zeile)
{
    std::string s = zeile;
    // With the colon, so that tools named "F..." or "B..." keep the text behind their link.
    linksSchneiden(s, "$*\xBB" "B:");
    linksSchneiden(s, "$*\xBB" "F:");
    return s.empty() ? std::string(" ") : s;
}

bool istBildschirmzeile(const std::string& zeile)
{
    // "$*»" followed by G, C, R, V, T or a tool's name: nothing of it has a meaning on paper.
    return beginntMit(zeile, "$*\xBB");
}

DruckEinstellungen druckEinstellungenVon(const Einstellungen& e)
{
    DruckEinstellungen d;
    d.druckschrift = e.druckschrift;
    d.druckgroesse = e.druckfontsize;
    d.linksDruck = e.linksDruck;
    d.rechtsDruck = e.rechtsDruck;
    d.obenDruck = e.obenDruck;
    return d;
}

DruckVariablen druckVariablen(const DruckGeraet& g, const DruckEinstellungen& e, int bildBreite, int bildHoehe)
{
    DruckVariablen v;
    const int dpi = std::max(1, g.bildschirmDpi);
    v.xfaktor = std::max(1, g.dpiX / dpi);
    v.yfaktor = std::max(1, g.dpiY / dpi);
    v.druckzeile = e.druckgroesse * 2 * v.yfaktor;
    v.rand_links = randPixel(g.dpiX, e.linksDruck, g.versatzX);
    v.rand_rechts = randPixel(g.dpiX, e.rechtsDruck, g.versatzX);
    v.rand_oben = randPixel(g.dpiY, e.obenDruck, g.versatzY);
    if (bildHoehe > 1) {
        v.bildeinzug = (bildBreite + 10) * v.xfaktor;
        v.bildhoehe = bildHoehe * v.yfaktor;
    }
    return v;
}

SeitenDrucker::SeitenDrucker(platform::Canvas& canvas, const DruckEinstellungen& e, const DruckGeraet& g)
    : c_(canvas), e_(e), g_(g)
{
}

// The font sizes are scaled by yfaktor: the canvas measures points at screen resolution, the
// printer's pixels are yfaktor times smaller.
void SeitenDrucker::grundschrift()
{
    c_.setFontName(e_.druckschrift);
    c_.setFontSize(e_.druckgroesse * v_.yfaktor);
}

void SeitenDrucker::bildregel()
{
    if (v_.zeilenzahl * v_.druckzeile > v_.bildhoehe)
        v_.bildeinzug = 0;
}

DruckErgebnis SeitenDrucker::druckeSeite(const platform::StringList& block, int markerZeile,
                                         const platform::Picture& bild)
{
    DruckErgebnis erg;
    erg_ = &erg;
    const bool mitBild = !bild.empty() && bild.height() > 1;
    v_ = druckVariablen(g_, e_, mitBild ? bild.width() : 0, mitBild ? bild.height() : 0);
    erg.anfang = v_;
    const bool bildGesetzt = v_.bildeinzug != 0;
    for (int i = 1; i <= 10; ++i)
        tabstopp_[i] = i * 50 + 50;
    tabstopp_[0] = 200;
    tabzaehler_ = 1;
    rettfarbe_ = 0;
    grundschrift();
    c_.setFontStyle(0);
    c_.setFontColor(platform::clBlack);
    c_.setBrushStyle(platform::BrushStyle::Clear);
    c_.setPenStyle(platform::PenStyle::Solid);
    if (markerZeile + 1 <= 0) {
        erg.ende = v_;
        erg_ = nullptr;
        return erg;
    }
    erg.gefunden = true;
    size_t cursor = static_cast<size_t>(markerZeile) + 1;
    auto naechste = [&]() -> std::string {
        if (cursor >= block.size())
            throw ConversionError("Listenindex überschreitet das Maximum (" + std::to_string(cursor) + ")");
        return druckzeileFiltern(block[cursor++]);
    };
    erg.titel = cursor < block.size() ? block[cursor] : std::string();
    ++cursor;

    while (true) {
        std::string s = naechste();
        while (istBildschirmzeile(s))
            s = naechste();
        // Tab lines: here the numbers are printer steps as they stand, times xfaktor when used.
        while (beginntMit(s, "!")) {
            if (s.size() > 1 && s[1] == '0') {
                tabstopp_[0] = strToInt(s.substr(2, 6));
            } else {
                const int wert = strToInt(s.substr(1, 6));
                if (tabzaehler_ <= 10)
                    tabstopp_[tabzaehler_] = wert;
                ++tabzaehler_;
            }
            s = naechste();
        }
        if (s[0] == ']' || s[0] == '\xA7') {
            if (beginntMit(s, "]\xA7")) {
                // The interactive block: its number and three captions are for the side panel.
                for (int i = 0; i < 4; ++i)
                    naechste();
                continue;
            }
            if (s.size() > 1 && s[1] == '-')
                s = naechste();
            if (s[0] == ']' || s[0] == '\xA7')
                continue;
        }
        if (s[0] == '[')
            break;
        c_.setFontColor(platform::clBlack);
        c_.setFontStyle(0);
        if (s[0] == '#') {
            s = s.substr(1) + " ";
            ++v_.zeilenzahl;
            bildregel();
            c_.setFontStyle(platform::fsBold);
            c_.setFontColor(kBlau);
        } else if (s[0] == '&') {
            s = s.substr(1) + " ";
            c_.setFontColor(kRot);
        }
        if (!s.empty())
            zeileMitUmbruch(s);
    }

    c_.setFontColor(platform::clBlack);
    c_.setFontStyle(0);
    grundschrift();
    erg.schlusszeileY = v_.rand_oben + (v_.zeilenzahl + 1) * v_.druckzeile;
    c_.textOut(v_.rand_links, erg.schlusszeileY, "Quorix");
    if (bildGesetzt)
        c_.stretchDraw(v_.rand_links, v_.rand_oben, bild.width() * v_.xfaktor, bild.height() * v_.yfaktor, bild);
    erg.ende = v_;
    erg_ = nullptr;
    return erg;
}

bool SeitenDrucker::passt(const std::string& zeile)
{
    std::string t = zeile;
    if (size_t p = t.find("$0"); p != std::string::npos) {
        startx_ = tabstopp_[0] * v_.xfaktor;
        t.erase(0, p + 2);
    } else {
        startx_ = 0;
    }
    while (t.find('$') != std::string::npos) {
        for (const char* art : {"\xBB" "B:", "\xBB" "F:"}) {
            size_t p;
            while ((p = t.find(art)) != std::string::npos) {
                const size_t d = t.find('$', p);
                t.erase(p, d == std::string::npos ? std::string::npos : d - p + 2);
            }
        }
        size_t p = t.find('$');
        if (p == std::string::npos)
            break;
        if (p + 1 >= t.size() || !istFormatToken(t[p + 1]))
            t[p] = '#';
        p = t.find('$');
        if (p != std::string::npos)
            t.erase(p, 2);
    }
    const int grenze = g_.seitenbreite - v_.rand_links - v_.bildeinzug - v_.rand_rechts;
    if (c_.textWidth(t) + startx_ <= grenze)
        return true;
    const size_t blank = t.find(' ');
    if (blank == std::string::npos)
        return false;
    return c_.textWidth(t.substr(0, blank)) + startx_ > grenze;
}

void SeitenDrucker::zeileMitUmbruch(const std::string& zeile)
{
    if (passt(zeile)) {
        zeileDrucken(zeile);
        ++v_.zeilenzahl;
        bildregel();
        return;
    }
    std::string s = zeile;
    while (true) {
        s = trim(s);
        std::string teil = s;
        while (!passt(teil)) {
            const size_t i = teil.rfind(' ');
            if (i == std::string::npos || i < 1)
                break;  // a single word too wide for the sheet runs over the edge
            teil.resize(i);
        }
        zeileDrucken(teil);
        ++v_.zeilenzahl;
        bildregel();
        if (teil.size() >= s.size())
            break;
        s.erase(0, teil.size());
        if (startx_ != 0) {
            s.erase(0, 1);
            s = "$0" + s;
        }
        if (trim(s).empty())
            break;
    }
}

void SeitenDrucker::zeileDrucken(const std::string& zeile)
{
    const int x0 = v_.rand_links + v_.bildeinzug;
    const int y0 = v_.rand_oben + v_.zeilenzahl * v_.druckzeile;
    erg_->zeilen.push_back({x0, y0, zeile});
    std::string s = zeile;
    int xoff = 0;
    int yoff = 0;
    bool linkoffen = false;
    while (true) {
        const size_t d = s.find('$');
        const std::string seg = s.substr(0, d);
        bool drucken = true;
        if (linkoffen) {
            linkoffen = false;
            // Calculations, plots, tables and tool links do nothing on paper.
            if (beginntMit(seg, "\xBB"))
                drucken = false;
        }
        if (drucken && !seg.empty()) {
            c_.textOut(x0 + xoff, y0 + v_.yfaktor * yoff, seg);
            xoff += c_.textWidth(seg);
        }
        if (d == std::string::npos)
            return;
        s.erase(0, d + 1);
        if (s.empty())
            return;
        const char t = s[0];
        s.erase(0, 1);
        switch (t) {
        case '(': c_.setFontStyle(c_.fontStyle() | platform::fsBold); break;
        case ')': c_.setFontStyle(c_.fontStyle() & ~platform::fsBold); break;
        case '+': yoff -= 5; break;
        case '-': yoff += 5; break;
        case '=': xoff -= 8 * v_.xfaktor; break;
        case '>': c_.setFontColor(rettfarbe_); break;
        case '<':
            // Cross references print in the text's colour.
            if (c_.fontColor() != platform::rgb(160, 0, 0))
                rettfarbe_ = c_.fontColor();
            linkoffen = true;
            break;
        case '*': {
            if (c_.fontColor() != kNavy)
                rettfarbe_ = c_.fontColor();
            const bool rechnung = s.size() >= 3 && s[0] == '\xBB' && s[1] == 'B' && s[2] == ':';
            if (!rechnung && rettfarbe_ == 0)
                c_.setFontColor(kNavy);
            linkoffen = true;
            break;
        }
        default:
            if (t >= '0' && t <= '9') {
                xoff = tabstopp_[t - '0'] * v_.xfaktor;
            } else {
                c_.setFontName("Symbol");
                c_.setFontSize((e_.druckgroesse + 1) * v_.yfaktor);
                const std::string z(1, t);
                c_.textOut(x0 + xoff, y0 + v_.yfaktor * (yoff - 1), z);
                xoff += c_.textWidth(z);
                grundschrift();
            }
            break;
        }
    }
}

bool seitenbildSuchen(const platform::StringList& block, int markerZeile, SeitenbildQuelle& q)
{
    if (markerZeile < 0)
        return false;
    for (size_t i = static_cast<size_t>(markerZeile) + 1; i < block.size(); ++i) {
        const std::string& s = block[i];
        if (!s.empty() && s[0] == '[')
            return false;
        if (s.size() >= 3 && s[0] == ']' && s[1] == '+' &&
            (s[2] == 'h' || s[2] == 'i' || s[2] == 'j' || s[2] == 'z')) {
            static const char* container[] = {"bjpg2.dll", "bgif2.dll", "bjpg.dll", "bgif.dll"};
            const int k = s[2] == 'h' ? 0 : s[2] == 'i' ? 1 : s[2] == 'j' ? 2 : 3;
            q.container = container[k];
            q.typ = (k == 0 || k == 2) ? "Jpeg" : "GIF";
            q.name = trim(s.substr(3, 10));
            return true;
        }
    }
    return false;
}

platform::Picture seitenbildLaden(const std::string& bildordner, const SeitenbildQuelle& q)
{
    try {
        return platform::decodePicture(platform::readResource(bildordner + q.container, q.typ, q.name), q.typ);
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace lexicon
