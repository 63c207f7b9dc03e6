// Calendar lines against known conversions; the cases live in calendar_cases.txt and
// easter_cases.txt. The authored resources are read from data/texte/ directly.
#include "astronomy/kalenderspez.h"
#include "astronomy/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>

using namespace astro::kal;

namespace {

std::vector<std::string> readLines(const std::string& path)
{
    std::vector<std::string> out;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        out.push_back(line);
    }
    return out;
}

Resources resources()
{
    const std::string dir = std::string(QUORIX_SOURCE_DIR) + "/data/texte/";
    Resources r;
    r.kalender = readLines(dir + "kalender.txt");
    r.kalender1 = readLines(dir + "kalender1.txt");
    r.chink = readLines(dir + "chink.txt");
    r.feiert = readLines(dir + "feiert.txt");
    return r;
}

std::string trim(const std::string& s)
{
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

Date parseIso(const std::string& s)
{
    Date d;
    std::sscanf(s.c_str(), "%d-%d-%d", &d.year, &d.month, &d.day);
    return d;
}

}  // namespace

TEST(Calendar, KnownConversionsFromTable)
{
    const Resources res = resources();
    ASSERT_FALSE(res.feiert.empty());
    const auto cases = readLines(std::string(QUORIX_TEST_DATA) + "/calendar_cases.txt");
    int checked = 0;
    std::string lastDate;
    std::vector<std::string> lines;
    for (const std::string& c : cases) {
        if (c.empty() || c[0] == '#') continue;
        const auto p1 = c.find('|'), p2 = c.find('|', p1 + 1);
        ASSERT_NE(p2, std::string::npos) << c;
        const std::string date = trim(c.substr(0, p1));
        const std::string want = trim(c.substr(p1 + 1, p2 - p1 - 1)) + "\t" + trim(c.substr(p2 + 1));
        if (date != lastDate) {
            lines = kalenderZeilen(parseIso(date), res, true);
            lastDate = date;
        }
        bool found = false;
        for (const std::string& l : lines) found = found || l == want;
        std::string all;
        for (const std::string& l : lines) all += "  " + l + "\n";
        EXPECT_TRUE(found) << date << ": expected line \"" << want << "\" among\n" << all;
        ++checked;
    }
    EXPECT_GT(checked, 50);
}

TEST(Calendar, EasterOverManyYears)
{
    const auto cases = readLines(std::string(QUORIX_TEST_DATA) + "/easter_cases.txt");
    int n = 0;
    for (const std::string& c : cases) {
        if (c.empty() || c[0] == '#') continue;
        std::istringstream in(c);
        int year;
        std::string want;
        in >> year >> want;
        EXPECT_EQ(easterText(year), want) << "year " << year;
        ++n;
    }
    EXPECT_GT(n, 40);
    // every Easter is a Sunday between 22 March and 25 April, on both sides of the reform
    for (int y = 1; y < 4100; ++y) {
        const Date e = easter(y);
        const long j = dayNumber(e);
        EXPECT_EQ(weekday(j), 0) << "year " << y;
        EXPECT_GE(j, dayNumber({y, 3, 22})) << "year " << y;
        EXPECT_LE(j, dayNumber({y, 4, 25})) << "year " << y;
    }
}

TEST(Calendar, CivilCalendarAndReform)
{
    EXPECT_TRUE(isLeapCivil(1500));   // Julian rule up to 1582
    EXPECT_FALSE(isLeapCivil(1700));  // Gregorian from then on
    EXPECT_TRUE(isLeapCivil(2000));
    EXPECT_FALSE(isValidCivil({1582, 10, 10}));
    EXPECT_FALSE(isValidCivil({2023, 2, 29}));
    EXPECT_EQ(dayNumber({1582, 10, 15}) - dayNumber({1582, 10, 4}), 1);
    const auto sheet = monatsblatt(1582, 10);
    const std::vector<int> first = {1, 2, 3, 4, 15, 16, 17};
    EXPECT_EQ(sheet[0], first);  // 1 October 1582 was a Monday; ten days are missing
    const auto jan = monatsblatt(2000, 1);
    EXPECT_EQ(jan[0][5], 1);  // 1 January 2000, a Saturday
    // Hebrew and Islamic round trips over many years
    for (long j = 1800000; j < 2600000; j += 3001) {
        const HebrewDate h = hebrewFromDayNumber(j);
        EXPECT_EQ(dayNumberFromHebrew(h.year, h.month, h.day), j);
        const Date i = islamicFromDayNumber(j);
        if (i.year > 0) EXPECT_EQ(dayNumberFromIslamic(i.year, i.month, i.day), j);
    }
}

