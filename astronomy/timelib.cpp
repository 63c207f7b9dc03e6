// Time scales of the kernel: Julian day, modified Julian date, sidereal time, Delta T.
#include "astronomy/ephemeris.h"

#include <cmath>
#include <cstdio>

namespace astro {

namespace {
double frac(double x) { return x - std::floor(x); }
}  // namespace

double JulianDay(int year, int month, double day, double zone)
{
    double y = year + 4712, m = month + 1;
    if (month < 3) {
        y = year + 4711;
        m = month + 13;
    }
    double jd = -63.5;
    if (year * 10000.0 + month * 100.0 + day >= 15821015.0) {
        const double a = std::trunc((y + 88) / 100);
        jd += std::trunc(0.25 * a) + 38 - a;
    }
    // floor, not trunc: January and February of -4712 have y = -1
    jd += std::floor(365.25 * y) + std::trunc(30.6001 * m) + day;
    return jd - zone / 24.0;
}

CivilDate JulianDayToDate(double jd)
{
    const double z = std::floor(jd + 0.5);
    const double f = jd + 0.5 - z;
    double a = z;
    if (z >= 2299161) {
        const double alpha = std::trunc((z - 1867216.25) / 36524.25);
        a = z + 1 + alpha - std::trunc(alpha / 4);
    }
    const double b = a + 1524;
    const double c = std::trunc((b - 122.1) / 365.25);
    const double d = std::trunc(365.25 * c);
    const double e = std::trunc((b - d) / 30.6001);
    CivilDate r;
    r.day = b - d - std::trunc(30.6001 * e) + f;
    r.month = static_cast<int>(e < 14 ? e - 1 : e - 13);
    r.year = static_cast<int>(r.month <= 2 ? c - 4715 : c - 4716);
    return r;
}

std::string JulianDayText(double jd)
{
    const CivilDate d = JulianDayToDate(jd);
    const double f = frac(jd);
    // the Julian day starts at noon
    const double hour = f < 0.5 ? 24 * f + 12 : (f - 0.5) * 24;
    char buf[96];
    std::snprintf(buf, sizeof buf, "%d.%d. %d %.4g h", static_cast<int>(d.day), d.month, d.year, hour);
    return buf;
}

double MJD(int year, int month, int day, double hour)
{
    const double a0 = 10000.0 * year + 100.0 * month + day;
    if (month <= 2) {
        month += 12;
        --year;
    }
    long b;
    if (a0 <= 15821004.1)
        b = static_cast<long>(std::floor((year + 4716) / 4.0)) - 2 - 1179;
    else
        b = static_cast<long>(std::floor(year / 400.0)) - static_cast<long>(std::floor(year / 100.0)) +
            static_cast<long>(std::floor(year / 4.0));
    const double a = 365.0 * year - 679004.0;
    return a + b + std::trunc(30.6001 * (month + 1)) + day + hour / 24.0;
}

CalDatResult CalDat(double mjd)
{
    const long a = static_cast<long>(std::floor(mjd)) + 2400001;
    long c;
    if (a < 2299161) {
        c = a + 1524;
    } else {
        const long b = static_cast<long>(std::floor((a - 1867216.25) / 36524.25));
        c = a + b - b / 4 + 1525;
    }
    const long d = static_cast<long>(std::floor((c - 122.1) / 365.25));
    const long e = 365 * d + d / 4;
    const long f = static_cast<long>(std::floor((c - e) / 30.6001));
    CalDatResult r;
    r.day = static_cast<int>(c - e - static_cast<long>(std::floor(30.6001 * f)));
    r.month = static_cast<int>(f - 1 - 12 * (f / 14));
    r.year = static_cast<int>(d - 4715 - (7 + r.month) / 10);
    r.hour = 24.0 * (mjd - std::floor(mjd));
    return r;
}

double LMST(double mjd, double lambda)
{
    const double mjd0 = std::floor(mjd);
    const double ut = (mjd - mjd0) * 24;
    const double t0 = (mjd0 - 51544.5) / 36525;
    const double gmst = 6.697374558 + 1.0027379093 * ut +
                        (8640184.812866 + (0.093104 - 6.2e-6 * t0) * t0) * t0 / 3600;
    return 24 * frac((gmst - lambda / 15) / 24);
}

double SiderealTime(double jd0h, double hours, double longitude)
{
    const double d = jd0h - 2451545.0;
    double s = 6.6973745583 + 0.06570982442 * d + 1.938587419e-14 * d * d;
    s = std::fmod(s, 24.0);
    s += longitude / 15 + 1.00273790935 * hours;
    s = std::fmod(s, 24.0);
    if (s < 0) s += 24;
    return s;
}

double DeltaT(int year)
{
    if (year >= 1620 && year <= 1799) {
        const double t = year - 1600;
        return (196.58333 - 4.0675 * t + 0.0219167 * t * t) / 86400;
    }
    const double jd = JulianDay(year, 7, 1);
    if (year >= 1800 && year <= 1899) {
        const double th = (jd - 2415020) / 36525;
        static const double c[] = {-9e-06,    0.003844,  0.083563,  0.865736,  4.867575, 15.845535,
                                   31.332267, 38.291999, 28.316289, 11.636204, 2.043794};
        double s = 0;
        for (int i = 10; i >= 0; --i) s = s * th + c[i];
        return s;
    }
    if (year >= 1900 && year <= 1987) {
        const double th = (jd - 2415020) / 36525;
        static const double c[] = {-2e-05, 0.000297, 0.025184, -0.181133, 0.55304, -0.861938, 0.677066, -0.212591};
        double s = 0;
        for (int i = 7; i >= 0; --i) s = s * th + c[i];
        return s;
    }
    if (year >= 1988 && year <= 2020) return (year - 1933) / 86400.0;
    const double x = jd - 2382149;
    return (x * x / 41048480 - 15) / 86400;
}

}  // namespace astro
