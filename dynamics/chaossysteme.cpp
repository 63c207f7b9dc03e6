#include "dynamics/chaossysteme.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>

namespace chaos {

namespace {

constexpr double kPi = 3.14159265358979323846;
// Densities stop short of the end of a palette, where the cyclic tables turn dark again.
constexpr int kDichteGrenze = 200;

// A small generator with a fixed sequence per seed, so pictures and tests repeat.
struct Zufall {
    std::uint64_t s;
    explicit Zufall(std::uint64_t k) : s(k ? k : 1) {}
    std::uint64_t next()
    {
        std::uint64_t z = (s += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    double gleich() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }
    int bis(int n) { return static_cast<int>(next() % static_cast<std::uint64_t>(n)); }
};

bool zahl(const std::string& s, double& v)
{
    std::string t = s;
    for (char& c : t)
        if (c == ',') c = '.';
    char* end = nullptr;
    v = std::strtod(t.c_str(), &end);
    return end != t.c_str() && std::isfinite(v);
}

std::vector<double> zahlen(std::istringstream& in)
{
    std::vector<double> v;
    std::string w;
    double d;
    while (in >> w) {
        if (!zahl(w, d)) break;
        v.push_back(d);
    }
    return v;
}

bool istPrim(long long n)
{
    if (n < 2) return false;
    if (n % 2 == 0) return n == 2;
    for (long long d = 3; d * d <= n; d += 2)
        if (n % d == 0) return false;
    return true;
}

double logistik(double r, double x) { return r * x * (1 - x); }

}  // namespace

Zeichenmodus zeichenmodusAusText(const std::string& s)
{
    if (s == "XOR") return Zeichenmodus::XOR;
    if (s == "AND") return Zeichenmodus::AND;
    if (s == "OR") return Zeichenmodus::OR;
    if (s == "NOR") return Zeichenmodus::NOR;
    return Zeichenmodus::Setzen;
}

bool Punktraster::pixel(int px, int py, std::uint8_t w)
{
    if (px < 0 || py < 0 || px >= raster.breite || py >= raster.hoehe) {
        ++daneben;
        return false;
    }
    std::uint8_t& z = raster.at(px, py);
    switch (modus) {
    case Zeichenmodus::Setzen: z = w; break;
    case Zeichenmodus::XOR: z ^= w; break;
    case Zeichenmodus::AND: z = z ? static_cast<std::uint8_t>(z & w) : w; break;
    case Zeichenmodus::OR: z |= w; break;
    case Zeichenmodus::NOR: z = static_cast<std::uint8_t>(~(z | w)); break;
    }
    ++gesetzt;
    return true;
}

bool Punktraster::punkt(double x, double y, std::uint8_t w)
{
    const double bx = (x - ansicht.xmin) / (ansicht.xmax - ansicht.xmin) * raster.breite;
    const double by = (ansicht.ymax - y) / (ansicht.ymax - ansicht.ymin) * raster.hoehe;
    if (!(bx >= 0 && by >= 0 && bx < raster.breite && by < raster.hoehe)) {
        ++daneben;
        return false;
    }
    return pixel(static_cast<int>(bx), static_cast<int>(by), w);
}

bool Punktraster::treffer(double x, double y, int schritt)
{
    const double bx = (x - ansicht.xmin) / (ansicht.xmax - ansicht.xmin) * raster.breite;
    const double by = (ansicht.ymax - y) / (ansicht.ymax - ansicht.ymin) * raster.hoehe;
    if (!(bx >= 0 && by >= 0 && bx < raster.breite && by < raster.hoehe)) {
        ++daneben;
        return false;
    }
    std::uint8_t& z = raster.at(static_cast<int>(bx), static_cast<int>(by));
    z = static_cast<std::uint8_t>(std::min(kDichteGrenze, z + schritt));
    ++gesetzt;
    return true;
}

void Punktraster::linie(double x1, double y1, double x2, double y2, std::uint8_t w)
{
    const double sx = raster.breite / (ansicht.xmax - ansicht.xmin);
    const double sy = raster.hoehe / (ansicht.ymax - ansicht.ymin);
    const int n = static_cast<int>(std::min(4000.0, std::max(std::fabs(x2 - x1) * sx, std::fabs(y2 - y1) * sy))) + 1;
    for (int i = 0; i <= n; ++i) {
        const double t = static_cast<double>(i) / n;
        punkt(x1 + (x2 - x1) * t, y1 + (y2 - y1) * t, w);
    }
}

void Punktraster::kreis(double mx, double my, double r, std::uint8_t w)
{
    const double s = raster.breite / (ansicht.xmax - ansicht.xmin);
    const int n = std::clamp(static_cast<int>(2 * kPi * r * s * 1.5), 8, 20000);
    for (int i = 0; i < n; ++i) {
        const double t = 2 * kPi * i / n;
        punkt(mx + r * std::cos(t), my + r * std::sin(t), w);
    }
}

// ---- IFS

std::vector<Affin> leseIfs(const std::vector<std::string>& zeilen)
{
    std::vector<Affin> maps;
    for (const std::string& z : zeilen) {
        std::istringstream in(z);
        const std::vector<double> v = zahlen(in);
        if (v.size() < 6) continue;
        Affin m{v[0], v[1], v[2], v[3], v[4], v[5], v.size() > 6 ? v[6] : 0.0};
        maps.push_back(m);
        if (maps.size() == 8) break;
    }
    double summe = 0;
    bool fehlt = false;
    for (const Affin& m : maps) {
        if (m.p <= 0) fehlt = true;
        summe += std::max(0.0, m.p);
    }
    if (fehlt || summe <= 0) {
        // an area-proportional choice fills every part of the attractor evenly
        summe = 0;
        for (Affin& m : maps) {
            m.p = std::max(0.01, std::fabs(m.a * m.d - m.b * m.c));
            summe += m.p;
        }
    }
    for (Affin& m : maps) m.p /= summe;
    return maps;
}

void ifsSpiel(const std::vector<Affin>& maps, long long n, std::uint64_t keim, const IfsPunkt& treffer)
{
    if (maps.empty()) return;
    Zufall z(keim);
    double x = 0, y = 0;
    for (long long i = -20; i < n; ++i) {
        const double u = z.gleich();
        double kum = 0;
        int k = static_cast<int>(maps.size()) - 1;
        for (int j = 0; j < static_cast<int>(maps.size()); ++j) {
            kum += maps[static_cast<std::size_t>(j)].p;
            if (u < kum) {
                k = j;
                break;
            }
        }
        const Affin& m = maps[static_cast<std::size_t>(k)];
        const double nx = m.a * x + m.b * y + m.e;
        y = m.c * x + m.d * y + m.f;
        x = nx;
        if (i >= 0 && !treffer(x, y, k)) return;
    }
}

Ansicht ifsRahmen(const std::vector<Affin>& maps, long long n, std::uint64_t keim)
{
    Ansicht r{1e300, -1e300, 1e300, -1e300};
    ifsSpiel(maps, n, keim, [&](double x, double y, int) {
        r.xmin = std::min(r.xmin, x);
        r.xmax = std::max(r.xmax, x);
        r.ymin = std::min(r.ymin, y);
        r.ymax = std::max(r.ymax, y);
        return true;
    });
    return r;
}

// ---- Iterative systems

const std::vector<std::string>& systemnamen()
{
    static const std::vector<std::string> n = {"henon",      "lozi",        "ikeda",    "clifford",
                                               "dejong",     "tinkerbell",  "gingerbread", "standard",
                                               "lorenz",     "roessler",    "quadratisch"};
    return n;
}

bool leseSystemcode(const std::string& zeile, Systemcode& code)
{
    std::istringstream in(zeile);
    std::string name;
    if (!(in >> name)) return false;
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    const auto& l = systemnamen();
    if (std::find(l.begin(), l.end(), name) == l.end()) return false;
    code.name = name;
    code.p = zahlen(in);
    // usual parameters where the code gives none
    auto vorgabe = [&](std::vector<double> d) {
        for (std::size_t i = code.p.size(); i < d.size(); ++i) code.p.push_back(d[i]);
    };
    if (name == "henon") vorgabe({1.4, 0.3});
    else if (name == "lozi") vorgabe({1.7, 0.5});
    else if (name == "ikeda") vorgabe({0.9});
    else if (name == "clifford") vorgabe({-1.4, 1.6, 1.0, 0.7});
    else if (name == "dejong") vorgabe({1.4, -2.3, 2.4, -2.1});
    else if (name == "tinkerbell") vorgabe({0.9, -0.6013, 2.0, 0.5});
    else if (name == "standard") vorgabe({0.97});
    else if (name == "lorenz") vorgabe({10, 28, 8.0 / 3});
    else if (name == "roessler") vorgabe({0.2, 0.2, 5.7});
    else if (name == "quadratisch") vorgabe(std::vector<double>(12, 0.0));
    return true;
}

bool iteriereSystem(const Systemcode& code, long long n, const Bahnpunkt& punkt)
{
    const std::string& s = code.name;
    const std::vector<double>& p = code.p;
    const long long vorlauf = 100;
    if (s == "lorenz" || s == "roessler") {
        const bool lorenz = s == "lorenz";
        double v[3] = {1, 1, 1};
        auto f = [&](const double* a, double* d) {
            if (lorenz) {
                d[0] = p[0] * (a[1] - a[0]);
                d[1] = a[0] * (p[1] - a[2]) - a[1];
                d[2] = a[0] * a[1] - p[2] * a[2];
            } else {
                d[0] = -a[1] - a[2];
                d[1] = a[0] + p[0] * a[1];
                d[2] = p[1] + a[2] * (a[0] - p[2]);
            }
        };
        const double h = lorenz ? 0.005 : 0.02;
        for (long long i = -vorlauf * 10; i < n; ++i) {
            double k1[3], k2[3], k3[3], k4[3], t[3];
            f(v, k1);
            for (int j = 0; j < 3; ++j) t[j] = v[j] + h / 2 * k1[j];
            f(t, k2);
            for (int j = 0; j < 3; ++j) t[j] = v[j] + h / 2 * k2[j];
            f(t, k3);
            for (int j = 0; j < 3; ++j) t[j] = v[j] + h * k3[j];
            f(t, k4);
            for (int j = 0; j < 3; ++j) v[j] += h / 6 * (k1[j] + 2 * k2[j] + 2 * k3[j] + k4[j]);
            if (!(std::fabs(v[0]) + std::fabs(v[1]) + std::fabs(v[2]) < 1e6)) return false;
            if (i >= 0 && !punkt(v[0], lorenz ? v[2] : v[1])) return true;
        }
        return true;
    }
    if (s == "standard") {
        // many orbits of the kicked rotor, each a few hundred points, on the torus [0, 2pi)^2
        const int bahnen = 60;
        const long long jeBahn = std::max<long long>(1, n / bahnen);
        for (int b = 0; b < bahnen; ++b) {
            double th = 2 * kPi * (b % 10 + 0.5) / 10, q = 2 * kPi * (b / 10 + 0.5) / 6;
            for (long long i = 0; i < jeBahn; ++i) {
                q = std::fmod(q + p[0] * std::sin(th) + 2 * kPi, 2 * kPi);
                th = std::fmod(th + q + 2 * kPi, 2 * kPi);
                if (!punkt(th, q)) return true;
            }
        }
        return true;
    }
    double x = 0.1, y = 0.1;
    if (s == "tinkerbell") x = -0.72, y = -0.64;
    if (s == "gingerbread") x = -0.1, y = 0;
    for (long long i = -vorlauf; i < n; ++i) {
        double nx, ny;
        if (s == "henon") {
            nx = 1 - p[0] * x * x + y;
            ny = p[1] * x;
        } else if (s == "lozi") {
            nx = 1 - p[0] * std::fabs(x) + y;
            ny = p[1] * x;
        } else if (s == "ikeda") {
            const double t = 0.4 - 6 / (1 + x * x + y * y);
            nx = 1 + p[0] * (x * std::cos(t) - y * std::sin(t));
            ny = p[0] * (x * std::sin(t) + y * std::cos(t));
        } else if (s == "clifford") {
            nx = std::sin(p[0] * y) + p[2] * std::cos(p[0] * x);
            ny = std::sin(p[1] * x) + p[3] * std::cos(p[1] * y);
        } else if (s == "dejong") {
            nx = std::sin(p[0] * y) - std::cos(p[1] * x);
            ny = std::sin(p[2] * x) - std::cos(p[3] * y);
        } else if (s == "tinkerbell") {
            nx = x * x - y * y + p[0] * x + p[1] * y;
            ny = 2 * x * y + p[2] * x + p[3] * y;
        } else if (s == "gingerbread") {
            nx = 1 - y + std::fabs(x);
            ny = x;
        } else {  // quadratisch
            nx = p[0] + p[1] * x + p[2] * x * x + p[3] * x * y + p[4] * y + p[5] * y * y;
            ny = p[6] + p[7] * x + p[8] * x * x + p[9] * x * y + p[10] * y + p[11] * y * y;
        }
        x = nx;
        y = ny;
        if (!(std::fabs(x) + std::fabs(y) < 1e6)) return false;
        if (i >= 0 && !punkt(x, y)) return true;
    }
    return true;
}

// ---- Simulations

const std::vector<Simulation>& simulationen()
{
    static const std::vector<Simulation> s = {
        {1, "Chaos-Spiel im Vieleck"}, {2, "Irrfahrt"},        {3, "Cluster durch Diffusion"},
        {4, "Primzahlfraktal"},        {5, "Ulam-Spirale"},    {6, "Brownsche Bewegung"},
        {7, "Eden-Wachstum"},          {8, "Perkolation"},     {9, "Sandhaufen"},
        {10, "Lévy-Flug"},
    };
    return s;
}

std::string simuliere(int nummer, const std::vector<double>& par, long long schritte, std::uint64_t keim,
                      Punktraster& ziel, const std::function<bool(long long)>& weiter)
{
    Zufall z(keim);
    auto arg = [&](std::size_t i, double d) { return i < par.size() ? par[i] : d; };
    auto pause = [&](long long i) { return !weiter || (i % 20000) != 0 || weiter(i); };
    std::ostringstream out;
    out.setf(std::ios::fixed);
    out.precision(2);
    switch (nummer) {
    case 1: {  // jump a fraction of the way to a random corner
        const int ecken = std::clamp(static_cast<int>(arg(0, 3)), 3, 12);
        const double f = arg(1, 0.5);
        double x = 0, y = 0;
        for (long long i = 0; i < schritte; ++i) {
            const int k = z.bis(ecken);
            const double w = kPi / 2 + 2 * kPi * k / ecken;
            x += (std::cos(w) - x) * f;
            y += (std::sin(w) - y) * f;
            if (i > 20) ziel.punkt(x, y, static_cast<std::uint8_t>(1 + 255 / ecken * k));
            if (!pause(i)) break;
        }
        out << "Punkte " << ziel.gesetzt;
        return out.str();
    }
    case 2:
    case 6: {  // lattice walk, or Gaussian steps of Brownian motion
        double x = 0, y = 0;
        for (long long i = 0; i < schritte; ++i) {
            if (nummer == 2) {
                switch (z.bis(4)) {
                case 0: x += 1; break;
                case 1: x -= 1; break;
                case 2: y += 1; break;
                default: y -= 1; break;
                }
            } else {
                const double u = std::max(z.gleich(), 1e-300), v = z.gleich();
                const double g = std::sqrt(-2 * std::log(u));
                x += g * std::cos(2 * kPi * v);
                y += g * std::sin(2 * kPi * v);
            }
            ziel.treffer(x, y, 8);
            if (!pause(i)) break;
        }
        out << "Distanz " << std::sqrt(x * x + y * y) << " (erwartet etwa " << std::sqrt(double(schritte)) << ")";
        return out.str();
    }
    case 3: {  // diffusion-limited aggregation on the pixel grid
        Werteraster& r = ziel.raster;
        const int b = r.breite, h = r.hoehe, mx = b / 2, my = h / 2;
        r.at(mx, my) = 1;
        long long teilchen = 1;
        double radius = 2;
        const double rmax = std::min(b, h) / 2.0 - 3;
        for (long long i = 0; i < schritte && radius < rmax; ++i) {
            const double w = 2 * kPi * z.gleich();
            int x = mx + static_cast<int>((radius + 3) * std::cos(w)), y = my + static_cast<int>((radius + 3) * std::sin(w));
            for (int s = 0; s < 200000; ++s) {
                switch (z.bis(4)) {
                case 0: ++x; break;
                case 1: --x; break;
                case 2: ++y; break;
                default: --y; break;
                }
                const double d = std::hypot(x - mx, y - my);
                if (d > radius + 12 || x < 1 || y < 1 || x >= b - 1 || y >= h - 1) break;
                if (r.at(x + 1, y) || r.at(x - 1, y) || r.at(x, y + 1) || r.at(x, y - 1)) {
                    r.at(x, y) = static_cast<std::uint8_t>(1 + (teilchen / 20) % 255);
                    ++teilchen;
                    radius = std::max(radius, d);
                    break;
                }
            }
            if (weiter && i % 200 == 0 && !weiter(i)) break;
        }
        ziel.gesetzt = teilchen;
        out << "Cluster " << teilchen << " Teilchen, Radius " << radius;
        return out.str();
    }
    case 4: {  // walk one step for each number, turn left at every prime
        double x = 0, y = 0;
        int richtung = 0;
        const int dx[4] = {1, 0, -1, 0}, dy[4] = {0, 1, 0, -1};
        {
            // the walk drifts in no foreseeable direction: fit the view to it first
            double x0 = 0, x1 = 0, y0 = 0, y1 = 0;
            for (long long k = 1; k <= schritte; ++k) {
                x += dx[richtung];
                y += dy[richtung];
                x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
                if (istPrim(k)) richtung = (richtung + 1) % 4;
            }
            const double b = ziel.raster.breite, h = ziel.raster.hoehe;
            const double s = std::max((x1 - x0 + 2) / b, (y1 - y0 + 2) / h) * 1.05;
            const double mx = (x0 + x1) / 2, my = (y0 + y1) / 2;
            ziel.ansicht = {mx - s * b / 2, mx + s * b / 2, my - s * h / 2, my + s * h / 2};
            x = y = 0;
            richtung = 0;
        }
        for (long long k = 1; k <= schritte; ++k) {
            const double nx = x + dx[richtung], ny = y + dy[richtung];
            ziel.linie(x, y, nx, ny, static_cast<std::uint8_t>(1 + (k / 64) % 255));
            x = nx;
            y = ny;
            if (istPrim(k)) richtung = (richtung + 1) % 4;
            if (!pause(k)) break;
        }
        out << "Primzahlfraktal bis " << schritte;
        return out.str();
    }
    case 7: {  // Eden growth: a random free neighbour of a random cluster cell joins
        Werteraster& r = ziel.raster;
        const int b = r.breite, h = r.hoehe;
        std::vector<std::pair<int, int>> zellen = {{b / 2, h / 2}};
        r.at(b / 2, h / 2) = 1;
        const int dx[4] = {1, -1, 0, 0}, dy[4] = {0, 0, 1, -1};
        for (long long i = 0; i < schritte; ++i) {
            const auto [x, y] = zellen[static_cast<std::size_t>(z.bis(static_cast<int>(zellen.size())))];
            const int k = z.bis(4), nx = x + dx[k], ny = y + dy[k];
            if (nx < 0 || ny < 0 || nx >= b || ny >= h || r.at(nx, ny)) continue;
            r.at(nx, ny) = static_cast<std::uint8_t>(1 + (zellen.size() / 40) % 199);
            zellen.emplace_back(nx, ny);
            if (!pause(i)) break;
        }
        ziel.gesetzt = static_cast<long long>(zellen.size());
        out << "Cluster " << zellen.size() << " Teilchen";
        return out.str();
    }
    case 8: {  // site percolation: occupied with probability p, the largest cluster marked
        Werteraster& r = ziel.raster;
        const int b = r.breite, h = r.hoehe;
        const double p = std::clamp(arg(0, 0.5927), 0.0, 1.0);
        for (auto& w : r.werte) w = z.gleich() < p ? 1 : 0;
        std::vector<int> marke(r.werte.size(), -1), stapel;
        int groesste = -1;
        std::size_t groesse = 0;
        int nummer = 0;
        for (std::size_t s = 0; s < r.werte.size(); ++s) {
            if (!r.werte[s] || marke[s] >= 0) continue;
            std::size_t n = 0;
            stapel.assign(1, static_cast<int>(s));
            marke[s] = nummer;
            while (!stapel.empty()) {
                const int c = stapel.back();
                stapel.pop_back();
                ++n;
                const int x = c % b, y = c / b;
                const int nb[4] = {x > 0 ? c - 1 : -1, x < b - 1 ? c + 1 : -1, y > 0 ? c - b : -1, y < h - 1 ? c + b : -1};
                for (int q : nb)
                    if (q >= 0 && r.werte[static_cast<std::size_t>(q)] && marke[static_cast<std::size_t>(q)] < 0) {
                        marke[static_cast<std::size_t>(q)] = nummer;
                        stapel.push_back(q);
                    }
            }
            if (n > groesse) groesse = n, groesste = nummer;
            ++nummer;
        }
        for (std::size_t s = 0; s < r.werte.size(); ++s)
            if (r.werte[s]) r.werte[s] = marke[s] == groesste ? 180 : 60;
        ziel.gesetzt = static_cast<long long>(groesse);
        out << "Cluster " << groesse << " Felder, " << nummer << " Cluster";
        return out.str();
    }
    case 9: {  // abelian sandpile: grains on the centre, a site with 4 gives one to each neighbour
        Werteraster& r = ziel.raster;
        const int b = r.breite, h = r.hoehe;
        std::vector<long long> hoehe(static_cast<std::size_t>(b) * h, 0);
        const std::size_t mitte = static_cast<std::size_t>(h / 2) * b + b / 2;
        hoehe[mitte] = schritte;
        std::vector<std::size_t> stapel = {mitte};
        long long verloren = 0, kippen = 0;
        while (!stapel.empty()) {
            const std::size_t c = stapel.back();
            stapel.pop_back();
            if (hoehe[c] < 4) continue;
            const long long k = hoehe[c] / 4;
            hoehe[c] -= 4 * k;
            kippen += k;
            const int x = static_cast<int>(c % b), y = static_cast<int>(c / b);
            const int nx[4] = {x - 1, x + 1, x, x}, ny[4] = {y, y, y - 1, y + 1};
            for (int j = 0; j < 4; ++j) {
                if (nx[j] < 0 || ny[j] < 0 || nx[j] >= b || ny[j] >= h) {
                    verloren += k;  // grains fall off the edge
                    continue;
                }
                const std::size_t q = static_cast<std::size_t>(ny[j]) * b + nx[j];
                hoehe[q] += k;
                if (hoehe[q] >= 4) stapel.push_back(q);
            }
            if (weiter && (kippen & 0xFFFF) == 0 && !weiter(0)) break;
        }
        for (std::size_t s = 0; s < hoehe.size(); ++s) r.werte[s] = static_cast<std::uint8_t>(hoehe[s] * 60);
        ziel.gesetzt = schritte - verloren;
        out << "Körner " << (schritte - verloren) << ", über den Rand " << verloren;
        return out.str();
    }
    case 10: {  // Levy flight: uniform directions, step lengths with a power-law tail
        const double alpha = std::clamp(arg(0, 1.5), 0.3, 3.0);
        double x = 0, y = 0;
        for (long long i = 0; i < schritte; ++i) {
            const double l = std::min(1e6, std::pow(std::max(z.gleich(), 1e-12), -1.0 / alpha));
            const double w = 2 * kPi * z.gleich();
            const double nx = x + l * std::cos(w), ny = y + l * std::sin(w);
            ziel.linie(x, y, nx, ny, static_cast<std::uint8_t>(1 + (i * 199) / std::max<long long>(1, schritte)));
            x = nx;
            y = ny;
            if (!pause(i)) break;
        }
        out << "Distanz " << std::sqrt(x * x + y * y);
        return out.str();
    }
    case 5: {  // numbers on a square spiral, primes marked
        long long x = 0, y = 0, k = 1, primzahlen = 0;
        int richtung = 0, lauf = 1;
        const int dx[4] = {1, 0, -1, 0}, dy[4] = {0, 1, 0, -1};
        while (k <= schritte) {
            for (int wdh = 0; wdh < 2 && k <= schritte; ++wdh) {
                for (int s = 0; s < lauf && k <= schritte; ++s) {
                    if (istPrim(k)) {
                        ziel.punkt(static_cast<double>(x), static_cast<double>(y), 200);
                        ++primzahlen;
                    }
                    x += dx[richtung];
                    y += dy[richtung];
                    ++k;
                }
                richtung = (richtung + 1) % 4;
            }
            ++lauf;
        }
        out << "Primzahlen " << primzahlen << " von " << schritte;
        return out.str();
    }
    default:
        return "";
    }
}

// ---- Circle fractals

std::vector<Kreis> kreisfraktal(int n, double q, int tiefe, bool innen)
{
    std::vector<Kreis> alle;
    n = std::clamp(n, 1, 12);
    tiefe = std::clamp(tiefe, 0, 8);
    alle.push_back({0, 0, 1, 0});
    std::size_t von = 0;
    for (int t = 1; t <= tiefe; ++t) {
        const std::size_t bis = alle.size();
        for (std::size_t i = von; i < bis; ++i) {
            const Kreis k = alle[i];
            const double r = k.r * q, d = innen ? k.r - r : k.r + r;
            for (int j = 0; j < n; ++j) {
                const double w = kPi / 2 + 2 * kPi * j / n + t * kPi / n;
                alle.push_back({k.x + d * std::cos(w), k.y + d * std::sin(w), r, t});
            }
        }
        von = bis;
        if (alle.size() > 2000000) break;
    }
    return alle;
}

// ---- Feigenbaum

bool feigenbaumDiagramm(Punktraster& ziel, int einschwingen, int zeichnen, const Fortschritt& weiter)
{
    const int b = ziel.raster.breite;
    for (int sp = 0; sp < b; ++sp) {
        const double r = spalteZuX(ziel.ansicht, sp, b);
        double x = 0.4;
        for (int i = 0; i < einschwingen; ++i) x = logistik(r, x);
        for (int i = 0; i < zeichnen; ++i) {
            x = logistik(r, x);
            if (!std::isfinite(x)) break;
            ziel.treffer(spalteZuX(ziel.ansicht, sp, b) + 1e-12, x, 16);
        }
        if (weiter && !weiter(sp + 1)) return false;
    }
    return true;
}

int logistikPeriode(double r, int maxPeriode)
{
    double x = 0.4;  // 0.5 would fall onto 0 at r = 4
    for (int i = 0; i < 200000; ++i) x = logistik(r, x);
    if (!std::isfinite(x)) return 0;
    const double x0 = x;
    for (int p = 1; p <= maxPeriode; ++p) {
        x = logistik(r, x);
        if (std::fabs(x - x0) < 1e-7) return p;
    }
    return 0;
}

std::vector<double> feigenbaumVerzweigungen(int anzahl)
{
    std::vector<double> r;
    if (anzahl <= 0) return r;
    r.push_back(3.0);  // the fixed point 1 - 1/r has multiplier 2 - r
    double vorher = 1.0;  // where the fixed point becomes attracting
    for (int k = 2; k <= anzahl; ++k) {
        const int p = 1 << (k - 1);
        const double letzte = r.back();
        double rr = letzte + (letzte - vorher) / 4.669;
        double x = 0.5;
        for (int i = 0; i < 20000; ++i) x = logistik(rr, x);
        // G1 = f^p(x) - x, G2 = (f^p)'(x) + 1
        auto g = [p](double x0, double rv, double& g1, double& g2) {
            double xi = x0, abl = 1;
            for (int i = 0; i < p; ++i) {
                abl *= rv * (1 - 2 * xi);
                xi = logistik(rv, xi);
            }
            g1 = xi - x0;
            g2 = abl + 1;
        };
        for (int it = 0; it < 100; ++it) {
            double g1, g2, a1, a2, b1, b2;
            g(x, rr, g1, g2);
            const double hx = 1e-7, hr = 1e-9;
            g(x + hx, rr, a1, a2);
            g(x, rr + hr, b1, b2);
            const double j11 = (a1 - g1) / hx, j21 = (a2 - g2) / hx, j12 = (b1 - g1) / hr, j22 = (b2 - g2) / hr;
            const double det = j11 * j22 - j12 * j21;
            if (det == 0 || !std::isfinite(det)) break;
            const double dx = (g1 * j22 - g2 * j12) / det, dr = (j11 * g2 - j21 * g1) / det;
            x -= dx;
            rr -= dr;
            if (std::fabs(dx) < 1e-15 && std::fabs(dr) < 1e-15) break;
        }
        vorher = letzte;
        r.push_back(rr);
    }
    return r;
}

}  // namespace chaos