TEST(Calendar, BadDateAndDifference)
{
    const auto bad = kalenderZeilen({1582, 10, 10}, {}, true);
    ASSERT_EQ(bad.size(), 1u);
    EXPECT_EQ(bad[0], "Datum\tFehler!");
    auto d = differenz({2000, 1, 1}, {2000, 3, 1});
    EXPECT_EQ(d[0], "Differenz\t60 Tage");
    EXPECT_EQ(d[2], "\t0 Jahre, 2 Monate, 0 Tage");
    d = differenz({1582, 10, 4}, {1582, 10, 15});
    EXPECT_EQ(d[0], "Differenz\t1 Tage");
    d = differenz({2024, 3, 1}, {1990, 1, 31});
    EXPECT_EQ(d[0], "Differenz\t-12448 Tage");
    EXPECT_EQ(d[2], "\t34 Jahre, 1 Monate, 1 Tage");
}

TEST(Calendar, SovietYearHasTwelveMonthsOfThirtyDays)
{
    // the leap year 1932: 360 month days, each once, and the six days outside the months
    std::map<std::string, int> seen;
    int extra = 0;
    for (long j = dayNumber({1932, 1, 1}); j <= dayNumber({1932, 12, 31}); ++j) {
        const auto lines = kalenderZeilen(civilFromDayNumber(j), {}, true);
        std::string text;
        for (const std::string& l : lines)
            if (l.rfind("Sowjetischer Revolutionskalender\t", 0) == 0) text = l.substr(l.find('\t') + 1);
        ASSERT_FALSE(text.empty()) << "day " << j;
        text = text.substr(0, text.find(','));
        if (text.find("tag ") != std::string::npos || text.find("Tag der") != std::string::npos) ++extra;
        EXPECT_EQ(++seen[text], 1) << text << " twice";
    }
    EXPECT_EQ(extra, 6);
    EXPECT_EQ(seen.size(), 366u);
    EXPECT_EQ(seen.count("30. Februar 1932"), 1u);
    EXPECT_EQ(seen.count("31. Januar 1932"), 0u);
}

TEST(Calendar, SolilunarYearsBeginAtNewMoonNearTheEquinox)
{
    // Every year of the solilunar calendar begins on the day of a new moon (within 1.5 days of the
    // true new moon of the almanac, Meeus ch. 49) between 1 March and 25 April, 1999 to 2199.
    for (int y = 1999; y < 2200; y += 5) {
        long start = 0;
        for (long j = dayNumber({y, 3, 1}); j <= dayNumber({y, 4, 25}) && !start; ++j)
            for (const std::string& l : kalenderZeilen(civilFromDayNumber(j), {}, true))
                if (l.rfind("Solilunar-Kalender\t1. Tag des 1.Monats", 0) == 0) start = j;
        ASSERT_NE(start, 0) << "no new year in spring " << y;
        const double jd = start - 0.5;  // 0 h of the first day
        const double nm = astro::MoonPhaseTime(std::round(astro::lunationIndex(jd + 0.5)), 0);
        EXPECT_LT(std::fabs(jd + 0.5 - nm), 1.5) << "year " << y << ": starts " << jd << ", new moon " << nm;
    }
}

