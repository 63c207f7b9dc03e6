#pragma once
// The published periodic tables compiled into the kernel (sources named in data/astro/*.txt).
#include <cstddef>

namespace astro::tables {

struct VsopRow {
    const char* series;  // "L0".."L5", "B0", "B1", "R0".."R4"
    double a, b, c;      // a in units of 1e-8
};
struct MoonRow {
    char table;          // 'A' longitude and distance, 'B' latitude
    int d, m, mp, f;
    double sine, cosine;
};
struct MoonSeriesRow {
    char kind;           // 'A' mean argument, 'L' long-period, 'G' inclination, 'S' solar, 'N' latitude, 'P' planetary
    double v[8];         // the numbers of the data line in order
};
struct NutationRow {
    int d, m, mp, f, om;
    double a, b, c, dd;
};

extern const VsopRow vsopEarth[];
extern const std::size_t vsopEarthCount;
extern const MoonRow moonTerms[];
extern const std::size_t moonTermCount;
extern const MoonSeriesRow moonSeries[];
extern const std::size_t moonSeriesCount;
extern const NutationRow nutationTerms[];
extern const std::size_t nutationTermCount;

}  // namespace astro::tables
