// Calendar lines against known conversions; the cases live in calendar_cases.txt and
// easter_cases.txt. The authored resources are read from data/texte/ directly.
#include "astronomy/kalenderspez.h"
#include "astronomy/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
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
