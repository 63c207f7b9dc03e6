#include "games/bestenliste.h"

#include "lexicon/datenpfad.h"
#include "lexicon/einstellungen.h"
#include "lexicon/globals.h"

#include <cstdio>
#include <stdexcept>

namespace games {

namespace {

std::string getrimmt(const std::string& s)
{
    const auto a = s.find_first_not_of(" \t\r");
    if (a == std::string::npos)
        return {};
    const auto b = s.find_last_not_of(" \t\r");
    return s.substr(a, b - a + 1);
}

long long zahlAusText(const std::string& text)
{
    const std::string t = getrimmt(text);
    std::size_t i = t.size() > 0 && (t[0] == '-' || t[0] == '+') ? 1 : 0;
    if (i == t.size() || t.size() > 19 || t.find_first_not_of("0123456789", i) != std::string::npos)
        throw std::runtime_error("'" + text + "' ist kein gültiger Integerwert");
    return std::stoll(t);
}

}  // namespace

bool Bestenliste::iniLesen(const platform::StringList& ini, const std::string& section,
                           const std::string& key, std::string& wert)
{
    bool drin = false;
    for (const std::string& zeile : ini) {
        const std::string t = getrimmt(zeile);
        if (!t.empty() && t[0] == '[') {
            drin = t == "[" + section + "]";
            continue;
        }
        if (!drin)
            continue;
        const auto eq = zeile.find('=');
        if (eq != std::string::npos && getrimmt(zeile.substr(0, eq)) == key) {
            wert = zeile.substr(eq + 1);
            if (!wert.empty() && wert.back() == '\r')
                wert.pop_back();
            return true;
        }
    }
    return false;
}

std::string Bestenliste::punktText(long long wert)
{
    char b[32];
    std::snprintf(b, sizeof b, " %06lld", wert);
    return b;
}

void Bestenliste::laden(const platform::StringList& ini, const std::string& spielname)
{
    spielname_ = spielname.empty() ? "Mathe" : spielname;
    zeilen_.clear();
    neuzeile_ = -1;
    for (int i = 1; i <= kBestenzahl; ++i) {
        std::string wert;
        punkte_[i] = 0;
        namen_[i].clear();
        if (iniLesen(ini, spielname_, std::to_string(i), wert)) {
            const auto tab = wert.find('\t');
            if (tab != std::string::npos) {
                punkte_[i] = zahlAusText(wert.substr(0, tab));
                namen_[i] = wert.substr(tab + 1);
            }
        }
        zeilen_.push_back(punktText(punkte_[i]) + "\t" + namen_[i]);
    }
}

int Bestenliste::eintragen(long long neuerwert, const std::string& spieler, const std::string& datum)
{
    if (neuerwert <= 0)
        return -1;
    int p = 1;
    while (p <= kBestenzahl && neuerwert < punkte_[p])  // a tie goes in front of the old entry
        ++p;
    if (p > kBestenzahl)
        return -1;
    for (int i = kBestenzahl; i > p; --i) {
        punkte_[i] = punkte_[i - 1];
        namen_[i] = namen_[i - 1];
    }
    punkte_[p] = neuerwert;
    namen_[p] = spieler + "\t" + datum;
    const std::string zeile = punktText(neuerwert) + "\t" + namen_[p];
    if (zeilen_.empty()) {
        zeilen_.push_back(zeile);
        neuzeile_ = 0;
    } else {
        zeilen_.insert(zeilen_.begin() + (p - 1), zeile);
        if (static_cast<int>(zeilen_.size()) > kBestenzahl)
            zeilen_.resize(kBestenzahl);  // the last place drops out
        neuzeile_ = p - 1;
    }
    return neuzeile_;
}

void Bestenliste::nameUebernehmen(const std::string& spieler, const std::string& datum)
{
    if (neuzeile_ < 0 || neuzeile_ >= static_cast<int>(zeilen_.size()))
        return;
    std::string& z = zeilen_[neuzeile_];
    while (!z.empty() && z.back() != '\t')
        z.pop_back();
    z += spieler;
    namen_[neuzeile_ + 1] = spieler + "\t" + datum;
}

void Bestenliste::loeschen(bool bestwertBehalten)
{
    if (bestwertBehalten && zeilen_.size() > 1) {
        zeilen_.resize(1);
        for (int i = 2; i <= kBestenzahl; ++i) {
            punkte_[i] = 0;
            namen_[i].clear();
        }
    } else if (!bestwertBehalten) {
        zeilen_.clear();
        for (int i = 1; i <= kBestenzahl; ++i) {
            punkte_[i] = 0;
            namen_[i].clear();
        }
    }
    neuzeile_ = -1;
}

platform::StringList Bestenliste::speichern(const platform::StringList& ini) const
{
    platform::StringList out = ini;
    for (int i = 1; i <= kBestenzahl; ++i)
        lexicon::iniSchreiben(out, spielname_, std::to_string(i),
                              i <= static_cast<int>(zeilen_.size()) ? zeilen_[i - 1] : std::string());
    return out;
}

std::string spieleIniPfad()
{
    // Before the shell has prepared datenpfad (tests, headless runs) the default folder serves.
    if (!lexicon::datenpfad.empty())
        return lexicon::datenpfad + "spiele.ini";
    return lexicon::anwendungsdatenOrdner() + "/Quorix/spiele.ini";
}

}  // namespace games
