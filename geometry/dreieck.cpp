#include "geometry/dreieck.h"

#include "geometry/dreieckintern.h"
#include "kernel/realtostr.h"

#include <cmath>

namespace geo {

using platform::TColor;

std::string Rechner::zahl(double v, int stellen) { return kernel::RealToStr(1, stellen, v); }

std::string Rechner::xy(Pkt p) const
{
    const double e = 100 * ansicht.faktor;
    return "( " + zahl((p.x - ansicht.x0) / e) + " | " + zahl((ansicht.y0 - p.y) / e) + " )";
}

double Rechner::einheiten(double pixel) const { return pixel / (100 * ansicht.faktor); }

void Rechner::zeile(const std::string& label, const std::string& wert)
{
    if (!ansicht.ergebnisse) return;
    std::string l = label.empty() ? letzterLabel : label;
    letzterLabel = l;
    szene.zeilen.push_back(l + "\t" + wert);
}

void Rechner::zeilePunkt(const std::string& label, Pkt p)
{
    if (!ansicht.ergebnisse) return;
    std::string w = xy(p);
    std::string tri;
    if (ansicht.trilinear && trilinearText(p, t[nA], t[nB], t[nC], tri)) w += " ; trilinear " + tri;
    zeile(label, w);
}

void Rechner::zeileStrecke(const std::string& label, double pixel) { zeile(label, zahl(einheiten(pixel))); }
void Rechner::zeileWert(const std::string& label, double v) { zeile(label, zahl(v, 3)); }

void Rechner::zeileKreis(const std::string& label, Pkt m, double r)
{
    const double re = einheiten(r);
    zeile(label + " " + kEll + "Mittelpunkt", xy(m));
    zeile(label + " " + kEll + "Radius", zahl(re));
    zeile(label + " " + kEll + "Flächeninhalt", zahl(3.141592653589793 * re * re));
}

void Rechner::zeileGerade(const std::string& label, Pkt p, Pkt q)
{
    const double e = 100 * ansicht.faktor;
    const double x1 = (p.x - ansicht.x0) / e, y1 = (ansicht.y0 - p.y) / e;
    const double x2 = (q.x - ansicht.x0) / e, y2 = (ansicht.y0 - q.y) / e;
    std::string w;
    double winkel;
    if (std::fabs(x1 - x2) <= 1e-8) {
        w = "X = " + zahl(x1);
        winkel = 90;
    } else {
        const double m = (y2 - y1) / (x2 - x1);
        const double n = y1 - m * x1;
        if (std::fabs(m) < 1e-12) {
            w = "Y = " + zahl(n);
            winkel = 0;
        } else {
            w = "Y = " + zahl(m) + " X " + (n < 0 ? "- " : "+ ") + zahl(std::fabs(n));
            winkel = std::atan(m) * 180 / 3.141592653589793;
        }
    }
    zeile(label, w + " ; Anstiegswinkel " + zahl(winkel, 3) + "°");
}

void Rechner::zeileDreieck(const std::string& name, Pkt p, Pkt q, Pkt r)
{
    if (!ansicht.ergebnisse) return;
    szene.zeilen.push_back(name + "-Dreieck");
    const Pkt e[3] = {p, q, r};
    for (int i = 0; i < 3; ++i) zeileGerade(name + " " + kEll + "Dreiecksseite", e[i], e[(i + 1) % 3]);
    double l[3];
    for (int i = 0; i < 3; ++i) {
        l[i] = abstand(e[(i + 1) % 3], e[(i + 2) % 3]);
        zeileStrecke(name + " " + kEll + "Dreiecksseitenlänge", l[i]);
    }
    zeileStrecke(name + " " + kEll + "Dreiecksumfang", l[0] + l[1] + l[2]);
    const double F = std::fabs((q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x)) / 2;
    zeile(name + " " + kEll + "Dreiecksflächeninhalt", zahl(einheiten(einheiten(F))));
    for (int i = 0; i < 3; ++i) {
        const double a = l[i], b = l[(i + 1) % 3], c = l[(i + 2) % 3];
        const double n = 2 * b * c;
        const double k = n == 0 ? 2 : (b * b + c * c - a * a) / n;
        const double w = std::fabs(k) > 1 ? 180 : std::acos(k) * 180 / 3.141592653589793;
        zeileWert(name + " " + kEll + "Innenwinkel in °", w);
    }
}

// ---- drawing records

void Rechner::punkt(Pkt p, const std::string& text, TColor farbe)
{
    Element e;
    e.art = Element::Punkt;
    e.p = {p};
    e.text = text;
    e.farbe = farbe;
    szene.elemente.push_back(std::move(e));
}

void Rechner::strecke(Pkt p, Pkt q, TColor farbe, bool gestrichelt)
{
    Element e;
    e.art = Element::Strecke;
    e.p = {p, q};
    e.farbe = farbe;
    e.gestrichelt = gestrichelt;
    szene.elemente.push_back(std::move(e));
}

void Rechner::gerade(Pkt p, Pkt q, TColor farbe)
{
    const double l = abstand(p, q);
    if (l == 0) return;
    // long enough to cross any panel
    const Pkt d = (q - p) * (4000.0 / l);
    strecke(p - d, q + d, farbe);
}

void Rechner::kreis(Pkt m, double r, TColor farbe)
{
    if (!(r > 0) || !std::isfinite(r)) return;
    Element e;
    e.art = Element::Kreis;
    e.p = {m};
    e.r = r;
    e.farbe = farbe;
    szene.elemente.push_back(std::move(e));
}

void Rechner::flaeche(std::vector<Pkt> p, TColor farbe)
{
    Element e;
    e.art = Element::Flaeche;
    e.p = std::move(p);
    e.farbe = farbe;
    szene.elemente.push_back(std::move(e));
}

void Rechner::kurve(std::vector<Pkt> p, TColor farbe, Element::Art art)
{
    Element e;
    e.art = art;
    e.p = std::move(p);
    e.farbe = farbe;
    szene.elemente.push_back(std::move(e));
}

void Rechner::dreieck(Pkt p, Pkt q, Pkt r, const std::string& name, TColor farbe)
{
    strecke(p, q, farbe);
    strecke(q, r, farbe);
    strecke(r, p, farbe);
    zeileDreieck(name, p, q, r);
}

bool Rechner::trilinear(int nr, double u, double v, double w)
{
    Pkt P;
    if (!std::isfinite(u) || !std::isfinite(v) || !std::isfinite(w)) return false;
    if (!TrilinearToPoint(u, v, w, t[nA], t[nB], t[nC], P)) return false;
    t.setze(nr, P);
    gueltig[nr] = true;
    return true;
}

bool Rechner::zeigePunkt(const std::string& name, int nr, TColor farbe, const std::string& marke)
{
    if (!an(name) || !gueltig[nr]) return false;
    punkt(t[nr], marke, farbe);
    zeilePunkt(name, t[nr]);
    return true;
}

// ---- basic computation

bool Rechner::grundrechnung()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    a = abstand(B, C);
    b = abstand(C, A);
    c = abstand(A, B);
    szene.a = einheiten(a);
    szene.b = einheiten(b);
    szene.c = einheiten(c);
    if (a * b * c == 0) return false;
    auto winkel = [](double a, double b, double c) {
        const double n = -2 * b * c;
        if (n == 0) return M_PI;
        const double q = (a * a - b * b - c * c) / n;
        return std::fabs(q) > 1 ? M_PI : std::acos(q);
    };
    al = winkel(a, b, c);
    be = winkel(b, c, a);
    ga = winkel(c, a, b);
    s = (a + b + c) / 2;
    const double h = s * (s - a) * (s - b) * (s - c);
    F = h > 0 ? std::sqrt(h) : 0;
    szene.alpha = al;
    szene.beta = be;
    szene.gamma = ga;
    szene.umfang = einheiten(2 * s);
    szene.flaeche = einheiten(einheiten(F));
    return true;
}

