// The headless commands: exact output formats and usage errors.
#include "astronomy/commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

struct Result {
    int code;
    std::string out, err;
};

Result run(const std::string& name, const quorix::Args& args)
{
    for (const auto& c : astronomyCommands())
        if (c.name == name) {
            std::ostringstream out, err;
            const int code = c.run(args, out, err);
            return {code, out.str(), err.str()};
        }
    ADD_FAILURE() << "no command " << name;
    return {-1, "", ""};
}

bool hasLine(const std::string& text, const std::string& line)
{
    return ("\n" + text).find("\n" + line + "\n") != std::string::npos;
}

}  // namespace

TEST(Commands, JulianDayAndDate)
{
    EXPECT_EQ(run("jd", {"2000", "1", "1.5"}).out, "2451545.000000\n");
    EXPECT_EQ(run("jd", {"2000", "1", "1.5", "--zone", "2"}).out, "2451544.916667\n");
    EXPECT_EQ(run("date", {"2436116.31"}).out, "1957 10 4.810000\n");  // Meeus 7.c
    EXPECT_EQ(run("date", {"2299160.5"}).out, "1582 10 15.000000\n");
    const Result bad = run("jd", {"2000", "13", "1"});
    EXPECT_EQ(bad.code, 2);
    EXPECT_FALSE(bad.err.empty());
    EXPECT_EQ(run("date", {"abc"}).code, 2);
}

TEST(Commands, SunMoonPlanet)
{
    const Result s = run("sun", {"2448908.5"});  // Meeus 25.b
    EXPECT_EQ(s.code, 0);
    EXPECT_TRUE(hasLine(s.out, "Radiusvektor\t0.99760775")) << s.out;
    EXPECT_NE(s.out.find("scheinbare Länge\t199.90606"), std::string::npos) << s.out;
    const Result m = run("moon", {"2448724.5"});  // Meeus 47.a
    EXPECT_NE(m.out.find("Länge\t133.162"), std::string::npos) << m.out;
    EXPECT_NE(m.out.find("Entfernung\t368409."), std::string::npos) << m.out;
    const Result p = run("planet", {"Venus", "2448976.5"});
    EXPECT_EQ(p.code, 0);
    EXPECT_NE(p.out.find("heliozentrische Länge\t"), std::string::npos);
    EXPECT_NE(p.out.find("visuelle Helligkeit\t"), std::string::npos);
    EXPECT_NE(p.out.find("Aufgangszeit\t"), std::string::npos);
    EXPECT_EQ(run("planet", {"Vulkan", "2448976.5"}).code, 2);
}

TEST(Commands, PhasesEclipsesEaster)
{
    // Meeus 49.a: new moon 1977 Feb 18, 3h37m TD
    EXPECT_TRUE(hasLine(run("moonphases", {"1977"}).out, "Neumond\t18.02.1977 03:37 UT"));
    const Result e = run("eclipses", {"2017"});
    EXPECT_NE(e.out.find("Sonnenfinsternis\t21.08.2017 18:"), std::string::npos) << e.out;
    EXPECT_NE(e.out.find("UT\ttotal\n"), std::string::npos) << e.out;
    const Result low = run("eclipses", {"500"});
    EXPECT_NE(low.err.find("1000"), std::string::npos);
    EXPECT_EQ(run("easter", {"2025"}).out, "20.4.\n");
    EXPECT_EQ(run("easter", {"1818"}).out, "22.3.\n");
    EXPECT_EQ(run("easter", {"x"}).code, 2);
}

TEST(Commands, Calendar)
{
    const Result c = run("calendar", {"1.1.2000"});
    EXPECT_EQ(c.code, 0);
    EXPECT_TRUE(hasLine(c.out, "Julianisches Datum\t2451544.5")) << c.out;
    EXPECT_TRUE(hasLine(c.out, "Jüdischer Kalender\t23. Tewet 5760")) << c.out;
    EXPECT_TRUE(hasLine(c.out, "Maya-Kalender\t0 Pictun 12 Baktun 19 Katun 6 Tun 15 Uinal 2 Kin")) << c.out;
    const Result kurz = run("calendar", {"1.1.2000", "--kurz"});
    EXPECT_FALSE(hasLine(kurz.out, "Maya-Kalender\t0 Pictun 12 Baktun 19 Katun 6 Tun 15 Uinal 2 Kin"));
    EXPECT_EQ(run("calendar", {"10.10.1582"}).code, 2);
    EXPECT_EQ(run("calendar", {"2000-01-01"}).code, 2);
}

TEST(Commands, PlutoByTheSimpleRoutine)
{
    // Meeus, Astronomical Algorithms, example 37.a (1992 Oct 13.0 TD): Delta = 30.528 AU,
    // alpha = 15h 31m 43.8s, delta = -4 deg 27' 29"; mean elements hold to a few arc minutes.
    const Result r = run("planet", {"Pluto", "2448908.5"});
    ASSERT_EQ(r.code, 0) << r.err;
    auto value = [&](const std::string& name) {
        const auto p = r.out.find(name + "\t");
        EXPECT_NE(p, std::string::npos) << name;
        return p == std::string::npos ? 0.0 : std::stod(r.out.substr(p + name.size() + 1));
    };
    EXPECT_NEAR(value("Entfernung"), 30.528, 0.01);
    EXPECT_NEAR(value("Rektaszension h") * 60 + value("Rektaszension min"), 15 * 60 + 31 + 43.8 / 60, 0.5);
    EXPECT_NEAR(value("Deklination Grad") * 60 + value("Deklination min"), -(4 * 60 + 27 + 29 / 60.0), 3);
    EXPECT_NEAR(value("Durchmesser"), 0.107, 0.005);  // Pluto's 2377 km at 30.5 AU
    EXPECT_EQ(run("planet", {"Vulkan", "2448908.5"}).code, 2);
}

TEST(Commands, LocalEclipseOfTheNearestNewMoon)
{
    // 11 August 1999 in southern Bavaria lay on the central line (totality about 2 min 20 s).
    const Result total = run("localeclipse", {"10.8.1999", "--lat", "48.149", "--lon", "12.5"});
    EXPECT_EQ(total.code, 0) << total.err;
    EXPECT_EQ(total.out.rfind("Totale Finsternis mit M=", 0), 0u) << total.out;
    EXPECT_TRUE(hasLine(total.out, "Maximum um 10:39:47 UT")) << total.out;
    const Result none = run("localeclipse", {"1.1.2020"});  // no eclipse at that new moon
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.out, "Am Beobachtungsort nicht zu sehen\n");
    EXPECT_EQ(run("localeclipse", {"31.2.2020"}).code, 2);
}
