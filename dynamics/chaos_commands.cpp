#include "dynamics/chaos_commands.h"

#include "dynamics/chaosbild.h"
#include "dynamics/chaosdaten.h"
#include "dynamics/chaoslyapunow.h"
#include "dynamics/fraktal.h"
#include "dynamics/fraktalpalette.h"
#include "platform/textlist.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>

using quorix::Args;

namespace {

bool toNumber(const std::string& s, double& v) { return quorix::argNumber(s, v); }
bool toInt(const std::string& s, int& v, int lo, int hi) { return quorix::argInt(s, v, lo, hi); }

std::string num(double v, int decimals)
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

// Takes `name` and the `n` values after it; false and untouched if it is absent.
// `bad` is set when the option is there without enough numbers.
bool takeNumbers(Args& a, const std::string& name, int n, std::vector<double>& v, bool& bad)
{
    auto it = std::find(a.begin(), a.end(), name);
    if (it == a.end()) return false;
    const auto pos = static_cast<std::size_t>(it - a.begin());
    v.clear();
    for (int i = 1; i <= n; ++i) {
        double d;
        if (pos + i >= a.size() || !toNumber(a[pos + i], d)) {
            bad = true;
            return false;
        }
        v.push_back(d);
    }
    a.erase(a.begin() + static_cast<long>(pos), a.begin() + static_cast<long>(pos + n + 1));
    return true;
}

std::vector<std::string> leseDatei(const std::string& pfad)
{
    std::vector<std::string> z;
    std::ifstream in(pfad);
    std::string l;
    while (std::getline(in, l)) {
        if (!l.empty() && l.back() == '\r') l.pop_back();
        z.push_back(l);
    }
    return z;
}

const char* kFraktalAufruf =
    "Aufruf: quorix fraktal mandelbrot|julia|ifs|simulation|system|kreis|feigenbaum|ljapunow --png DATEI "
    "[--breite B] [--hoehe H] [--iter N] [--bereich X0 X1 Y0 Y1] [--c A B] [--objekt NAME] [--palette NAME] "
    "[--daten CHAOS.txt]";

int cmdLjapunowBild(Args a, const std::string& png, int b, int h, std::ostream& out, std::ostream& err)
{
    std::string name = "ZirconZity";
    quorix::takeOption(a, "--objekt", name);
    if (!a.empty()) return usage(err, kFraktalAufruf);
    for (const std::string& z : chaos::ljapunowVorgabezeilen()) {
        chaos::LjapunowVorgabe v;
        if (chaos::leseLjapunowVorgabe(z, v) && v.name == name) {
            chaos::TLyapunovLambdaMap m;
            m.starte(v, b, h);
            while (m.rechne(16)) {
            }
            platform::Picture bild(b, h);
            chaos::faerbeLjapunow(m, chaos::Ljapunowfarben::Ordnung, platform::clBlue, bild);
            if (!bild.savePng(png)) {
                err << "Die Datei " << png << " kann nicht geschrieben werden.\n";
                return 1;
            }
            out << png << "\t" << b << " x " << h << "\t" << v.name << "\tkleinster Exponent " << num(m.minimum(), 4) << "\n";
            return 0;
        }
    }
    err << "Unbekannte Vorgabe: " << name << "\n";
    return 2;
}

int cmdFraktal(Args a, std::ostream& out, std::ostream& err)
{
    if (a.empty()) return usage(err, kFraktalAufruf);
    const std::string typText = a.front();
    a.erase(a.begin());
    const std::vector<std::string> typen = {"mandelbrot", "julia", "ifs", "simulation", "system", "kreis", "feigenbaum"};
    std::string png, s, objekt, palname, daten;
    if (!quorix::takeOption(a, "--png", png)) return usage(err, kFraktalAufruf);
    int breite = 640, hoehe = 480, iter = -1;
    if (quorix::takeOption(a, "--breite", s) && !toInt(s, breite, 8, 8000)) return usage(err, "Ungültige Breite: " + s);
    if (quorix::takeOption(a, "--hoehe", s) && !toInt(s, hoehe, 8, 8000)) return usage(err, "Ungültige Höhe: " + s);
    if (quorix::takeOption(a, "--iter", s) && !toInt(s, iter, 1, 1000000)) return usage(err, "Ungültige Iterationszahl: " + s);
    if (typText == "ljapunow") return cmdLjapunowBild(a, png, breite, hoehe, out, err);
    const auto it = std::find(typen.begin(), typen.end(), typText);
    if (it == typen.end()) return usage(err, "Unbekannter Fraktal-Typ: " + typText);
    const int typ = static_cast<int>(it - typen.begin());
    std::vector<double> bereich, c;
    bool bad = false;
    const bool hatBereich = takeNumbers(a, "--bereich", 4, bereich, bad);
    const bool hatC = takeNumbers(a, "--c", 2, c, bad);
    if (bad) return usage(err, kFraktalAufruf);
    quorix::takeOption(a, "--objekt", objekt);
    const bool hatPalette = quorix::takeOption(a, "--palette", palname);
    quorix::takeOption(a, "--daten", daten);
    if (!a.empty()) return usage(err, kFraktalAufruf);
    if (hatPalette) {
        const auto& n = chaos::palettennamen();
        if (std::find(n.begin(), n.end(), palname) == n.end()) return usage(err, "Unbekannte Farbpalette: " + palname);
    }

    const auto zeilen = daten.empty() ? chaos::ladeChaosText() : leseDatei(daten);
    const auto alle = chaos::leseChaosText(zeilen);
    const auto eigene = chaos::objekteDesTyps(alle, typ);
    chaos::Einstellung e;
    const chaos::ChaosObjekt* o = nullptr;
    if (!objekt.empty()) {
        for (const auto* k : eigene)
            if (k->name.find(objekt) != std::string::npos) {
                o = k;
                break;
            }
        if (!o) {
            err << "Kein Objekt \"" << objekt << "\" unter diesem Fraktal-Typ.\n";
            return 1;
        }
    } else if (!eigene.empty()) {
        o = eigene.front();
    }
    if (o) {
        e = chaos::einstellungAus(*o);
    } else if (typ == chaos::Mandelbrot || typ == chaos::Julia || typ == chaos::Feigenbaum) {
        // these three need no data: the classical set, the rabbit, the full diagram
        e.typ = typ;
        if (typ == chaos::Julia) e.ca = -0.123, e.cb = 0.745, e.ansicht = {-1.6, 1.6, -1.2, 1.2};
        if (typ == chaos::Feigenbaum) e.ansicht = {2.8, 4.0, 0, 1}, e.schritt = 300, e.palette = "black";
    } else {
        err << "Die Objektliste CHAOS fehlt.\n";
        return 1;
    }
    if (hatBereich) {
        if (!(bereich[0] < bereich[1]) || !(bereich[2] < bereich[3])) return usage(err, "Ungültiger Bereich");
        e.ansicht = {bereich[0], bereich[1], bereich[2], bereich[3]};
    }
    if (hatC) e.ca = c[0], e.cb = c[1];
    if (iter > 0) {
        e.iterationen = iter;
        e.iterMax = std::max(e.iterMax, iter);
    }
    if (hatPalette) e.palette = palname;
    chaos::Werteraster r;
    std::vector<std::string> ergebnis;
    if (!chaos::zeichneChaos(e, breite, hoehe, r, ergebnis)) {
        for (const auto& z : ergebnis) err << z << "\n";
        return 1;
    }
    platform::Picture bild(breite, hoehe);
    chaos::faerbe(r, chaos::palette(e.palette), bild);
    if (!bild.savePng(png)) {
        err << "Die Datei " << png << " kann nicht geschrieben werden.\n";
        return 1;
    }
    out << png << "\t" << breite << " x " << hoehe;
    if (o) out << "\t" << o->name;
    for (const auto& z : ergebnis) out << "\t" << z;
    out << "\n";
    return 0;
}

int cmdFluchtzeit(Args a, std::ostream& out, std::ostream& err)
{
    const char* aufruf = "Aufruf: quorix fluchtzeit A B [--iter N] [--variante V] [--julia CA CB]";
    std::string s;
    int iter = 1000, v = 10;
    if (quorix::takeOption(a, "--iter", s) && !toInt(s, iter, 1, 100000000)) return usage(err, aufruf);
    if (quorix::takeOption(a, "--variante", s) && (!toInt(s, v, 1, 99) || !chaos::istFluchtvariante(v)))
        return usage(err, "Unbekannte Variante: " + s);
    std::vector<double> jc;
    bool bad = false;
    const bool julia = takeNumbers(a, "--julia", 2, jc, bad);
    double x, y;
    if (bad || a.size() != 2 || !toNumber(a[0], x) || !toNumber(a[1], y)) return usage(err, aufruf);
    const chaos::Flucht f = julia ? chaos::iteriere(v, x, y, jc[0], jc[1], iter) : chaos::mandelbrotFlucht(v, x, y, iter);
    out << a[0] << "\t" << a[1] << "\t";
    if (f.entkommen) out << f.schritte << "\n";
    else out << "innen\n";
    return 0;
}

int cmdFeigenbaum(Args a, std::ostream& out, std::ostream& err)
{
    std::string s;
    int n = 8;
    if (quorix::takeOption(a, "--anzahl", s) && !toInt(s, n, 1, 14)) return usage(err, "Anzahl 1 bis 14 erwartet: " + s);
    if (!a.empty()) return usage(err, "Aufruf: quorix feigenbaum [--anzahl K]");
    const auto r = chaos::feigenbaumVerzweigungen(n);
    for (std::size_t k = 0; k < r.size(); ++k) {
        out << (k + 1) << "\t" << (1 << k) << " -> " << (2 << k) << "\t" << num(r[k], 10);
        if (k >= 2) out << "\t" << num((r[k - 1] - r[k - 2]) / (r[k] - r[k - 1]), 6);
        out << "\n";
    }
    return 0;
}

int cmdLjapunow(Args a, std::ostream& out, std::ostream& err)
{
    const char* aufruf = "Aufruf: quorix ljapunow R [--schritte N] [--folge ab --b B]";
    std::string s, folge = "a";
    int n = 100000;
    double b = 0;
    if (quorix::takeOption(a, "--schritte", s) && !toInt(s, n, 1, 100000000)) return usage(err, aufruf);
    const bool hatFolge = quorix::takeOption(a, "--folge", folge);
    const bool hatB = quorix::takeOption(a, "--b", s);
    if (hatB && !toNumber(s, b)) return usage(err, aufruf);
    double r;
    if (a.size() != 1 || !toNumber(a[0], r)) return usage(err, aufruf);
    if (hatFolge && (folge.empty() || folge.find_first_not_of("ab") != std::string::npos))
        return usage(err, "Die Folge besteht aus den Buchstaben a und b.");
    if (folge.find('b') != std::string::npos && !hatB) return usage(err, aufruf);
    const double l = chaos::ljapunowExponent(folge, r, b, 1000, n);
    if (!std::isfinite(l)) {
        out << "unbeschränkt\n";
        return 1;
    }
    out << num(l, 6) << "\t" << (l < 0 ? "Ordnung" : "Chaos") << "\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> chaosCommands()
{
    return {
        {"fraktal", kFraktalAufruf, cmdFraktal},
        {"fluchtzeit", "Aufruf: quorix fluchtzeit A B [--iter N] [--variante V] [--julia CA CB] (Fluchtschritt oder innen)",
         cmdFluchtzeit},
        {"feigenbaum", "Aufruf: quorix feigenbaum [--anzahl K] (Parameter der Periodenverdopplungen)", cmdFeigenbaum},
        {"ljapunow", "Aufruf: quorix ljapunow R [--schritte N] [--folge ab --b B] (Ljapunow-Exponent)", cmdLjapunow},
    };
}
