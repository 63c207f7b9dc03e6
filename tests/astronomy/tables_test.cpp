// The compiled periodic tables must agree row by row with the published tables kept as text
// under data/astro/ (VSOP87D Earth, ELP terms of Meeus ch. 47, IAU 1980 nutation of Meeus ch. 22).
#include "astronomy/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

using namespace astro::tables;

namespace {
std::vector<std::vector<std::string>> rows(const std::string& name)
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/astro/" + name);
    std::vector<std::vector<std::string>> out;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream s(line);
        std::vector<std::string> f;
        std::string w;
        while (s >> w) f.push_back(w);
        out.push_back(f);
    }
    return out;
}
}  // namespace

TEST(Tables, VsopEarthMatchesDataFile)
{
    const auto r = rows("vsop87d_earth.txt");
    ASSERT_EQ(r.size(), vsopEarthCount);
    for (std::size_t i = 0; i < r.size(); ++i) {
        EXPECT_EQ(r[i][0], vsopEarth[i].series) << "row " << i;
        EXPECT_NEAR(std::stod(r[i][1]), vsopEarth[i].a, 1e-6) << "row " << i;
        EXPECT_NEAR(std::stod(r[i][2]), vsopEarth[i].b, 1e-11) << "row " << i;
        EXPECT_NEAR(std::stod(r[i][3]), vsopEarth[i].c, 1e-9) << "row " << i;
    }
    // the leading terms of the published series
    EXPECT_NEAR(vsopEarth[0].a, 175347046, 1);
    EXPECT_NEAR(vsopEarth[1].c, 6283.0758499914, 1e-9);
}

TEST(Tables, MoonAndNutationMatchDataFiles)
{
    const auto m = rows("moon_elp_meeus47.txt");
    ASSERT_EQ(m.size(), moonTermCount);
    ASSERT_EQ(moonTermCount, 120u);  // 60 rows for longitude and distance, 60 for latitude
    for (std::size_t i = 0; i < m.size(); ++i) {
        EXPECT_EQ(m[i][0][0], moonTerms[i].table);
        EXPECT_EQ(std::stoi(m[i][1]), moonTerms[i].d);
        EXPECT_EQ(std::stoi(m[i][2]), moonTerms[i].m);
        EXPECT_EQ(std::stoi(m[i][3]), moonTerms[i].mp);
        EXPECT_EQ(std::stoi(m[i][4]), moonTerms[i].f);
        EXPECT_EQ(std::stod(m[i][5]), moonTerms[i].sine) << "row " << i;
        if (m[i].size() > 6) EXPECT_EQ(std::stod(m[i][6]), moonTerms[i].cosine) << "row " << i;
    }
    EXPECT_EQ(moonTerms[0].sine, 6288774);
    EXPECT_EQ(moonTerms[0].cosine, -20905355);
    EXPECT_EQ(moonTerms[60].sine, 5128122);
    const auto n = rows("nutation_meeus22.txt");
    ASSERT_EQ(n.size(), nutationTermCount);
    ASSERT_EQ(nutationTermCount, 31u);
    for (std::size_t i = 0; i < n.size(); ++i) {
        EXPECT_EQ(std::stod(n[i][5]), nutationTerms[i].a) << "row " << i;
        EXPECT_EQ(std::stod(n[i][7]), nutationTerms[i].c) << "row " << i;
    }
    EXPECT_EQ(nutationTerms[0].a, -171996);
}

TEST(Tables, PlanetSeriesDataFileIsComplete)
{
    // the data file holds 31 series with 506 rows and 39 mean anomalies
    const auto r = rows("planets_series_mp.txt");
    int series = 0, terms = 0, anomalies = 0;
    for (const auto& f : r) {
        if (f[0] == "S") ++series;
        else if (f[0] == "A") ++anomalies;
        else {
            ++terms;
            EXPECT_EQ(f.size(), 9u);
        }
    }
    EXPECT_EQ(series, 31);
    EXPECT_EQ(terms, 506);
    EXPECT_EQ(anomalies, 39);
}

TEST(Tables, MoonSeriesMatchesDataFile)
{
    // every line of the lunar series, in order: kind and numbers (the mean arguments without
    // their names L0, l, ls, F, D)
    const auto r = rows("moon_series_mp.txt");
    ASSERT_EQ(r.size(), moonSeriesCount);
    const char* names[] = {"L0", "l", "ls", "F", "D"};
    int counts[128] = {};
    for (std::size_t i = 0; i < r.size(); ++i) {
        const auto& f = r[i];
        ASSERT_EQ(f[0].size(), 1u);
        EXPECT_EQ(f[0][0], moonSeries[i].kind) << "row " << i;
        std::size_t first = 1;
        if (f[0] == "A") {
            ASSERT_LT(counts['A'], 5);
            EXPECT_EQ(f[1], names[counts['A']]);
            first = 2;
        }
        ++counts[static_cast<unsigned char>(f[0][0])];
        for (std::size_t k = first; k < f.size(); ++k)
            EXPECT_EQ(std::stod(f[k]), moonSeries[i].v[k - first]) << "row " << i << " column " << k;
    }
    EXPECT_EQ(counts['A'], 5);
    EXPECT_EQ(counts['L'], 7);
    EXPECT_EQ(counts['G'], 3);
    EXPECT_EQ(counts['S'], 104);
    EXPECT_EQ(counts['N'], 10);
    EXPECT_EQ(counts['P'], 11);
}
