// The tables themselves: generated from the text files under data/astro/.
#include "astronomy/tables.h"

namespace astro::tables {

const VsopRow vsopEarth[] = {
#include "astronomy/tables/vsop87d_earth.inc"
};
const std::size_t vsopEarthCount = sizeof vsopEarth / sizeof vsopEarth[0];

const MoonRow moonTerms[] = {
#include "astronomy/tables/moon_meeus47.inc"
};
const std::size_t moonTermCount = sizeof moonTerms / sizeof moonTerms[0];

const MoonSeriesRow moonSeries[] = {
#include "astronomy/tables/moon_series_mp.inc"
};
const std::size_t moonSeriesCount = sizeof moonSeries / sizeof moonSeries[0];

const NutationRow nutationTerms[] = {
#include "astronomy/tables/nutation_meeus22.inc"
};
const std::size_t nutationTermCount = sizeof nutationTerms / sizeof nutationTerms[0];

}  // namespace astro::tables
