// Interest of one year by days, German method: every month 30 days, the year 360.
#include "algebra/algebraseiten.h"

#include <cmath>
#include <cstdlib>

namespace algebra {

namespace {

std::string euro(double x) { return zahl(std::round(x * 100) / 100, 2); }

// "15.3." or "15.3" -> day and month; the days of February allow 29.
bool leseDatum(const std::string& t, int& tag, int& monat)
{
    const size_t p = t.find('.');
    if (p == std::string::npos || p == 0) return false;
    std::string rest = t.substr(p + 1);
    if (!rest.empty() && rest.back() == '.') rest.pop_back();
    char* e1 = nullptr;
    char* e2 = nullptr;
    const std::string ts = t.substr(0, p);
    tag = static_cast<int>(std::strtol(ts.c_str(), &e1, 10));
    monat = static_cast<int>(std::strtol(rest.c_str(), &e2, 10));
    static const int laenge[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return *e1 == '\0' && *e2 == '\0' && !rest.empty() && monat >= 1 && monat <= 12 && tag >= 1 &&
           tag <= laenge[monat - 1];
}

}  // namespace

Ergebnis zinsenSeite(const std::vector<std::string>& f)
{
    if (f.size() != 3) return eingabefehler("Die Jahreszinsen brauchen Kapital, Zinssatz und Buchungen.");
    double kapital, satz;
    if (!leseZahl(f[0], kapital)) return eingabefehler("Ungültiges Kapital: " + f[0]);
    if (!leseZahl(f[1], satz) || satz < 0 || satz > 100) return eingabefehler("Der Zinssatz muss zwischen 0 und 100 % liegen.");
    Ergebnis e;
    e.zeilen.push_back("Kapital am 1.1. in € = " + euro(kapital));
    e.zeilen.push_back("Zinssatz = " + zahl(satz) + " %");
    double zinsen = kapital * satz / 100;
    double stand = kapital;
    // bookings "15.3. 500; 1.7. -200": date, blank, amount; the booking day earns interest
    const auto t = teile(f[2]);
    if (t.size() % 2 != 0) return eingabefehler("Buchungen als Datum und Betrag, z.B. 15.3. 500; 1.7. -200");
    if (!t.empty()) e.zeilen.push_back("Datum\tBetrag in €\tZinstage\tZinsen in €");
    e.zeilen.push_back("1.1.\t" + euro(kapital) + "\t360\t" + euro(kapital * satz / 100));
    for (size_t i = 0; i < t.size(); i += 2) {
        int tag, monat;
        double betrag;
        if (!leseDatum(t[i], tag, monat)) return eingabefehler("Ungültiges Datum: " + t[i]);
        if (!leseZahl(t[i + 1], betrag)) return eingabefehler("Ungültiger Betrag: " + t[i + 1]);
        const int tage = 360 - (30 * (monat - 1) + std::min(tag, 30) - 1);
        const double z = betrag * satz / 100 * tage / 360;
        zinsen += z;
        stand += betrag;
        e.zeilen.push_back(std::to_string(tag) + "." + std::to_string(monat) + ".\t" + euro(betrag) + "\t" +
                           std::to_string(tage) + "\t" + euro(z));
    }
    e.zeilen.push_back("Jahreszinsen in € = " + euro(zinsen));
    e.zeilen.push_back("Kapital am 31.12. in € = " + euro(stand + zinsen));
    e.ok = true;
    return e;
}

}  // namespace algebra
