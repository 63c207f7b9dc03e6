// `quorix mp OP A [B] [--base N]` and `quorix bigfloat OP X [Y] [--digits N]`.
#include "numbers/commands.h"
#include "numbers/opbox_core.h"
#include "numbers/rechla_core.h"

#include <map>

using quorix::Args;

namespace {

const std::map<std::string, std::pair<numbers::RechlaOp, bool>>& mpOps()
{
    using numbers::RechlaOp;
    // name -> operation, whether b is read
    static const std::map<std::string, std::pair<RechlaOp, bool>> ops = {
        {"add", {RechlaOp::Add, true}},         {"sub", {RechlaOp::Sub, true}},
        {"mul", {RechlaOp::Mul, true}},         {"div", {RechlaOp::Div, true}},
        {"mod", {RechlaOp::Mod, true}},         {"gcd", {RechlaOp::Gcd, true}},
        {"lcm", {RechlaOp::Lcm, true}},         {"fact", {RechlaOp::Fact, false}},
        {"primorial", {RechlaOp::Primorial, false}}, {"pow", {RechlaOp::Pow, true}},
        {"binom", {RechlaOp::Binom, true}},     {"falling", {RechlaOp::Falling, true}},
        {"sqrt", {RechlaOp::Sqrt, false}},      {"sqr", {RechlaOp::Sqr, false}},
    };
    return ops;
}

bool parseInt(const std::string& s, int& v)
{
    if (s.empty() || s.size() > 9)
        return false;
    v = 0;
    for (char c : s) {
        if (c < '0' || c > '9')
            return false;
        v = v * 10 + (c - '0');
    }
    return true;
}

int runMp(const Args& in, std::ostream& out, std::ostream& err)
{
    Args args = in;
    std::string baseText;
    int base = 10;
    if (quorix::takeOption(args, "--base", baseText) && (!parseInt(baseText, base) || base < 2 || base > 16)) {
        err << "Basis falsch: erlaubt sind 2 bis 16\n";
        return 2;
    }
    if (args.empty()) {
        err << "Aufruf: quorix mp OP A [B] [--base N]\n";
        return 2;
    }
    auto it = mpOps().find(args[0]);
    if (it == mpOps().end()) {
        err << "Unbekannte Operation: " << args[0] << "\n";
        return 2;
    }
    bool needB = it->second.second;
    if (args.size() < 2 || (needB && args.size() < 3) || args.size() > (needB ? 3u : 2u)) {
        err << "Aufruf: quorix mp " << args[0] << (needB ? " A B" : " A") << " [--base N]\n";
        return 2;
    }
    std::string b = needB ? args[2] : std::string("0");
    numbers::RechlaResult r = numbers::rechlaCompute(it->second.first, args[1], b, base);
    if (r.error == numbers::RechlaBaseMessage) {
        err << r.error << "\n";
        return 2;
    }
    if (!r.error.empty()) {
        err << r.error << ".\n";
        return 1;
    }
    out << r.text << "\n";
    return 0;
}

int runBigfloat(const Args& in, std::ostream& out, std::ostream& err)
{
    Args args = in;
    std::string digitsText;
    int digits = numbers::OpBoxDefaultDigits;
    if (quorix::takeOption(args, "--digits", digitsText) && !parseInt(digitsText, digits)) {
        err << "Ziffernzahl falsch: erlaubt sind 10 bis 4000\n";
        return 2;
    }
    if (args.empty() || !numbers::opboxKnownOp(args[0])) {
        err << "Aufruf: quorix bigfloat OP X [Y] [--digits N], OP: add sub mul div sqr sqrt inv pow ln lg exp pi root log\n";
        return 2;
    }
    const std::string& op = args[0];
    size_t want = op == "pi" ? 1 : (numbers::opboxNeedsY(op) ? 3 : 2);
    if (args.size() != want) {
        err << "Aufruf: quorix bigfloat " << op << (op == "pi" ? "" : (want == 3 ? " X Y" : " X"))
            << " [--digits N]\n";
        return 2;
    }
    numbers::OpBoxResult r = numbers::opboxCompute(op, want > 1 ? args[1] : "", want > 2 ? args[2] : "", digits);
    if (!r.ok) {
        err << r.text << "\n";
        return r.text == "Zahlenfehler" ? 2 : 1;
    }
    out << r.text << "\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> numbersCommands()
{
    return {
        {"mp", "mp OP A [B] [--base N]: Langarithmetik (add sub mul div mod gcd lcm fact primorial pow binom falling sqrt)",
         runMp},
        {"bigfloat",
         "bigfloat OP X [Y] [--digits N]: Fließkommaberechnung (add sub mul div sqr sqrt inv pow ln lg exp pi root log)",
         runBigfloat},
    };
}
