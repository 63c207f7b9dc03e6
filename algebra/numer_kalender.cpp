// Holidays of a year: fixed dates and the feasts that move with Easter (Gregorian calendar).
#include "algebra/numer_intern.h"

namespace numer::intern {
namespace {
struct Tag {
    int monat, tag;
};

// Easter Sunday by Gauss's rule with the corrections of the Gregorian calendar.
Tag ostern(int j)
{
    const int a = j % 19, b = j / 100, c = j % 100, d = b / 4, e = b % 4;
    const int f = (b + 8) / 25, g = (b - f + 1) / 3, h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4, k = c % 4, l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int monat = (h + l - 7 * m + 114) / 31, tag = (h + l - 7 * m + 114) % 31 + 1;
    return {monat, tag};
}

bool schalt(int j) { return (j % 4 == 0 && j % 100 != 0) || j % 400 == 0; }

int tagImJahr(int j, Tag t)
{
    static const int vor[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return vor[t.monat - 1] + t.tag + (t.monat > 2 && schalt(j) ? 1 : 0);
}

Tag ausTagImJahr(int j, int n)
{
    static const int len[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int m = 0;
    while (true) {
        const int l = len[m] + (m == 1 && schalt(j) ? 1 : 0);
        if (n <= l) return {m + 1, n};
        n -= l;
        ++m;
    }
}

// 0 = Monday
int wochentag(int j, Tag t)
{
    int y = j, m = t.monat;
    if (m < 3) m += 12, --y;
    const int h = (t.tag + 13 * (m + 1) / 5 + y + y / 4 - y / 100 + y / 400) % 7;  // 0 = Saturday
    return (h + 5) % 7;
}
}  // namespace

void feiertage(Lauf& l)
{
    int64_t j;
    if (!l.ganz(0, 1583, 9999, j)) return;
    const int jahr = static_cast<int>(j);
    static const char* const namen[] = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"};
    const int o = tagImJahr(jahr, ostern(jahr));
    struct Fest {
        const char* name;
        int tag;
    };
    // the fourth Sunday before Christmas starts Advent
    const int weihnacht = tagImJahr(jahr, {12, 25});
    const int wtW = wochentag(jahr, {12, 25});
    const int advent1 = weihnacht - (wtW + 1) - 21;
    const Fest feste[] = {
        {"Neujahr", tagImJahr(jahr, {1, 1})},
        {"Heilige Drei Könige", tagImJahr(jahr, {1, 6})},
        {"Rosenmontag", o - 48},
        {"Aschermittwoch", o - 46},
        {"Gründonnerstag", o - 3},
        {"Karfreitag", o - 2},
        {"Ostersonntag", o},
        {"Ostermontag", o + 1},
        {"Tag der Arbeit", tagImJahr(jahr, {5, 1})},
        {"Christi Himmelfahrt", o + 39},
        {"Pfingstsonntag", o + 49},
        {"Pfingstmontag", o + 50},
        {"Fronleichnam", o + 60},
        {"Mariä Himmelfahrt", tagImJahr(jahr, {8, 15})},
        {"Tag der Deutschen Einheit", tagImJahr(jahr, {10, 3})},
        {"Reformationstag", tagImJahr(jahr, {10, 31})},
        {"Allerheiligen", tagImJahr(jahr, {11, 1})},
        {"Buß- und Bettag", advent1 - 11},
        {"1. Advent", advent1},
        {"Heiligabend", weihnacht - 1},
        {"1. Weihnachtstag", weihnacht},
        {"2. Weihnachtstag", weihnacht + 1},
        {"Silvester", tagImJahr(jahr, {12, 31})},
    };
    for (const Fest& f : feste) {
        const Tag t = ausTagImJahr(jahr, f.tag);
        l.zeile(std::string(f.name) + "\t" + namen[wochentag(jahr, t)] + ", " + std::to_string(t.tag) + "." +
                std::to_string(t.monat) + "." + std::to_string(jahr));
    }
}

}  // namespace numer::intern
