// The objects of the first list: sides, altitudes, medians, bisectors, the classical circles.
#include "geometry/dreieckintern.h"

#include <cmath>

namespace geo {

namespace {
// Crossings of the line pq with the circle (m, r); 0, 1 or 2 points.
int schnittKreisGerade(Pkt m, double r, Pkt p, Pkt q, Pkt out[2])
{
    const Pkt f = Lotfusspunkt(m, p, q);
    const double d = abstand(f, m);
    if (d > r) return 0;
    const double l = abstand(p, q);
    if (l == 0) return 0;
    const double h = std::sqrt(r * r - d * d);
    const Pkt e = (q - p) * (1.0 / l);
    out[0] = f - e * h;
    out[1] = f + e * h;
    return h == 0 ? 1 : 2;
}
}  // namespace

void Rechner::allgemein()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    const Pkt E[3] = {A, B, C};
    const int M[3] = {nMa, nMb, nMc}, W[3] = {nWa, nWb, nWc}, Hf[3] = {nHa, nHb, nHc};
    const char* kl[3] = {"a", "b", "c"};
    const char* gr[3] = {"alpha", "beta", "gamma"};

    if (an("Dreiecksseiten")) {
        strecke(A, B, kSchwarz);
        strecke(B, C, kSchwarz);
        strecke(C, A, kSchwarz);
    }
    if (an("Dreiecksgeraden")) {
        gerade(A, B, kGrau);
        gerade(B, C, kGrau);
        gerade(C, A, kGrau);
    }
    for (int i = 0; i < 3; ++i)
        if (an(std::string("Seite ") + kl[i])) {
            Element e;
            e.art = Element::Punkt;
            e.p = {t[M[i]]};
            e.text = kl[i];
            e.r = -1;  // a label without a dot
            szene.elemente.push_back(e);
        }

    // altitudes
    const bool alleHoehen = an("Höhen");
    for (int i = 0; i < 3; ++i) {
        const std::string n = std::string("Höhe auf ") + kl[i];
        if (alleHoehen || an(n)) {
            strecke(E[i], t[Hf[i]], kRot);
            zeileStrecke(n, abstand(E[i], t[Hf[i]]));
        }
        if (an("Höhengeraden")) gerade(E[i], t[Hf[i]], kRot);
    }
    if (gueltig[nH] && (alleHoehen || an("Höhengeraden"))) {
        // an obtuse triangle's altitudes meet outside: show the extensions dashed
        for (int i = 0; i < 3; ++i) strecke(t[Hf[i]], t[nH], kRot, true);
    }
    zeigePunkt("Höhenschnittpunkt", nH, kRot, "H");
    if (an("Höhenfußpunkte"))
        for (int i = 0; i < 3; ++i) {
            punkt(t[Hf[i]], std::string("H") + kl[i], kRot);
            zeilePunkt(std::string("Höhenfußpunkt H") + kl[i], t[Hf[i]]);
        }
    if (an("Höhendreieck")) dreieck(t[nHa], t[nHb], t[nHc], "Höhen", kRot);

    // medians
    for (int i = 0; i < 3; ++i) {
        const std::string n = std::string("Seitenhalbierende s") + kl[i];
        if (an("Seitenhalbierende") || an(n)) {
            strecke(E[i], t[M[i]], kGruen);
            zeileStrecke(n, abstand(E[i], t[M[i]]));
        }
    }
    if (an("Seitenmittelpunkte"))
        for (int i = 0; i < 3; ++i) {
            punkt(t[M[i]], std::string("M") + kl[i], kGruen);
            zeilePunkt(std::string("Seitenmittelpunkt M") + kl[i], t[M[i]]);
        }
    zeigePunkt("Schwerpunkt", nS, kGruen, "S");
    if (an("Mittelparallelen")) dreieck(t[nMa], t[nMb], t[nMc], "Mittel", kGruen);

