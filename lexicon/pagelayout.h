#pragma once
// One pass of layout, link table and drawing for a lexicon page in the page markup.
#include "platform/canvas.h"
#include "platform/picture.h"
#include "platform/textlist.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lexicon {

constexpr int kMaxLinks = 120;
constexpr int kLinkHoehe = 20;

struct LinkEintrag {
    std::int16_t x1 = 0;
    std::int16_t y1 = 0;
    std::int16_t x2 = 0;
    std::string text;  // its trailing blank removed
};

struct SeitenEinstellungen {
    std::string schrift = "Verdana";
    int lexikonschrift = 10;
    bool querv = true;
};

// The two terms of the search window; the mark is off while the first is empty.
struct SuchMarke {
    bool aktiv = false;
    std::string wort1, wort2;
};

struct InteraktiverTeil {
    bool vorhanden = false;
    int aktivnummer = 0;
    std::string l10, l2, l3;
};

struct SeitenErgebnis {
    std::string titel;
    std::vector<LinkEintrag> links;  // linkfeld[1..linkanzahl]
    bool bildseite = false;
    int bildBreite = 0;
    InteraktiverTeil interaktiv;
    int yEnde = 0;  // where the last painted line ended: a page taller than the box runs off it
};

// Fetches a page picture: container file name (e.g. "bjpg.dll"), type ("Jpeg"/"GIF"), name.
using BildLader = std::function<platform::Picture(const std::string& container, const std::string& typ,
                                                  const std::string& name)>;

class SeitenMaler {
public:
    SeitenMaler(platform::Canvas& canvas, const SeitenEinstellungen& einstellungen,
                const std::array<platform::Picture, 5>& linkbild, BildLader bildLader);

    // Lays out and draws the page whose marker line index is markerZeile (= L) in block.
    // breite: the box's width; p12offen doubles the wrap limit.
    SeitenErgebnis maleSeite(const platform::StringList& block, int markerZeile, int breite, bool p12offen,
                             const SuchMarke& marke = {});

    // Parts of the pass, public for the tests.
    bool passt(const std::string& zeile);          // the fit test; sets startx
    void zeileMitUmbruch(const std::string& s);    // paints with wrap, advances y
    void zeileMalen(const std::string& s);         // the line painter
    void reset(int breite, bool p12offen);

    int tabstopp[11] = {};
    int xbasis = 20;
    int y = -2;
    int breite = 0;
    int zeichenproz = 100;
    int startx = 0;
    int zeilenhoehe = 18;
    std::vector<LinkEintrag> links;

private:
    void text(const std::string& s);  // draw at the cursor through the search mark
    void linkEintragen(const std::string& seg);
    void token(char c);
    void berechneZeichenproz();

    platform::Canvas& c_;
    SeitenEinstellungen e_;
    const std::array<platform::Picture, 5>& linkbild_;
    BildLader bildLader_;
    SuchMarke marke_;
    std::string marke1b_, marke2b_;
    int zeichenbreite_ = 10;
    int tabzaehler_ = 1;
    int xoff_ = -4;
    int yoff_ = 0;
    bool linkoffen_ = false;
    bool p12offen_ = false;
    platform::TColor rettfarbe_ = 0;
};

// The blanks between "$<" and "$>" (nesting counted) become 0xA2 and back.
std::string querverweiseSchuetzen(const std::string& s, bool hin);

// True if a link text is a marker link: 3rd character ':' and 2nd one of the kinds.
bool istMarkerLink(const std::string& text);

// The colours of the page.
namespace seitenfarbe {
constexpr platform::TColor ueberschrift = platform::rgb(0, 0, 255);
constexpr platform::TColor rot = platform::rgb(255, 0, 0);
constexpr platform::TColor link = platform::rgb(0, 0, 128);
constexpr platform::TColor querverweis = platform::rgb(160, 0, 0);
constexpr platform::TColor suchmarke = platform::rgb(255, 255, 160);
}  // namespace seitenfarbe

}  // namespace lexicon
