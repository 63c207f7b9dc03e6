#include "lexicon/pagelayout.h"
#include "lexicon/markuptext.h"

#include "lexicon/pagestore.h"

#include <cmath>

namespace lexicon {

using platform::Canvas;
using platform::TColor;

namespace {

const std::string kRaquo = "\xBB";

using markup::beginntMit;
using markup::istFormatToken;
using markup::trim;

// Flips the case of the first letter, A-Z and a-z only.
std::string ersterBuchstabeGekippt(const std::string& w)
{
    if (w.empty())
        return w;
    std::string r = w;
    if (r[0] >= 'A' && r[0] <= 'Z')
        r[0] = static_cast<char>(r[0] + 32);
    else if (r[0] >= 'a' && r[0] <= 'z')
        r[0] = static_cast<char>(r[0] - 32);
    return r;
}

int rundeTab(const std::string& text, int lexikonschrift)
{
    const int wert = strToInt(text);
    return static_cast<int>(std::lround(wert * lexikonschrift / 10.0));
}

}  // namespace

bool istMarkerLink(const std::string& text)
{
    if (text.size() < 3 || text[2] != ':')
        return false;
    switch (text[1]) {
    case 'B': case 'C': case 'F': case 'G': case 'R': case 'T': case 'V':
        return true;
    default:
        return false;
    }
}

std::string querverweiseSchuetzen(const std::string& s, bool hin)
{
    std::string r = s;
    int tiefe = 0;
    const char von = hin ? ' ' : '\xA2';
    const char nach = hin ? '\xA2' : ' ';
    for (size_t i = 0; i + 1 < r.size(); ++i) {
        if (r[i] == '$' && r[i + 1] == '<')
            ++tiefe;
        else if (r[i] == '$' && r[i + 1] == '>' && tiefe > 0)
            --tiefe;
        else if (tiefe > 0 && r[i] == von)
            r[i] = nach;
    }
    return r;
}

SeitenMaler::SeitenMaler(Canvas& canvas, const SeitenEinstellungen& einstellungen,
                         const std::array<platform::Picture, 5>& linkbild, BildLader bildLader)
    : c_(canvas), e_(einstellungen), linkbild_(linkbild), bildLader_(std::move(bildLader))
{
}

void SeitenMaler::berechneZeichenproz()
{
    zeichenproz = breite * 3 / std::max(1, zeichenbreite_);
    if (zeichenproz < 100)
        zeichenproz = 100;
    if (p12offen_)
        zeichenproz *= 2;
}

void SeitenMaler::reset(int b, bool p12offen)
{
    breite = b;
    p12offen_ = p12offen;
    links.clear();
    for (int i = 1; i <= 10; ++i)
        tabstopp[i] = e_.lexikonschrift * 5 * (i + 1);
    tabstopp[0] = 200;
    tabzaehler_ = 1;
    xbasis = 20;
    y = -2;
    startx = 0;
    rettfarbe_ = 0;
    linkoffen_ = false;
    c_.setBrushStyle(platform::BrushStyle::Clear);
    c_.setPenStyle(platform::PenStyle::Solid);
    c_.setFontName(e_.schrift);
    c_.setFontSize(e_.lexikonschrift);
    c_.setFontStyle(0);
    c_.setFontColor(platform::clBlack);
    zeilenhoehe = static_cast<int>(std::lround(e_.lexikonschrift * 1.8));
    zeichenbreite_ = c_.textWidth("ie");
    berechneZeichenproz();
}

SeitenErgebnis SeitenMaler::maleSeite(const platform::StringList& block, int markerZeile, int b,
                                      bool p12offen, const SuchMarke& marke)
{
    SeitenErgebnis erg;
    marke_ = marke;
    if (marke_.wort1.empty())
        marke_.aktiv = false;
    marke1b_ = ersterBuchstabeGekippt(marke_.wort1);
    marke2b_ = ersterBuchstabeGekippt(marke_.wort2);
    reset(b, p12offen);
    size_t cursor = static_cast<size_t>(markerZeile) + 1;
    if (markerZeile + 1 <= 0) {
        erg.yEnde = y;
        return erg;
    }
    auto naechste = [&]() -> std::string {
        if (cursor >= block.size())
            throw ConversionError("Listenindex überschreitet das Maximum (" + std::to_string(cursor) + ")");
        std::string s = block[cursor++];
        return s.empty() ? std::string(" ") : s;
    };
    erg.titel = cursor < block.size() ? block[cursor] : std::string();
    ++cursor;
    xbasis = 20;
    berechneZeichenproz();

    while (true) {
        std::string s = naechste();
        // Page pictures and tab lines are consumed; the next line stands in their place.
        while (true) {
            if (s.size() >= 3 && s[0] == ']' && s[1] == '+' &&
                (s[2] == 'h' || s[2] == 'i' || s[2] == 'j' || s[2] == 'z')) {
                static const char* container[] = {"bjpg2.dll", "bgif2.dll", "bjpg.dll", "bgif.dll"};
                const int k = s[2] == 'h' ? 0 : s[2] == 'i' ? 1 : s[2] == 'j' ? 2 : 3;
                const std::string typ = (k == 0 || k == 2) ? "Jpeg" : "GIF";
                const std::string name = trim(s.substr(3, 10));
                platform::Picture bild = bildLader_ ? bildLader_(container[k], typ, name) : platform::Picture();
                c_.draw(6, 10, bild);
                xbasis = bild.width() + 22;
                erg.bildseite = true;
                erg.bildBreite = bild.width();
                const int alt = breite;
                breite = alt - xbasis;
                berechneZeichenproz();
                breite = alt;
                s = naechste();
                continue;
            }
            if (beginntMit(s, "!0")) {
                tabstopp[0] = rundeTab(s.substr(2, 6), e_.lexikonschrift);
                s = naechste();
                continue;
            }
            if (beginntMit(s, "!")) {
                const int wert = rundeTab(s.substr(1, 6), e_.lexikonschrift);
                if (tabzaehler_ <= 10)
                    tabstopp[tabzaehler_] = wert;
                ++tabzaehler_;
                s = naechste();
                continue;
            }
            break;
        }
        if (beginntMit(s, "]\xA7")) {
            erg.interaktiv.vorhanden = true;
            erg.interaktiv.aktivnummer = strToInt(naechste());
            std::string z = naechste();
            erg.interaktiv.l10 = z.size() > 1 ? z.substr(1) : "";
            z = naechste();
            erg.interaktiv.l2 = z.size() > 1 ? z.substr(1) : "";
            z = trim(naechste());
            erg.interaktiv.l3 = z.size() > 1 ? z.substr(1) : "";
            continue;
        }
        if (s[0] == '[')
            break;
        if (s[0] == ']' || s[0] == '\xA7')
            continue;
        c_.setFontColor(platform::clBlack);
        c_.setFontStyle(0);
        if (s[0] == '#') {
            s = s.substr(1) + " ";
            y += zeilenhoehe;
            c_.setFontStyle(platform::fsBold);
            c_.setFontColor(seitenfarbe::ueberschrift);
        } else if (s[0] == '&') {
            s = s.substr(1) + " ";
            c_.setFontColor(seitenfarbe::rot);
        }
        zeileMitUmbruch(s);
    }
    erg.links = links;
    erg.yEnde = y;
    return erg;
}

bool SeitenMaler::passt(const std::string& zeile)
{
    std::string t = zeile;
    if (size_t p = t.find("$0"); p != std::string::npos) {
        startx = tabstopp[0];
        t.erase(0, p + 2);
    } else {
        startx = 0;
    }
    while (t.find('$') != std::string::npos) {
        for (const char* art : {"\xBB" "B:", "\xBB" "F:", "\xBB" "G:"}) {
            size_t p;
            while ((p = t.find(art)) != std::string::npos) {
                size_t d = t.find('$', p);
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
    const int w = c_.textWidth(t);
    if (w + startx + xbasis <= breite - 10)
        return true;
    const size_t blank = t.find(' ');
    if (blank == std::string::npos)
        return false;
    return c_.textWidth(t.substr(0, blank)) + startx + xbasis > breite - 12;
}

void SeitenMaler::zeileMitUmbruch(const std::string& zeile)
{
    if (passt(zeile)) {
        zeileMalen(zeile);
        y += zeilenhoehe;
        return;
    }
    std::string s = zeile;
    while (true) {
        s = trim(s);
        std::string teil = querverweiseSchuetzen(s, true);
        while (!passt(teil) && teil.find(' ') != std::string::npos) {
            long i = static_cast<long>(std::min(teil.size(), static_cast<size_t>(zeichenproz))) - 1;
            while (i >= 0 && teil[static_cast<size_t>(i)] != ' ')
                --i;
            if (i < 0)  // the only blanks lie beyond the limit: cut at the last one
                i = static_cast<long>(teil.rfind(' '));
            teil.resize(static_cast<size_t>(i));
        }
        teil = querverweiseSchuetzen(teil, false);
        zeileMalen(teil);
        y += zeilenhoehe;
        if (teil.size() < s.size()) {
            s.erase(0, teil.size());
            if (startx != 0) {
                s.erase(0, 1);
                s = "$0" + s;
            }
        } else {
            break;
        }
        if (trim(s).empty())
            break;
    }
}

void SeitenMaler::text(const std::string& s)
{
    const int x = xbasis + xoff_;
    const int yy = y + yoff_;
    if (!marke_.aktiv) {
        c_.textOut(x, yy, s);
        return;
    }
    size_t pos = std::string::npos;
    std::string gefunden;
    for (const std::string* w : {&marke_.wort1, &marke1b_, &marke_.wort2, &marke2b_}) {
        if (w->empty())
            continue;
        pos = s.find(*w);
        if (pos != std::string::npos) {
            gefunden = *w;
            break;
        }
    }
    if (pos == std::string::npos) {
        c_.textOut(x, yy, s);
        return;
    }
    const std::string vor = s.substr(0, pos);
    const std::string nach = s.substr(pos + gefunden.size());
    c_.textOut(x, yy, vor);
    const int xm = x + c_.textWidth(vor);
    c_.setBrushColor(seitenfarbe::suchmarke);
    c_.textOut(xm, yy, gefunden);
    c_.setBrushStyle(platform::BrushStyle::Clear);
    c_.textOut(xm + c_.textWidth(gefunden), yy, nach);
}

void SeitenMaler::linkEintragen(const std::string& seg)
{
    std::string t = seg;
    if (!t.empty() && t.back() == ' ')
        t.pop_back();
    if (static_cast<int>(links.size()) >= kMaxLinks)
        return;
    LinkEintrag l;
    l.text = t;
    l.x1 = static_cast<std::int16_t>(xbasis + xoff_ - 1);
    l.y1 = static_cast<std::int16_t>(y - 2 + yoff_);
    const bool breitMarker = istMarkerLink(seg) && (seg[1] == 'B' || seg[1] == 'C' || seg[1] == 'F' || seg[1] == 'G');
    l.x2 = static_cast<std::int16_t>(breitMarker ? xoff_ + xbasis + 41 : xbasis + xoff_ + 1 + c_.textWidth(t));
    links.push_back(std::move(l));
}

void SeitenMaler::zeileMalen(const std::string& zeile)
{
    std::string s = zeile;
    xoff_ = -4;
    yoff_ = 0;
    while (true) {
        const size_t d = s.find('$');
        if (d == std::string::npos) {
            text(s);
            return;
        }
        std::string seg = s.substr(0, d);
        bool malen = true;
        if (linkoffen_) {
            linkEintragen(seg);
            linkoffen_ = false;
            if (istMarkerLink(seg)) {
                malen = false;
                const int x = xbasis + xoff_;
                switch (seg[1]) {
                case 'B': c_.draw(x, y + 1 + yoff_, linkbild_[2]); break;
                case 'F': c_.draw(x, y - 3 + yoff_, linkbild_[0]); break;
                case 'G': c_.draw(x, y - 1 + yoff_, linkbild_[1]); break;
                case 'V': c_.draw(x, y + 1 + yoff_, linkbild_[3]); break;
                case 'R': c_.draw(x, y + 1 + yoff_, linkbild_[4]); break;
                case 'C':
                case 'T': {
                    c_.setFontName("Wingdings");
                    c_.setFontSize(e_.lexikonschrift + 2);
                    c_.setFontColor(seitenfarbe::link);
                    c_.textOut(x, y, seg[1] == 'C' ? "1" : "&");
                    break;
                }
                default: break;
                }
                c_.setFontName(e_.schrift);
                c_.setFontSize(e_.lexikonschrift);
                c_.setFontColor(platform::clBlack);
            } else if (beginntMit(seg, "\xBB")) {
                seg = "\x95 " + seg.substr(1);
            }
        }
        if (malen) {
            text(seg);
            xoff_ += c_.textWidth(seg);
        }
        s.erase(0, d + 1);
        if (s.empty())
            return;
        if (s[0] == '*') {
            // A link starts; its colour rule looks ahead at the text behind the token.
            if (c_.fontColor() != seitenfarbe::link)
                rettfarbe_ = c_.fontColor();
            const bool marker = s.size() >= 4 && s[3] == ':' &&
                                (s[2] == 'B' || s[2] == 'C' || s[2] == 'F' || s[2] == 'G' || s[2] == 'T');
            if (!marker && rettfarbe_ == 0)
                c_.setFontColor(seitenfarbe::link);
            linkoffen_ = true;
        } else {
            token(s[0]);
        }
        s.erase(0, 1);
    }
}

void SeitenMaler::token(char c)
{
    switch (c) {
    case '(':
        c_.setFontStyle(c_.fontStyle() | platform::fsBold);
        return;
    case ')':
        c_.setFontStyle(c_.fontStyle() & ~platform::fsBold);
        return;
    case '+': yoff_ -= 5; return;
    case '-': yoff_ += 5; return;
    case '=': xoff_ -= 8; return;
    case '>': c_.setFontColor(rettfarbe_); return;
    case '<':
        if (c_.fontColor() != seitenfarbe::querverweis)
            rettfarbe_ = c_.fontColor();
        if (e_.querv && rettfarbe_ == 0)
            c_.setFontColor(seitenfarbe::querverweis);
        linkoffen_ = true;
        return;
    default:
        break;
    }
    if (c >= '0' && c <= '9') {
        xoff_ = tabstopp[c - '0'];
        return;
    }
    // Any other character: one glyph in the Symbol font.
    const int x = xbasis + xoff_;
    c_.setFontName("Symbol");
    c_.setFontSize(e_.lexikonschrift + 1);
    c_.textOut(x, y + yoff_ - 1, std::string(1, c));
    xoff_ += c_.textWidth(std::string(1, c));
    c_.setFontName(e_.schrift);
    c_.setFontSize(e_.lexikonschrift);
}

}  // namespace lexicon
