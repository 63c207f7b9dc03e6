#include "kernel/termcommands.h"
#include "kernel/term.h"
#include "kernel/termcomplex.h"
#include "kernel/termderiv.h"
#include "kernel/termpostfix.h"
#include "kernel/termtext.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace quorix {

namespace {

std::string number(double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.17g", v);
    return buf;
}

bool parseNumber(const std::string& s, double& v)
{
    const char* b = s.data();
    const char* e = s.data() + s.size();
    if (b != e && *b == '+')
        ++b;
    auto r = std::from_chars(b, e, v);
    return b != e && r.ec == std::errc() && r.ptr == e;
}

// Takes "--name A B" (two numbers) out of args.
int takePair(Args& args, const std::string& name, double& re, double& im, std::ostream& err, bool& found)
{
    found = false;
    auto it = std::find(args.begin(), args.end(), name);
    if (it == args.end())
        return 0;
    if (args.end() - it < 3 || !parseNumber(*(it + 1), re) || !parseNumber(*(it + 2), im)) {
        err << "Nach " << name << " werden zwei Zahlen erwartet (Real- und Imaginärteil).\n";
        return 2;
    }
    args.erase(it, it + 3);
    found = true;
    return 0;
}

int takeNumber(Args& args, const std::string& name, double& v, std::ostream& err)
{
    std::string s;
    if (std::find(args.begin(), args.end(), name) == args.end())
        return 0;
    if (!takeOption(args, name, s) || !parseNumber(s, v)) {
        err << "Nach " << name << " wird eine Zahl erwartet.\n";
        return 2;
    }
    return 0;
}

int oneTerm(const Args& args, const char* usage, std::ostream& err, std::string& term)
{
    if (args.size() != 1) {
        err << (args.empty() ? "Kein Term angegeben.\n" : "Unbekannte Angaben im Aufruf.\n") << "Aufruf: " << usage << "\n";
        return 2;
    }
    term = termFromUtf8(args[0]);
    return 0;
}

const char* const kEvalUsage = "quorix eval TERM [--x V] [--p V] [--q V] [--r V] [--f1 TERM ... --f5 TERM] [--mode N]";
const char* const kDeriveUsage = "quorix derive TERM [--nice]";
const char* const kCevalUsage = "quorix ceval TERM --z RE IM [--p RE IM] [--q RE IM]";
const char* const kUpnUsage = "quorix upn TERM [--x V]";

int runEval(Args args, std::ostream& out, std::ostream& err)
{
    double x = 0, p = TermParamP, q = TermParamQ, r = TermParamR, mode = 0;
    for (auto [name, target] : {std::pair{"--x", &x}, {"--p", &p}, {"--q", &q}, {"--r", &r}, {"--mode", &mode}})
        if (int rc = takeNumber(args, name, *target, err))
            return rc;
    if (mode != 0 && mode != 1 && mode != 2 && mode != 3) {
        err << "--mode erwartet 0, 1, 2 oder 3.\n";
        return 2;
    }
    auto slots = TermFunctionSlots;
    for (int i = 0; i < 5; ++i) {
        std::string s;
        const std::string name = "--f" + std::to_string(i + 1);
        if (takeOption(args, name, s))
            slots[i] = termFromUtf8(s);
    }
    std::string term;
    if (int rc = oneTerm(args, kEvalUsage, err, term))
        return rc;
    TermParamP = p;
    TermParamQ = q;
    TermParamR = r;
    TermFunctionSlots = slots;
    const double v = EvalTermMode(term, static_cast<unsigned char>(mode), x);
    out << number(v) << '\t' << int(TermError) << '\n';
    return 0;
}

int runDerive(Args args, std::ostream& out, std::ostream& err)
{
    const bool nice = takeFlag(args, "--nice");
    std::string term;
    if (int rc = oneTerm(args, kDeriveUsage, err, term))
        return rc;
    const std::string d = nice ? DerivativeTermNice(term) : DerivativeTerm(term);
    if (d.empty()) {
        err << "Der Term kann nicht abgeleitet werden.\n";
        return 1;
    }
    out << termToUtf8(d) << '\n';
    return 0;
}

int runCeval(Args args, std::ostream& out, std::ostream& err)
{
    double zr = 0, zi = 0, pr = ComplexTermParamP.real(), pi = ComplexTermParamP.imag();
    double qr = ComplexTermParamQ.real(), qi = ComplexTermParamQ.imag();
    bool haveZ = false, found = false;
    if (int rc = takePair(args, "--z", zr, zi, err, haveZ))
        return rc;
    if (int rc = takePair(args, "--p", pr, pi, err, found))
        return rc;
    if (int rc = takePair(args, "--q", qr, qi, err, found))
        return rc;
    if (!haveZ) {
        err << "--z RE IM fehlt.\nAufruf: " << kCevalUsage << "\n";
        return 2;
    }
    std::string term;
    if (int rc = oneTerm(args, kCevalUsage, err, term))
        return rc;
    ComplexTermParamP = {pr, pi};
    ComplexTermParamQ = {qr, qi};
    TermComplex result;
    const int code = EvalComplexTerm(term, {zr, zi}, result);
    out << number(result.real()) << '\t' << number(result.imag()) << '\t' << code << '\n';
    return 0;
}

int runUpn(Args args, std::ostream& out, std::ostream& err)
{
    double x = 0;
    if (int rc = takeNumber(args, "--x", x, err))
        return rc;
    std::string term;
    if (int rc = oneTerm(args, kUpnUsage, err, term))
        return rc;
    const PostFixResult r = PostFix(term, x);
    if (!r.ok) {
        if (!r.tokens.empty() && r.error != 1)
            out << termToUtf8(r.text()) << '\n';
        err << r.message << ".\n";
        return 1;
    }
    out << termToUtf8(r.text()) << '\n' << number(r.value) << '\n';
    return 0;
}

}  // namespace

std::vector<HeadlessCommand> termCommands()
{
    return {
        {"eval", std::string(kEvalUsage) + "  (Wert und Fehlercode eines Terms)", runEval},
        {"derive", std::string(kDeriveUsage) + "  (erste Ableitung eines Terms)", runDerive},
        {"ceval", std::string(kCevalUsage) + "  (komplexer Term: Real-, Imaginärteil, Code)", runCeval},
        {"upn", std::string(kUpnUsage) + "  (Term in umgekehrter polnischer Notation und sein Wert)", runUpn},
    };
}

}  // namespace quorix
