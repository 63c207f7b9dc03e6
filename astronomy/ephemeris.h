#pragma once
// Ephemeris kernel: time, coordinates, observer planets and the almanac of Sun and Moon.
// Pure computation on plain values; angles in degrees, hours in decimal hours unless named.
#include <string>
#include <vector>

namespace astro {

// ---------------------------------------------------------------- time (TIMLIB)

// Julian day of a civil date (Julian calendar before 15 Oct 1582), minus zone / 24.
double JulianDay(int year, int month, double day, double zone = 0.0);
struct CivilDate {
    int year = 0;
    int month = 0;
    double day = 0;  // with the fraction of the day
};
CivilDate JulianDayToDate(double jd);
// "d.m. y" with the hour behind, e.g. "13.10. 1992 0 h".
std::string JulianDayText(double jd);
double MJD(int year, int month, int day, double hour);
struct CalDatResult {
    int year = 0;
    int month = 0;
    int day = 0;
    double hour = 0;
};
CalDatResult CalDat(double mjd);
// Local mean sidereal time in hours; longitude east-negative in degrees.
double LMST(double mjd, double lambdaEastNegative);
// Sidereal time in hours from the JD of 0 h, the hours of the day and an east-positive longitude.
double SiderealTime(double jd0h, double hours, double longitude);
// Dynamical minus universal time, in days.
double DeltaT(int year);

// ---------------------------------------------------------------- coordinates (MATLIB, SPHLIB, PNULIB)

using Vec3 = double[3];
using Mat3 = double[3][3];

double ASN(double x);   // arcsine in degrees
double ACS(double x);   // arccosine in degrees
double ATN2(double y, double x);  // in degrees, -180..180; ATN2(0, 0) = 0
void Cart(double r, double theta, double phi, double& x, double& y, double& z);
void Polar(double x, double y, double z, double& r, double& theta, double& phi);
double DDD(int d, int m, double s);
void DMS(double dd, int& d, int& m, double& s);
struct QuadResult {
    double xe = 0, ye = 0;   // extreme
    double root1 = 0, root2 = 0;
    int roots = 0;           // roots within -1..1
};
QuadResult Quad(double yMinus, double y0, double yPlus);
// Chebyshev sum of the coefficients f[0..m] at t within ta..tb.
double TEval(const std::vector<double>& f, double ta, double tb, double t);
double ObliquityLib(double T);  // mean obliquity of the series library
void EclEqu(double T, double& x, double& y, double& z);
void EquEcl(double T, double& x, double& y, double& z);
void PMatEcl(double T1, double T2, Mat3 a);
void PMatEqu(double T1, double T2, Mat3 a);
void PrecArt(const Mat3 a, double& x, double& y, double& z);
void NutEqu(double T, double& x, double& y, double& z);
void GaussVec(double node, double incl, double perihelionArg, Mat3 pqr);

// ---------------------------------------------------------------- orbits (KEPLIB)

// Eccentric anomaly in radians for a mean anomaly in degrees.
double EccAnom(double meanAnomalyDeg, double ecc);
// Position (AU) and velocity (AU/day) in the orbital plane.
void Ellip(double meanAnomalyDeg, double a, double ecc, double& x, double& y, double& vx, double& vy);
// Sector-to-triangle ratio of Gauss for two radii and the modified time tau = k (t2 - t1).
double FindEta(const double ra[3], const double rb[3], double tau);
struct Elements {
    double a = 0, ecc = 0, incl = 0, node = 0, perihelionArg = 0, meanAnomaly = 0;  // deg
    double q = 0;        // perihelion distance
    double tPeri = 0;    // time of perihelion, in the unit of t
};
// Elements from a heliocentric ecliptic position (AU) and velocity (AU/day) at time t (MJD).
Elements ElementFromVectors(double t, const double r[3], const double v[3]);
// Elements from two positions at times ta and tb (MJD).
Elements ElementFromTwoPositions(double ta, const double ra[3], double tb, const double rb[3]);

// Planets of the series library (P15LIB, P69LIB): heliocentric ecliptic longitude and latitude
// (degrees) and radius (AU), ecliptic and equinox of date, T in Julian centuries from J2000.
// Keys "Merkur" .. "Pluto" without "Erde"; "Sonne" gives the geocentric Sun (SUNLIB); false for an
// unknown key.
bool SeriesPlanet(const std::string& key, double T, double& l, double& b, double& r);

// Moon of the series library: geocentric ecliptic longitude and latitude (degrees, mean equinox of
// date) and distance in Earth radii (times kEarthRadiusKm for km), T in Julian centuries from J2000
// (TT). About 1" in the coordinates near the present; false only for a T that is not finite.
bool SeriesMoon(double T, double& l, double& b, double& rEarthRadii);
inline constexpr double kEarthRadiusKm = 6378.14;

// ---------------------------------------------------------------- observer planets (xastro)

struct PlanetRecord {
    double helioLongitude = 0;
    double radiusVector = 0;
    double distance = 0;
    double geoLongitude = 0;
    double geoLatitude = 0;
    double raHours = 0;
    double raMinutes = 0;
    double decDegrees = 0;
    double decMinutes = 0;
    double diameter = 0;     // arc seconds
    double magnitude = 0;
    double helioLatitude = 0;
    // not in the record of the tables, but needed for rise and set
    double ra = 0;           // degrees
    double dec = 0;          // degrees
};
// Names of the record's fields in their order, as printed by the headless command.
const std::vector<std::string>& planetRecordNames();
std::vector<double> planetRecordValues(const PlanetRecord& p);

bool isPlanetKey(const std::string& key);
PlanetRecord PlanetPosition(const std::string& key, double jd, double latitude = 0, double longitude = 0,
                            double zone = 0);
PlanetRecord PlanetSimple(const std::string& key, double jd);
double PlanetMagnitude(const std::string& key, double r, double delta, double R, double T, double ra,
                       double dec);
struct RiseSet {
    double rise = 0;  // zone hours, or -1 always above / -2 never above the horizon
    double set = 0;
};
RiseSet PlanetRiseSet(double jd, double raDeg, double decDeg, double latitude, double longitude,
                      double zone);
// Periodic correction of the outer planets: longitude in degrees, radius in AU.
void PlanetPerturbation(const std::string& key, double jd, double& dLongitude, double& dRadius);

// ---------------------------------------------------------------- almanac (vsop, moon)

struct SunRecord {
    double longitude = 0;    // FK5, with aberration, without nutation
    double latitude = 0;
    double radius = 0;       // AU
    double apparentLongitude = 0;  // with nutation
    double ra = 0;           // apparent, degrees
    double dec = 0;
};
// Heliocentric VSOP87 Earth sums in radians and AU (for the tests against the published tables).
void VsopEarth(double jde, double& L, double& B, double& R);
SunRecord SunPosition(double jde);

struct MoonRecord {
    double longitude = 0;   // geometric, mean equinox of date
    double latitude = 0;
    double distance = 0;    // km
    double apparentLongitude = 0;
    double ra = 0;
    double dec = 0;
    double parallax = 0;    // degrees
};
MoonRecord MoonPosition(double jde);
struct MoonShort {
    double ra = 0, dec = 0;  // degrees
    double phaseAngle = 0;   // degrees
    double illuminated = 0;  // 0..1
};
MoonShort MoonPositionShort(double jde);

struct Nutation {
    double dpsi = 0;  // degrees
    double deps = 0;
    double eps0 = 0;  // mean obliquity
    double eps = 0;   // true obliquity
};
Nutation NutationAlmanac(double jde);
Nutation NutationShort(double jde);
double ApparentSiderealTime(double jd);  // degrees 0..360

// Lunation k (integer for new moon), kind 0 new, 1 first quarter, 2 full, 3 last quarter. JDE.
double MoonPhaseTime(double k, int kind);
// k integer: perigee; isApogee adds 0.5. JDE.
double PerigeeApogeeTime(double k, bool isApogee);
double lunationIndex(double jd);  // fractional k near jd

struct PhaseEvent {
    int kind = 0;
    double jde = 0;
};
std::vector<PhaseEvent> moonPhasesOfYear(int year);
const char* phaseName(int kind);  // "Neumond", "erstes Viertel", "Vollmond", "letztes Viertel"

enum class EclipseKind { None, Total, Annular, Hybrid, NonCentral, Partial, Penumbral };
struct Eclipse {
    bool solar = true;
    EclipseKind kind = EclipseKind::None;
    double jde = 0;     // greatest eclipse
    double gamma = 0;
    double u = 0;
    double magnitude = 0;
    bool descendingNode = false;
    double k = 0;
};
const char* eclipseText(EclipseKind k);
// Next eclipse at or after the lunation k (k with .0 new moon, .5 full moon, stepped per half).
Eclipse NextEclipse(double k, bool solar);
std::vector<Eclipse> eclipsesOfYear(int year);

// Moon age in days since the last new moon and the next phase.
struct MoonAge {
    double age = 0;
    int nextKind = 0;
    double nextJde = 0;
    double illuminated = 0;
};
MoonAge moonAge(double jd);

// Rise, transit and set of the almanac group, from the positions of the previous, this and the
// next day at 0 h dynamical time.
enum class Horizon { Planet, Sun, Moon, Civil, Nautical, Astronomical, Custom };
double horizonAltitude(Horizon h, double moonParallaxDeg = 0, double custom = 0);
struct RiseTransitSet {
    double rise = 0, transit = 0, set = 0;  // fractions of the day, UT
    int code = 0;                           // 0 rises and sets, -1 always above, -2 always below
};
// theta0: apparent sidereal time at 0 h UT in degrees; longitude east-positive; deltaT in seconds.
RiseTransitSet riseTransitSet(double theta0, const double ra[3], const double dec[3], double latitude,
                              double longitude, double h0, double deltaT);

// Central meridians of Jupiter (systems I and II), low-accuracy form, in degrees.
void JupiterCentralMeridian(double jd, double& omega1, double& omega2);

struct CentralPoint {
    bool onEarth = false;
    double latitude = 0, longitude = 0;  // degrees, longitude east-positive
};

// Solar eclipse as seen by an observer near the new moon jd (UT): code 0 not to be seen,
// 1 partial, 2 annular, 3 total; contacts 1..4 where they exist; the lines of the tool.
struct LocalEclipse {
    int code = 0;
    double magnitude = 0;    // fraction of the Sun's diameter covered at maximum
    double obscuration = 0;  // fraction of the Sun's disc covered at maximum
    double maximum = 0;      // JD (UT)
    double contact[4] = {0, 0, 0, 0};
    bool hasContact[4] = {false, false, false, false};
    std::vector<std::string> lines;
};
LocalEclipse solarEclipseAtObserver(double jdNewMoon, double latitude, double longitude);

// Sun and Moon of the series library fitted once for a chosen date as Chebyshev polynomials in T
// (centuries, TT) over a span of days; the eclipse routines then evaluate only the fits. The fits
// hold for that date alone: a new date takes a new object.
class EclipseFits {
public:
    explicit EclipseFits(double jd, double halfSpanDays = 0.5);  // jd in UT
    double ta() const { return ta_; }  // span in T
    double tb() const { return tb_; }
    double deltaT() const { return deltaT_; }  // TT - UT in days
    double toT(double jd) const { return (jd + deltaT_ - 2451545.0) / 36525; }
    double toJd(double T) const { return T * 36525 + 2451545.0 - deltaT_; }
    bool covers(double jd) const;
    // geocentric equatorial vectors of date in Earth radii (the Sun with aberration)
    void positions(double T, double sun[3], double moon[3]) const;
    // tangents of the half angles of the penumbral (f1) and umbral (f2) cones
    double tanF1(double T) const;
    double tanF2(double T) const;

