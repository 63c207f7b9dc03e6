#include "dynamics/chaosdaten.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace chaos {

namespace {

std::string ohneRand(const std::string& s)
{
    const std::size_t a = s.find_first_not_of(" \t\r\n");
    if (a == std::string::npos) return "";
    const std::size_t e = s.find_last_not_of(" \t\r\n");
    return s.substr(a, e - a + 1);
}

bool blockKopf(const std::string& z, int& nummer)
{
    if (z.size() < 2 || z[0] != '[') return false;
    char* end = nullptr;
    const long n = std::strtol(z.c_str() + 1, &end, 10);
    if (end == z.c_str() + 1 || !ohneRand(end).empty() || n < 0) return false;
    nummer = static_cast<int>(n);
    return true;
}

std::vector<double> zeilenzahlen(const std::string& z)
{
    std::string t = z;
    for (char& c : t)
        if (c == ',') c = '.';  // a decimal comma as typed in German
        else if (c == ';') c = ' ';
    std::istringstream in(t);
    std::vector<double> v;
    std::string w;
    while (in >> w) {
        char* end = nullptr;
        const double d = std::strtod(w.c_str(), &end);
        if (end == w.c_str() || *end != '\0' || !std::isfinite(d)) break;
        v.push_back(d);
    }
    return v;
}

}  // namespace

const std::vector<std::string>& fraktaltypnamen()
{
    static const std::vector<std::string> n = {"Mandelbrotmengen", "Juliamengen",   "IFS-Editor",      "Simulationen",
                                               "Iterative Systeme", "Kreisfraktale", "Feigenbaum-Diagr."};
    return n;
}

const std::vector<std::string>& ChaosObjekt::argumente(const std::string& d) const
{
    static const std::vector<std::string> leer;
    const auto it = direktiven.find(d);
    return it == direktiven.end() ? leer : it->second;
}

std::vector<double> ChaosObjekt::zahlen(const std::string& d, std::vector<double> vorgabe) const
{
    const auto& a = argumente(d);
    if (a.empty()) return vorgabe;
    std::vector<double> v = zeilenzahlen(a.front());
    for (std::size_t i = v.size(); i < vorgabe.size(); ++i) v.push_back(vorgabe[i]);
    return v;
}

double ChaosObjekt::zahl(const std::string& d, double vorgabe) const
{
    const auto v = zahlen(d);
    return v.empty() ? vorgabe : v.front();
}

std::vector<ChaosObjekt> leseChaosText(const std::vector<std::string>& zeilen)
{
    std::vector<ChaosObjekt> alle;
    std::size_t i = 0;
    const std::size_t n = zeilen.size();
    while (i < n) {
        int nummer;
        if (!blockKopf(ohneRand(zeilen[i]), nummer)) {
            ++i;
            continue;
        }
        ChaosObjekt o;
        o.nummer = nummer;
        ++i;
        if (i < n) o.name = ohneRand(zeilen[i++]);
        // directives up to a line that is exactly "["
        std::string aktuell;
        while (i < n && ohneRand(zeilen[i]) != "[") {
            const std::string z = ohneRand(zeilen[i]);
            int dummy;
            if (blockKopf(z, dummy)) break;  // a block without description
            if (!z.empty() && z[0] == '#') {
                aktuell = z;
                o.direktiven[aktuell];
            } else if (!aktuell.empty() && !z.empty()) {
                o.direktiven[aktuell].push_back(z);
            }
            ++i;
        }
        if (i < n && ohneRand(zeilen[i]) == "[") ++i;
        while (i < n) {
            int dummy;
            if (blockKopf(ohneRand(zeilen[i]), dummy)) break;
            std::string z = zeilen[i];
            while (!z.empty() && (z.back() == '\r' || z.back() == '\n')) z.pop_back();
            o.beschreibung.push_back(z);
            ++i;
        }
        while (!o.beschreibung.empty() && ohneRand(o.beschreibung.back()).empty()) o.beschreibung.pop_back();
        if (!o.name.empty()) alle.push_back(std::move(o));
    }
    return alle;
}

