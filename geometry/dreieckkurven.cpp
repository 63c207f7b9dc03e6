// Curves and further families: conics, Steiner's ellipse, the foot triangles and the smaller
// constructions of the lists.
#include "geometry/dreieckintern.h"

#include <algorithm>
#include <cmath>

namespace geo {

void Rechner::weitere()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    const Pkt E[3] = {A, B, C};
    const char* kl[3] = {"a", "b", "c"};
    // extouch points: the excircle opposite A touches BC at s - c from B
    Pkt ex[3];
    for (int i = 0; i < 3; ++i) {
        const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3];
        const double l = abstand(p, q), d = s - abstand(E[i], p);
        ex[i] = l == 0 ? p : p + (q - p) * (d / l);
    }
    if (an("Halbumfangspunkte"))
        for (int i = 0; i < 3; ++i) {
            punkt(ex[i], "", kRot);
            zeilePunkt(std::string("Halbumfangspunkt auf ") + kl[i], ex[i]);
        }
    if (an("Nagel-Dreieck")) dreieck(ex[0], ex[1], ex[2], "Nagel", kRot);
    if (an("Gergonne-Transversalen"))
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nKa + i], kBlau, true);
    // symmedians: from each vertex through the Lemoine point to the opposite side
    if (gueltig[nLemoine]) {
        Pkt f[3];
        bool ok = true;
        for (int i = 0; i < 3; ++i) ok = ok && IntersectLines(E[i], t[nLemoine], E[(i + 1) % 3], E[(i + 2) % 3], f[i]);
        if (ok && an("Symmedian-Linien"))
            for (int i = 0; i < 3; ++i) strecke(E[i], f[i], kRot);
        if (ok && an("Symmedian-Punkte"))
            for (int i = 0; i < 3; ++i) {
                punkt(f[i], "", kRot);
                zeilePunkt(std::string("Symmedian-Punkt auf ") + kl[i], f[i]);
            }
        if (ok && an("Symmedian-Dreieck")) dreieck(f[0], f[1], f[2], "Symmedian", kRot);
    }
    // mirror images of the vertices in the opposite sides
    Pkt sp[3];
    for (int i = 0; i < 3; ++i) sp[i] = Lotfusspunkt(E[i], E[(i + 1) % 3], E[(i + 2) % 3]) * 2 - E[i];
    if (an("Spiegelpunkte"))
        for (int i = 0; i < 3; ++i) {
            punkt(sp[i], std::string(1, "ABC"[i]) + "'", kGrau);
            zeilePunkt(std::string("Spiegelpunkt ") + "ABC"[i] + "'", sp[i]);
        }
    if (an("Spiegellinien"))
        for (int i = 0; i < 3; ++i) strecke(E[i], sp[i], kGrau, true);
    if (an("Spiegelpunktdreieck")) dreieck(sp[0], sp[1], sp[2], "Spiegelpunkt", kGrau);
    // points dividing the sides in 1:3 and 1:4, joined to the opposite vertices
    for (int n : {3, 4}) {
        const std::string punkte = "Teilungspunkte 1:" + std::to_string(n), strecken = "Teilungsstrecken 1:" + std::to_string(n);
        if (!an(punkte) && !an(strecken)) continue;
        for (int i = 0; i < 3; ++i) {
            const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3];
            const Pkt x = p + (q - p) * (1.0 / (n + 1));
            if (an(punkte)) {
                punkt(x, "", kGruen);
                zeilePunkt(punkte, x);
            }
            if (an(strecken)) strecke(E[i], x, kGruen);
        }
    }
    // Kiepert: isosceles triangles with base angle phi on the sides; the lines from the
    // vertices to their apexes meet in the perspector csc(A + phi) : ...
    if (an("Kiepert-Dreieck 30°") || an("Kiepert-Linien 30°")) {
        Pkt k[3];
        for (int i = 0; i < 3; ++i) KiepertApex(M_PI / 6, E[(i + 1) % 3], E[(i + 2) % 3], E[i], true, k[i]);
        if (an("Kiepert-Dreieck 30°")) dreieck(k[0], k[1], k[2], "Kiepert 30°", kOrange);
        if (an("Kiepert-Linien 30°"))
            for (int i = 0; i < 3; ++i) strecke(E[i], k[i], kOrange);
    }
    for (int vz : {1, -1}) {
        const std::string name = vz > 0 ? "Kiepert-Punkt arctan 2" : "Kiepert-Punkt arctan -2";
        const double phi = std::atan(2.0 * vz);
        const int nr = vz > 0 ? nKiepert : nKiepert + 1;
        if (trilinear(nr, 1 / std::sin(al + phi), 1 / std::sin(be + phi), 1 / std::sin(ga + phi)))
            zeigePunkt(name, nr, kOrange);
    }
    // Euler lines of the part triangles
    {
        struct Teil { const char* name; int p, q, r; };
        const Teil teile[] = {{"ABI", nA, nB, nI}, {"ACI", nA, nC, nI}, {"BCI", nB, nC, nI},
                              {"AHbHc", nA, nHb, nHc}, {"BHaHc", nB, nHa, nHc}, {"CHaHb", nC, nHa, nHb}};
        for (const Teil& d : teile) {
            const std::string name = std::string("Euler-Gerade ") + d.name;
            Pkt m;
            double r;
            if (!an(name) || !Kreis3(t[d.p], t[d.q], t[d.r], m, r)) continue;
            const Pkt h = t[d.p] + t[d.q] + t[d.r] - m * 2;
            if (abstand(h, m) < 1e-9) continue;
            gerade(m, h, kLila);
            zeileGerade(name, m, h);
        }
    }
    // Conway's circle: the sides extended beyond each vertex by the opposite side
    if (an("Conway-Kreis") || an("Conway-Punkte")) {
        const double len[3] = {a, b, c};
        for (int i = 0; i < 3; ++i)
            for (int j : {1, 2}) {
                const Pkt v = E[i], w = E[(i + j) % 3];
                const double l = abstand(v, w);
                if (l == 0 || !an("Conway-Punkte")) continue;
                const Pkt x = v + (v - w) * (len[i] / l);
                punkt(x, "", kOliv);
                zeilePunkt("Conway-Punkt", x);
            }
        if (an("Conway-Kreis") && gueltig[nI]) {
            const double r = std::sqrt(rho * rho + s * s);
            kreis(t[nI], r, kOliv);
            zeileKreis("Conway-Kreis", t[nI], r);
        }
    }
    // Lester's circle through both Fermat points, U and N; Parry's through S and both isodynamic points
    auto kreisDurch = [&](const char* name, int p, int q, int r) {
        Pkt m;
        double rr;
        if (!an(name) || !gueltig[p] || !gueltig[q] || !gueltig[r] || !Kreis3(t[p], t[q], t[r], m, rr)) return;
        kreis(m, rr, kLila);
        zeileKreis(name, m, rr);
    };
    kreisDurch("Lester-Kreis", zentrumNummer("Fermat-Punkt"), zentrumNummer("Fermat-Punkt, äußerer"), nN);
    kreisDurch("Parry-Kreis", nS, zentrumNummer("1.isodynamischer Punkt"), zentrumNummer("2.isodynamischer Punkt"));
}

