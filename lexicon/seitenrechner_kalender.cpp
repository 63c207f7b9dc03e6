// Members of the calendar: 15 (Easter), 18 (weekday).
#include "lexicon/seitenrechner_intern.h"

#include "kernel/realtostr.h"

#include <cstdint>

namespace lexicon::rechner {

namespace {

// Gregorian from 15.10.1582 on, Julian before.
bool gregorianisch(int t, int m, int j) { return j > 1582 || (j == 1582 && (m > 10 || (m == 10 && t >= 15))); }

bool schaltjahr(int j, bool greg) { return greg ? (j % 4 == 0 && j % 100 != 0) || j % 400 == 0 : j % 4 == 0; }

int monatslaenge(int m, int j, bool greg)
{
    static const int l[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return m == 2 && schaltjahr(j, greg) ? 29 : l[m - 1];
}

// The Julian day number (the day starting at noon) of a date of either calendar.
int64_t tagesnummer(int t, int m, int j, bool greg)
{
    const int64_t a = (14 - m) / 12;
    const int64_t y = static_cast<int64_t>(j) + 4800 - a;
    const int64_t mm = m + 12 * a - 3;
    // Floor division keeps years before -4800 right as well.
    auto fdiv = [](int64_t x, int64_t d) { return x >= 0 ? x / d : -((-x + d - 1) / d); };
    if (greg)
        return t + (153 * mm + 2) / 5 + 365 * y + fdiv(y, 4) - fdiv(y, 100) + fdiv(y, 400) - 32045;
    return t + (153 * mm + 2) / 5 + 365 * y + fdiv(y, 4) - 32083;
}

// The Gregorian date of a day number (valid for the years of Easter tables).
void gregDatum(int64_t jd, int& t, int& m, int& j)
{
    const int64_t a = jd + 32044;
    const int64_t b = (4 * a + 3) / 146097;
    const int64_t c = a - 146097 * b / 4;
    const int64_t d = (4 * c + 3) / 1461;
    const int64_t e = c - 1461 * d / 4;
    const int64_t mm = (5 * e + 2) / 153;
    t = static_cast<int>(e - (153 * mm + 2) / 5 + 1);
    m = static_cast<int>(mm + 3 - 12 * (mm / 10));
    j = static_cast<int>(100 * b + d - 4800 + mm / 10);
}

std::string datumText(int64_t jd)
{
    int t = 0, m = 0, j = 0;
    gregDatum(jd, t, m, j);
    return std::to_string(t) + "." + std::to_string(m) + "." + std::to_string(j);
}

}  // namespace

// 15: Easter Sunday by Gauss's rule and the feasts that hang on it.
void osterdatum(R& r)
{
    const int j = static_cast<int>(ganzEd1Grenzen(r, 1583, 9999));
    const int k = j / 100, p = (13 + 8 * k) / 25, q = k / 4;
    const int M = (15 + k - p - q) % 30, N = (4 + k - q) % 7;
    const int a = j % 19, b = j % 4, c = j % 7;
    const int d = (19 * a + M) % 30;
    const int e = (2 * b + 4 * c + 6 * d + N) % 7;
    int tag = 22 + d + e, monat = 3;
    if (tag > 31) {
        tag = d + e - 9;
        monat = 4;
    }
    if (monat == 4 && tag == 26)
        tag = 19;
    if (monat == 4 && tag == 25 && d == 28 && e == 6 && a > 10)
        tag = 18;
    const int64_t ostern = tagesnummer(tag, monat, j, true);
    zeileAus(r, "Ostersonntag\t" + datumText(ostern));
    zeileAus(r, "Aschermittwoch\t" + datumText(ostern - 46));
    zeileAus(r, "Karfreitag\t" + datumText(ostern - 2));
    zeileAus(r, "Christi Himmelfahrt\t" + datumText(ostern + 39));
    zeileAus(r, "Pfingstsonntag\t" + datumText(ostern + 49));
    zeileAus(r, "Fronleichnam\t" + datumText(ostern + 60));
}

// 18: Julian date, weekday and day of the year of a date.
void wochentag(R& r)
{
    int t = 0, m = 0, j = 0;
    if (!datumEd1(r, t, m, j) || m < 1 || m > 12 || t < 1) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    const bool greg = gregorianisch(t, m, j);
    // The days 5 to 14 October 1582 were skipped by the reform.
    if (t > monatslaenge(m, j, greg) || (j == 1582 && m == 10 && t > 4 && t < 15)) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    static const char* const namen[] = {"Montag", "Dienstag", "Mittwoch", "Donnerstag",
                                        "Freitag", "Samstag", "Sonntag"};
    const int64_t jdn = tagesnummer(t, m, j, greg);
    int64_t w = jdn % 7;
    if (w < 0)
        w += 7;
    int tagImJahr = t;
    for (int i = 1; i < m; ++i)
        tagImJahr += monatslaenge(i, j, greg);
    if (j == 1582 && greg)
        tagImJahr -= 10;
    // The Julian date at midnight, half a day before the day number's noon.
    zeileAus(r, "Julianisches Datum\t" + kernel::RealToStr(1, 1, static_cast<double>(jdn) - 0.5));
    zeileAus(r, std::string("Wochentag\t") + namen[w]);
    zeileAus(r, "Tag des Jahres\t" + std::to_string(tagImJahr));
}

}  // namespace lexicon::rechner
