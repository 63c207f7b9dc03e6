#include "astronomy/commands.h"

#include "astronomy/ephemeris.h"
#include "astronomy/kalenderspez.h"
#include "astronomy/resources.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

using quorix::Args;

namespace {

bool toNumber(const std::string& s, double& v) { return quorix::argNumber(s, v); }
bool toInt(const std::string& s, int& v) { return quorix::argInt(s, v, -1000000, 1000000); }

std::string num(double v, int decimals = 6)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*f", decimals, v);
    return buf;
}

int usage(std::ostream& err, const std::string& text)
{
    err << text << "\n";
    return 2;
}

int cmdJd(Args a, std::ostream& out, std::ostream& err)
{
    std::string zs;
    double zone = 0;
    if (quorix::takeOption(a, "--zone", zs) && !toNumber(zs, zone)) return usage(err, "Ungültige Zeitzone: " + zs);
    int y, m;
    double d;
    if (a.size() != 3 || !toInt(a[0], y) || !toInt(a[1], m) || !toNumber(a[2], d) || m < 1 || m > 12 || d < 1 ||
        d >= 32)
        return usage(err, "Aufruf: quorix jd JAHR MONAT TAG [--zone H]");
    out << num(astro::JulianDay(y, m, d, zone)) << "\n";
    return 0;
}

int cmdDate(Args a, std::ostream& out, std::ostream& err)
{
    double jd;
    if (a.size() != 1 || !toNumber(a[0], jd) || jd < 0) return usage(err, "Aufruf: quorix date JD");
    const astro::CivilDate d = astro::JulianDayToDate(jd);
    out << d.year << " " << d.month << " " << num(d.day) << "\n";
    return 0;
}

int cmdSun(Args a, std::ostream& out, std::ostream& err)
{
    double jd;
    if (a.size() != 1 || !toNumber(a[0], jd)) return usage(err, "Aufruf: quorix sun JD");
    const astro::SunRecord s = astro::SunPosition(jd);
    out << "Länge\t" << num(s.longitude) << "\n"
        << "Breite\t" << num(s.latitude) << "\n"
        << "Radiusvektor\t" << num(s.radius, 8) << "\n"
        << "scheinbare Länge\t" << num(s.apparentLongitude) << "\n"
        << "Rektaszension\t" << num(s.ra) << "\n"
        << "Deklination\t" << num(s.dec) << "\n";
    return 0;
}

int cmdMoon(Args a, std::ostream& out, std::ostream& err)
{
    double jd;
    if (a.size() != 1 || !toNumber(a[0], jd)) return usage(err, "Aufruf: quorix moon JD");
    const astro::MoonRecord m = astro::MoonPosition(jd);
    const astro::MoonShort s = astro::MoonPositionShort(jd);
    out << "Länge\t" << num(m.longitude) << "\n"
        << "Breite\t" << num(m.latitude) << "\n"
        << "Entfernung\t" << num(m.distance, 1) << "\n"
        << "scheinbare Länge\t" << num(m.apparentLongitude) << "\n"
        << "Rektaszension\t" << num(m.ra) << "\n"
        << "Deklination\t" << num(m.dec) << "\n"
        << "Phasenwinkel\t" << num(s.phaseAngle, 2) << "\n"
        << "beleuchteter Teil\t" << num(s.illuminated, 4) << "\n";
    return 0;
}

int cmdPlanet(Args a, std::ostream& out, std::ostream& err)
{
    double lat = 50.8088888888889, lon = 12.9033333333333, zone = 1;
    std::string v;
    if (quorix::takeOption(a, "--lat", v) && !toNumber(v, lat)) return usage(err, "Ungültige Breite: " + v);
    if (quorix::takeOption(a, "--lon", v) && !toNumber(v, lon)) return usage(err, "Ungültige Länge: " + v);
    if (quorix::takeOption(a, "--zone", v) && !toNumber(v, zone)) return usage(err, "Ungültige Zeitzone: " + v);
    double jd;
    if (a.size() != 2 || !toNumber(a[1], jd))
        return usage(err, "Aufruf: quorix planet NAME JD [--lat L --lon L --zone H]");
    if (!astro::isPlanetKey(a[0]))
        return usage(err, "Unbekannter Planet: " + a[0] +
                              " (Merkur, Venus, Erde, Mars, Jupiter, Saturn, Uranus, Neptun, Pluto)");
    // Pluto has only the simple routine, without perturbations
    const astro::PlanetRecord p =
        a[0] == "Pluto" ? astro::PlanetSimple(a[0], jd) : astro::PlanetPosition(a[0], jd, lat, lon, zone);
    const auto& names = astro::planetRecordNames();
    const auto values = astro::planetRecordValues(p);
    for (std::size_t i = 0; i < names.size(); ++i) out << names[i] << "\t" << num(values[i]) << "\n";
    const astro::RiseSet rs = astro::PlanetRiseSet(jd, p.ra, p.dec, lat, lon, zone);
    out << "Aufgangszeit\t" << num(rs.rise, 4) << "\n"
        << "Untergangszeit\t" << num(rs.set, 4) << "\n";
    return 0;
}