void Rechner::grundpunkte()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    for (int i = 1; i <= 3; ++i) gueltig[i] = true;
    t.setze(nMa, mitte(B, C));
    t.setze(nMb, mitte(C, A));
    t.setze(nMc, mitte(A, B));
    gueltig[nMa] = gueltig[nMb] = gueltig[nMc] = true;
    t.setze(nS, (A + B + C) * (1.0 / 3));
    gueltig[nS] = true;
    trilinear(nI, 1, 1, 1);
    Pkt m;
    double r;
    if (Kreis3(A, B, C, m, r)) {
        t.setze(nU, m);
        gueltig[nU] = true;
        R = r;
        // H = A + B + C - 2U holds for every triangle
        t.setze(nH, A + B + C - m * 2);
        gueltig[nH] = true;
        t.setze(nN, mitte(m, t[nH]));
        gueltig[nN] = true;
    }
    if (F > 0) rho = F / s;
    // contact points of the incircle; a zero s - a puts the point on the merging vertex
    auto kontakt = [&](int nr, Pkt P, Pkt Q, double dist, double seite) {
        t.setze(nr, seite == 0 ? P : P + (Q - P) * (dist / seite));
        gueltig[nr] = true;
    };
    kontakt(nKa, B, C, s - b, a);
    kontakt(nKb, C, A, s - c, b);
    kontakt(nKc, A, B, s - a, c);
    // bisector feet
    if (b + c != 0) { t.setze(nWa, B + (C - B) * (c / (c + b))); gueltig[nWa] = true; }
    if (c + a != 0) { t.setze(nWb, C + (A - C) * (a / (a + c))); gueltig[nWb] = true; }
    if (a + b != 0) { t.setze(nWc, A + (B - A) * (b / (b + a))); gueltig[nWc] = true; }
    // altitude feet
    t.setze(nHa, Lotfusspunkt(A, B, C));
    t.setze(nHb, Lotfusspunkt(B, C, A));
    t.setze(nHc, Lotfusspunkt(C, A, B));
    gueltig[nHa] = gueltig[nHb] = gueltig[nHc] = true;
    trilinear(nIa, -1, 1, 1);
    trilinear(nIb, 1, -1, 1);
    trilinear(nIc, 1, 1, -1);
    trilinear(nLemoine, a, b, c);
}