std::vector<const ChaosObjekt*> objekteDesTyps(const std::vector<ChaosObjekt>& alle, int typ)
{
    std::vector<const ChaosObjekt*> r;
    for (const auto& o : alle)
        if (o.typ() == typ) r.push_back(&o);
    return r;
}

const ChaosObjekt* findeObjekt(const std::vector<ChaosObjekt>& alle, const std::string& name)
{
    auto klein = [](std::string s) {
        std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::tolower(c); });
        return s;
    };
    const std::string k = klein(name);
    for (const auto& o : alle)
        if (klein(o.name) == k) return &o;
    for (const auto& o : alle)
        if (klein(o.name).find(k) != std::string::npos) return &o;
    return nullptr;
}

Einstellung einstellungAus(const ChaosObjekt& o)
{
    Einstellung e;
    e.typ = o.typ();
    const auto rx = o.zahlen("#Rx", {-2.2, 1.0});
    const auto ry = o.zahlen("#Ry", {-1.2, 1.2});
    e.ansicht = {rx[0], rx[1], ry[0], ry[1]};
    e.iterationen = static_cast<int>(o.zahl("#4", e.iterationen));
    const auto lim = o.zahlen("#4a", {1, 100000});
    e.iterMin = static_cast<int>(lim[0]);
    e.iterMax = static_cast<int>(lim[1]);
    e.schritt = static_cast<int>(o.zahl("#6", 0));
    for (const char* d : {"#2", "#3"}) {
        const auto& a = o.argumente(d);
        // the first line of "#2" is the panel height
        for (std::size_t k = (std::string(d) == "#2" ? 1 : 0); k < a.size(); ++k) {
            const std::size_t bar = a[k].find('|');
            if (bar == std::string::npos) continue;
            Parameterfeld f;
            f.beschriftung = ohneRand(a[k].substr(0, bar));
            const auto w = zeilenzahlen(a[k].substr(bar + 1));
            f.wert = w.empty() ? 0 : w.front();
            e.parameter.push_back(f);
        }
    }
    e.code = o.argumente("#E");
    if (e.typ == Mandelbrot || e.typ == Julia || e.typ == Simulationen)
        e.variante = static_cast<int>(o.zahl("#E", e.typ == Simulationen ? 1 : 10));
    const auto r2 = o.zahlen("#R2", {0, 0});
    e.ca = r2[0];
    e.cb = r2[1];
    e.farbfaktor = o.zahl("#5", 3);
    if (o.hat("#7")) e.palette = ohneRand(o.argumente("#7").empty() ? "" : o.argumente("#7").front());
    if (e.palette.empty()) e.palette = "defaultw";
    if (o.hat("#Qm")) e.modus = zeichenmodusAusText(o.argumente("#Qm").empty() ? "" : o.argumente("#Qm").front());
    e.punkte = static_cast<long long>(o.zahl("#E3", 200000));
    return e;
}

std::string punktzahlText(double n)
{
    char b[64];
    if (n >= 1e9) std::snprintf(b, sizeof b, "%.2f Md.", n / 1e9);
    else if (n >= 1e6) std::snprintf(b, sizeof b, "%.0f Mill.", n / 1e6);
    else std::snprintf(b, sizeof b, "%.0f", n);
    return b;
}

