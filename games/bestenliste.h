#pragma once
// The shared high-score list of all games: one section of spiele.ini per game, 25 places.
// Plain data and text lines; the window TBestenliste shows and edits it.
#include "platform/textlist.h"

#include <string>
#include <vector>

namespace games {

constexpr int kBestenzahl = 25;

class Bestenliste {
public:
    // FormCreate: reads the section of `spielname` ("Mathe" if empty) from the INI lines.
    // A score that isn't a number throws std::runtime_error, as the window's global handler expects.
    void laden(const platform::StringList& ini, const std::string& spielname);
    // FormActivate with neuerwert > 0: puts the score in its place; returns the list index of
    // the new line (neuzeile) or -1 when the score doesn't reach the list.
    int eintragen(long long neuerwert, const std::string& spieler, const std::string& datum);
    // D3C: the new entry takes the player's name.
    void nameUebernehmen(const std::string& spieler, const std::string& datum);
    // D2C after "Ja": everything, or all but the best when `bestwertBehalten`.
    void loeschen(bool bestwertBehalten);
    // D1C: the INI lines with keys 1..25 of the section written.
    platform::StringList speichern(const platform::StringList& ini) const;

    const std::string& spielname() const { return spielname_; }
    std::string spieltitel() const { return "Bestenliste: " + spielname_; }
    const std::vector<std::string>& zeilen() const { return zeilen_; }  // the list LB1
    long long punkte(int platz) const { return punkte_[platz]; }        // 1-based
    const std::string& namen(int platz) const { return namen_[platz]; }
    int neuzeile() const { return neuzeile_; }

    // " 000123": a blank and the score with at least six digits.
    static std::string punktText(long long wert);
    // The value of `key` in `section` of INI lines; false when the key is missing.
    static bool iniLesen(const platform::StringList& ini, const std::string& section,
                         const std::string& key, std::string& wert);

private:
    std::string spielname_ = "Mathe";
    long long punkte_[kBestenzahl + 1] = {};
    std::string namen_[kBestenzahl + 1];
    std::vector<std::string> zeilen_;
    int neuzeile_ = -1;
};

// The path of spiele.ini in the user's data folder.
std::string spieleIniPfad();

}  // namespace games