    // bisectors and incircle
    for (int i = 0; i < 3; ++i) {
        const std::string n = std::string("Winkelhalbierende ") + gr[i];
        if ((an("Winkelhalbierende") || an(n)) && gueltig[W[i]]) {
            strecke(E[i], t[W[i]], kBlau);
            zeileStrecke(n, abstand(E[i], t[W[i]]));
        }
        if (an("Winkelhalbierende-Geraden") && gueltig[W[i]]) gerade(E[i], t[W[i]], kBlau);
    }
    if (an("Winkelhalbierende-Punkte"))
        for (int i = 0; i < 3; ++i)
            if (gueltig[W[i]]) {
                punkt(t[W[i]], std::string("W") + kl[i], kBlau);
                zeilePunkt(std::string("Winkelhalbierende-Punkt W") + kl[i], t[W[i]]);
            }
    zeigePunkt("Inkreismittelpunkt", nI, kBlau, "I");
    if (an("Inkreis") && rho > 0 && gueltig[nI]) {
        kreis(t[nI], rho, kBlau);
        zeileKreis("Inkreis", t[nI], rho);
    }
    if (an("Strecken Ecken-I") && gueltig[nI])
        for (int i = 0; i < 3; ++i) strecke(E[i], t[nI], kBlau);
    if (an("Inkreispunkte"))
        for (int i = 0; i < 3; ++i) {
            punkt(t[nKa + i], "", kBlau);
            zeilePunkt(std::to_string(i + 1) + ".Kontaktpunkt", t[nKa + i]);
        }
    if (an("Kontakt-Dreieck")) dreieck(t[nKa], t[nKb], t[nKc], "Kontakt", kBlau);