bool zeichneChaos(const Einstellung& e, int breite, int hoehe, Werteraster& raster, std::vector<std::string>& zeilen,
                  const Anteil& weiter, Ansicht* benutzt)
{
    if (benutzt) *benutzt = e.ansicht;
    raster.setzeGroesse(breite, hoehe);
    zeilen.clear();
    const int iter = std::clamp(e.iterationen, std::max(1, e.iterMin), std::max(1, e.iterMax));
    Punktraster pr;
    pr.raster = std::move(raster);
    pr.ansicht = e.ansicht;
    pr.modus = e.modus;
    auto zurueck = [&]() { raster = std::move(pr.raster); };
    const long long punkte = std::max<long long>(1, e.punkte);
    auto anteil = [&](long long i) { return !weiter || weiter(static_cast<int>(1000.0 * i / punkte)); };

    switch (e.typ) {
    case Mandelbrot:
    case Julia: {
        if (!istFluchtvariante(e.variante)) {
            zeilen.push_back("Unbekannte Variante " + std::to_string(e.variante));
            zurueck();
            return false;
        }
        Fluchtbild p;
        p.variante = e.variante;
        p.maxIter = iter;
        p.julia = e.typ == Julia;
        p.ca = e.ca;
        p.cb = e.cb;
        p.farbfaktor = e.farbfaktor;
        p.innenfaerbung = e.innenfaerbung;
        p.zufallskeim = e.keim;
        raster = std::move(pr.raster);
        const bool ok = rechneFluchtbild(raster, e.ansicht, p, [&](int z) {
            return !weiter || weiter(1000 * z / std::max(1, hoehe));
        });
        zeilen.push_back("Iteration\t" + std::to_string(iter));
        zeilen.push_back(std::string(p.julia ? "Juliamenge " : "Mandelbrotmenge ") + variantenname(e.variante));
        return ok;
    }
    case IfsEditor: {
        const auto maps = leseIfs(e.code);
        if (maps.empty()) {
            zeilen.push_back("Kein gültiger IFS-Code");
            zurueck();
            return false;
        }
        bool ok = true;
        ifsSpiel(maps, punkte, e.keim, [&](double x, double y, int k) {
            if (e.nurAbbildung < 0 || e.nurAbbildung == k) pr.punkt(x, y, static_cast<std::uint8_t>(1 + 32 * k));
            if ((pr.gesetzt + pr.daneben) % 50000 == 0 && !anteil(pr.gesetzt + pr.daneben)) return ok = false;
            return true;
        });
        zeilen.push_back("Abbildungen\t" + std::to_string(maps.size()));
        zeilen.push_back("Punkte\t" + punktzahlText(static_cast<double>(pr.gesetzt)));
        zurueck();
        return ok;
    }
    case IterativeSysteme: {
        Systemcode c;
        if (e.code.empty() || !leseSystemcode(e.code.front(), c)) {
            zeilen.push_back("Unbekanntes System");
            zurueck();
            return false;
        }
        bool ok = true;
        long long i = 0;
        const bool beschraenkt = iteriereSystem(c, punkte, [&](double x, double y) {
            pr.treffer(x, y, 24);
            if (++i % 50000 == 0 && !anteil(i)) return ok = false;
            return true;
        });
        zeilen.push_back("Iteration\t" + punktzahlText(static_cast<double>(i)));
        if (!beschraenkt) zeilen.push_back("Die Bahn läuft ins Unendliche");
        zurueck();
        return ok;
    }
    case Simulationen: {
        std::vector<double> par;
        for (const auto& f : e.parameter) par.push_back(f.wert);
        const std::string z = simuliere(e.variante, par, punkte, e.keim, pr, [&](long long i) { return anteil(i); });
        if (benutzt) *benutzt = pr.ansicht;
        if (z.empty()) zeilen.push_back("Unbekannte Simulation");
        else zeilen.push_back(z);
        zurueck();
        return !z.empty();
    }
    case Kreisfraktale: {
        const int n = static_cast<int>(e.par(0, 4));
        const double q = e.par(1, 0.4);
        const bool innen = e.par(2, 0) != 0;
        const auto kreise = kreisfraktal(n, q, std::clamp(e.schritt, 0, 8), innen);
        for (const Kreis& k : kreise) pr.kreis(k.x, k.y, k.r, static_cast<std::uint8_t>(1 + 40 * k.tiefe));
        zeilen.push_back("Kreisfraktal \t" + std::to_string(kreise.size()) + " Kreise");
        zurueck();
        return true;
    }
    case Feigenbaum: {
        const bool ok = feigenbaumDiagramm(pr, std::max(0, e.schritt), iter,
                                           [&](int s) { return !weiter || weiter(1000 * s / std::max(1, breite)); });
        char b[96];
        std::snprintf(b, sizeof b, "reell\tr von %g bis %g", e.ansicht.xmin, e.ansicht.xmax);
        zeilen.push_back(b);
        zurueck();
        return ok;
    }
    default:
        zeilen.push_back("Unbekannter Fraktal-Typ");
        zurueck();
        return false;
    }
}

}  // namespace chaos