TEST(Calendar, GoddessMonthsFollowTheMoonAndYearsTheSeasons)
{
    // The new moons of 2024 (UT dates of the published phase tables): each begins a month.
    const int newMoons[][2] = {{11, 1}, {9, 2}, {10, 3}, {8, 4}, {8, 5}, {6, 6}, {5, 7},
                               {4, 8}, {3, 9}, {2, 10}, {1, 11}, {1, 12}, {30, 12}};
    for (const auto& nm : newMoons) {
        const GoddessDate g = goddessFromDayNumber(dayNumber({2024, nm[1], nm[0]}));
        EXPECT_EQ(g.day, 1) << nm[0] << "." << nm[1] << ".2024 is day " << g.day;
        const GoddessDate before = goddessFromDayNumber(dayNumber({2024, nm[1], nm[0]}) - 1);
        EXPECT_TRUE(before.day == 29 || before.day == 30) << "month before " << nm[0] << "." << nm[1];
    }
    // Years have 12 or 13 months and begin within 20 days of the anniversary of 16 February.
    std::set<int> lengths;
    for (long y = 1; y <= 150; ++y) {
        const long first = goddessDayNumber(y, 1, 1);
        const Date civil = civilFromDayNumber(first);
        const long anniversary = dayNumber({civil.year, 2, 16});
        EXPECT_LE(std::labs(first - anniversary), 20) << "year " << y << " begins " << civil.day << "." << civil.month;
        const GoddessDate g = goddessFromDayNumber(first);
        EXPECT_EQ(g.year, y);
        EXPECT_EQ(g.month, 1);
        lengths.insert(g.yearLength);
        EXPECT_EQ(goddessDayNumber(y + 1, 1, 1) - first, g.yearLength) << "year " << y;
    }
    for (int n : lengths) EXPECT_TRUE((n >= 354 && n <= 355) || (n >= 383 && n <= 385)) << n;
    EXPECT_EQ(goddessDayNumber(1, 1, 1), dayNumber({1999, 2, 16}));  // the epoch is day 1
    for (long j = 2451226; j < 2451226 + 4000; j += 7) {
        const GoddessDate g = goddessFromDayNumber(j);
        EXPECT_EQ(goddessDayNumber(g.year, g.month, g.day), j);
        EXPECT_LE(g.day, 30);
    }
}

TEST(Calendar, PiYearOfThePublishedExample)
{
    // The pi year has pi * 10^7 s; its year 2299 began on 20 September 2001 at 9:06:19 UT and its
    // new year's eve 31 h 41 min 59 s earlier (figures of the calendar's author).
    const double newYear = astro::JulianDay(2001, 9, 20) + (9 + 6 / 60.0 + 19 / 3600.0) / 24;
    const PiDate p = piFromJd(dayNumber({2001, 9, 20}));
    EXPECT_EQ(p.year, 2299);
    EXPECT_EQ(p.day, 1);
    EXPECT_NEAR(p.yearStart, newYear, 1.0 / 86400);
    const PiDate before = piFromJd(dayNumber({2001, 9, 19}));
    EXPECT_EQ(before.year, 2298);
    EXPECT_EQ(before.day, 363);
    const auto lines = kalenderZeilen({2001, 9, 19}, {}, true, 0.0);
    const std::string want = "\tPI-Silvester 19.09.2001 01:24 bis 20.09.2001 09:06";
    EXPECT_NE(std::find(lines.begin(), lines.end(), want), lines.end()) << want;
}

TEST(Calendar, SixtyWeekYearHasSixtyWeeksAndTheExtraDays)
{
    for (int year : {2023, 2024}) {
        const bool leap = isLeapCivil(year);
        std::set<std::string> seen;
        std::vector<std::string> extras;
        int weeks = 0;
        for (long j = dayNumber({year, 1, 1}); j <= dayNumber({year, 12, 31}); ++j) {
            const SixtyWeekDate s = sixtyWeekFromCivil(civilFromDayNumber(j));
            if (!s.extra.empty()) {
                extras.push_back(s.extra);
                continue;
            }
            EXPECT_EQ(s.weekday, (s.day - 1) % 6) << "every month begins on a Monday";
            if (s.weekday == 0) ++weeks;
            EXPECT_TRUE(seen.insert(std::to_string(s.month) + "/" + std::to_string(s.day)).second);
        }
        EXPECT_EQ(seen.size(), 360u);
        EXPECT_EQ(weeks, 60);
        std::vector<std::string> want = {"Neujahrstag", "Frühlingstag", "Sommertag", "Herbsttag", "Wintertag"};
        if (leap) want.insert(want.begin() + 3, "Schalttag");
        EXPECT_EQ(extras, want) << year;
    }
    // 1 January is New Year's day, so the 60-week months lag a day behind the civil ones
    const SixtyWeekDate d = sixtyWeekFromCivil({2026, 11, 23});
    EXPECT_EQ(d.month, 11);
    EXPECT_EQ(d.day, 23);
}