    // circumcircle
    if (gueltig[nU]) {
        const Pkt U = t[nU];
        if (an("Mittelsenkrechte"))
            for (int i = 0; i < 3; ++i) {
                const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3];
                const Pkt m = t[M[i]];
                gerade(m, m + Pkt{-(q - p).y, (q - p).x}, kGrau);
            }
        for (int i = 0; i < 3; ++i) {
            const std::string n = std::string("Mittelstrecke UM") + kl[i];
            if (an("Strecken U-Seitenmitten") || an(n)) {
                strecke(U, t[M[i]], kGrau);
                zeileStrecke(n, abstand(U, t[M[i]]));
            }
        }
        zeigePunkt("Umkreismittelpunkt", nU, kGrau, "U");
        if (an("Umkreis")) {
            kreis(U, R, kSchwarz);
            zeileKreis("Umkreis", U, R);
        }
        if (an("Strecken Ecken-U"))
            for (int i = 0; i < 3; ++i) strecke(E[i], U, kGrau);
        if (an("Strecke UH")) {
            strecke(U, t[nH], kLila);
            zeileStrecke("Strecke UH", abstand(U, t[nH]));
        }
        if (an("Euler-Gerade") && abstand(U, t[nH]) > 1e-9) {
            gerade(U, t[nH], kLila);
            zeileGerade("Euler-Gerade", U, t[nH]);
        }
        Pkt x[2];
        if (an("Schnitt Umkreis-Euler-Gerade") && abstand(U, t[nH]) > 1e-9) {
            const int n = schnittKreisGerade(U, R, U, t[nH], x);
            for (int i = 0; i < n; ++i) {
                punkt(x[i], "", kLila);
                zeilePunkt("Schnitt Umkreis-Euler-Gerade", x[i]);
            }
        }
        if (gueltig[nI] && abstand(U, t[nI]) > 1e-9) {
            if (an("Inkreis-Umkreis-Gerade")) {
                gerade(t[nI], U, kOliv);
                zeileGerade("Inkreis-Umkreis-Gerade", t[nI], U);
            }
            if (an("Schnitt Inkreis-IU-Gerade") && rho > 0) {
                const int n = schnittKreisGerade(t[nI], rho, t[nI], U, x);
                for (int i = 0; i < n; ++i) {
                    punkt(x[i], "", kOliv);
                    zeilePunkt("Schnitt Inkreis-IU-Gerade", x[i]);
                }
            }
            if (an("Schnitt Umkreis-IU-Gerade")) {
                const int n = schnittKreisGerade(U, R, t[nI], U, x);
                for (int i = 0; i < n; ++i) {
                    punkt(x[i], "", kOliv);
                    zeilePunkt("Schnitt Umkreis-IU-Gerade", x[i]);
                }
            }
        }
        // Euler points: midpoints of the vertices and H
        for (int i = 0; i < 3; ++i) {
            t.setze(nEuler + i, mitte(E[i], t[nH]));
            gueltig[nEuler + i] = true;
        }
        if (an("Euler-Dreieck")) dreieck(t[nEuler], t[nEuler + 1], t[nEuler + 2], "Euler", kLila);
        // nine-point circle and Feuerbach's point, where it touches the incircle
        const double rn = R / 2;
        const Pkt N = t[nN];
        if (gueltig[nI] && rho > 0) {
            const double d = abstand(N, t[nI]);
            // an equilateral triangle: both circles coincide, any point of them serves
            const Pkt fp = d > 1e-9 ? N + (t[nI] - N) * (rn / d) : t[nKa];
            t.setze(nFeuerbach, fp);
            gueltig[nFeuerbach] = true;
        }
        if (an("Feuerbach-Kreis")) {
            kreis(N, rn, kLila);
            zeileKreis("Feuerbach-Kreis", N, rn);
            punkt(N, "N", kLila);
        }
        zeigePunkt("Feuerbach-Punkt", nFeuerbach, kLila, "Fe");
        if (an("9-Feuerbach-Punkte"))
            for (int i = 0; i < 3; ++i) {
                punkt(t[M[i]], "", kLila);
                punkt(t[Hf[i]], "", kLila);
                punkt(t[nEuler + i], "", kLila);
            }
    }

    // excircles
    const int Iex[3] = {nIa, nIb, nIc};
    const double rex[3] = {F / (s - a), F / (s - b), F / (s - c)};
    for (int i = 0; i < 3; ++i) {
        if (!gueltig[Iex[i]] || !(F > 0)) continue;
        const Pkt J = t[Iex[i]];
        if (an("Ankreise")) {
            kreis(J, rex[i], kOliv);
            zeileKreis(std::string("Ankreis ") + kl[i], J, rex[i]);
        }
        if (an("Ankreismittelpunkte")) {
            punkt(J, std::string("I") + kl[i], kOliv);
            zeilePunkt(std::string("Ankreismittelpunkt I") + kl[i], J);
        }
        const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3], o = E[i];
        if (an("Ankreis-Punkte")) {
            const Pkt f = Lotfusspunkt(J, p, q);
            punkt(f, "", kOliv);
            zeilePunkt(std::string("Ankreis-Punkt ") + kl[i], f);
        }
        if (an("Ankreis-Tangentenpunkte")) {
            punkt(Lotfusspunkt(J, o, p), "", kOliv);
            punkt(Lotfusspunkt(J, o, q), "", kOliv);
        }
    }
    if (an("Ankreisdreieck") && gueltig[nIa] && gueltig[nIb] && gueltig[nIc])
        dreieck(t[nIa], t[nIb], t[nIc], "Ankreis", kOliv);

    if (an("Soddy-Kreise")) {
        const double r[3] = {s - a, s - b, s - c};
        for (int i = 0; i < 3; ++i) kreis(E[i], r[i], kBraun);
    }
    zeigePunkt("Lémoine-Punkt", nLemoine, kRot, "L");
    zeigePunkt("Feuerbach-Inkreis-Punkt", nFeuerbach, kLila);

    // squares on the sides, drawn outward; their centres for the Vecten family
    for (int i = 0; i < 3; ++i) {
        const Pkt p = E[(i + 1) % 3], q = E[(i + 2) % 3], o = E[i];
        Pkt n{-(q - p).y, (q - p).x};
        if (SameSide(p + n, o, p, q)) n = n * -1.0;
        t.setze(nQuadrat + i, mitte(p, q) + n * 0.5);
        gueltig[nQuadrat + i] = true;
        if (an("Seitenquadrate")) {
            if (an("Seitenquadrate ausfüllen")) flaeche({p, q, q + n, p + n}, 0xE0FFE0);
            strecke(q, q + n, kGruen);
            strecke(q + n, p + n, kGruen);
            strecke(p + n, p, kGruen);
        }
        if (an("Seitenquadrat-Schwerpunkt")) {
            punkt(t[nQuadrat + i], "", kGruen);
            zeilePunkt(std::string("Seitenquadrat-Schwerpunkt ") + kl[i], t[nQuadrat + i]);
        }
    }
}

}  // namespace geo
