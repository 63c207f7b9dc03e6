#include "kernel/commands.h"

#include "kernel/realtostr.h"
#include "kernel/roots.h"

#include <charconv>
#include <cmath>

namespace kernel {

namespace {

// Numbers on the command line: point or comma, nothing else around them.
bool parseReal(const std::string& s, double& v)
{
    const std::string t = CommaToPoint(s);
    const char* first = t.data();
    const char* last = t.data() + t.size();
    if (first != last && *first == '+')
        ++first;
    auto r = std::from_chars(first, last, v);
    return r.ec == std::errc() && r.ptr == last && first != last && std::isfinite(v);
}

bool parseInt(const std::string& s, int& v)
{
    auto r = std::from_chars(s.data(), s.data() + s.size(), v);
    return r.ec == std::errc() && r.ptr == s.data() + s.size() && !s.empty();
}

int runRealToStr(quorix::Args args, std::ostream& out, std::ostream& err)
{
    const bool komma = quorix::takeFlag(args, "--komma");
    int width = 0, decimals = 0;
    double x = 0;
    if (args.size() != 3 || !parseInt(args[0], width) || !parseInt(args[1], decimals) || !parseReal(args[2], x) ||
        width < 0 || width > 60 || decimals < 0 || decimals > 30) {
        err << "Aufruf: quorix realtostr BREITE STELLEN ZAHL [--komma]\n"
               "BREITE 0 bis 60, STELLEN 0 bis 30, ZAHL mit Punkt oder Komma\n";
        return 2;
    }
    const bool keep = UseDecimalComma;
    UseDecimalComma = komma;
    out << RealToStr(width, decimals, x) << '\n';
    UseDecimalComma = keep;
    return 0;
}

int runRoots(const quorix::Args& args, std::ostream& out, std::ostream& err)
{
    double c[5] = {};
    bool ok = args.size() >= 3 && args.size() <= 5;
    for (size_t i = 0; ok && i < args.size(); ++i)
        ok = parseReal(args[i], c[i]);
    if (!ok) {
        err << "Aufruf: quorix roots A B C [D [E]]\n"
               "Koeffizienten vom höchsten Grad an: A x\xC2\xB2 + B x + C, A x\xC2\xB3 + ... oder A x\xE2\x81\xB4 + ...\n";
        return 2;
    }
    std::string text;
    if (args.size() == 3)
        text = QuadraticRoots(c[0], c[1], c[2]);
    else if (args.size() == 4)
        text = CubicRoots(c[0], c[1], c[2], c[3]);
    else
        text = QuarticRoots(c[0], c[1], c[2], c[3], c[4]);
    out << text << '\n';
    return text == "keine L." ? 1 : 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> kernelCommands()
{
    return {
        {"realtostr", "realtostr BREITE STELLEN ZAHL [--komma]  Zahl als Text, wie das Programm sie zeigt",
         [](const quorix::Args& a, std::ostream& o, std::ostream& e) { return runRealToStr(a, o, e); }},
        {"roots", "roots A B C [D [E]]  Lösungen der quadratischen, kubischen oder quartischen Gleichung",
         [](const quorix::Args& a, std::ostream& o, std::ostream& e) { return runRoots(a, o, e); }},
    };
}

}  // namespace kernel
