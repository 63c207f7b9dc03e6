#include "geometry/polyeder.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

namespace poly {

namespace {

Punkt minus(const Punkt& a, const Punkt& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Punkt plus(const Punkt& a, const Punkt& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Punkt mal(const Punkt& a, double f) { return {a.x * f, a.y * f, a.z * f}; }
double punkt(const Punkt& a, const Punkt& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Punkt kreuz(const Punkt& a, const Punkt& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double laenge(const Punkt& a) { return std::sqrt(punkt(a, a)); }

std::string ohneRand(const std::string& s)
{
    const auto a = s.find_first_not_of(" \t\r");
    if (a == std::string::npos) return "";
    const auto b = s.find_last_not_of(" \t\r");
    return s.substr(a, b - a + 1);
}

// Line index of the family's key "{n"; family 5 has the key "{7".
int sucheSchluessel(const std::vector<std::string>& z, int art)
{
    const std::string key = "{" + std::to_string(art == Sternkoerper ? 7 : art);
    for (size_t i = 0; i < z.size(); ++i)
        if (ohneRand(z[i]) == key) return static_cast<int>(i);
    return -1;
}

// End of a family's block: the next "{" or the end of the list.
int blockEnde(const std::vector<std::string>& z, int start)
{
    for (size_t i = start + 1; i < z.size(); ++i)
        if (!ohneRand(z[i]).empty() && ohneRand(z[i])[0] == '{') return static_cast<int>(i);
    return static_cast<int>(z.size());
}

std::vector<std::string> rohNamen(const std::vector<std::string>& z, int art)
{
    std::vector<std::string> namen;
    const int k = sucheSchluessel(z, art);
    if (k < 0) return namen;
    const int ende = blockEnde(z, k);
    for (int i = k + 1; i < ende; ++i) {
        const std::string s = ohneRand(z[i]);
        if (s.empty() || s[0] == ';') continue;
        if (s[0] == '[') break;
        namen.push_back(s);
    }
    return namen;
}

double skalaVon(const std::vector<Punkt>& p)
{
    double r = 0;
    for (const Punkt& q : p) r = std::max(r, laenge(q));
    return r > 0 ? r : 1;
}

}  // namespace

const std::vector<std::string>& artNamen()
{
    static const std::vector<std::string> n = {"Polyeder",          "Krummlinige Körper",
                                               "Archimedische Körper", "Johnson-Polyeder",
                                               "Abstumpfungen",     "Sternkörperbildung"};
    return n;
}

std::vector<std::string> koerperNamen(const std::vector<std::string>& zeilen, int art)
{
    std::vector<std::string> n = rohNamen(zeilen, art);
    if (art == Abstumpfungen)
        for (auto& s : n) s += " Abstumpfung";
    return n;
}

bool leseKoerper(const std::vector<std::string>& zeilen, int art, int index, Koerper& k)
{
    k = Koerper{};
    const std::vector<std::string> namen = rohNamen(zeilen, art);
    if (index < 0 || index >= static_cast<int>(namen.size())) return false;
    const int start = sucheSchluessel(zeilen, art);
    const int ende = blockEnde(zeilen, start);
    const std::string sektion =
        "[" + std::string(art >= Archimedisch ? "0" : "") + std::to_string(index + 1) + "]";
    for (int i = start + 1; i < ende; ++i) {
        if (ohneRand(zeilen[i]) != sektion) continue;
        if (i + 1 >= ende) return false;
        const int anzahl = std::atoi(ohneRand(zeilen[i + 1]).c_str());
        if (anzahl <= 3 || i + 1 + anzahl >= ende) return false;
        std::vector<Punkt> ecken;
        for (int j = 0; j < anzahl; ++j) {
            std::istringstream in(zeilen[i + 2 + j]);
            Punkt p;
            if (!(in >> p.x >> p.y >> p.z)) return false;
            ecken.push_back(p);
        }
        // optional face lines "F i j k ..." (1-based) for solids that are not convex
        std::vector<std::vector<int>> flaechen;
        for (int j = i + 2 + anzahl; j < ende; ++j) {
            const std::string s = ohneRand(zeilen[j]);
            if (s.empty() || s[0] != 'F') break;
            std::istringstream in(s.substr(1));
            std::vector<int> f;
            for (int v; in >> v;) {
                if (v < 1 || v > anzahl) return false;
                f.push_back(v - 1);
            }
            if (f.size() < 3) return false;
            flaechen.push_back(f);
        }
        if (flaechen.empty()) {
            k = konvexerKoerper(namen[index], std::move(ecken));
        } else {
            k.name = namen[index];
            k.ecken = std::move(ecken);
            k.flaechen = std::move(flaechen);
            berechneMitten(k);
        }
        return !k.flaechen.empty();
    }
    return false;
}

bool sucheKoerper(const std::vector<std::string>& zeilen, const std::string& name, Koerper& k)
{
    for (int art = 0; art <= Sternkoerper; ++art) {
        const auto namen = rohNamen(zeilen, art);
        for (size_t i = 0; i < namen.size(); ++i)
            if (namen[i] == name) return leseKoerper(zeilen, art, static_cast<int>(i), k);
    }
    return false;
}

Koerper konvexerKoerper(const std::string& name, std::vector<Punkt> roh)
{
    Koerper k;
    k.name = name;
    const double eps = 1e-7 * skalaVon(roh);
    for (const Punkt& p : roh) {
        bool neu = true;
        for (const Punkt& q : k.ecken)
            if (laenge(minus(p, q)) < eps) neu = false;
        if (neu) k.ecken.push_back(p);
    }
    const auto& e = k.ecken;
    const int n = static_cast<int>(e.size());
    struct Ebene {
        Punkt n;
        double d;
    };
    std::vector<Ebene> ebenen;
    // Every plane through three vertices with all vertices on one side is a face plane; the
    // sizes here (at most a few hundred vertices) make the plain search fast enough.
    for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j)
            for (int l = j + 1; l < n; ++l) {
                Punkt nv = kreuz(minus(e[j], e[i]), minus(e[l], e[i]));
                const double len = laenge(nv);
                if (len < eps * eps * 1e-2 || len < 1e-12) continue;
                nv = mal(nv, 1 / len);
                double d = punkt(nv, e[i]);
                bool ueber = false, unter = false;
                for (int m = 0; m < n && !(ueber && unter); ++m) {
                    const double s = punkt(nv, e[m]) - d;
                    if (s > eps) ueber = true;
                    if (s < -eps) unter = true;
                }
                if (ueber && unter) continue;
                if (ueber) {
                    nv = mal(nv, -1);
                    d = -d;
                }
                bool bekannt = false;
                for (const Ebene& b : ebenen)
                    if (laenge(minus(b.n, nv)) < 1e-6 && std::fabs(b.d - d) < eps) bekannt = true;
                if (!bekannt) ebenen.push_back({nv, d});
            }
    for (const Ebene& b : ebenen) {
        std::vector<int> f;
        Punkt c;
        for (int m = 0; m < n; ++m)
            if (std::fabs(punkt(b.n, e[m]) - b.d) < eps) {
                f.push_back(m);
                c = plus(c, e[m]);
            }
        if (f.size() < 3) continue;
        c = mal(c, 1.0 / f.size());
        const Punkt u = mal(minus(e[f[0]], c), 1 / laenge(minus(e[f[0]], c)));
        const Punkt v = kreuz(b.n, u);
        std::sort(f.begin(), f.end(), [&](int p, int q) {
            const Punkt a = minus(e[p], c), bb = minus(e[q], c);
            return std::atan2(punkt(a, v), punkt(a, u)) < std::atan2(punkt(bb, v), punkt(bb, u));
        });
        k.flaechen.push_back(f);
    }
    berechneMitten(k);
    return k;
}

void berechneMitten(Koerper& k)
{
    k.mitten.clear();
    for (const auto& f : k.flaechen) {
        Punkt c;
        for (int i : f) c = plus(c, k.ecken[i]);
        k.mitten.push_back(mal(c, 1.0 / f.size()));
    }
}

std::vector<Kante> kanten(const Koerper& k)
{
    std::map<std::pair<int, int>, bool> gesehen;
    std::vector<Kante> r;
    for (const auto& f : k.flaechen)
        for (size_t i = 0; i < f.size(); ++i) {
            int a = f[i], b = f[(i + 1) % f.size()];
            if (a > b) std::swap(a, b);
            if (gesehen.emplace(std::make_pair(a, b), true).second) r.push_back({a, b});
        }
    return r;
}

Punkt normale(const Koerper& k, int f)
{
    // Newell's sum: robust for any planar polygon, sized by twice the area
    Punkt n;
    const auto& fl = k.flaechen[f];
    for (size_t i = 0; i < fl.size(); ++i) n = plus(n, kreuz(k.ecken[fl[i]], k.ecken[fl[(i + 1) % fl.size()]]));
    return n;
}

double oberflaeche(const Koerper& k)
{
    double s = 0;
    for (size_t f = 0; f < k.flaechen.size(); ++f) s += laenge(normale(k, static_cast<int>(f))) / 2;
    return s;
}

double volumen(const Koerper& k)
{
    // Divergence theorem: each face contributes its area vector times a point of it, over 3
    double v = 0;
    for (size_t f = 0; f < k.flaechen.size(); ++f)
        v += punkt(normale(k, static_cast<int>(f)), k.ecken[k.flaechen[f][0]]) / 6;
    return v;
}

double umkugelradius(const Koerper& k) { return k.ecken.empty() ? 0 : skalaVon(k.ecken); }

void kantenlaengen(const Koerper& k, double& kleinste, double& groesste)
{
    kleinste = groesste = 0;
    bool erste = true;
    for (const Kante& e : kanten(k)) {
        const double l = laenge(minus(k.ecken[e.a], k.ecken[e.b]));
        kleinste = erste ? l : std::min(kleinste, l);
        groesste = erste ? l : std::max(groesste, l);
        erste = false;
    }
}

void skaliere(Koerper& k, double groesse)
{
    if (k.ecken.empty()) return;
    const double f = groesse / skalaVon(k.ecken);
    for (Punkt& p : k.ecken) p = mal(p, f);
    for (Punkt& p : k.mitten) p = mal(p, f);
}

void drehen(Koerper& k, double a, double b, double c)
{
    const double g = 0.017453292519943295;
    const double ca = std::cos(a * g), sa = std::sin(a * g);
    const double cb = std::cos(b * g), sb = std::sin(b * g);
    const double cc = std::cos(c * g), sc = std::sin(c * g);
    auto dreh = [](double& u, double& v, double co, double si) {
        const double nu = co * u - si * v;
        v = si * u + co * v;
        u = nu;
    };
    auto alle = [&](std::vector<Punkt>& ps) {
        for (Punkt& p : ps) {
            dreh(p.x, p.y, cc, sc);
            dreh(p.y, p.z, cb, sb);
            dreh(p.x, p.z, ca, sa);
        }
    };
    alle(k.ecken);
    alle(k.mitten);
}

Koerper abstumpfen(const Koerper& k, double t)
{
    t = std::clamp(t, 0.0, 0.5);
    std::vector<Punkt> p;
    for (const Kante& e : kanten(k)) {
        const Punkt d = minus(k.ecken[e.b], k.ecken[e.a]);
        p.push_back(plus(k.ecken[e.a], mal(d, t)));
        p.push_back(minus(k.ecken[e.b], mal(d, t)));
    }
    return konvexerKoerper(k.name, std::move(p));
}

Koerper sternkoerper(const Koerper& k, double t)
{
    t = std::clamp(t, 0.0, 0.5);
    if (t <= 0) return k;
    Koerper s;
    s.name = k.name;
    s.ecken = k.ecken;
    for (size_t f = 0; f < k.flaechen.size(); ++f) {
        const auto& fl = k.flaechen[f];
        Punkt c;
        for (int i : fl) c = plus(c, k.ecken[i]);
        c = mal(c, 1.0 / fl.size());
        const double kante = laenge(minus(k.ecken[fl[0]], k.ecken[fl[1]]));
        const double r = laenge(minus(k.ecken[fl[0]], c));
        const double h = 2 * t * std::sqrt(std::max(0.0, kante * kante - r * r));
        Punkt n = normale(k, static_cast<int>(f));
        n = mal(n, 1 / laenge(n));
        const int spitze = static_cast<int>(s.ecken.size());
        s.ecken.push_back(plus(c, mal(n, h)));
        for (size_t i = 0; i < fl.size(); ++i)
            s.flaechen.push_back({fl[i], fl[(i + 1) % fl.size()], spitze});
    }
    berechneMitten(s);
    return s;
}

std::vector<int> zeichenreihenfolge(const Koerper& k)
{
    std::vector<int> rest(k.mitten.size());
    for (size_t i = 0; i < rest.size(); ++i) rest[i] = static_cast<int>(i);
    std::vector<int> r;
    while (!rest.empty()) {
        size_t best = 0;
        for (size_t i = 1; i < rest.size(); ++i)
            if (k.mitten[rest[i]].z > k.mitten[rest[best]].z) best = i;
        r.push_back(rest[best]);
        rest.erase(rest.begin() + best);
    }
    return r;
}

bool sichtbar(const Koerper& k, int f) { return normale(k, f).z < 0; }

Punkt tafelpunkt(const Punkt& p, Tafel t)
{
    switch (t) {
    case Tafel::Aufriss: return {p.x, p.y, p.z};
    case Tafel::Grundriss: return {p.x, -p.z, p.y};
    case Tafel::Seitenriss: return {-p.z, p.y, p.x};
    }
    return p;
}

Koerper ansicht(const Koerper& k, Tafel t)
{
    Koerper r = k;
    for (Punkt& p : r.ecken) p = tafelpunkt(p, t);
    for (Punkt& p : r.mitten) p = tafelpunkt(p, t);
    return r;
}

}  // namespace poly
