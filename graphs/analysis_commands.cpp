#include "graphs/analysis_commands.h"

#include "graphs/analysis.h"
#include "graphs/integration.h"
#include "kernel/term.h"
#include "platform/codepage.h"

#include <algorithm>
#include <cctype>

namespace graphs {

namespace {

using quorix::Args;

std::string termAus(const std::string& utf8)
{
    std::string t = platform::utf8ToCp1252(utf8);
    for (char& c : t)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return t;
}

// A number argument may be a term such as PI/2; false on a fault.
bool zahlArg(const std::string& text, double& v)
{
    std::string t = termAus(text);
    std::replace(t.begin(), t.end(), ',', '.');
    if (t.empty())
        return false;
    quorix::TermError = 0;
    v = quorix::EvalTerm(t, 1);
    return quorix::TermError == 0;
}

bool zahlOption(Args& args, const std::string& name, double& v, bool& fehler)
{
    std::string s;
    if (!quorix::takeOption(args, name, s))
        return false;
    if (!zahlArg(s, v))
        fehler = true;
    return true;
}

bool fremdeOption(const Args& args, std::ostream& err, const char* aufruf)
{
    for (const std::string& a : args)
        if (a.size() > 2 && a.rfind("--", 0) == 0) {
            err << "Unbekannte Option " << a << ".\n" << aufruf << "\n";
            return true;
        }
    return false;
}

void ausgeben(std::ostream& out, const std::vector<std::string>& zeilen)
{
    // the core writes UTF-8 text; terms typed by the user come back from the code page
    for (const std::string& z : zeilen)
        out << z << "\n";
}

const char* kDiskussion = "Aufruf: quorix diskussion TERM [--von A] [--bis B] [--schritte N] [--p P] [--q Q] [--r R]";
const char* kTabelle = "Aufruf: quorix wertetabelle TERM VON BIS SCHRITT";
const char* kTangente = "Aufruf: quorix tangente TERM X [--punkt PX PY]";
const char* kIntegral =
    "Aufruf: quorix integral TERM A B [--methode links|rechts|mitte|trapez|simpson|kepler|gauss|romberg] [--n N] "
    "[--g TERM] [--stamm F] [--vergleich]";

int runDiskussion(Args args, std::ostream& out, std::ostream& err)
{
    Diskussionsvorgabe v;
    bool fehler = false;
    double schritte = v.schritte;
    zahlOption(args, "--von", v.von, fehler);
    zahlOption(args, "--bis", v.bis, fehler);
    zahlOption(args, "--schritte", schritte, fehler);
    zahlOption(args, "--p", v.p, fehler);
    zahlOption(args, "--q", v.q, fehler);
    zahlOption(args, "--r", v.r, fehler);
    if (fremdeOption(args, err, kDiskussion))
        return 2;
    if (fehler || args.size() != 1 || schritte < 1 || schritte > 1000000 || v.von == v.bis) {
        err << (fehler ? "Eine Zahlenangabe ist fehlerhaft.\n" : "") << kDiskussion << "\n";
        return 2;
    }
    v.schritte = static_cast<int>(schritte);
    v.term = termAus(args[0]);
    const Diskussion d = diskutieren(v);
    if (!d.fehler.empty()) {
        err << d.fehler << "\n";
        return 2;
    }
    ausgeben(out, diskussionszeilen(v, d));
    return 0;
}

int runWertetabelle(Args args, std::ostream& out, std::ostream& err)
{
    double von = 0, bis = 0, schritt = 0;
    if (args.size() != 4 || !zahlArg(args[1], von) || !zahlArg(args[2], bis) || !zahlArg(args[3], schritt) ||
        !(schritt > 0) || bis < von) {
        err << kTabelle << "\n";
        return 2;
    }
    const std::string term = termAus(args[0]);
    const std::string m = pruefeTerm(term, 1);
    if (!m.empty()) {
        err << m << "\n";
        return 2;
    }
    ausgeben(out, wertetabelle(term, von, bis, schritt, stammfunktionSuchen(term, {})));
    return 0;
}

int runTangente(Args args, std::ostream& out, std::ostream& err)
{
    double px = 0, py = 0, x = 0;
    bool mitPunkt = false;
    auto it = std::find(args.begin(), args.end(), "--punkt");
    if (it != args.end()) {
        if (args.end() - it < 3 || !zahlArg(it[1], px) || !zahlArg(it[2], py)) {
            err << kTangente << "\n";
            return 2;
        }
        args.erase(it, it + 3);
        mitPunkt = true;
    }
    if (fremdeOption(args, err, kTangente))
        return 2;
    if (args.size() != 2 || !zahlArg(args[1], x)) {
        err << kTangente << "\n";
        return 2;
    }
    const std::string term = termAus(args[0]);
    const std::string m = pruefeTerm(term, 1);
    if (!m.empty()) {
        err << m << "\n";
        return 2;
    }
    const TangenteNormale t = tangenteNormale(term, x);
    ausgeben(out, tangentenzeilen(t));
    if (mitPunkt) {
        ausgeben(out, tangentenVonPunktZeilen(term, px, py, -10, 10, false));
        ausgeben(out, tangentenVonPunktZeilen(term, px, py, -10, 10, true));
    }
    return t.definiert ? 0 : 1;
}

int runIntegral(Args args, std::ostream& out, std::ostream& err)
{
    Integrationsvorgabe v;
    std::string methode, n, g, stamm;
    const bool vergleich = quorix::takeFlag(args, "--vergleich");
    if (quorix::takeOption(args, "--methode", methode) && !verfahrenAusName(methode, v.verfahren)) {
        err << "Unbekanntes Verfahren " << methode << ".\n" << kIntegral << "\n";
        return 2;
    }
    if (quorix::takeOption(args, "--n", n)) {
        double w = 0;
        if (!zahlArg(n, w) || w < 1 || w > 10000000) {
            err << "Die Anzahl der Streifen ist fehlerhaft.\n" << kIntegral << "\n";
            return 2;
        }
        v.n = static_cast<int>(w);
    }
    if (quorix::takeOption(args, "--g", g))
        v.g = termAus(g);
    if (quorix::takeOption(args, "--stamm", stamm))
        v.F = termAus(stamm);
    if (fremdeOption(args, err, kIntegral))
        return 2;
    if (args.size() != 3 || !zahlArg(args[1], v.a) || !zahlArg(args[2], v.b)) {
        err << kIntegral << "\n";
        return 2;
    }
    v.f = termAus(args[0]);
    if (vergleich) {
        const std::string m = pruefeTerm(v.f, 1);
        if (!m.empty()) {
            err << m << "\n";
            return 2;
        }
        ausgeben(out, verfahrensvergleich(v.f, v.F.empty() ? stammfunktionSuchen(v.f, {}) : v.F, v.a, v.b, v.n));
        return 0;
    }
    const Integrationsergebnis r = integrationRechnen(v);
    if (!r.fehler.empty()) {
        err << r.fehler << "\n";
        return 2;
    }
    ausgeben(out, integrationszeilen(v, r));
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> kurvenCommands()
{
    return {{"diskussion", "diskussion TERM [--von A] [--bis B] [--schritte N]: Kurvendiskussion einer Funktion",
             runDiskussion},
            {"wertetabelle", "wertetabelle TERM VON BIS SCHRITT: Wertetabelle mit Ableitungen und Stammfunktion",
             runWertetabelle},
            {"tangente", "tangente TERM X [--punkt PX PY]: Tangente und Normale an der Stelle X", runTangente},
            {"integral",
             "integral TERM A B [--methode M] [--n N] [--g TERM] [--stamm F] [--vergleich]: bestimmtes Integral, "
             "Flächen, Rotationskörper",
             runIntegral}};
}

}  // namespace graphs