void Rechner::steinerEllipse()
{
    const bool aus = an("Steiner-Ellipse"), ein = an("Steiner-Innenellipse");
    if (!aus && !ein && !an("Steiner-Ellipsenachsen") && !an("Steiner-Scheitelpunkte")) return;
    const Pkt A = t[nA], B = t[nB], C = t[nC], S = t[nS];
    // conjugate semi-diameters: S->A and (C-B)/sqrt 3
    const Pkt u = A - S, v = (C - B) * (1 / std::sqrt(3.0));
    const double a2 = a * a, b2 = b * b, c2 = c * c;
    const double Zq = a2 * a2 + b2 * b2 + c2 * c2 - a2 * b2 - b2 * c2 - c2 * a2;
    const double Z = Zq > 0 ? std::sqrt(Zq) : 0;
    const double ha = std::sqrt(a2 + b2 + c2 + 2 * Z) / 3, hb = std::sqrt(std::max(0.0, a2 + b2 + c2 - 2 * Z)) / 3;
    // axis direction: the parameter of the longest diameter
    const double uv = u.x * v.x + u.y * v.y, uu = u.x * u.x + u.y * u.y, vv = v.x * v.x + v.y * v.y;
    const double t0 = 0.5 * std::atan2(2 * uv, uu - vv);
    const Pkt achse1 = u * std::cos(t0) + v * std::sin(t0);
    const Pkt achse2 = u * std::cos(t0 + M_PI / 2) + v * std::sin(t0 + M_PI / 2);
    auto zeichne = [&](double f, const std::string& name) {
        std::vector<Pkt> pts;
        for (double w = 0; w <= 2 * M_PI + 0.004; w += 0.004) pts.push_back(S + (u * std::cos(w) + v * std::sin(w)) * f);
        kurve(std::move(pts), kLila);
        zeile(name + " " + kEll + "große Halbachse", zahl(einheiten(ha * f)));
        zeile(name + " " + kEll + "kleine Halbachse", zahl(einheiten(hb * f)));
        zeile(name + " " + kEll + "Flächeninhalt", zahl(einheiten(einheiten(2.4183991523122903 * F * f * f))));
    };
    if (aus) zeichne(1, "Steiner-Ellipse");
    if (ein) zeichne(0.5, "Steiner-Innenellipse");
    if (an("Steiner-Ellipsenachsen")) {
        gerade(S, S + achse1, kLila);
        gerade(S, S + achse2, kLila);
    }
    if (an("Steiner-Scheitelpunkte"))
        for (const Pkt& e : {achse1, achse2}) {
            punkt(S + e, "", kLila);
            punkt(S - e, "", kLila);
        }
}

