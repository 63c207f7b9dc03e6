// The lines of the calendar tool, in the order of the tool, plus month sheet, feasts and differences.
#include "astronomy/ephemeris.h"
#include "astronomy/kalenderspez.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace astro::kal {

namespace {
long floorDiv(long a, long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }
long floorMod(long a, long b) { return a - b * floorDiv(a, b); }

std::string fmt(const char* f, double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, f, v);
    return buf;
}
std::string dmy(const Date& d)
{
    return std::to_string(d.day) + "." + std::to_string(d.month) + "." + std::to_string(d.year);
}

std::vector<std::string> split(const std::string& s, char sep)
{
    std::vector<std::string> out;
    std::string cur;
    for (char c : s) {
        if (c == sep) {
            out.push_back(cur);
            cur.clear();
        } else if (c != '\r') {
            cur += c;
        }
    }
    out.push_back(cur);
    return out;
}

// "key;a;b;c" lines of a resource; an absent key gives the fallback.
std::vector<std::string> table(const std::vector<std::string>& res, const std::string& key,
                               std::vector<std::string> fallback)
{
    for (const std::string& line : res) {
        auto parts = split(line, ';');
        if (parts.size() > 1 && parts[0] == key) return {parts.begin() + 1, parts.end()};
    }
    return fallback;
}

std::string at(const std::vector<std::string>& v, long i) { return v.empty() ? "" : v[floorMod(i, v.size())]; }

// ---------------------------------------------------------------- single lines

std::string worldCalendar(const Date& d)
{
    const bool leap = isLeapCivil(d.year);
    const int n = dayOfYear(d);  // 1-based
    const int len = leap ? 366 : 365;
    if (n == len) return "31.12. Weltfeiertag";
    if (leap && n == 183) return "31.6. Schalttag";
    int k = n - 1;
    if (leap && n > 183) --k;
    const int q = k / 91, r = k % 91;
    const int mInQ = r < 31 ? 0 : r < 61 ? 1 : 2;
    const int day = r - (mInQ == 0 ? 0 : mInQ == 1 ? 31 : 61) + 1;
    static const char* wd[] = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Sonnabend"};
    return std::to_string(day) + "." + std::to_string(q * 3 + mInQ + 1) + ". " + wd[r % 7];
}

std::string romanCalendar(const Date& civil, long jdn)
{
    const Date d = julianFromDayNumber(jdn);  // the Roman calendar runs on in the Julian reckoning
    static const char* gen[] = {"IANVARII", "FEBRVARII", "MARTII",    "APRILIS",  "MAII",      "IVNII",
                                "IVLII",    "AVGVSTI",   "SEPTEMBRIS", "OCTOBRIS", "NOVEMBRIS", "DECEMBRIS"};
    const bool big = d.month == 3 || d.month == 5 || d.month == 7 || d.month == 10;
    const int nones = big ? 7 : 5, ides = big ? 15 : 13;
    const bool leapJ = floorMod(d.year, 4) == 0;
    std::string s;
    auto before = [&](int count, const char* what, int month) {
        if (count == 2) s = std::string("PRIDIE ") + what + " " + gen[month - 1];
        else s = "ANTE DIEM " + roman(count) + " " + what + " " + gen[month - 1];
    };
    if (d.day == 1) s = std::string("KALENDIS ") + gen[d.month - 1];
    else if (d.day < nones) before(nones - d.day + 1, "NONIS", d.month);
    else if (d.day == nones) s = std::string("NONIS ") + gen[d.month - 1];
    else if (d.day < ides) before(ides - d.day + 1, "IDIBVS", d.month);
    else if (d.day == ides) s = std::string("IDIBVS ") + gen[d.month - 1];
    else {
        const int next = d.month % 12 + 1;
        if (d.month == 2 && leapJ) {
            // the doubled sixth day before the Kalends of March
            if (d.day == 24) s = "ANTE DIEM BIS VI KALENDIS MARTII";
            else before(d.day < 24 ? 30 - d.day : 31 - d.day, "KALENDIS", 3);
        } else {
            const int len = d.month == 2 ? 28 : (d.month == 4 || d.month == 6 || d.month == 9 || d.month == 11) ? 30 : 31;
            before(len - d.day + 2, "KALENDIS", next);
        }
    }
    (void)civil;
    return s + " " + roman(d.year + 753) + " A. V. C.";
}

std::string egyptian(long jdn)
{
    static const char* m[] = {"Thoth",  "Phaophi", "Athyr", "Choiak", "Tybi",  "Mechir",   "Phamenoth",
                              "Pharmuthi", "Pachons", "Payni", "Epiphi", "Mesore", "Epagomenen"};
    const long doy = floorMod(jdn + 47, 365);
    long year = floorDiv(jdn - 172598, 365) + 1;
    if (year <= 0) --year;  // no year 0
    const long sothis = floorDiv(jdn - 172598, 533265) + 1;
    return std::to_string(doy % 30 + 1) + ". " + m[doy / 30] + " " + std::to_string(year) + "; Sothis-Periode " +
           std::to_string(sothis);
}

