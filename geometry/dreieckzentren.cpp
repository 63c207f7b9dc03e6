// Centres given by trilinears, and the families built on them.
#include "geometry/dreieckintern.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <complex>

namespace geo {

namespace {

// Side lengths, angles and half-angle cosines, rotated for the cyclic exchange.
struct Z {
    double a, b, c, A, B, C, p, q, r, F, w;
};
Z dreh(const Z& z) { return {z.b, z.c, z.a, z.B, z.C, z.A, z.q, z.r, z.p, z.F, z.w}; }

struct Zentrum {
    const char* name;
    double (*f)(const Z&);
    platform::TColor farbe;
};

const double kPi3 = 1.0471975511965979;

const Zentrum kZentren[] = {
    {"Nagel-Punkt", [](const Z& z) { return (z.b + z.c - z.a) / z.a; }, kRot},
    {"Spieker-Punkt", [](const Z& z) { return z.b * z.c * (z.b + z.c); }, kRot},
    {"Gergonne-Punkt", [](const Z& z) { return z.b * z.c / (z.b + z.c - z.a); }, kBlau},
    {"Mittenpunkt", [](const Z& z) { return z.b + z.c - z.a; }, kOliv},
    {"Fermat-Punkt", [](const Z& z) { return 1 / std::sin(z.A + kPi3); }, kOrange},
    {"Fermat-Punkt, äußerer",
     [](const Z& z) {
         // only exact equality with 60 degrees is left out
         if (z.A == kPi3 || z.B == kPi3 || z.C == kPi3) return std::nan("");
         return 1 / std::sin(z.A - kPi3);
     },
     kOrange},
    {"1.isodynamischer Punkt", [](const Z& z) { return std::sin(z.A + kPi3); }, kOrange},
    {"2.isodynamischer Punkt", [](const Z& z) { return std::sin(z.A - kPi3); }, kOrange},
    {"Napoleon-Punkt", [](const Z& z) { return 1 / std::sin(z.A + kPi3 / 2); }, kGruen},
    {"2.Napoleon-Punkt", [](const Z& z) { return 1 / std::sin(z.A - kPi3 / 2); }, kGruen},
    {"Longchamp-Punkt", [](const Z& z) { return std::cos(z.A) - std::cos(z.B) * std::cos(z.C); }, kLila},
    {"Schiffler-Punkt", [](const Z& z) { return 1 / (std::cos(z.B) + std::cos(z.C)); }, kLila},
    {"Exeter-Punkt", [](const Z& z) { return z.a * (std::pow(z.b, 4) + std::pow(z.c, 4) - std::pow(z.a, 4)); }, kLila},
    {"Far-Out-Punkt",
     [](const Z& z) {
         return z.a * (std::pow(z.b, 4) + std::pow(z.c, 4) - std::pow(z.a, 4) - z.b * z.b * z.c * z.c);
     },
     kLila},
    {"Parry-Punkt", [](const Z& z) { return z.a / (2 * z.a * z.a - z.b * z.b - z.c * z.c); }, kLila},
    {"1.Epstein-Punkt", [](const Z& z) { return 1 - 4 * z.F / ((-z.a + z.b + z.c) * z.a); }, kBraun},
    {"2.Epstein-Punkt", [](const Z& z) { return 1 + 4 * z.F / ((-z.a + z.b + z.c) * z.a); }, kBraun},
    {"Yff-Zentralpunkt", [](const Z& z) { return z.q + z.r - z.p; }, kBraun},
    {"Gleicher-Umfang-Punkt", [](const Z& z) { return z.q * z.r / z.p - 1; }, kBraun},
    {"Gleicher-Umweg-Punkt", [](const Z& z) { return z.q * z.r / z.p + 1; }, kBraun},
    {"Gleiche-Parallelen-Punkt", [](const Z& z) { return z.b * z.c * (z.c * z.a + z.a * z.b - z.b * z.c); }, kBraun},
    {"X12-Kimberling-Punkt", [](const Z& z) { return 1 + std::cos(z.B - z.C); }, kGrau},
    {"X37-Kimberling-Punkt", [](const Z& z) { return z.b + z.c; }, kGrau},
    {"1.Griffiths-Punkt", [](const Z& z) { return 1 + 8 * z.F / ((z.b + z.c - z.a) * z.a); }, kGrau},
    {"Weill-Punkt", [](const Z& z) { return (z.b - z.c) * (z.b - z.c) - z.a * z.c - z.a * z.b; }, kGrau},
    {"Hofstadter-Trapezpunkt",
     [](const Z& z) {
         return 1 - std::cos(z.A) - std::cos(z.B) - std::cos(z.C) + std::cos(z.B) * std::cos(z.C);
     },
     kGrau},
    {"Musselman-Punkt",
     [](const Z& z) { return std::cos(3 * z.A) / std::cos(z.A) / std::cos(z.B - z.C) + 4 * std::cos(z.A); },
     kGrau},
    {"Hofstadter-Nullpunkt", [](const Z& z) { return z.a / z.A; }, kBraun},
    {"Hofstadter-Einspunkt", [](const Z& z) { return z.A / z.a; }, kBraun},
    {"Bevan-Punkt", [](const Z& z) { return std::cos(z.B) + std::cos(z.C) - std::cos(z.A) - 1; }, kLila},
    {"Clawson-Punkt", [](const Z& z) { return std::tan(z.A); }, kLila},
    {"Kosnita-Punkt", [](const Z& z) { return 1 / std::cos(z.B - z.C); }, kLila},
    {"Steiner-Punkt", [](const Z& z) { return z.b * z.c / (z.b * z.b - z.c * z.c); }, kRot},
    {"Tarry-Punkt", [](const Z& z) { return 1 / std::cos(z.A + z.w); }, kRot},
    {"1.Brocard-Punkt", [](const Z& z) { return z.c / z.b; }, kBlau},
    {"2.Brocard-Punkt", [](const Z& z) { return z.b / z.c; }, kBlau},
    {"3.Brocard-Punkt", [](const Z& z) { return 1 / (z.a * z.a * z.a); }, kBlau},
    {"Brocard-Mittelpunkt", [](const Z& z) { return z.a * (z.b * z.b + z.c * z.c); }, kBlau},
    {"Brocard-Kreismittelpunkt", [](const Z& z) { return std::cos(z.A - z.w); }, kBlau},
    {"Apollonius-Punkt", [](const Z& z) { return z.a * (z.b + z.c) * (z.b + z.c) / (z.b + z.c - z.a); }, kOliv},
    {"Vecten-Punkt", [](const Z& z) { return 1 / std::cos(z.A - kPi3 * 0.75); }, kGruen},
    {"Kenmotu-Punkt", [](const Z& z) { return std::cos(z.A - kPi3 * 0.75); }, kGruen},
    {"Kiepert-Zentrum", [](const Z& z) { return (z.b * z.b - z.c * z.c) * (z.b * z.b - z.c * z.c) / z.a; }, kOrange},
};
constexpr int kZahlZentren = sizeof(kZentren) / sizeof(kZentren[0]);

}  // namespace

int zentrumNummer(const std::string& name)
{
    for (int i = 0; i < kZahlZentren; ++i)
        if (name == kZentren[i].name) return nZentrum0 + i;
    return 0;
}

void Rechner::zentren()
{
    Z z{a, b, c, al, be, ga, std::cos(al / 2), std::cos(be / 2), std::cos(ga / 2), F, omega};
    for (int i = 0; i < kZahlZentren; ++i) {
        const Zentrum& k = kZentren[i];
        const Z z2 = dreh(z), z3 = dreh(z2);
        if (!trilinear(nZentrum0 + i, k.f(z), k.f(z2), k.f(z3))) continue;
        // a short mark beside the dot: the ordinal, then two letters of the name
        std::string marke, n = k.name;
        size_t j = 0;
        if (std::isdigit(static_cast<unsigned char>(n[0]))) marke = n.substr(0, 1), j = 2;
        marke += n.substr(j, 2);
        zeigePunkt(k.name, nZentrum0 + i, k.farbe, marke);
    }
    // the inner and outer Soddy centres by their half-angle trilinears
    const double p = z.p, q = z.q, r = z.r;
    trilinear(nSoddyInnen, q * r / p + 1, p * r / q + 1, q * p / r + 1);
    trilinear(nSoddyAussen, q * r / p - 1, p * r / q - 1, q * p / r - 1);
}

void Rechner::soddy()
{
    const Pkt E[3] = {t[nA], t[nB], t[nC]};
    const double r1 = s - a, r2 = s - b, r3 = s - c;
    const double w = r1 * r2 * r3 * (r1 + r2 + r3);
    if (w <= 0) return;
    const double innen = r1 * r2 * r3 / (2 * std::sqrt(w) + r2 * r3 + r1 * (r2 + r3));
    const double rh = 0.5 * std::sqrt((b + c - a) * (c + a - b) * (a + b - c) / (a + b + c));
    const double nenner = 8 * rh * s - (2 * (a * b + b * c + c * a) - a * a - b * b - c * c);
    const double aussen = nenner == 0 ? 0 : 4 * rh * rh * s / nenner;
    if (gueltig[nSoddyInnen]) {
        zeigePunkt("innerer Soddy-Punkt", nSoddyInnen, kBraun, "So");
        if (an("innerer Soddy-Kreis")) {
            kreis(t[nSoddyInnen], innen, kBraun);
            zeileKreis("innerer Soddy-Kreis", t[nSoddyInnen], innen);
        }
    }
    if (gueltig[nSoddyAussen] && std::fabs(aussen) >= 1e-5) {
        zeigePunkt("äußerer Soddy-Punkt", nSoddyAussen, kBraun, "So'");
        if (an("äußerer Soddy-Kreis")) {
            kreis(t[nSoddyAussen], std::fabs(aussen), kBraun);
            zeileKreis("äußerer Soddy-Kreis", t[nSoddyAussen], std::fabs(aussen));
        }
    }
    if (an("Soddy-Gerade") && gueltig[nSoddyInnen] && gueltig[nSoddyAussen]) {
        gerade(t[nSoddyInnen], t[nSoddyAussen], kBraun);
        zeileGerade("Soddy-Gerade", t[nSoddyInnen], t[nSoddyAussen]);
    }
    if (an("Soddy-Berührungspunkte"))
        for (int i = 0; i < 3; ++i) punkt(t[nKa + i], "", kBraun);
    if (an("Rekursive Soddy-Kreise") && gueltig[nSoddyInnen]) {
        int anzahl = 0;
        const double r[3] = {r1, r2, r3};
        for (int i = 0; i < 3; ++i) kreis(E[i], r[i], kBraun);
        // the gaps between the inner Soddy circle and each pair of vertex circles
        for (int i = 0; i < 3; ++i) {
            const int j = (i + 1) % 3;
            rekursivSoddy({1 / r[i], 1 / r[j], 1 / innen}, {E[i], E[j], t[nSoddyInnen]}, 1, anzahl);
        }
        kreis(t[nSoddyInnen], innen, kBraun);
    }
}

// Descartes' theorem in complex form gives the circle in the gap of three touching circles.
void Rechner::rekursivSoddy(std::array<double, 3> k, std::array<Pkt, 3> m, int tiefe, int& anzahl)
{
    if (tiefe > 8 || anzahl > 3000) return;
    using C = std::complex<double>;
    const C z1(m[0].x, m[0].y), z2(m[1].x, m[1].y), z3(m[2].x, m[2].y);
    const double k4 = k[0] + k[1] + k[2] + 2 * std::sqrt(k[0] * k[1] + k[1] * k[2] + k[2] * k[0]);
    if (!(k4 > 0)) return;
    const C summe = k[0] * z1 + k[1] * z2 + k[2] * z3;
    const C wurzel = 2.0 * std::sqrt(k[0] * k[1] * z1 * z2 + k[1] * k[2] * z2 * z3 + k[2] * k[0] * z3 * z1);
    // of the two signs, the one whose circle touches the first circle from outside
    C best;
    double fehler = 1e300;
    for (const C& kand : {(summe + wurzel) / k4, (summe - wurzel) / k4}) {
        double f = 0;
        for (int i = 0; i < 3; ++i)
            f += std::fabs(std::abs(kand - C(m[i].x, m[i].y)) - (1 / k[i] + 1 / k4));
        if (f < fehler) fehler = f, best = kand;
    }
    const double r = 1 / k4;
    const Pkt M{best.real(), best.imag()};
    ++anzahl;
    kreis(M, r, kBraun);
    zeile("Rekursiver Soddy-Kreis", "M (" + zahl(einheiten(M.x - ansicht.x0)) + "|" +
                                        zahl(einheiten(ansicht.y0 - M.y)) + "), r = " + zahl(einheiten(r)));
    if (r <= 1) return;
    rekursivSoddy({k[0], k[1], k4}, {m[0], m[1], M}, tiefe + 1, anzahl);
    rekursivSoddy({k[1], k[2], k4}, {m[1], m[2], M}, tiefe + 1, anzahl);
    rekursivSoddy({k[2], k[0], k4}, {m[2], m[0], M}, tiefe + 1, anzahl);
}

void Rechner::malfatti()
{
    const bool irgendwas = an("Malfatti-Kreise") || an("Malfatti-Kreismittelpunkte") ||
                           an("Malfatti-Berührungspunkte") || an("Malfatti-Dreieck") || an("Ajima-Punkt") ||
                           an("Ajima-Linien") || an("Ajima-Punkt-Lotdreieck") || an("Ajima-Punkt-Lote") ||
                           an("Ajima-Punkt-Lotpunkte");
    if (!irgendwas) return;
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    auto bogen = [&](double seite) {
        const double w = std::sqrt(seite / s);
        return w >= 1 ? M_PI / 2 : std::asin(w);
    };
    const double x = bogen(a), y = bogen(b), z = bogen(c), h = (x + y + z) / 2;
    const double ta = s * std::pow(std::sin(h - x), 2), tb = s * std::pow(std::sin(h - y), 2),
                 tc = s * std::pow(std::sin(h - z), 2);
    // tangent points on the sides, at those lengths from each vertex
    auto bei = [](Pkt von, Pkt nach, double l) {
        const double d = abstand(von, nach);
        return d == 0 ? von : von + (nach - von) * (l / d);
    };
    const Pkt tp[6] = {bei(A, B, ta), bei(A, C, ta), bei(B, C, tb), bei(B, A, tb), bei(C, A, tc), bei(C, B, tc)};
    const Pkt E[3] = {A, B, C};
    Pkt M[3];
    double r[3];
    for (int i = 0; i < 3; ++i) {
        const Pkt p = tp[2 * i], q = tp[2 * i + 1], e = E[i];
        const Pkt n1{-(p - e).y, (p - e).x}, n2{-(q - e).y, (q - e).x};
        if (!IntersectLines(p, p + n1, q, q + n2, M[i])) return;
        r[i] = abstand(M[i], p);
        t.setze(nMalfatti + i, M[i]);
    }
    static const char* n[3] = {"A", "B", "C"};
    for (int i = 0; i < 3; ++i) {
        if (an("Malfatti-Kreise")) {
            kreis(M[i], r[i], kOrange);
            zeileKreis(std::string("Malfatti-Kreis ") + n[i], M[i], r[i]);
        }
        if (an("Malfatti-Kreismittelpunkte")) punkt(M[i], "", kOrange);
        if (an("Malfatti-Berührungspunkte")) {
            punkt(tp[2 * i], "", kOrange);
            punkt(tp[2 * i + 1], "", kOrange);
        }
    }
    if (an("Malfatti-Dreieck")) dreieck(M[0], M[1], M[2], "Malfatti", kOrange);
    Pkt aj;
    if (IntersectLines(A, M[0], B, M[1], aj)) {
        // the lines from the vertices through the circle centres meet in the incentre; Ajima's
        // point joins each vertex to the touching point of the two opposite circles
        const Pkt ka = M[1] + (M[2] - M[1]) * (r[1] / (r[1] + r[2]));
        const Pkt kb = M[2] + (M[0] - M[2]) * (r[2] / (r[2] + r[0]));
        if (IntersectLines(A, ka, B, kb, aj)) {
            t.setze(nAjima, aj);
            gueltig[nAjima] = true;
            zeigePunkt("Ajima-Punkt", nAjima, kOrange, "Aj");
            if (an("Ajima-Linien")) {
                strecke(A, ka, kOrange);
                strecke(B, kb, kOrange);
                strecke(C, M[0] + (M[1] - M[0]) * (r[0] / (r[0] + r[1])), kOrange);
            }
        }
    }
}

void Rechner::familien()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    const Pkt E[3] = {A, B, C};
    // Nagel and Spieker
    const int nNagel = zentrumNummer("Nagel-Punkt"), nSpieker = zentrumNummer("Spieker-Punkt");
    if (an("Nagel-Transversalen") && gueltig[nNagel])
        for (int i = 0; i < 3; ++i) {
            const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3];
            Pkt x;
            if (IntersectLines(E[i], t[nNagel], p, q, x)) strecke(E[i], x, kRot);
        }
    if (an("Nagel-Gerade") && gueltig[nNagel] && gueltig[nI]) {
        gerade(t[nI], t[nNagel], kRot);
        zeileGerade("Nagel-Gerade", t[nI], t[nNagel]);
    }
    if (an("Spieker-Kreis") && gueltig[nSpieker] && rho > 0) {
        kreis(t[nSpieker], rho / 2, kRot);
        zeileKreis("Spieker-Kreis", t[nSpieker], rho / 2);
    }
    // Gergonne
    if (an("Gergonne-Linien"))
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nKa + i], kBlau);
    if (an("Gergonne-Gerade")) {
        Pkt x[3];
        bool ok = true;
        for (int i = 0; i < 3 && ok; ++i)
            ok = IntersectLines(t[nKa + (i + 1) % 3], t[nKa + (i + 2) % 3], E[(i + 1) % 3], E[(i + 2) % 3], x[i]);
        if (ok) {
            gerade(x[0], x[1], kBlau);
            zeileGerade("Gergonne-Gerade", x[0], x[1]);
        }
    }
    if (an("Mittenpunkt-Linien") && gueltig[nIa])
        for (int i = 0; i < 3; ++i) strecke(t[nIa + i], t[nMa + i], kOliv);

    // equilateral triangles on the sides: Fermat apexes and Napoleon centres
    for (int i = 0; i < 3; ++i) {
        const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3];
        Pkt x;
        if (KiepertApex(M_PI / 3, p, q, E[i], true, x)) t.setze(nFermatApex + i, x);
        if (KiepertApex(M_PI / 6, p, q, E[i], true, x)) t.setze(nNapoleonAussen + i, x);
        if (KiepertApex(M_PI / 6, p, q, E[i], false, x)) t.setze(nNapoleonInnen + i, x);
    }
    if (an("Fermat-Dreieck")) {
        for (int i = 0; i < 3; ++i) {
            strecke(E[(i + 1) % 3], t[nFermatApex + i], kOrange);
            strecke(E[(i + 2) % 3], t[nFermatApex + i], kOrange);
        }
    }
    if (an("Fermat-Dreieckpunkte"))
        for (int i = 0; i < 3; ++i) punkt(t[nFermatApex + i], "", kOrange);
    if (an("Fermat-Linien"))
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nFermatApex + i], kOrange);
    if (an("Napoleon-Dreieck, äußeres")) {
        if (an("Napoleon-Dreiecke füllen"))
            flaeche({t[nNapoleonAussen], t[nNapoleonAussen + 1], t[nNapoleonAussen + 2]}, 0xD0FFD0);
        dreieck(t[nNapoleonAussen], t[nNapoleonAussen + 1], t[nNapoleonAussen + 2], "äußeres Napoleon", kGruen);
    }
    if (an("Napoleon-Dreieck, inneres"))
        dreieck(t[nNapoleonInnen], t[nNapoleonInnen + 1], t[nNapoleonInnen + 2], "inneres Napoleon", kGruen);
    if (an("Napoleon-Dreieckpunkte"))
        for (int i = 0; i < 3; ++i) punkt(t[nNapoleonAussen + i], "", kGruen);
    if (an("Napoleon-Linien"))
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nNapoleonAussen + i], kGruen);
    if (an("Napoleon-Dreiecke"))
        // the equilateral triangles on the sides, whose centres make Napoleon's triangle
        for (int i = 0; i < 3; ++i) {
            strecke(E[(i + 1) % 3], t[nFermatApex + i], kGruen);
            strecke(E[(i + 2) % 3], t[nFermatApex + i], kGruen);
        }
    if (an("Napoleon-Dreieckumkreise"))
        for (int i = 0; i < 3; ++i) kreis(t[nNapoleonAussen + i], abstand(t[nNapoleonAussen + i], E[(i + 1) % 3]), kGruen);
    // isodynamic circle
    const int n15 = zentrumNummer("1.isodynamischer Punkt"), n16 = zentrumNummer("2.isodynamischer Punkt");
    if (gueltig[n15] && gueltig[n16]) {
        const Pkt m = mitte(t[n15], t[n16]);
        if (an("Isodynamischer Kreismittelpunkt")) {
            punkt(m, "", kOrange);
            zeilePunkt("Isodynamischer Kreismittelpunkt", m);
        }
        if (an("Isodynamischer Kreis")) {
            kreis(m, abstand(t[n15], t[n16]) / 2, kOrange);
            zeileKreis("Isodynamischer Kreis", m, abstand(t[n15], t[n16]) / 2);
        }
    }
    // Morley: vertex opposite A has trilinears 1 : 2 cos(C/3) : 2 cos(B/3)
    {
        const double A3 = al / 3, B3 = be / 3, C3 = ga / 3;
        const bool ok = trilinear(nMorley, 1, 2 * std::cos(C3), 2 * std::cos(B3)) &&
                        trilinear(nMorley + 1, 2 * std::cos(C3), 1, 2 * std::cos(A3)) &&
                        trilinear(nMorley + 2, 2 * std::cos(B3), 2 * std::cos(A3), 1);
        if (ok) {
            const Pkt m0 = t[nMorley], m1 = t[nMorley + 1], m2 = t[nMorley + 2];
            if (an("Morley-Dreieck")) {
                if (an("Morley-Dreieck füllen")) flaeche({m0, m1, m2}, 0xC0FFFF);
                dreieck(m0, m1, m2, "Morley", kRot);
            }
            if (an("Morley-Punkte"))
                for (int i = 0; i < 3; ++i) punkt(t[nMorley + i], "", kRot);
            if (an("Morley-Strecken")) {
                strecke(B, m0, kRot), strecke(C, m0, kRot);
                strecke(C, m1, kRot), strecke(A, m1, kRot);
                strecke(A, m2, kRot), strecke(B, m2, kRot);
                for (int i = 0; i < 3; ++i)
                    zeileStrecke(std::string("Abstand ") + "ABC"[i] + "-Morley " + std::to_string(i + 1),
                                 abstand(E[i], t[nMorley + i]));
            }
            if (an("Morley-Zentrum")) {
                const Pkt z = (m0 + m1 + m2) * (1.0 / 3);
                punkt(z, "", kRot);
                zeilePunkt("Morley-Zentrum", z);
            }
        }
    }
    // Brocard
    const int nK = nLemoine;
    if (gueltig[nU] && gueltig[nK]) {
        const Pkt m = mitte(t[nU], t[nK]);
        const double r = abstand(t[nU], t[nK]) / 2;
        if (an("Brocard-Kreis")) {
            kreis(m, r, kBlau);
            zeileKreis("Brocard-Kreis", m, r);
        }
        if (an("Brocard-Durchmesser")) strecke(t[nU], t[nK], kBlau);
        if (an("Brocard-Achse") && r > 1e-9) {
            gerade(t[nU], t[nK], kBlau);
            zeileGerade("Brocard-Achse", t[nU], t[nK]);
        }
    }
    for (int k = 0; k < 2; ++k) {
        const std::string name = k == 0 ? "1.Brocard-Punkt" : "2.Brocard-Punkt";
        const int nr = zentrumNummer(name);
        if (!gueltig[nr]) continue;
        if (an(k == 0 ? "1.Brocard-Linien" : "2.Brocard-Linien"))
            for (int i = 0; i < 3; ++i) strecke(E[i], t[nr], kBlau);
    }
    // polar circle: centre H, r^2 = -4 R^2 cos A cos B cos C (only for obtuse triangles)
    const double p2 = -4 * R * R * std::cos(al) * std::cos(be) * std::cos(ga);
    if (gueltig[nH]) {
        zeigePunkt("Polarkreismittelpunkt", nH, kLila);
        if (an("Polarkreis") && p2 > 0) {
            kreis(t[nH], std::sqrt(p2), kLila);
            zeileKreis("Polarkreis", t[nH], std::sqrt(p2));
        }
    }
    // tangential and anticomplementary triangles
    if (trilinear(nTangential, -a, b, c) && trilinear(nTangential + 1, a, -b, c) && trilinear(nTangential + 2, a, b, -c)) {
        if (an("Tangentialdreieck-Punkte"))
            for (int i = 0; i < 3; ++i) punkt(t[nTangential + i], "", kGrau);
        if (an("Tangentialdreieck SH") || an("Tangentialdreieck MP"))
            dreieck(t[nTangential], t[nTangential + 1], t[nTangential + 2], "Tangential", kGrau);
    }
    for (int i = 0; i < 3; ++i) {
        if (an(std::string("Umkreistangente in ") + "ABC"[i]) && gueltig[nU]) {
            const Pkt d = E[i] - t[nU];
            gerade(E[i], E[i] + Pkt{-d.y, d.x}, kGrau);
            zeileGerade(std::string("Umkreistangente in ") + "ABC"[i], E[i], E[i] + Pkt{-d.y, d.x});
        }
        t.setze(nAntikompl + i, ParallelPoint(E[(i + 1) % 3], E[i], E[(i + 2) % 3]));
    }
    if (an("Antikomplementär-Dreieck"))
        dreieck(t[nAntikompl], t[nAntikompl + 1], t[nAntikompl + 2], "Antikomplementär", kGruen);
    if (an("Antikomplementär-Punkte"))
        for (int i = 0; i < 3; ++i) punkt(t[nAntikompl + i], "", kGruen);
    if (an("Antikomplementärumkreis") && gueltig[nH]) kreis(t[nH], 2 * R, kGruen);
    if (an("Antikomplementärinkreis") && rho > 0 && gueltig[zentrumNummer("Nagel-Punkt")])
        kreis(t[zentrumNummer("Nagel-Punkt")], 2 * rho, kGruen);
    // arc midpoints of the circumcircle, on the far side of each side from its vertex; their
    // mirror images in the sides form Fuhrmann's triangle, whose circle has diameter H - Nagel
    if (gueltig[nU] && R > 0) {
        Pkt f[3], bm[3];
        for (int i = 0; i < 3; ++i) {
            const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3], m = t[nMa + i];
            Pkt n{-(q - p).y, (q - p).x};
            if (SameSide(m + n, E[i], p, q)) n = n * -1.0;
            const double l = std::hypot(n.x, n.y);
            bm[i] = t[nU] + n * (R / l);
            f[i] = m * 2 - bm[i];
        }
        if (an("Umkreisbogen-Mittelpunkte"))
            for (int i = 0; i < 3; ++i) {
                punkt(bm[i], "", kGrau);
                zeilePunkt("Umkreisbogen-Mittelpunkt", bm[i]);
            }
        if (an("Fuhrmann-Dreieck")) dreieck(f[0], f[1], f[2], "Fuhrmann", kRot);
        const int nNa = zentrumNummer("Nagel-Punkt");
        if (gueltig[nNa] && gueltig[nH]) {
            const Pkt m = mitte(t[nH], t[nNa]);
            const double r = abstand(t[nH], t[nNa]) / 2;
            if (an("Fuhrmann-Kreis")) {
                kreis(m, r, kRot);
                zeileKreis("Fuhrmann-Kreis", m, r);
            }
            if (an("Fuhrmann-Kreismittelpunkt")) {
                punkt(m, "", kRot);
                zeilePunkt("Fuhrmann-Kreismittelpunkt", m);
            }
        }
        for (int i = 0; i < 3; ++i) t.setze(nFuhrmann + i, f[i]);
    }
    // Vecten
    if (an("Vecten-Linien"))
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nQuadrat + i], kGruen);
    if (an("Vecten-Dreieck")) dreieck(t[nQuadrat], t[nQuadrat + 1], t[nQuadrat + 2], "Vecten", kGruen);
    // Taylor: feet of the altitude feet on the other two sides lie on one circle
    {
        const int Hf[3] = {nHa, nHb, nHc};
        for (int i = 0; i < 3; ++i) {
            t.setze(nTaylor + 2 * i, Lotfusspunkt(t[Hf[i]], E[i], E[(i + 1) % 3]));
            t.setze(nTaylor + 2 * i + 1, Lotfusspunkt(t[Hf[i]], E[i], E[(i + 2) % 3]));
        }
        if (an("Taylorfußpunkte"))
            for (int i = 0; i < 6; ++i) punkt(t[nTaylor + i], "", kOliv);
        Pkt m;
        double r;
        if (Kreis3(t[nTaylor], t[nTaylor + 2], t[nTaylor + 4], m, r)) {
            if (an("Taylor-Kreis")) {
                kreis(m, r, kOliv);
                zeileKreis("Taylor-Kreis", m, r);
            }
            if (an("Taylor-Punkt")) {
                punkt(m, "", kOliv);
                zeilePunkt("Taylor-Punkt", m);
            }
        }
    }
    // circles of the part triangles
    {
        struct Teil { const char* name; int p, q, r; };
        const Teil teile[] = {{"ABI", nA, nB, nI}, {"ACI", nA, nC, nI}, {"BCI", nB, nC, nI},
                              {"AHbHc", nA, nHb, nHc}, {"BHaHc", nB, nHa, nHc}, {"CHaHb", nC, nHa, nHb}};
        for (const Teil& d : teile) {
            const Pkt p = t[d.p], q = t[d.q], r = t[d.r];
            Pkt m;
            double rr;
            if (an(std::string("Umkreis Dreieck ") + d.name) && Kreis3(p, q, r, m, rr)) {
                kreis(m, rr, kGrau);
                zeileKreis(std::string("Umkreis Dreieck ") + d.name, m, rr);
            }
            if (an(std::string("Schwerpunkt ") + d.name)) {
                punkt((p + q + r) * (1.0 / 3), "", kGruen);
                zeilePunkt(std::string("Schwerpunkt ") + d.name, (p + q + r) * (1.0 / 3));
            }
            const double la = abstand(q, r), lb = abstand(r, p), lc = abstand(p, q), u = la + lb + lc;
            const double f2 = std::fabs((q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x));
            if (an(std::string("Inkreis Dreieck ") + d.name) && u > 0 && f2 > 0) {
                const Pkt i = (p * la + q * lb + r * lc) * (1.0 / u);
                kreis(i, f2 / u, kBlau);
                zeileKreis(std::string("Inkreis Dreieck ") + d.name, i, f2 / u);
            }
        }
    }
    weitere();
    soddy();
    malfatti();
    steinerEllipse();
}

