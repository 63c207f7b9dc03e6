// Conversions of the calendar tool: civil calendar, Easter, Hebrew, Islamic, Persian, Chinese, Coptic.
#include "astronomy/kalenderspez.h"

#include "astronomy/ephemeris.h"

#include <cmath>
#include <cstdio>

namespace astro::kal {

namespace {
long floorDiv(long a, long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }
long floorMod(long a, long b) { return a - b * floorDiv(a, b); }
constexpr long kRdOffset = 1721425;  // day number of R.D. 0
}  // namespace

// ---------------------------------------------------------------- civil calendar

bool isLeapCivil(int y)
{
    if (y <= 1582) return floorMod(y, 4) == 0;
    return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
}

int daysInMonthCivil(int y, int m)
{
    static const int len[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (m == 2) return isLeapCivil(y) ? 29 : 28;
    return len[(m - 1) % 12];
}

bool isValidCivil(const Date& d)
{
    if (d.year < -4712 || d.year > 9999 || d.month < 1 || d.month > 12) return false;
    if (d.day < 1 || d.day > daysInMonthCivil(d.year, d.month)) return false;
    return !(d.year == 1582 && d.month == 10 && d.day > 4 && d.day < 15);
}

long dayNumber(const Date& d) { return static_cast<long>(std::floor(JulianDay(d.year, d.month, d.day) + 0.5)); }

Date civilFromDayNumber(long jdn)
{
    const CivilDate c = JulianDayToDate(static_cast<double>(jdn));
    return {c.year, c.month, static_cast<int>(std::floor(c.day))};
}

long julianDayNumber(int y, int m, int d)
{
    const long a = (14 - m) / 12, yy = y + 4800 - a, mm = m + 12 * a - 3;
    return d + (153 * mm + 2) / 5 + 365 * yy + floorDiv(yy, 4) - 32083;
}

long gregorianDayNumber(int y, int m, int d)
{
    const long a = (14 - m) / 12, yy = y + 4800 - a, mm = m + 12 * a - 3;
    return d + (153 * mm + 2) / 5 + 365 * yy + floorDiv(yy, 4) - floorDiv(yy, 100) + floorDiv(yy, 400) - 32045;
}

Date julianFromDayNumber(long jdn)
{
    const long c = jdn + 32082, d = floorDiv(4 * c + 3, 1461), e = c - floorDiv(1461 * d, 4);
    const long m = (5 * e + 2) / 153;
    return {static_cast<int>(d - 4800 + m / 10), static_cast<int>(m + 3 - 12 * (m / 10)),
            static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

int weekday(long jdn) { return static_cast<int>(floorMod(jdn + 1, 7)); }

const char* weekdayName(int w)
{
    static const char* n[] = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Sonnabend"};
    return n[floorMod(w, 7)];
}

const char* monthName(int m)
{
    static const char* n[] = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August",
                              "September", "Oktober", "November", "Dezember"};
    return n[(m - 1) % 12];
}

int dayOfYear(const Date& d) { return static_cast<int>(dayNumber(d) - dayNumber({d.year, 1, 1}) + 1); }

int isoWeek(const Date& d)
{
    const long j = dayNumber(d);
    const int wd = (weekday(j) + 6) % 7 + 1;  // Monday 1 .. Sunday 7
    const long thursday = j - wd + 4;
    const Date t = civilFromDayNumber(thursday);
    return static_cast<int>((thursday - dayNumber({t.year, 1, 1})) / 7 + 1);
}

// ---------------------------------------------------------------- Easter

Date easter(int y)
{
    if (y <= 1582) {
        const long a = floorMod(y, 19), b = floorMod(y, 4), c = floorMod(y, 7);
        const long d = (19 * a + 15) % 30, e = floorMod(2 * b + 4 * c - d + 34, 7);
        const long n = d + e + 114;
        return {y, static_cast<int>(n / 31), static_cast<int>(n % 31 + 1)};
    }
    const int a = y % 19, b = y / 100, c = y % 100, d = b / 4, e = b % 4, f = (b + 8) / 25, g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30, i = c / 4, k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7, m = (a + 11 * h + 22 * l) / 451;
    const int n = h + l - 7 * m + 114;
    return {y, n / 31, n % 31 + 1};
}

std::string easterText(int y)
{
    const Date e = easter(y);
    return std::to_string(e.day) + "." + std::to_string(e.month) + ".";
}

// ---------------------------------------------------------------- Hebrew

namespace {
constexpr long kHebrewEpoch = -1373427;  // R.D. of 1 Tishri A.M. 1

bool hebrewLeap(long y) { return floorMod(7 * y + 1, 19) < 7; }

long hebrewElapsed(long y)
{
    const long months = floorDiv(235 * y - 234, 19);
    const long parts = 12084 + 13753 * months;
    const long days = 29 * months + floorDiv(parts, 25920);
    return floorMod(3 * (days + 1), 7) < 3 ? days + 1 : days;
}

long hebrewYearCorrection(long y)
{
    const long n0 = hebrewElapsed(y - 1), n1 = hebrewElapsed(y), n2 = hebrewElapsed(y + 1);
    if (n2 - n1 == 356) return 2;
    if (n1 - n0 == 382) return 1;
    return 0;
}

long hebrewNewYear(long y) { return kHebrewEpoch + hebrewElapsed(y) + hebrewYearCorrection(y); }
long hebrewYearDays(long y) { return hebrewNewYear(y + 1) - hebrewNewYear(y); }

int hebrewMonthDays(long y, int m)
{
    const long len = hebrewYearDays(y);
    if (m == 2 || m == 4 || m == 6 || m == 10 || m == 13) return 29;
    if (m == 12 && !hebrewLeap(y)) return 29;
    if (m == 8 && len % 10 != 5) return 29;  // Marheshvan is long in years of 355 and 385 days
    if (m == 9 && len % 10 == 3) return 29;  // Kislev is short in years of 353 and 383 days
    return 30;
}

long rdFromHebrew(long y, int m, int d)
{
    const int last = hebrewLeap(y) ? 13 : 12;
    long days = hebrewNewYear(y) + d - 1;
    if (m < 7) {
        for (int i = 7; i <= last; ++i) days += hebrewMonthDays(y, i);
        for (int i = 1; i < m; ++i) days += hebrewMonthDays(y, i);
    } else {
        for (int i = 7; i < m; ++i) days += hebrewMonthDays(y, i);
    }
    return days;
}
}  // namespace

long dayNumberFromHebrew(int y, int m, int d) { return rdFromHebrew(y, m, d) + kRdOffset; }

HebrewDate hebrewFromDayNumber(long jdn)
{
    const long rd = jdn - kRdOffset;
    long y = static_cast<long>(std::floor((rd - kHebrewEpoch) / (35975351.0 / 98496.0))) + 1;
    while (hebrewNewYear(y) > rd) --y;
    while (hebrewNewYear(y + 1) <= rd) ++y;
    int m = rd < rdFromHebrew(y, 1, 1) ? 7 : 1;
    while (rd > rdFromHebrew(y, m, hebrewMonthDays(y, m))) ++m;
    HebrewDate h;
    h.year = static_cast<int>(y);
    h.month = m;
    h.day = static_cast<int>(rd - rdFromHebrew(y, m, 1) + 1);
    return h;
}

std::string hebrewMonthName(int y, int m)
{
    static const char* n[] = {"Nisan", "Ijar",    "Siwan",  "Tammus",  "Aw",   "Elul",    "Tischri",
                              "Cheschwan", "Kislew", "Tewet", "Schewat", "Adar", "Adar II"};
    if (m == 12 && hebrewLeap(y)) return "Adar I";
    return n[(m - 1) % 13];
}

Date passover(int y)
{
    // Gauss's rule on the Julian calendar; the Gregorian shift is added after the week-day tests
    const long A = y + 3760;
    const long a = floorMod(12L * y + 12, 19), b = floorMod(y, 4);
    const double q = 32.0 + 4343.0 / 98496.0 + 1.554241796621 * a + 0.25 * b - 0.003177794022 * A;
    long M = static_cast<long>(std::floor(q));
    const double frac = q - M;
    const long c = floorMod(M + 3 * A + 5 * b + 5, 7);
    if (c == 2 || c == 4 || c == 6) M += 1;
    else if (c == 1 && a > 6 && frac >= 0.63287037) M += 2;
    else if (c == 0 && a > 11 && frac >= 0.897723765) M += 1;
    if (y >= 1583) {
        const long cent = y / 100;
        M += (3 * cent - 5) / 4;
    }
    if (M > 31) return {y, 4, static_cast<int>(M - 31)};
    return {y, 3, static_cast<int>(M)};
}

// ---------------------------------------------------------------- Islamic

long dayNumberFromIslamic(int y, int m, int d)
{
    return d + static_cast<long>(std::ceil(29.5 * (m - 1))) + (y - 1) * 354L + floorDiv(3 + 11L * y, 30) + 1948439;
}

Date islamicFromDayNumber(long jdn)
{
    const int y = static_cast<int>(floorDiv(30 * (jdn - 1948440) + 10646, 10631));
    int m = static_cast<int>(std::ceil((jdn - (29 + dayNumberFromIslamic(y, 1, 1))) / 29.5)) + 1;
    if (m > 12) m = 12;
    if (m < 1) m = 1;
    return {y, m, static_cast<int>(jdn - dayNumberFromIslamic(y, m, 1) + 1)};
}

// ---------------------------------------------------------------- solar terms

namespace {
// JDE at which the apparent solar longitude reaches `target`, starting from a guess.
double solarLongitudeTime(double target, double jde)
{
    for (int i = 0; i < 20; ++i) {
        const double lon = SunPosition(jde).apparentLongitude;
        double diff = std::fmod(target - lon + 540.0, 360.0) - 180.0;
        jde += 58.0 * std::sin(diff * 3.14159265358979324 / 180);
        if (std::fabs(diff) < 1e-6) break;
    }
    return jde;
}

long dayAt(double jdUT, double zoneHours) { return static_cast<long>(std::floor(jdUT + zoneHours / 24.0 + 0.5)); }
}  // namespace

// ---------------------------------------------------------------- Persian

namespace {
long nowruz(int y)
{
    const double jd = jdeToJd(solarLongitudeTime(0, JulianDay(y, 3, 20)));
    const double tehran = jd + 3.5 / 24 + 0.5;  // civil day count in Tehran standard time
    const long day = static_cast<long>(std::floor(tehran));
    return (tehran - day) < 0.5 ? day : day + 1;  // equinox before noon: the year begins that day
}
}  // namespace

Date persianFromDayNumber(long jdn)
{
    int y = civilFromDayNumber(jdn).year;
    long n = nowruz(y);
    if (jdn < n) n = nowruz(--y);
    const int doy = static_cast<int>(jdn - n);
    Date p;
    p.year = y - 621;
    if (doy < 186) {
        p.month = doy / 31 + 1;
        p.day = doy % 31 + 1;
    } else {
        p.month = 7 + (doy - 186) / 30;
        p.day = (doy - 186) % 30 + 1;
    }
    return p;
}

// ---------------------------------------------------------------- Chinese

namespace {
constexpr double kBeijing = 8.0;

long solsticeDay(int y) { return dayAt(jdeToJd(solarLongitudeTime(270, JulianDay(y, 12, 21))), kBeijing); }

long newMoonOnOrBefore(long day, double& k)
{
    k = std::floor(lunationIndex(static_cast<double>(day))) + 1;
    while (dayAt(jdeToJd(MoonPhaseTime(k, 0)), kBeijing) > day) k -= 1;
    return dayAt(jdeToJd(MoonPhaseTime(k, 0)), kBeijing);
}

int majorTerm(long day)
{
    const double jd = day - 0.5 - kBeijing / 24;
    return static_cast<int>(std::floor(SunPosition(jd).apparentLongitude / 30.0));
}
}  // namespace

ChineseDate chineseFromDayNumber(long jdn)
{
    int y = civilFromDayNumber(jdn).year;
    long s1 = solsticeDay(y);
    if (jdn < s1) s1 = solsticeDay(--y);
    double k11, kNext;
    long m11 = newMoonOnOrBefore(s1, k11);
    long next11 = newMoonOnOrBefore(solsticeDay(y + 1), kNext);
    if (jdn >= next11) {
        ++y;
        m11 = next11;
        k11 = kNext;
        next11 = newMoonOnOrBefore(solsticeDay(y + 1), kNext);
    }
    std::vector<long> starts{m11};
    for (double k = k11 + 1; starts.back() < next11; k += 1)
        starts.push_back(dayAt(jdeToJd(MoonPhaseTime(k, 0)), kBeijing));
    const bool leapYear = starts.size() - 1 == 13;
    ChineseDate c;
    int num = 11;
    bool leapUsed = false;
    long newYear = 0;
    for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
        bool leap = false;
        if (i > 0) {
            if (leapYear && !leapUsed && majorTerm(starts[i]) == majorTerm(starts[i + 1])) {
                leap = leapUsed = true;
            } else {
                num = num % 12 + 1;
            }
        }
        if (num == 1 && !leap && newYear == 0) newYear = starts[i];
        if (jdn >= starts[i] && jdn < starts[i + 1]) {
            c.month = num;
            c.leapMonth = leap;
            c.day = static_cast<int>(jdn - starts[i] + 1);
        }
    }
    c.civilYear = (newYear != 0 && jdn >= newYear) ? y + 1 : y;
    const int n = c.civilYear + 2637;
    c.cycle = (n - 1) / 60 + 1;
    c.yearInCycle = (n - 1) % 60 + 1;
    return c;
}

// ---------------------------------------------------------------- Coptic and Ethiopian

Date copticFromDayNumber(long jdn, bool ethiopian)
{
    const long epoch = ethiopian ? 1724221 : 1825030;
    auto toJdn = [epoch](long y, int m, int d) { return epoch - 1 + 365 * (y - 1) + floorDiv(y, 4) + 30 * (m - 1) + d; };
    const long y = floorDiv(4 * (jdn - epoch) + 1463, 1461);
    const int m = static_cast<int>((jdn - toJdn(y, 1, 1)) / 30 + 1);
    return {static_cast<int>(y), m, static_cast<int>(jdn + 1 - toJdn(y, m, 1))};
}

// ---------------------------------------------------------------- Roman numerals

std::string roman(int n)
{
    if (n <= 0 || n > 5999) return "(" + std::to_string(n) + ")";
    static const int val[] = {1000, 900, 500, 400, 100, 90, 50, 40, 10, 9, 5, 4, 1};
    static const char* sym[] = {"M", "CM", "D", "CD", "C", "XC", "L", "XL", "X", "IX", "V", "IV", "I"};
    std::string s;
    for (int i = 0; i < 13; ++i)
        while (n >= val[i]) {
            s += sym[i];
            n -= val[i];
        }
    return s;
}

}  // namespace astro::kal