std::string french(long jdn)
{
    static const char* m[] = {"Vendémiaire", "Brumaire", "Frimaire", "Nivôse",   "Pluviôse", "Ventôse",
                              "Germinal",    "Floréal",  "Prairial", "Messidor", "Thermidor", "Fructidor"};
    static const char* sc[] = {"Jour de la vertu", "Jour du génie", "Jour du travail", "Jour de l'opinion",
                               "Jour des récompenses", "Jour de la révolution"};
    static const char* dn[] = {"Primedi", "Duodi",  "Tridi",  "Quartidi", "Quintidi",
                               "Sextidi", "Septidi", "Octidi", "Nonodi",   "Decadi"};
    const long d = jdn - 2375475;
    const long q = floorDiv(d, 1461), r = floorMod(d, 1461);
    const long yy = std::min<long>(r / 365, 3);
    const long doy = r - 365 * yy;
    const long year = 4 * q + yy;
    if (year < 1) return "";
    const long month = doy / 30, day = doy % 30 + 1;
    if (month == 12) return std::string(sc[std::min<long>(day - 1, 5)]) + " an " + roman(static_cast<int>(year));
    return std::string(dn[(day - 1) % 10]) + ", " + std::to_string(day) + ". " + m[month] + " an " +
           roman(static_cast<int>(year));
}

std::string seleucid(long jdn, bool babylonian)
{
    // Seleucid era in its Julian form: the Macedonian year from October 312 BC,
    // the Babylonian from April 311 BC, months kept in step with the Julian ones
    static const char* mac[] = {"Audynaios", "Peritios", "Dystros",  "Xandikos", "Artemisios", "Daisios",
                                "Panemos",   "Loos",     "Gorpiaios", "Hyperberetaios", "Dios", "Apellaios"};
    static const char* bab[] = {"Tebetu", "Schabatu", "Addaru",   "Nisannu",  "Ajjaru",  "Simanu",
                                "Du'uzu", "Abu",      "Ululu",    "Taschritu", "Arachsamnu", "Kislimu"};
    const Date d = julianFromDayNumber(jdn);
    long year = d.year + 311;
    if (babylonian) {
        if (d.month < 4) --year;
    } else if (d.month >= 10) {
        ++year;
    }
    if (d.year <= 0) --year;  // the Julian year -311 is 312 BC
    return std::to_string(d.day) + ". " + (babylonian ? bab : mac)[d.month - 1] + " " + std::to_string(year) + " SÄ";
}

std::string persian(long jdn)
{
    static const char* m[] = {"Farvardin", "Ordibehescht", "Chordad", "Tir",  "Mordad", "Shahrivar",
                              "Mehr",      "Aban",         "Asar",    "Dey",  "Bahman", "Esfand"};
    const Date p = persianFromDayNumber(jdn);
    return std::to_string(p.day) + ". " + m[p.month - 1] + " " + std::to_string(p.year);
}

std::string maya(long jdn)
{
    const long n = jdn - 584283;
    long r = n;
    const long pictun = floorDiv(r, 2880000);
    r = floorMod(r, 2880000);
    const long baktun = r / 144000;
    r %= 144000;
    const long katun = r / 7200;
    r %= 7200;
    const long tun = r / 360;
    r %= 360;
    const long uinal = r / 20, kin = r % 20;
    return std::to_string(pictun) + " Pictun " + std::to_string(baktun) + " Baktun " + std::to_string(katun) +
           " Katun " + std::to_string(tun) + " Tun " + std::to_string(uinal) + " Uinal " + std::to_string(kin) +
           " Kin";
}

std::string aztec(long jdn)
{
    static const char* days[] = {"Imix", "Ik",   "Akbal", "Kan", "Chicchan", "Cimi",  "Manik", "Lamat", "Muluc",
                                 "Oc",   "Chuen", "Eb",   "Ben", "Ix",       "Men",   "Cib",   "Caban", "Eznab",
                                 "Cauac", "Ahau"};
    static const char* haab[] = {"Pop",  "Uo",  "Zip", "Zotz", "Tzec",   "Xul", "Yaxkin", "Mol",   "Chen", "Yax",
                                 "Zac",  "Ceh", "Mac", "Kankin", "Muan", "Pax", "Kayab",  "Cumku", "Uayeb"};
    const long n = jdn - 584283;
    const long num = floorMod(n + 136, 13) + 1, name = floorMod(n + 137, 20);
    const long h = floorMod(n + 66, 365);
    return std::to_string(num) + " " + days[name] + ", " + std::to_string(h % 20) + " " + haab[h / 20];
}

std::string bahai(const Date& c, long jdn)
{
    static const char* m[] = {"Bahá",  "Jalál",  "Jamál",  "Azamat", "Núr",  "Rahmat",  "Kalimát",
                              "Kamál", "Asmá",   "Izzat",  "Mashíyyat", "Ilm", "Qudrat", "Qawl",
                              "Masáil", "Sharaf", "Sultán", "Mulk",   "Alá"};
    int y = c.year;
    long start = dayNumber({y, 3, 21});
    if (jdn < start) start = dayNumber({--y, 3, 21});
    const long z = jdn - start;
    const int year = y - 1843;
    const int ha = isLeapCivil(y + 1) ? 5 : 4;
    std::string s;
    if (z < 342) s = std::to_string(z % 19 + 1) + ". " + m[z / 19];
    else if (z < 342 + ha) s = std::to_string(z - 342 + 1) + ". Ayyám-i-Há";
    else s = std::to_string(z - 342 - ha + 1) + ". " + m[18];
    return s + " " + std::to_string(year) + "; Vahid: " + std::to_string(floorDiv(year - 1, 19) + 1) +
           " / Kull-i-Shay: " + std::to_string(floorDiv(year - 1, 361) + 1);
}