const std::vector<std::string>& bekannteObjekte()
{
    static const std::vector<std::string> namen = [] {
        std::vector<std::string> v = {
            "Punkt A", "Punkt B", "Punkt C", "Seite a", "Seite b", "Seite c", "Dreieck ausfüllen",
            "Dreiecksseiten", "Dreiecksgeraden", "Höhen", "Höhenschnittpunkt", "Höhenfußpunkte",
            "Seitenhalbierende", "Seitenmittelpunkte", "Schwerpunkt", "Winkelhalbierende",
            "Winkelhalbierende-Punkte", "Inkreismittelpunkt", "Inkreis", "Mittelsenkrechte",
            "Strecken U-Seitenmitten", "Umkreismittelpunkt", "Umkreis", "Ankreise", "Ankreisdreieck",
            "Ankreismittelpunkte", "Ankreis-Punkte", "Ankreis-Tangentenpunkte", "Euler-Gerade", "Euler-Dreieck",
            "Feuerbach-Kreis", "Feuerbach-Punkt", "9-Feuerbach-Punkte", "Soddy-Kreise", "Rekursive Soddy-Kreise",
            "Höhendreieck", "Inkreispunkte", "Kontakt-Dreieck", "Lémoine-Punkt", "Mittelparallelen",
            "Höhe auf a", "Höhe auf b", "Höhe auf c", "Mittelstrecke UMa", "Mittelstrecke UMb",
            "Mittelstrecke UMc", "Seitenhalbierende sa", "Seitenhalbierende sb", "Seitenhalbierende sc",
            "Winkelhalbierende alpha", "Winkelhalbierende beta", "Winkelhalbierende gamma",
            "Winkelhalbierende-Geraden", "Strecken Ecken-I", "Strecken Ecken-U", "Strecke UH",
            "Schnitt Umkreis-Euler-Gerade", "Inkreis-Umkreis-Gerade", "Schnitt Inkreis-IU-Gerade",
            "Schnitt Umkreis-IU-Gerade", "Seitenquadrate", "Seitenquadrat-Schwerpunkt", "Höhengeraden",
            "Feuerbach-Inkreis-Punkt", "Seitenquadrate ausfüllen", "Morley-Dreieck füllen",
            "Napoleon-Dreiecke füllen",
        };
        for (const Zentrum& z : kZentren) v.push_back(z.name);
        const char* weitere[] = {
            "Nagel-Transversalen", "Nagel-Gerade", "Spieker-Kreis", "Gergonne-Linien", "Gergonne-Gerade",
            "Mittenpunkt-Linien", "Fermat-Dreieck", "Fermat-Dreieckpunkte", "Fermat-Linien",
            "Napoleon-Dreieck, äußeres", "Napoleon-Dreieck, inneres", "Napoleon-Dreieckpunkte", "Napoleon-Linien",
            "Napoleon-Dreiecke", "Napoleon-Dreieckumkreise", "Isodynamischer Kreismittelpunkt",
            "Isodynamischer Kreis", "Morley-Dreieck", "Morley-Punkte", "Morley-Strecken", "Morley-Zentrum",
            "Brocard-Kreis", "Brocard-Durchmesser", "Brocard-Achse", "1.Brocard-Linien", "2.Brocard-Linien",
            "Polarkreis", "Polarkreismittelpunkt", "Tangentialdreieck-Punkte", "Tangentialdreieck SH",
            "Tangentialdreieck MP", "Umkreistangente in A", "Umkreistangente in B", "Umkreistangente in C",
            "Antikomplementär-Dreieck", "Antikomplementär-Punkte", "Antikomplementärumkreis",
            "Antikomplementärinkreis", "Umkreisbogen-Mittelpunkte", "Fuhrmann-Dreieck", "Fuhrmann-Kreis",
            "Fuhrmann-Kreismittelpunkt", "Vecten-Linien", "Vecten-Dreieck", "Taylorfußpunkte", "Taylor-Kreis",
            "Taylor-Punkt", "Umkreis Dreieck ABI", "Umkreis Dreieck ACI", "Umkreis Dreieck BCI",
            "Umkreis Dreieck AHbHc", "Umkreis Dreieck BHaHc", "Umkreis Dreieck CHaHb", "Schwerpunkt ABI",
            "Schwerpunkt ACI", "Schwerpunkt BCI", "Schwerpunkt AHbHc", "Schwerpunkt BHaHc", "Schwerpunkt CHaHb",
            "Inkreis Dreieck ABI", "Inkreis Dreieck ACI", "Inkreis Dreieck BCI", "Inkreis Dreieck AHbHc",
            "Inkreis Dreieck BHaHc", "Inkreis Dreieck CHaHb", "innerer Soddy-Punkt", "innerer Soddy-Kreis",
            "äußerer Soddy-Punkt", "äußerer Soddy-Kreis", "Soddy-Gerade", "Soddy-Berührungspunkte",
            "Malfatti-Kreise", "Malfatti-Kreismittelpunkte", "Malfatti-Berührungspunkte", "Malfatti-Dreieck",
            "Ajima-Punkt", "Ajima-Linien", "Steiner-Ellipse", "Steiner-Innenellipse", "Steiner-Ellipsenachsen",
            "Steiner-Scheitelpunkte", "Kiepert-Hyperbel", "Jerabek-Hyperbel", "Feuerbach-Hyperbel",
            "Hyperbel ABCIU", "Kegelschnitt ABHIU", "Kegelschnitt ACHIU", "Kegelschnitt BCHIU",
            "Halbumfangspunkte", "Nagel-Dreieck", "Gergonne-Transversalen", "Symmedian-Linien",
            "Symmedian-Punkte", "Symmedian-Dreieck", "Spiegelpunkte", "Spiegellinien", "Spiegelpunktdreieck",
            "Teilungspunkte 1:3", "Teilungsstrecken 1:3", "Teilungspunkte 1:4", "Teilungsstrecken 1:4",
            "Kiepert-Dreieck 30°", "Kiepert-Linien 30°", "Kiepert-Punkt arctan 2", "Kiepert-Punkt arctan -2",
            "Euler-Gerade ABI", "Euler-Gerade ACI", "Euler-Gerade BCI", "Euler-Gerade AHbHc",
            "Euler-Gerade BHaHc", "Euler-Gerade CHaHb", "Conway-Kreis", "Conway-Punkte", "Lester-Kreis",
            "Parry-Kreis",
        };
        for (const char* w : weitere) v.push_back(w);
        const char* lote[] = {"Inkreis", "Umkreis", "Schwerpunkt", "Lémoine-Punkt", "Feuerbach", "Innen-Soddy",
                              "Außen-Soddy", "Ajima-Punkt", "Gergonne", "Nagelpunkt", "Mittenpunkt",
                              "Spiekerpunkt", "Longchamp", "Fermat-Punkt", "Napoleonpunkt", "Exeter-Punkt",
                              "1.Brocard-Punkt", "2.Brocard-Punkt", "Schiffler", "Hofstadter-Nullpunkt",
                              "Hofstadter-Einspunkt", "Apolloniuspunkt", "1.Epstein-Punkt"};
        for (const char* l : lote)
            for (const char* suffix : {"-Lotdreieck", "-Lote", "-Lotpunkte"}) v.push_back(std::string(l) + suffix);
        return v;
    }();
    return namen;
}

const Auswahl& grundauswahl()
{
    static const Auswahl a = {"Punkt A", "Punkt B", "Punkt C", "Seite a", "Seite b", "Seite c",
                              "Dreieck ausfüllen", "Dreiecksseiten"};
    return a;
}

}  // namespace geo