void Rechner::grundzeilen()
{
    zeileStrecke("Seite a", a);
    zeileStrecke("Seite b", b);
    zeileStrecke("Seite c", c);
    const double g = 57.29577951308232;
    zeileWert("Innenwinkel Alpha in °", al * g);
    zeileWert("Innenwinkel Beta in °", be * g);
    zeileWert("Innenwinkel Gamma in °", ga * g);
    zeileStrecke("Umfang", 2 * s);
    zeile("Flächeninhalt", zahl(einheiten(einheiten(F))));
    const double q = a * a * b * b + b * b * c * c + c * c * a * a;
    if (q > 0) {
        const double x = 2 * F / std::sqrt(q);
        if (std::fabs(x) <= 1) {
            omega = std::asin(x);
            zeileWert("Brocard-Winkel in °", omega * g);
        }
    }
    if (rho > 0) zeileStrecke("Inkreisradius", rho);
    if (R > 0) zeileStrecke("Umkreisradius", R);
}

Rechner::Rechner(PointTable& tab, const Auswahl& aw, const Ansicht& v, Szene& sz)
    : t(tab), auswahl(aw), ansicht(v), szene(sz)
{
}

void Rechner::lauf()
{
    const Pkt A = t[nA], B = t[nB], C = t[nC];
    if (an("Dreieck ausfüllen")) flaeche({A, B, C}, 0xF0F0F0);
    if (!grundrechnung()) {
        szene.entartet = true;
        ecken();
        return;
    }
    grundpunkte();
    grundzeilen();
    allgemein();
    zentren();
    familien();
    kegelschnitte();
    lotdreiecke();
    ecken();
}

void Rechner::ecken()
{
    static const char* name[3] = {"A", "B", "C"};
    for (int i = 0; i < 3; ++i) {
        punkt(t[nA + i], name[i], platform::clBlack);
        if (an(std::string("Punkt ") + name[i])) zeilePunkt(std::string("Punkt ") + name[i], t[nA + i]);
    }
}

Szene berechneDreieck(PointTable& t, const Auswahl& an, const Ansicht& v)
{
    Szene sz;
    Rechner r(t, an, v, sz);
    r.lauf();
    return sz;
}

bool trilinearText(Pkt P, Pkt A, Pkt B, Pkt C, std::string& text)
{
    double d[3] = {std::fabs(SignedDistance(P, A, B, C)), std::fabs(SignedDistance(P, B, C, A)),
                   std::fabs(SignedDistance(P, C, A, B))};
    const double m = std::max(d[0], std::max(d[1], d[2]));
    if (m == 0) return false;
    text = "(" + kernel::RealToStr(1, 4, d[0] / m) + " : " + kernel::RealToStr(1, 4, d[1] / m) + " : " +
           kernel::RealToStr(1, 4, d[2] / m) + ")";
    return true;
}

}  // namespace geo