// A year of fixed month lengths that starts on a civil day of the year.
std::string monthsFrom(long doy, const std::vector<int>& lengths, const char* const* names)
{
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        if (doy < lengths[i]) return std::to_string(doy + 1) + ". " + names[i];
        doy -= lengths[i];
    }
    return "";
}

std::string indian(const Date& c, long jdn)
{
    static const char* m[] = {"Chaitra", "Vaischakha", "Dschyaischtha", "Aschadha", "Schravana", "Bhadra",
                              "Aschvina", "Kartika",   "Agrahayana",    "Pauscha",  "Magha",     "Phalguna"};
    int y = c.year;
    auto startOf = [](int yy) { return dayNumber({yy, 3, isLeapCivil(yy) ? 21 : 22}); };
    long s = startOf(y);
    if (jdn < s) s = startOf(--y);
    const std::vector<int> len = {isLeapCivil(y) ? 31 : 30, 31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 30};
    return monthsFrom(jdn - s, len, m) + " " + std::to_string(y - 78) + " Saka";
}

std::string sikh(const Date& c, long jdn)
{
    static const char* m[] = {"Chet", "Vaisakh", "Jeth", "Harh", "Sawan", "Bhadon",
                              "Assu", "Katak",   "Maghar", "Poh", "Magh", "Phagan"};
    int y = c.year;
    long s = dayNumber({y, 3, 14});
    if (jdn < s) s = dayNumber({--y, 3, 14});
    const std::vector<int> len = {31, 31, 31, 31, 31, 30, 30, 30, 30, 30, 30, isLeapCivil(y + 1) ? 31 : 30};
    return monthsFrom(jdn - s, len, m) + " " + std::to_string(y - 1468) + " NS";
}

std::string armenian(long jdn)
{
    static const char* m[] = {"Nawasardi", "Hori",    "Sahmi",  "Tre",    "Kaghoti", "Arachi", "Mehekani",
                              "Areki",     "Ahekani", "Mareri", "Margaci", "Hrotici", "Aweleac"};
    const long d = jdn - 1922868;
    const long year = floorDiv(d, 365) + 1, doy = floorMod(d, 365);
    return std::to_string(doy % 30 + 1) + ". " + m[doy / 30] + " " + std::to_string(year);
}

std::string berber(long jdn)
{
    static const char* m[] = {"Yennayer", "Furar", "Meghres",   "Yebrir", "Mayu",     "Yunyu",
                              "Yulyu",    "Ghuct", "Shutembir", "Ktuber", "Nuwembir", "Dujembir"};
    const Date j = julianFromDayNumber(jdn);
    return std::to_string(j.day) + ". " + m[j.month - 1] + " " + std::to_string(j.year + 950);
}

std::string coptic(long jdn, bool eth)
{
    static const char* cm[] = {"Thout",   "Paopi", "Hathor", "Koiak",  "Tobi", "Meschir", "Paremhat",
                               "Parmouti", "Paschons", "Paoni", "Epip", "Mesori", "Pi Kogi Enavot"};
    static const char* em[] = {"Meskerem", "Tekemt", "Hedar", "Tahsas", "Ter",   "Yekatit", "Megabit",
                               "Miyazya",  "Genbot", "Sene",  "Hamle",  "Nehase", "Pagume"};
    const Date d = copticFromDayNumber(jdn, eth);
    return std::to_string(d.day) + ". " + (eth ? em : cm)[d.month - 1] + " " + std::to_string(d.year);
}

std::string discordian(const Date& c)
{
    static const char* season[] = {"Chaos", "Discord", "Confusion", "Bureaucracy", "The Aftermath"};
    static const char* wd[] = {"Sweetmorn", "Boomtime", "Pungenday", "Prickle-Prickle", "Setting Orange"};
    const std::string yold = std::to_string(c.year + 1166) + " YOLD";
    if (c.month == 2 && c.day == 29) return "St.Tib's Day " + yold;
    int k = dayOfYear(c) - 1;
    if (isLeapCivil(c.year) && c.month > 2) --k;  // St. Tib's Day stands outside the count
    return std::string(wd[k % 5]) + ", " + season[k / 73] + " " + std::to_string(k % 73 + 1) + ", " + yold;
}