void Rechner::kegelschnitte()
{
    struct K { const char* name; int n[5]; };
    const int nFe = zentrumNummer("Nagel-Punkt");
    (void)nFe;
    const K liste[] = {
        {"Kiepert-Hyperbel", {nA, nB, nC, nS, nH}},   {"Jerabek-Hyperbel", {nA, nB, nC, nU, nH}},
        {"Feuerbach-Hyperbel", {nA, nB, nC, nI, nH}}, {"Hyperbel ABCIU", {nA, nB, nC, nI, nU}},
        {"Kegelschnitt ABHIU", {nA, nB, nH, nI, nU}}, {"Kegelschnitt ACHIU", {nA, nC, nH, nI, nU}},
        {"Kegelschnitt BCHIU", {nB, nC, nH, nI, nU}},
    };
    for (const K& k : liste) {
        if (!an(k.name)) continue;
        Pkt p[5];
        bool ok = true;
        for (int i = 0; i < 5; ++i) {
            ok = ok && gueltig[k.n[i]];
            p[i] = t[k.n[i]];
        }
        double q[6];
        if (!ok || !Kegelschnitt5(p, q)) continue;
        // sampled by columns and rows across the panel, so steep and flat parts both close up
        std::vector<Pkt> pts;
        auto loese = [&](double A2, double B1, double C0, bool spalte, double fest) {
            if (std::fabs(A2) < 1e-15) {
                if (B1 != 0) pts.push_back(spalte ? Pkt{fest, -C0 / B1} : Pkt{-C0 / B1, fest});
                return;
            }
            const double d = B1 * B1 - 4 * A2 * C0;
            if (d < 0) return;
            for (int sg : {-1, 1}) {
                const double w = (-B1 + sg * std::sqrt(d)) / (2 * A2);
                pts.push_back(spalte ? Pkt{fest, w} : Pkt{w, fest});
            }
        };
        for (int x = -200; x <= ansicht.breite + 200; ++x)
            loese(q[2], q[1] * x + q[4], q[0] * x * x + q[3] * x + q[5], true, x);
        for (int y = -200; y <= ansicht.hoehe + 200; ++y)
            loese(q[0], q[1] * y + q[3], q[2] * y * y + q[4] * y + q[5], false, y);
        kurve(std::move(pts), kOrange, Element::Pixel);
        if (!ansicht.ergebnisse) continue;
        // the equation in the user's coordinates, and the centre of a central conic
        Pkt e[5];
        const double ein = 100 * ansicht.faktor;
        for (int i = 0; i < 5; ++i) e[i] = {(p[i].x - ansicht.x0) / ein, (ansicht.y0 - p[i].y) / ein};
        double g[6];
        if (!Kegelschnitt5(e, g)) continue;
        double gross = 0;
        for (double x : g) gross = std::max(gross, std::fabs(x));
        static const char* glied[6] = {" x²", " xy", " y²", " x", " y", ""};
        std::string gl;
        for (int i = 0; i < 6; ++i) {
            const double x = g[i] / gross;
            if (std::fabs(x) < 1e-12) continue;
            gl += gl.empty() ? (x < 0 ? "-" : "") : (x < 0 ? " - " : " + ");
            gl += zahl(std::fabs(x)) + glied[i];
        }
        zeile(std::string(k.name) + " " + kEll + "Gleichung", gl + " = 0");
        const double disk = g[1] * g[1] - 4 * g[0] * g[2];
        zeile(std::string(k.name) + " " + kEll + "Art", std::fabs(disk) < 1e-12 ? "Parabel" : disk > 0 ? "Hyperbel" : "Ellipse");
        const double n = 4 * g[0] * g[2] - g[1] * g[1];
        if (std::fabs(n) > 1e-12) {
            const double mx = (g[1] * g[4] - 2 * g[2] * g[3]) / n, my = (g[1] * g[3] - 2 * g[0] * g[4]) / n;
            zeile(std::string(k.name) + " " + kEll + "Mittelpunkt", "( " + zahl(mx) + " | " + zahl(my) + " )");
        }
    }
}