bool yearArg(const Args& a, int& y) { return a.size() == 1 && toInt(a[0], y) && y >= -4000 && y <= 9999; }

int cmdMoonphases(Args a, std::ostream& out, std::ostream& err)
{
    int y;
    if (!yearArg(a, y)) return usage(err, "Aufruf: quorix moonphases JAHR");
    for (const astro::PhaseEvent& e : astro::moonPhasesOfYear(y))
        out << astro::phaseName(e.kind) << "\t" << astro::dateTimeText(astro::jdeToJd(e.jde)) << " UT\n";
    return 0;
}

int cmdEclipses(Args a, std::ostream& out, std::ostream& err)
{
    int y;
    if (!yearArg(a, y)) return usage(err, "Aufruf: quorix eclipses JAHR");
    // the listing covers 1000 to 3000, as the tool's year fields
    if (y < 1000 || y > 3000) {
        const int c = y < 1000 ? 1000 : 3000;
        err << "Jahr auf " << c << " gesetzt (Bereich 1000 bis 3000)\n";
        y = c;
    }
    const auto list = astro::eclipsesOfYear(y);
    for (const astro::Eclipse& e : list)
        out << (e.solar ? "Sonnenfinsternis" : "Mondfinsternis") << "\t"
            << astro::dateTimeText(astro::jdeToJd(e.jde)) << " UT\t" << astro::eclipseText(e.kind) << "\n";
    return list.empty() ? 1 : 0;
}

bool parseDate(const std::string& s, astro::kal::Date& d);

// The solar eclipse of the new moon nearest to a date, as seen from a place.
int cmdLocalEclipse(Args a, std::ostream& out, std::ostream& err)
{
    double lat = 50.8088888888889, lon = 12.9033333333333;
    std::string v;
    if (quorix::takeOption(a, "--lat", v) && !toNumber(v, lat)) return usage(err, "Ungültige Breite: " + v);
    if (quorix::takeOption(a, "--lon", v) && !toNumber(v, lon)) return usage(err, "Ungültige Länge: " + v);
    astro::kal::Date d;
    if (a.size() != 1 || !parseDate(a[0], d))
        return usage(err, "Aufruf: quorix localeclipse TAG.MONAT.JAHR [--lat L --lon L]");
    const double jd = astro::JulianDay(d.year, d.month, d.day);
    const double nm = astro::jdeToJd(astro::MoonPhaseTime(std::round(astro::lunationIndex(jd)), 0));
    const astro::LocalEclipse e = astro::solarEclipseAtObserver(nm, lat, lon);
    for (const std::string& line : e.lines) out << line << "\n";
    return e.code == 0 ? 1 : 0;
}

bool parseDate(const std::string& s, astro::kal::Date& d)
{
    int n = 0;
    if (std::sscanf(s.c_str(), "%d.%d.%d%n", &d.day, &d.month, &d.year, &n) != 3 || n != static_cast<int>(s.size()))
        return false;
    return astro::kal::isValidCivil(d);
}

int cmdCalendar(Args a, std::ostream& out, std::ostream& err)
{
    const bool kurz = quorix::takeFlag(a, "--kurz");
    astro::kal::Date d;
    if (a.size() != 1) return usage(err, "Aufruf: quorix calendar TAG.MONAT.JAHR [--kurz]");
    if (!parseDate(a[0], d)) return usage(err, "Ungültiges Datum: " + a[0] + " (TAG.MONAT.JAHR, -4712 bis 9999)");
    for (const std::string& l : astro::kal::kalenderZeilen(d, astro::loadKalenderResources(), !kurz)) out << l << "\n";
    return 0;
}

int cmdEaster(Args a, std::ostream& out, std::ostream& err)
{
    int y;
    if (!yearArg(a, y) || y < 1) return usage(err, "Aufruf: quorix easter JAHR (1 bis 9999)");
    out << astro::kal::easterText(y) << "\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> astronomyCommands()
{
    return {
        {"jd", "jd JAHR MONAT TAG [--zone H]: Julianisches Datum", cmdJd},
        {"date", "date JD: Kalenderdatum zum Julianischen Datum", cmdDate},
        {"sun", "sun JD: Ort der Sonne (VSOP87)", cmdSun},
        {"moon", "moon JD: Ort des Mondes", cmdMoon},
        {"planet", "planet NAME JD [--lat L --lon L --zone H]: Planetendaten", cmdPlanet},
        {"moonphases", "moonphases JAHR: alle Mondphasen eines Jahres", cmdMoonphases},
        {"eclipses", "eclipses JAHR: Sonnen- und Mondfinsternisse eines Jahres", cmdEclipses},
        {"localeclipse", "localeclipse TAG.MONAT.JAHR [--lat L --lon L]: Sonnenfinsternis am Beobachtungsort",
         cmdLocalEclipse},
        {"calendar", "calendar TAG.MONAT.JAHR [--kurz]: das Datum in allen Kalendern", cmdCalendar},
        {"easter", "easter JAHR: Ostersonntag", cmdEaster},
    };
}