std::string positivist(const Date& c, const Resources& res)
{
    static const char* m[] = {"Moses", "Homer", "Aristoteles", "Archimedes", "Cäsar", "Paulus", "Karl der Große",
                              "Dante", "Gutenberg", "Shakespeare", "Descartes", "Friedrich", "Bichat"};
    const int k = dayOfYear(c) - 1;
    const std::string year = " " + std::to_string(c.year - 1788);
    if (k == 364) return "Festtag der großen Toten" + year;
    if (k == 365) return "Festtag der heiligen Jungfrau" + year;
    // every day of the year is dedicated to one of the 364 names of the list; without the list the
    // week day stands in, since every month begins on a Monday
    const auto names = table(res.kalender1, "Positivistentage",
                             {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Sonnabend", "Sonntag"});
    const std::string name = names.size() >= 364 ? names[k] : at(names, k % 7);
    return std::to_string(k % 28 + 1) + ". " + m[k / 28] + year + ", Tag: " + name;
}

// Solilunar calendar: years of 12 or 13 months from the new moon of 17 March 1999. 2519 long years
// in 6840 spread evenly, and 1328 of each 2519 long years with an extra day: this keeps the year
// starts within about a day of the mean new moon and the mean year at 365.2424 days. (Read the
// other way round, the tests drift off the Moon within a century.) Months alternate 30 and 29 days;
// a 13-month year has 384 days with 30 in the last month, or 385 with 30 in the 12th month too.
int solilunarYearLength(long y)
{
    const long n = y * 2519;
    if (floorMod(n, 6840) >= 2519) return 354;
    return floorMod(floorDiv(n, 6840) * 1328, 2519) < 1328 ? 385 : 384;
}

std::string solilunar(long jdn)
{
    long rest = jdn - 2451255;  // 17 March 1999 is day 0 of the year 1
    long y = 0;
    while (rest < 0) rest += solilunarYearLength(--y);
    while (rest >= solilunarYearLength(y)) rest -= solilunarYearLength(y++);
    const int len = solilunarYearLength(y);
    int month = 1;
    for (;; ++month) {
        int m = month % 2 == 1 ? 30 : 29;
        if (len == 385 && month == 12) m = 30;
        if (rest < m) break;
        rest -= m;
    }
    return std::to_string(rest + 1) + ". Tag des " + std::to_string(month) + ".Monats im Jahr " +
           std::to_string(y + 1) + " (" + std::to_string(len) + " Tage)";
}

std::string cotsworth(const Date& c)
{
    static const char* m[] = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Sol",
                              "Juli", "August", "September", "Oktober", "November", "Dezember"};
    const bool leap = isLeapCivil(c.year);
    int k = dayOfYear(c) - 1;
    if (k == (leap ? 365 : 364)) return "Jahrestag " + std::to_string(c.year);
    if (leap && k == 168) return "Schalttag " + std::to_string(c.year);
    if (leap && k > 168) --k;
    return std::to_string(k % 28 + 1) + ". " + m[k / 28] + " " + std::to_string(c.year);
}

// Goddess calendar: a lunar calendar counted from the new moon of 16 February 1999 (JD 2451225.5,
// day 1 of the year 1). Each month begins on the day (UT) of a true new moon of the almanac, so
// months have 29 or 30 days; a year begins with the lunation nearest to the solar anniversary of
// the first day, so it holds 12 or 13 months (354 or 355, 383 to 385 days) and keeps to the seasons.
constexpr double kMeanLunation = 29.530588853;
constexpr double kLunationsPerYear = 365.24219 / kMeanLunation;
constexpr long kGoddessEpoch = 2451226;    // day number of 16 February 1999
constexpr long kGoddessLunation = -11;     // its lunation, counted from the new moon of 6 January 2000

// Day number of the first day of the goddess month k (k = 0 the first month of the year 1).
long goddessMonthStart(long k)
{
    const double jd = jdeToJd(MoonPhaseTime(static_cast<double>(k + kGoddessLunation), 0));
    return static_cast<long>(std::floor(jd + 0.5));
}
long goddessYearFirstMonth(long y) { return static_cast<long>(std::floor(y * kLunationsPerYear + 0.5)); }

}  // namespace

GoddessDate goddessFromDayNumber(long jdn)
{
    long k = static_cast<long>(std::floor((jdn - kGoddessEpoch) / kMeanLunation));
    while (goddessMonthStart(k) > jdn) --k;
    while (goddessMonthStart(k + 1) <= jdn) ++k;
    long y = static_cast<long>(std::floor(k / kLunationsPerYear));
    while (goddessYearFirstMonth(y) > k) --y;
    while (goddessYearFirstMonth(y + 1) <= k) ++y;
    GoddessDate g;
    g.year = y + 1;
    g.month = static_cast<int>(k - goddessYearFirstMonth(y)) + 1;
    g.day = static_cast<int>(jdn - goddessMonthStart(k)) + 1;
    g.yearLength = static_cast<int>(goddessMonthStart(goddessYearFirstMonth(y + 1)) -
                                    goddessMonthStart(goddessYearFirstMonth(y)));
    return g;
}

long goddessDayNumber(long year, int month, int day)
{
    return goddessMonthStart(goddessYearFirstMonth(year - 1) + month - 1) + day - 1;
}

PiDate piFromJd(double jd)
{
    // The year of pi * 10^7 seconds, counted from 1 January 287 BC (Julian), 0 h UT, as year 1.
    const double len = kPiYear;
    PiDate p;
    p.year = static_cast<long>(std::floor((jd - kPiEpoch) / len)) + 1;
    p.yearStart = kPiEpoch + (p.year - 1) * len;
    p.day = static_cast<long>(std::floor(jd - p.yearStart)) + 1;
    return p;
}

SixtyWeekDate sixtyWeekFromCivil(const Date& c)
{
    // New Year's day, then three months of 30 days and an extra day (spring, summer, autumn,
    // winter); the leap day follows the summer day. The extra days stand outside the week.
    SixtyWeekDate s;
    s.year = c.year;
    int k = dayOfYear(c);
    const bool leap = isLeapCivil(c.year);
    if (k == 1) {
        s.extra = "Neujahrstag";
        return s;
    }
    k -= 2;  // 0 = 1 January of the 60-week year
    static const char* const extras[] = {"Frühlingstag", "Sommertag", "Herbsttag", "Wintertag"};
    for (int q = 0; q < 4; ++q) {
        if (k < 90) {
            s.month = q * 3 + k / 30 + 1;
            s.day = k % 30 + 1;
            s.weekday = k % 6;
            return s;
        }
        k -= 90;
        if (k == 0) {
            s.extra = extras[q];
            return s;
        }
        --k;
        if (q == 1 && leap) {
            if (k == 0) {
                s.extra = "Schalttag";
                return s;
            }
            --k;
        }
    }
    s.extra = "Wintertag";  // not reached: the year ends with the winter day
    return s;
}