void Rechner::lotdreiecke()
{
    struct L { const char* praefix; int nr; };
    const L liste[] = {
        {"Inkreis", nI}, {"Umkreis", nU}, {"Schwerpunkt", nS}, {"Lémoine-Punkt", nLemoine},
        {"Feuerbach", nFeuerbach}, {"Innen-Soddy", nSoddyInnen}, {"Außen-Soddy", nSoddyAussen},
        {"Ajima-Punkt", nAjima}, {"Gergonne", zentrumNummer("Gergonne-Punkt")}, {"Nagelpunkt", zentrumNummer("Nagel-Punkt")},
        {"Mittenpunkt", zentrumNummer("Mittenpunkt")}, {"Spiekerpunkt", zentrumNummer("Spieker-Punkt")},
        {"Longchamp", zentrumNummer("Longchamp-Punkt")}, {"Fermat-Punkt", zentrumNummer("Fermat-Punkt")},
        {"Napoleonpunkt", zentrumNummer("Napoleon-Punkt")}, {"Exeter-Punkt", zentrumNummer("Exeter-Punkt")},
        {"1.Brocard-Punkt", zentrumNummer("1.Brocard-Punkt")}, {"2.Brocard-Punkt", zentrumNummer("2.Brocard-Punkt")},
        {"Schiffler", zentrumNummer("Schiffler-Punkt")}, {"Hofstadter-Nullpunkt", zentrumNummer("Hofstadter-Nullpunkt")},
        {"Hofstadter-Einspunkt", zentrumNummer("Hofstadter-Einspunkt")}, {"Apolloniuspunkt", zentrumNummer("Apollonius-Punkt")},
        {"1.Epstein-Punkt", zentrumNummer("1.Epstein-Punkt")},
    };
    const Pkt E[3] = {t[nA], t[nB], t[nC]};
    for (const L& l : liste) {
        const std::string p = l.praefix;
        const bool dr = an(p + "-Lotdreieck"), lo = an(p + "-Lote"), pu = an(p + "-Lotpunkte");
        if (!(dr || lo || pu) || l.nr == 0 || !gueltig[l.nr]) continue;
        const Pkt P = t[l.nr];
        Pkt f[3];
        for (int i = 0; i < 3; ++i) f[i] = Lotfusspunkt(P, E[(i + 1) % 3], E[(i + 2) % 3]);
        for (int i = 0; i < 3; ++i) {
            if (lo) {
                strecke(P, f[i], kGrau);
                zeileStrecke(p + " " + kEll + "Lotlänge", abstand(P, f[i]));
            }
            if (pu) {
                punkt(f[i], "", kGrau);
                zeilePunkt(p + " " + kEll + "Lotfußpunkt", f[i]);
            }
        }
        if (dr) dreieck(f[0], f[1], f[2], p + "-Lot", kGrau);
    }
}

}  // namespace geo
