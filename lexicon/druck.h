#pragma once
// Printing a lexicon page: the markup lines walked once more, in printer pixels, onto one sheet.
// The same line filter serves the RTF export.
#include "platform/canvas.h"
#include "platform/picture.h"
#include "platform/textlist.h"

#include <functional>
#include <string>
#include <vector>

class QPrinter;

namespace lexicon {

// Cuts plot and calculation links ("$*»B..." and "$*»F..." up to their "«", three characters
// on and the blanks behind) out of a line. A line that becomes empty is one blank.
std::string druckzeileFiltern(const std::string& zeile);

// True for a line that is only there for the screen: a link to a tool, a picture sequence,
// an extra picture, a table or the turning of pages.
bool istBildschirmzeile(const std::string& zeile);

struct Einstellungen;

// What the walk needs to know of the printer.
struct DruckGeraet {
    int dpiX = 600;
    int dpiY = 600;
    int bildschirmDpi = 96;
    int seitenbreite = 4800;  // printable width in printer pixels
    int versatzX = 0;         // unprintable offsets, printer pixels
    int versatzY = 0;
};

struct DruckEinstellungen {
    std::string druckschrift = "Verdana";
    int druckgroesse = 9;
    int linksDruck = 25;  // tenths of a centimetre; 25 are taken as one inch
    int rechtsDruck = 25;
    int obenDruck = 25;
};

// Font and margins from the settings (UntenDruck is kept there but no print uses it).
DruckEinstellungen druckEinstellungenVon(const Einstellungen& e);

struct DruckVariablen {
    int xfaktor = 1;
    int yfaktor = 1;
    int druckzeile = 0;
    int rand_links = 0;
    int rand_rechts = 0;
    int rand_oben = 0;
    int bildeinzug = 0;
    int bildhoehe = 0;
    int zeilenzahl = 0;
};

// The variables before the first line; bildBreite/bildHoehe 0 when the page has no picture.
DruckVariablen druckVariablen(const DruckGeraet& g, const DruckEinstellungen& e, int bildBreite,
                              int bildHoehe);

// One printed line: where the line painter started it and its text (markup kept).
struct GedruckteZeile {
    int x = 0;
    int y = 0;
    std::string text;
};

struct DruckErgebnis {
    bool gefunden = false;  // false: the page has no content
    std::string titel;
    DruckVariablen anfang;  // as computed before the walk
    DruckVariablen ende;    // after it: zeilenzahl is the count of printed lines
    std::vector<GedruckteZeile> zeilen;
    int schlusszeileY = 0;  // the closing line "Quorix"
};

class SeitenDrucker {
public:
    SeitenDrucker(platform::Canvas& canvas, const DruckEinstellungen& e, const DruckGeraet& g);

    // Prints the page whose marker line is block[markerZeile]; bild is the page picture
    // (empty or 1 pixel high: none).
    DruckErgebnis druckeSeite(const platform::StringList& block, int markerZeile, const platform::Picture& bild);

private:
    bool passt(const std::string& zeile);
    void zeileDrucken(const std::string& s);
    void zeileMitUmbruch(const std::string& s);
    void bildregel();
    void grundschrift();

    platform::Canvas& c_;
    DruckEinstellungen e_;
    DruckGeraet g_;
    DruckVariablen v_;
    DruckErgebnis* erg_ = nullptr;
    int tabstopp_[11] = {};
    int tabzaehler_ = 1;
    int startx_ = 0;
    platform::TColor rettfarbe_ = 0;
};

// Where the page picture of the page at markerZeile comes from ("]+h" ... lines).
struct SeitenbildQuelle {
    std::string container;  // e.g. "bjpg.dll"
    std::string typ;        // "Jpeg" or "GIF"
    std::string name;
};
bool seitenbildSuchen(const platform::StringList& block, int markerZeile, SeitenbildQuelle& q);

// The page picture read from <bildordner><container>; empty when missing.
platform::Picture seitenbildLaden(const std::string& bildordner, const SeitenbildQuelle& q);

// ---- The printer (Qt PrintSupport)

DruckGeraet geraetVon(QPrinter& printer);
// Begins the document "Quorix", walks the page, ends the document. Throws when the printer
// can't start.
DruckErgebnis seiteDrucken(QPrinter& printer, const platform::StringList& block, int markerZeile,
                           const platform::Picture& bild, const DruckEinstellungen& e);
// The same into a PDF file of A4 sheets.
DruckErgebnis seiteAlsPdf(const std::string& pfad, const platform::StringList& block, int markerZeile,
                          const platform::Picture& bild, const DruckEinstellungen& e);

}  // namespace lexicon