namespace {

std::string goddess(long jdn)
{
    const GoddessDate g = goddessFromDayNumber(jdn);
    return std::to_string(g.day) + ". Tag des " + std::to_string(g.month) + ".Monats im Jahr " +
           std::to_string(g.year) + " (" + std::to_string(g.yearLength) + " Tage)";
}

std::string sixtyWeek(const Date& c)
{
    static const char* const days[] = {"Montag", "Mittwoch", "Donnerstag", "Freitag", "Sonnabend", "Sonntag"};
    const SixtyWeekDate s = sixtyWeekFromCivil(c);
    if (!s.extra.empty()) return s.extra + " " + std::to_string(s.year);
    return std::string(days[s.weekday]) + ", " + std::to_string(s.day) + ". " + monthName(s.month) + " " +
           std::to_string(s.year);
}

// John Dee's proposal: Julian months, eight leap years in each cycle of 33 years (the years of the
// cycle divisible by four), counted from 1 January of the year 1.
std::string johnDee(long jdn)
{
    const long z = jdn - 1721426 + 1;  // day 1 is 1 January 1
    long q, r;
    if (z > 0) {
        q = (z - 1) / 12053;
        r = (z - 1) % 12053;
    } else {
        // the mirror form for days before the epoch
        const long zz = -z;
        q = -(zz / 12053) - 1;
        r = 12052 - zz % 12053;
    }
    long year = 33 * q + 1;
    for (int k = 1; k <= 33; ++k) {
        const long len = (k % 4 == 0 && k < 33) ? 366 : 365;
        if (r < len) break;
        r -= len;
        ++year;
    }
    const bool leap = ((year - 1) % 33 + 33) % 33 + 1 < 33 && (((year - 1) % 33 + 33) % 33 + 1) % 4 == 0;
    static const int len[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int month = 0;
    for (; month < 12; ++month) {
        const int l = len[month] + (month == 1 && leap ? 1 : 0);
        if (r < l) break;
        r -= l;
    }
    return std::to_string(r + 1) + "." + std::to_string(month + 1) + "." + std::to_string(year);
}

// Darian calendar of Mars: sols from the telescopic epoch, years of 668 and 669 sols.
void mars(long jdn, std::vector<std::string>& out)
{
    static const char* m[] = {"Sagittarius", "Dhanus",  "Capricornus", "Makara", "Aquarius", "Kumbha",
                              "Pisces",      "Mina",    "Aries",       "Mesha",  "Taurus",   "Rishabha",
                              "Gemini",      "Mithuna", "Cancer",      "Karka",  "Leo",      "Simha",
                              "Virgo",       "Kanya",   "Libra",       "Tula",   "Scorpius", "Vrishika"};
    static const char* wd[] = {"Solis", "Lunae", "Martis", "Mercurii", "Jovis", "Veneris", "Saturni"};
    const double sols = (jdn - JulianDay(1609, 3, 12)) / 1.02749171204585;
    out.push_back("Julianisches Marsdatum\t" + fmt("%.3f", sols));
    long s = static_cast<long>(std::floor(sols));
    if (s < 0) return;
    auto yearLen = [](long y) {
        const bool leap = (y % 2 == 1 || y % 10 == 0) && !(y % 100 == 0 && y % 500 != 0);
        return leap ? 669L : 668L;
    };
    long y = 0;
    while (s >= yearLen(y)) s -= yearLen(y++);
    out.push_back(std::to_string(s + 1) + ".Tag des Marsjahres\t" + std::to_string(y));
    long r = s;
    int month = 0;
    for (; month < 24; ++month) {
        const long len = (month % 6 == 5 && !(month == 23 && yearLen(y) == 669)) ? 27 : 28;
        if (r < len) break;
        r -= len;
    }
    out.push_back("Darischer Marskalender\t" + std::to_string(r + 1) + ". " + m[std::min(month, 23)] + " " +
                  std::to_string(y));
    out.push_back("\t" + std::to_string(r % 7 + 1) + ".Wochentag, Sol " + wd[r % 7]);
}

// Soviet calendar of 1929 to 1940: twelve months of 30 days with the five (six) national days outside
// every month and week: Lenin's day after 30 January, the leap day after 30 February, the two days
// of labour after 30 April and the two days of industry after 7 November. 0 for a day of a month.
int sovietHoliday(int k, bool leap, int& month, int& day)
{
    if (k <= 30) {
        month = 1, day = k;
        return 0;
    }
    if (k == 31) return 1;  // Lenintag
    if (k <= 61) {
        month = 2, day = k - 31;
        return 0;
    }
    if (leap) {
        if (k == 62) return 2;  // Schalttag
        --k;
    }
    if (k == 122 || k == 123) return k - 119;  // 3, 4: days of labour
    if (k == 311 || k == 312) return k - 306;  // 5, 6: days of industry
    if (k > 312) k -= 2;
    if (k > 123) k -= 2;
    // from here on the months follow each other without a gap
    month = (k - 62) / 30 + 3, day = (k - 62) % 30 + 1;
    return 0;
}

std::string soviet(const Date& c, long jdn)
{
    static const char* extra[] = {"", "Lenintag", "Schalttag", "1.Tag der Arbeit", "2.Tag der Arbeit",
                                  "1.Tag der Industrie", "2.Tag der Industrie"};
    const auto scheme = [](const Date& x, int& month, int& day) {
        return sovietHoliday(dayOfYear(x), isLeapCivil(x.year), month, day);
    };
    int month = 0, day = 0;
    const int h = scheme(c, month, day);
    std::string text = (h ? std::string(extra[h]) : std::to_string(day) + ". " + monthName(month)) + " " +
                       std::to_string(c.year);
    const long fiveDays = dayNumber({1929, 10, 1}), sixDays = dayNumber({1931, 12, 1});
    const long sevenDays = dayNumber({1940, 6, 27});
    if (jdn >= fiveDays && jdn < sixDays && !h) {
        // the continuous five-day week ran on through the year and paused on the national days
        long n = 0;
        for (long t = fiveDays; t < jdn; ++t) {
            int m, dd;
            if (!scheme(civilFromDayNumber(t), m, dd)) ++n;
        }
        text += ", " + std::to_string(n % 5 + 1) + ".Tag der Fünftagewoche";
    } else if (jdn >= sixDays && jdn < sevenDays) {
        // the six-day week was bound to the days of the civil month, the 31st standing outside
        if (c.day == 31)
            text += ", außerhalb der Sechstagewoche";
        else if (c.day % 6 == 0)
            text += ", Ruhetag der Sechstagewoche";
        else
            text += ", " + std::to_string((c.day - 1) % 6 + 1) + ".Tag der Sechstagewoche";
    }
    return text;
}

}  // namespace

// ---------------------------------------------------------------- feasts and notes

std::vector<std::string> feiertage(const Date& d, const Resources& res)
{
    std::vector<std::string> out;
    const long jdn = dayNumber(d);
    const long easterDay = dayNumber(easter(d.year));
    for (const std::string& line : res.feiert) {
        const auto p = split(line, ';');
        if (p.size() < 3) continue;
        bool hit = false;
        std::string name = p.back();
        if (p[0] == "O") {
            hit = jdn == easterDay + std::atol(p[1].c_str());
        } else if (p[0] == "F") {
            const auto dm = split(p[1], '.');
            hit = dm.size() >= 2 && std::atoi(dm[0].c_str()) == d.day && std::atoi(dm[1].c_str()) == d.month;
        } else if (p[0] == "W" && p.size() >= 5) {
            // the last given week day before a fixed date, plus an offset
            const auto dm = split(p[1], '.');
            if (dm.size() < 2) continue;
            const long ref = dayNumber({d.year, std::atoi(dm[1].c_str()), std::atoi(dm[0].c_str())});
            long t = ref - 1;
            while (weekday(t) != std::atoi(p[2].c_str())) --t;
            hit = jdn == t + std::atol(p[3].c_str());
        } else if (p[0] == "N" && p.size() >= 5) {
            // the n-th week day of a month
            const int month = std::atoi(p[1].c_str()), n = std::atoi(p[2].c_str()), wd = std::atoi(p[3].c_str());
            if (month != d.month) continue;
            long t = dayNumber({d.year, month, 1});
            while (weekday(t) != wd) ++t;
            hit = jdn == t + 7 * (n - 1);
        }
        if (hit) out.push_back(name);
    }
    return out;
}

std::vector<std::string> kalenderZeilen(const Date& d, const Resources& res, bool zusaetzlich, double zone,
                                        const std::string& ort, double breite, double laenge)
{
    std::vector<std::string> out;
    if (!isValidCivil(d)) {
        out.push_back("Datum\tFehler!");
        return out;
    }
    const long jdn = dayNumber(d);
    const double jd = jdn - 0.5;
    const bool more = zusaetzlich;
    const bool beforeReform = jdn < 2299161;

    out.push_back("Julianisches Datum\t" + fmt("%.1f", jd));
    out.push_back("Modifiziertes Julianisches Datum\t" + fmt("%.0f", jd - 2400000.5));
    out.push_back("Julianischer Kalender\t" + dmy(julianFromDayNumber(jdn)) + (beforeReform ? " (julianisch)" : ""));
    out.push_back(std::string(weekdayName(weekday(jdn))) + "\t" + std::to_string(dayOfYear(d)) + ".Tag des Jahres / " +
                  std::to_string(isoWeek(d)) + ".Woche des Jahres");
    out.push_back("Tag seit 1.1.1 / 1.1.2001\t" + std::to_string(jdn - dayNumber({1, 1, 1})) + " / " +
                  std::to_string(jdn - dayNumber({2001, 1, 1})));
    {
        int y = d.year, m = d.month;
        if (m < 3) {
            m += 12;
            --y;
        }
        const long c = floorDiv(y, 100), r = floorMod(y, 100);
        const long g = floorDiv(146097 * c, 4) + (1461 * r) / 4 + ((m - 3) * 153 + 2) / 5 + d.day + 1721119;
        if (more) out.push_back("Gregorianischer Tag\t" + std::to_string(g));
    }
    if (more) out.push_back("UNO-Weltkalender\t" + worldCalendar(d));
    if (more) out.push_back("Römischer Kalender\t" + romanCalendar(d, jdn));
    if (more) out.push_back("Altägyptischer Kalender\t" + egyptian(jdn));
    {
        const HebrewDate h = hebrewFromDayNumber(jdn);
        if (h.year >= 1)
            out.push_back("Jüdischer Kalender\t" + std::to_string(h.day) + ". " + hebrewMonthName(h.year, h.month) + " " +
                      std::to_string(h.year));
        if (d.year >= 359) out.push_back("\tPassahfest " + dmy(passover(d.year)));
    }
    if (d.year >= 1) out.push_back("Ostersonntag\t" + dmy(easter(d.year)));
    if (more && d.year >= 1868) {
        const char* era = d.year < 1912 ? "Meiji " : d.year < 1926 ? "Taisho " : d.year < 1989 ? "Showa " : "Heisei ";
        const int base = d.year < 1912 ? 1867 : d.year < 1926 ? 1911 : d.year < 1989 ? 1925 : 1988;
        out.push_back(std::string("Japanischer Kalender\t") + era + std::to_string(d.year - base));
    }
    if (d.year >= 1000 && d.year <= 3000) {
        const ChineseDate c = chineseFromDayNumber(jdn);
        out.push_back("Chinesischer Kalender\t" + std::to_string(c.day) + ". Tag des " + std::to_string(c.month) +
                      (c.leapMonth ? ". Schaltmonats" : ".Monats") + " des " + std::to_string(c.yearInCycle) +
                      ".Jahres im " + std::to_string(c.cycle) + ".Zyklus (" + std::to_string(c.civilYear) + ")");
        const auto animals = table(res.chink, "Tiere", {});
        const auto elements = table(res.chink, "Elemente", {});
        if (!animals.empty() && !elements.empty())
            out.push_back("\tJahr : " + at(animals, c.yearInCycle - 1) + " des " +
                          at(elements, (c.yearInCycle - 1) % 10 / 2));
    }
    {
        static const char* im[] = {"Muharram",  "Safar",  "Rabi' al-awwal", "Rabi' ath-thani", "Dschumada l-ula",
                                   "Dschumada th-thaniya", "Radschab", "Scha'ban", "Ramadan", "Schawwal",
                                   "Dhu l-qa'da", "Dhu l-hiddscha"};
        const Date i = islamicFromDayNumber(jdn);
        if (i.year >= 1)
            out.push_back("Islamischer Kalender\t" + std::to_string(i.day) + ". " + im[i.month - 1] + " " +
                          std::to_string(i.year));
    }
    if (more) {
        const std::string f = french(jdn);
        if (!f.empty()) out.push_back("Französischer Revolutionskalender\t" + f);
        out.push_back("Seleukidischer Kalender\t" + seleucid(jdn, false));
    }
    if (d.year >= 1000 && d.year <= 3000) out.push_back("Iranischer Kalender\t" + persian(jdn));
    if (more) {
        out.push_back("Babylonischer Kalender\t" + seleucid(jdn, true));
        out.push_back("Maya-Kalender\t" + maya(jdn));
        out.push_back("Azteken-Kalender\t" + aztec(jdn));
        if (d.year >= 1844) out.push_back("Bahâi-Kalender\t" + bahai(d, jdn));
        if (d.year >= 79) out.push_back("Indischer Kalender\t" + indian(d, jdn));
        if (d.year >= 1469) out.push_back("Sikh-Kalender\t" + sikh(d, jdn));
        out.push_back("Armenischer Kalender\t" + armenian(jdn));
        out.push_back("Berber-Kalender\t" + berber(jdn));
        out.push_back("Koptischer Kalender\t" + coptic(jdn, false));
        out.push_back("Äthiopischer Kalender\t" + coptic(jdn, true));
        out.push_back("Diskordianischer Kalender\t" + discordian(d));
        if (d.year >= 1789) out.push_back("Positivisten-Kalender\t" + positivist(d, res));
        if (jdn >= 2451226) out.push_back("Göttinnen-Kalender\t" + goddess(jdn));  // from its epoch on
        if (jdn >= 2451255) out.push_back("Solilunar-Kalender\t" + solilunar(jdn));  // from its epoch on
        mars(jdn, out);
        if (d.year >= 1929 && d.year <= 1940) out.push_back("Sowjetischer Revolutionskalender\t" + soviet(d, jdn));
        out.push_back("John Dee-Kalender\t" + johnDee(jdn));
        out.push_back("60 Wochen-Kalender\t" + sixtyWeek(d));
        out.push_back("Cotsworth-Kalender\t" + cotsworth(d));
        // the rule of the series' writers: 1000 units a year, counted from 2323
        const int doy = dayOfYear(d);
        const double len = isLeapCivil(d.year) ? 366 : 365;
        out.push_back("Star Trek Sternzeit\t" + fmt("%.2f", (d.year - 2323) * 1000.0 + (doy - 1) / len * 1000.0));
        {
            const PiDate p = piFromJd(jdn);  // the noon of the day decides its pi year
            out.push_back("PI-Kalender\t" + std::to_string(p.day) + ". Tag des Jahres " + std::to_string(p.year) +
                          " n.Arc.");
            const double newYear = p.yearStart + kPiYear;
            out.push_back("\tPI-Silvester " + dateTimeText(newYear - kPiSilvester, zone) + " bis " +
                          dateTimeText(newYear, zone));
        }
        // the day of the programmer is the 256th day of the year
        char hex[16];
        std::snprintf(hex, sizeof hex, "0x%03X", doy);
        out.push_back("Programm-Tag\t" + std::to_string(doy) + ". Tag = " + hex);
        if (doy == 256) out.push_back("\tProgramm-Feiertag");
    }
    {
        const MoonAge a = moonAge(jd + 0.5 - zone / 24);  // noon of the chosen day
        out.push_back("Mondalter\t" + fmt("%.1f", a.age) + " Tage");
        out.push_back(std::string("Aktuelle Phase\t") + phaseName(a.nextKind) + " am " +
                      dateTimeText(jdeToJd(a.nextJde), zone));
        out.push_back("Mondabstand\t" + fmt("%.0f km", MoonPosition(jd + 0.5).distance));
        // rise and set of Sun and Moon by the almanac routine, in zone time
        const double dt = DeltaT(d.year);
        const double jd0 = jd - zone / 24;  // 0 h zone time in UT
        double sra[3], sde[3], mra[3], mde[3];
        double par = 0;
        for (int i = 0; i < 3; ++i) {
            const SunRecord s = SunPosition(jd0 + i - 1 + dt);
            const MoonRecord m = MoonPosition(jd0 + i - 1 + dt);
            sra[i] = s.ra;
            sde[i] = s.dec;
            mra[i] = m.ra;
            mde[i] = m.dec;
            if (i == 1) par = m.parallax;
        }
        const double theta0 = ApparentSiderealTime(jd0);
        // the fractions count from 0 h zone time, so they are zone time already
        auto hm = [](double m, int code) {
            if (code == -1) return std::string("ständig sichtbar");
            if (code == -2) return std::string("unbeobachtbar");
            const int mm = static_cast<int>(std::lround(m * 1440)) % 1440;
            char b[16];
            std::snprintf(b, sizeof b, "%02d:%02d", (mm + 1440) % 1440 / 60, (mm + 1440) % 60);
            return std::string(b);
        };
        const RiseTransitSet sun =
            riseTransitSet(theta0, sra, sde, breite, laenge, horizonAltitude(Horizon::Sun), dt * 86400);
        const RiseTransitSet moon =
            riseTransitSet(theta0, mra, mde, breite, laenge, horizonAltitude(Horizon::Moon, par), dt * 86400);
        out.push_back("Zeiten für " + ort + "\tSonnenaufgang " + hm(sun.rise, sun.code) + ", Sonnenuntergang " +
                      hm(sun.set, sun.code));
        out.push_back("\tMondaufgang " + hm(moon.rise, moon.code) + ", Monduntergang " + hm(moon.set, moon.code));
    }
    for (const std::string& f : feiertage(d, res)) out.push_back("Feier-,Gedenktag\t" + f);
    bool first = true;
    for (const std::string& line : res.kalender) {
        const auto p = split(line, ';');
        if (p.size() < 2) continue;
        const auto dmyv = split(p[0], '.');
        if (dmyv.size() < 3) continue;
        if (std::atoi(dmyv[0].c_str()) != d.day || std::atoi(dmyv[1].c_str()) != d.month) continue;
        const int y = std::atoi(dmyv[2].c_str());
        out.push_back(std::string(first ? "Geschichtliche Ereignisse" : "") + "\t" + dmyv[2] + ": " + p[1]);
        first = false;
        if (d.year > y) out.push_back("\t" + std::to_string(d.year - y) + ".Jahrestag «" + p[1] + "»");
    }
    return out;
}

std::vector<std::vector<int>> monatsblatt(int year, int month)
{
    std::vector<std::vector<int>> rows(6, std::vector<int>(7, 0));
    const long first = dayNumber({year, month, 1});
    int col = (weekday(first) + 6) % 7;
    int row = 0;
    for (int day = 1; day <= daysInMonthCivil(year, month); ++day) {
        if (!isValidCivil({year, month, day})) continue;  // the days dropped in October 1582
        rows[row][col] = day;
        if (++col == 7) {
            col = 0;
            ++row;
        }
    }
    return rows;
}

std::vector<std::string> differenz(const Date& a, const Date& b)
{
    std::vector<std::string> out;
    if (!isValidCivil(a) || !isValidCivil(b)) {
        out.push_back("Differenz\tFehler!");
        return out;
    }
    const long n = dayNumber(b) - dayNumber(a);
    out.push_back("Differenz\t" + std::to_string(n) + " Tage");
    const long an = std::labs(n);
    out.push_back("\t" + std::to_string(an / 7) + " Wochen und " + std::to_string(an % 7) + " Tage");
    // whole years and months between the earlier and the later date
    Date lo = n >= 0 ? a : b, hi = n >= 0 ? b : a;
    int months = (hi.year - lo.year) * 12 + hi.month - lo.month;
    if (hi.day < lo.day) --months;
    Date mid = lo;
    mid.year += months / 12;
    mid.month += months % 12;
    if (mid.month > 12) {
        mid.month -= 12;
        ++mid.year;
    }
    mid.day = std::min(lo.day, daysInMonthCivil(mid.year, mid.month));
    const long rest = dayNumber(hi) - dayNumber(mid);
    out.push_back("\t" + std::to_string(months / 12) + " Jahre, " + std::to_string(months % 12) + " Monate, " +
                  std::to_string(rest) + " Tage");
    out.push_back("\t" + fmt("%.0f", an * 24.0) + " Stunden");
    return out;
}

}  // namespace astro::kal