    // The observer in the shadow's frame: distance m from the axis, and the radii of the penumbra
    // and the umbra (negative beyond the umbra's tip) at his distance behind the Moon, all in Earth
    // radii; sunAltitude in degrees.
    struct Shadow {
        double m = 0, penumbra = 0, umbra = 0, sunAltitude = 0;
    };
    Shadow atObserver(double T, double latitude, double longitude) const;
    // Where the shadow's axis meets the Earth.
    CentralPoint centralPoint(double T) const;

private:
    double ta_ = 0, tb_ = 0, deltaT_ = 0;
    std::vector<double> sun_[3], moon_[3], f1_, f2_;
};
// The same for the span of fits already made for the date (9 hours either side will do).
LocalEclipse solarEclipseAtObserver(const EclipseFits& fits, double latitude, double longitude);

// Central line of a solar eclipse: where the axis of the Moon's shadow meets the Earth at jd (UT).
CentralPoint centralLinePoint(double jd);
// The line over the eclipse's span around a new moon, in steps of `minutes`: "hh:mm UT\tBreite\tLänge".
std::vector<std::string> centralLine(double jdNewMoon, double minutes = 10);

// Universal time of a dynamical time.
double jdeToJd(double jde);
// Text "dd.mm.yyyy hh:mm" of a JD shifted by zone hours, with the Julian calendar before 1582.
std::string dateTimeText(double jd, double zone = 0);

}  // namespace astro
