#include "stochastics/commands.h"

#include "stochastics/ugamdist.h"
#include "stochastics/usimulation.h"
#include "stochastics/ustatistik.h"
#include "stochastics/utabellen.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using quorix::Args;
using namespace zufall;

namespace {

const char* const kStatistik = "Aufruf: quorix statistik ZAHL...";
const char* const kVerteilung =
    "Aufruf: quorix verteilung NAME PARAMETER... [--x X]  (t chi2 normal lognormal exp maxwell weibull f beta gamma "
    "fisher binomial poisson hypergeo polya negbinomial)";
const char* const kSimulation =
    "Aufruf: quorix simulation wuerfel|karten|lotto|ziege|efron|geburtstag|markow|ausgleich --n N [--seed S] "
    "[--wuerfel K] [--art A] [--ohne] [--tipp 1,2,3,4,5,6] [--aus N] [--zz] [--kain A] [--abel B] [--personen P] "
    "[--matrix \"0.5 0.5/0.2 0.8\"]";

int usage(std::ostream& err, const std::string& text)
{
    err << text << "\n";
    return 2;
}

bool zahlLesen(const std::string& s, double& v)
{
    std::string fehler;
    const auto z = leseZahlen(s, &fehler);
    if (z.size() != 1 || !fehler.empty()) return false;
    v = z[0];
    return true;
}

bool ganzLesen(const std::string& s, long& v, long min, long max)
{
    double d;
    if (!zahlLesen(s, d) || d != std::floor(d) || d < min || d > max) return false;
    v = static_cast<long>(d);
    return true;
}

void ausgeben(const Zeilen& z, std::ostream& out)
{
    for (const auto& l : z) out << l << "\n";
}

int cmdStatistik(Args a, std::ostream& out, std::ostream& err)
{
    if (a.empty()) return usage(err, kStatistik);
    std::vector<double> werte;
    for (const auto& s : a) {
        double v;
        if (!zahlLesen(s, v)) return usage(err, "Keine Zahl: " + s);
        werte.push_back(v);
    }
    ausgeben(statistikZeilen(werte), out);
    return 0;
}

int cmdVerteilung(Args a, std::ostream& out, std::ostream& err)
{
    std::string xs;
    const bool mitX = quorix::takeOption(a, "--x", xs);
    double x = 0;
    if (mitX && !zahlLesen(xs, x)) return usage(err, "Ungültiges Argument: " + xs);
    if (a.empty()) return usage(err, kVerteilung);
    std::vector<double> p;
    for (size_t i = 1; i < a.size(); ++i) {
        double v;
        if (!zahlLesen(a[i], v)) return usage(err, "Kein Parameter: " + a[i]);
        p.push_back(v);
    }
    const std::string& name = a[0];
    Stetig st;
    Diskret di;
    if ((name == "normal" && p.size() == 2) || name == "lognormal") {
        if (p.size() != 2) return usage(err, "Aufruf: quorix verteilung normal|lognormal MITTELWERT VARIANZ [--x X]");
        if (!(p[1] > 0)) return usage(err, "Die Varianz muss positiv sein");
        const bool ln = name == "lognormal";
        if (mitX) {
            out << "x\tf(x)\tF(x)\n" << zahl(x) << "\t"
                << zahl(ln ? lognormalDichte(x, p[0], p[1]) : normalDichte(x, p[0], p[1])) << "\t"
                << zahl(ln ? lognormalVerteilung(x, p[0], p[1]) : normalVerteilung(x, p[0], p[1])) << "\n";
            return 0;
        }
        const double s = std::sqrt(p[1]);
        ausgeben(normalTabelle(ln, p[0], p[1], p[0] - s, p[0] + s), out);
        return 0;
    }
    if (stetigNachName(name, st)) {
        const auto namen = stetigeParameter(st);
        if (p.size() != namen.size()) {
            std::string liste;
            for (const auto& n : namen) liste += " [" + n + "]";
            return usage(err, "Aufruf: quorix verteilung " + name + liste + " [--x X]");
        }
        const StetigeVerteilung v{st, p.size() > 0 ? p[0] : 1, p.size() > 1 ? p[1] : 1};
        if (!parameterGueltig(v)) return usage(err, "Ungültige Parameter für " + stetigeNamen()[int(st)]);
        if (mitX) {
            const double f = dichte(v, x);
            const std::string ft = verteilungsstatus == stUnendlich ? "unendlich" : zahl(f);
            out << "x\tf(x)\tF(x)\n" << zahl(x) << "\t" << ft << "\t" << zahl(verteilung(v, x)) << "\n";
            return 0;
        }
        double von, bis;
        stetigerBereich(v, von, bis);
        ausgeben(stetigeTabelle(v, von, bis, 10), out);
        return 0;
    }
    if (diskretNachName(name, di)) {
        const auto namen = diskreteParameter(di);
        if (p.size() != namen.size()) {
            std::string liste;
            for (const auto& n : namen) liste += " [" + n + "]";
            return usage(err, "Aufruf: quorix verteilung " + name + liste + " [--x K]");
        }
        const DiskreteVerteilung v{di, p};
        if (!parameterGueltig(v)) return usage(err, "Ungültige Parameter für " + diskreteNamen()[int(di)]);
        if (mitX) {
            if (x != std::floor(x)) return usage(err, "K muss ganz sein");
            const long k = static_cast<long>(x);
            out << "k\tP(X=k)\tP(X<=k)\n" << k << "\t" << zahl(wahrscheinlichkeit(v, k)) << "\t" << zahl(verteilung(v, k)) << "\n";
            return 0;
        }
        ausgeben(diskreteTabelle(v), out);
        return 0;
    }
    return usage(err, "Unbekannte Verteilung: " + name + "\n" + kVerteilung);
}

int cmdSimulation(Args a, std::ostream& out, std::ostream& err)
{
    std::string ns, seeds = "1", s;
    long n = 0, seed = 1;
    if (!quorix::takeOption(a, "--n", ns) || !ganzLesen(ns, n, 1, 100000000)) return usage(err, kSimulation);
    if (quorix::takeOption(a, "--seed", seeds) && !ganzLesen(seeds, seed, 0, 2147483647))
        return usage(err, "Ungültiger Startwert: " + seeds);
    if (a.empty()) return usage(err, kSimulation);
    const std::string name = a[0];
    Zufall z(static_cast<std::uint64_t>(seed));
    auto ganz = [&](const char* opt, long def, long min, long max, long& v) {
        v = def;
        return !quorix::takeOption(a, opt, s) || ganzLesen(s, v, min, max);
    };
    Ergebnis e;
    if (name == "wuerfel") {
        long k, art;
        if (!ganz("--wuerfel", 2, 1, 20, k) || !ganz("--art", 0, 0, 3, art)) return usage(err, kSimulation);
        e = wuerfelExperiment(int(art), int(k), n, z);
    } else if (name == "karten") {
        const bool ohne = quorix::takeFlag(a, "--ohne");
        std::string deck = "skat";
        quorix::takeOption(a, "--deck", deck);
        if (deck != "skat" && deck != "bridge") return usage(err, "Kartenspiel: skat oder bridge");
        e = kartenExperiment(deck == "bridge" ? 1 : 0, !ohne, n, z);
    } else if (name == "lotto") {
        long k, aus;
        const bool zz = quorix::takeFlag(a, "--zz");
        if (!ganz("--k", 6, 1, 8, k) || !ganz("--aus", 49, 2, 100, aus)) return usage(err, kSimulation);
        std::vector<int> tipp;
        if (quorix::takeOption(a, "--tipp", s)) {
            std::replace(s.begin(), s.end(), ',', ' ');
            for (double t : leseZahlen(s)) tipp.push_back(static_cast<int>(t));
        } else {
            for (int i = 1; i <= k; ++i) tipp.push_back(i);
        }
        e = lottoSimulation(int(k), int(aus), zz, tipp, n, z);
        if (e.zeilen.size() == 1) return usage(err, e.zeilen[0]);
    } else if (name == "ziege") {
        e = ziegenSimulation(n, z);
    } else if (name == "efron") {
        long kain, abel;
        if (!ganz("--kain", 0, 0, 4, kain) || !ganz("--abel", 1, 0, 4, abel)) return usage(err, kSimulation);
        e = efronSpiel(int(kain), int(abel), n, z);
    } else if (name == "geburtstag") {
        long p;
        if (!ganz("--personen", 23, 1, 100000, p)) return usage(err, kSimulation);
        e = geburtstagSimulation(int(p), n, z);
    } else if (name == "markow") {
        std::string text = "0.5 0.5/0.2 0.8";
        quorix::takeOption(a, "--matrix", text);
        for (char& c : text)
            if (c == '/') c = '\n';
        const Markow m = markowAusText(text);
        if (!m.fehler.empty()) return usage(err, m.fehler);
        long start;
        if (!ganz("--start", 0, 0, long(m.p.size()) - 1, start)) return usage(err, kSimulation);
        e = markowSimulation(m, int(start), n, z);
    } else if (name == "ausgleich") {
        e = ausgleichSimulation(n, z);
    } else {
        return usage(err, "Unbekannte Simulation: " + name + "\n" + kSimulation);
    }
    ausgeben(e.zeilen, out);
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> stochasticsCommands()
{
    return {{"statistik", "statistik ZAHL... - Mittelwert, Varianz, Median und weitere Kennwerte", cmdStatistik},
            {"verteilung", "verteilung NAME PARAMETER... [--x X] - Dichte, Verteilungsfunktion und Quantile",
             cmdVerteilung},
            {"simulation", "simulation NAME --n N [--seed S] - Würfel, Karten, Lotto, Ziegenproblem, Geburtstage ...",
             cmdSimulation}};
}
