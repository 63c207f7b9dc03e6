#pragma once
// Calendar engine of the calendar tool: pure functions from a day number to the lines of text.
// Texts are UTF-8; each line is name, tab, text.
#include <string>
#include <vector>

namespace astro::kal {

// The authored lists of the calendar tool (texte.dll, resources 10/kalender, 10/kalender1,
// 10/chink, 10/feiert), passed in so that the engine reads no files.
struct Resources {
    std::vector<std::string> kalender;   // history notes "TT.MM.JJJJ;Text"
    std::vector<std::string> kalender1;  // day names and small tables "key;values"
    std::vector<std::string> chink;      // Chinese animals and elements "key;values"
    std::vector<std::string> feiert;     // feast days "O+n;Name", "F TT.MM;Name", "R ...;Name"
};

struct Date {
    int year = 2000;
    int month = 1;
    int day = 1;
};

// Civil calendar: Julian up to 4 Oct 1582, Gregorian from 15 Oct 1582.
bool isLeapCivil(int year);
int daysInMonthCivil(int year, int month);
bool isValidCivil(const Date& d);
long dayNumber(const Date& d);          // integer JD of the day (noon)
Date civilFromDayNumber(long jdn);
Date julianFromDayNumber(long jdn);     // always the Julian calendar
long julianDayNumber(int year, int month, int day);  // Julian calendar
long gregorianDayNumber(int year, int month, int day);
int weekday(long jdn);                   // 0 Sonntag .. 6 Sonnabend
const char* weekdayName(int w);
const char* monthName(int m);            // "Januar".."Dezember"
int dayOfYear(const Date& d);
int isoWeek(const Date& d);

// Easter Sunday of a year as month and day (Julian rule up to 1582, Gregorian from 1583).
Date easter(int year);
std::string easterText(int year);  // "20.4."

// Hebrew calendar
struct HebrewDate {
    int year = 0, month = 0, day = 0;  // month 1 Nisan .. 12 Adar, 13 Adar II
};
HebrewDate hebrewFromDayNumber(long jdn);
long dayNumberFromHebrew(int year, int month, int day);
std::string hebrewMonthName(int year, int month);
Date passover(int civilYear);  // 15 Nisan by Gauss's rule, in the civil calendar

// Islamic (tabular, civil epoch)
Date islamicFromDayNumber(long jdn);  // year, month, day of the Hijra
long dayNumberFromIslamic(int year, int month, int day);

// Persian (astronomical: the year begins on the day of the equinox before noon in Tehran)
Date persianFromDayNumber(long jdn);

// Chinese lunisolar calendar (Beijing time)
struct ChineseDate {
    int cycle = 0, yearInCycle = 0, month = 0, day = 0;
    bool leapMonth = false;
    int civilYear = 0;  // civil year in which this Chinese year began
};
ChineseDate chineseFromDayNumber(long jdn);

// Coptic and Ethiopian
Date copticFromDayNumber(long jdn, bool ethiopian);

// Goddess calendar: lunar months from the new moon of 16 February 1999, 12 or 13 in a year.
struct GoddessDate {
    long year = 0;
    int month = 0, day = 0, yearLength = 0;
};
GoddessDate goddessFromDayNumber(long jdn);
long goddessDayNumber(long year, int month, int day);

// The year of pi * 10^7 seconds (363.61 days) from 1 January 287 BC (Julian) 0 h UT; the new
// year's eve celebration starts 31 h 41 min 59 s before the new year.
constexpr double kPiYear = 31415926.535897932 / 86400;
constexpr double kPiEpoch = 1616596.5;
constexpr double kPiSilvester = (31 * 3600 + 41 * 60 + 59) / 86400.0;
struct PiDate {
    long year = 0;
    long day = 0;            // day of the pi year, from 1
    double yearStart = 0;    // JD (UT) of the year's beginning
};
PiDate piFromJd(double jd);

// 60-week calendar: twelve months of 30 days in weeks of six days and extra days outside the week.
struct SixtyWeekDate {
    int year = 0, month = 0, day = 0;
    int weekday = 0;         // 0 Montag, 1 Mittwoch .. 5 Sonntag (no Tuesday)
    std::string extra;       // "Neujahrstag", "Frühlingstag", ... for a day outside the months
};
SixtyWeekDate sixtyWeekFromCivil(const Date& c);

// Lines of the calendar tool for one date; with `zusaetzlich` the long list of further calendars.
std::vector<std::string> kalenderZeilen(const Date& d, const Resources& res, bool zusaetzlich, double zone = 1.0,
                                        const std::string& ort = "Neuhafen", double breite = 50.8088888888889,
                                        double laenge = 12.9033333333333);

// Month sheet: 6 rows of 7 days (Monday first), 0 for an empty cell.
std::vector<std::vector<int>> monatsblatt(int year, int month);
// Feast names of one date (from `feiert`).
std::vector<std::string> feiertage(const Date& d, const Resources& res);

// Date difference page: lines "Differenz\t...".
std::vector<std::string> differenz(const Date& a, const Date& b);

// Roman numerals up to 5999; larger numbers in digits in brackets.
std::string roman(int n);

}  // namespace astro::kal
