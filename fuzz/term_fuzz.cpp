// libFuzzer target over the term engines: EvalTerm (with F-slots from the input), DerivativeTerm
// and the evaluation of its text, DerivativeTermNice, EvalComplexTerm, PostFix and fk3parser.
// Built and run by fuzz/run.sh; a finding is any crash, hang or sanitizer report.
#include "kernel/term.h"
#include "kernel/termcomplex.h"
#include "kernel/termderiv.h"
#include "kernel/termfk3.h"
#include "kernel/termpostfix.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace quorix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    std::string all(reinterpret_cast<const char*>(data + 1), size - 1);
    // Parts separated by a newline: the term, then up to five slot terms.
    std::vector<std::string> parts;
    std::size_t p = 0;
    for (std::size_t q; (q = all.find('\n', p)) != std::string::npos; p = q + 1)
        parts.push_back(all.substr(p, q - p));
    parts.push_back(all.substr(p));
    const std::string& term = parts[0];
    for (int i = 0; i < 5; ++i)
        TermFunctionSlots[i] = i + 1 < static_cast<int>(parts.size()) ? parts[i + 1] : std::string();
    const std::uint8_t sel = data[0];
    TermRangeGuardOn = sel & 0x80;
    TermParamP = (sel & 7) - 3.5;
    TermParamQ = ((sel >> 3) & 3) * 0.4;
    const double xs[] = {0.0, -1.5, 2.75, 1e12, -7.0};
    for (double x : xs)
        EvalTerm(term, x);
    EvalTermMode(term, sel & 3, 0.5);
    ReadTermValue(term);
    const std::string d = DerivativeTerm(term);
    if (!d.empty()) {
        EvalTerm(d, 1.25);
        DerivativeTerm(d);
    }
    DerivativeTermNice(term, {"<1*", "<", "*1>", ">", "X", "XX"});
    TermComplex r;
    EvalComplexTerm(term, {0.5, -1.0}, r);
    PostFix(term, 1.5);
    bool ok = false;
    fk3evaluate(fk3parser(term), Fk3Values{1, 2, 3, 4, 5, 6, 7, 8, 9}, ok);
    return 0;
}
