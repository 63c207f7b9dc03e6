#pragma once
// The lasting settings of quorix.ini. Reading treats the file as plain lines and finds a key as
// a substring of the first line that holds it; writing is a true INI file in a fixed key order.
#include "platform/textlist.h"

#include <string>

namespace lexicon {

struct Einstellungen {
    double x1 = -5, x2 = 5, y1 = -4, y2 = 4;
    std::string schrift = "Verdana";
    std::string druckschrift = "Verdana";
    int druckfontsize = 9;  // shared with Druckgroesse
    int lexikonschrift = 10;
    int lexikonseite = 0;
    int linksDruck = 25, rechtsDruck = 25, obenDruck = 25, untenDruck = 25;
    int zeitstrahl = 1936;
    int farbe[5] = {0, 0, 0, 0, 0};
    int sucheX = 800, sucheY = 100;
    int listboxschrift = 8;
    std::string spieler;
    std::string gOrt = "Neuhafen, D";
    double gBreite = 50.8088888888889;
    double gLaenge = 12.9033333333333;
    double gZeit = 1;
    double grGeschw = 0.01;
    std::string drucker;
    bool komma = false;
    bool querv = true;
    bool raster = false;
    bool achsenbreit = false;
    bool maxfenster = false;
    bool xyIntervall = false;
    bool fDruck = false;
    int grafikSchrift = 10;
    int faktorE = 0, faktorI = 0, faktorS = 0;
};

// The process-wide settings.
extern Einstellungen einstellungen;

// Reads the lines over the defaults in `e`, with the reader's rules, then the start-up checks
// (plot window reset, least list font size, empty fonts and town).
void einstellungenLesen(Einstellungen& e, const platform::StringList& zeilen);
// The lines of the INI file after writing every key in the writer's order into `vorher`
// (other sections such as LZeichen stay).
platform::StringList einstellungenSchreiben(const Einstellungen& e, const platform::StringList& vorher);
// The value as the reader finds it: the text behind the first "=" of the first line holding key.
bool iniWertSuchen(const platform::StringList& zeilen, const std::string& key, std::string& wert);
// A true INI write of one key (section created if needed), used by writer and bookmarks.
void iniSchreiben(platform::StringList& zeilen, const std::string& sektion, const std::string& key,
                  const std::string& wert);
void iniLoeschen(platform::StringList& zeilen, const std::string& sektion, const std::string& key);

// Reads plain text lines of a file (Windows-1252, CR LF); false if missing.
bool textDateiLesen(const std::string& pfad, platform::StringList& zeilen);

}  // namespace lexicon
