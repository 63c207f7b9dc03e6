// `quorix isprime N` and `quorix factor N|FORMULA [--mpqs]`.
#include "numbers/factor/factorcommands.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/factor/ufakto_core.h"
#include "numbers/factor/uphase_core.h"
#include "numbers/mp_int.h"

using quorix::Args;

namespace {

bool allDigits(const std::string& s)
{
    if (s.empty())
        return false;
    for (char c : s)
        if (c < '0' || c > '9')
            return false;
    return true;
}

int runIsprime(const Args& args, std::ostream& out, std::ostream& err)
{
    if (args.size() != 1 || !allDigits(args[0])) {
        err << "Aufruf: quorix isprime N (N eine natürliche Zahl)\n";
        return 2;
    }
    numbers::mp_tmp n;
    numbers::mp_read_decimal(n, args[0]);
    out << (numbers::mp_is_pprime(n) ? "wahrscheinlich Primzahl" : "keine Primzahl") << "\n";
    return 0;
}

int runFactor(const Args& in, std::ostream& out, std::ostream& err)
{
    Args args = in;
    bool mpqs = quorix::takeFlag(args, "--mpqs");
    if (args.size() != 1) {
        err << "Aufruf: quorix factor N|FORMEL [--mpqs], FORMEL: F(n), M(n), P(a,b), R(a,b)\n";
        return 2;
    }
    std::string text = numbers::phaseExpandFormula(args[0]);
    if (!allDigits(text)) {
        err << "Keine natürliche Zahl und keine Formel: " << args[0] << "\n";
        return 2;
    }
    std::string digits = text;
    while (digits.size() > 1 && digits[0] == '0')
        digits.erase(0, 1);
    if (digits.size() > 100) {
        err << numbers::PhaseMessage60 << "\n";
        return 2;
    }
    std::vector<numbers::FactorPiece> pieces;
    bool complete;
    std::vector<std::string> lines;
    if (mpqs) {
        numbers::FactorHooks hooks;
        numbers::FaktformOutcome r = numbers::faktformRun(digits, hooks);
        lines = hooks.lines;
        pieces = r.pieces;
        complete = r.complete;
    } else {
        numbers::PhaseHooks hooks;
        numbers::PhaseOptions o;
        o.text = digits;
        o.mpqs = true;
        numbers::PhaseOutcome r = numbers::phaseRun(o, hooks);
        lines = hooks.lines;
        pieces = r.pieces;
        complete = r.complete;
    }
    for (const std::string& l : lines)
        out << l << "\n";
    out << "Faktoren\t" << numbers::factorListText(pieces) << "\n";
    return complete && !pieces.empty() ? 0 : 1;
}

}  // namespace

std::vector<quorix::HeadlessCommand> factorCommands()
{
    return {
        {"isprime", "isprime N: Primzahltest (\"wahrscheinlich Primzahl\" oder \"keine Primzahl\")", runIsprime},
        {"factor", "factor N|FORMEL [--mpqs]: Faktorisierung (Probedivision, Pollard-Rho, elliptische Kurven, "
                   "quadratisches Sieb; FORMEL: F(n), M(n), P(a,b), R(a,b))",
         runFactor},
    };
}
