// The plotter evaluates through the kernel's term interpreter and writes numbers through
// the kernel's number text.
#include "graphs/kernelbindung.h"

#include "kernel/numeric.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "kernel/termderiv.h"

namespace graphs {

namespace {

class KernelAuswerter : public TermAuswerter {
public:
    double wert(const std::string& term, double x, int& termError) override
    {
        const double v = quorix::EvalTerm(term, x);
        termError = quorix::TermError;
        return v;
    }
    double wertModus(const std::string& term, int modus, double x, int& termError) override
    {
        const double v = quorix::EvalTermMode(term, static_cast<unsigned char>(modus), x);
        termError = quorix::TermError;
        return v;
    }
    double feldwert(const std::string& text) override { return quorix::ReadTermValue(text); }
    std::string ableitung(const std::string& term) override { return quorix::DerivativeTerm(term); }
    void setzeParameter(double p, double q) override
    {
        quorix::TermParamP = p;
        quorix::TermParamQ = q;
    }
    double parameterP() const override { return quorix::TermParamP; }
    double parameterQ() const override { return quorix::TermParamQ; }
    void setzeFunktion(int slot, const std::string& term) override
    {
        if (slot >= 1 && slot <= 5)
            quorix::TermFunctionSlots[static_cast<size_t>(slot) - 1] = term;
    }
    std::string funktion(int slot) const override
    {
        return slot >= 1 && slot <= 5 ? quorix::TermFunctionSlots[static_cast<size_t>(slot) - 1] : std::string();
    }
};

}  // namespace

// Defaults for evaluators of the tests that supply only wert().
double TermAuswerter::wertModus(const std::string& term, int modus, double x, int& termError)
{
    if (modus == 1 || modus == 3)
        x = std::exp(std::clamp(x, -100.0, 100.0));
    double v = wert(term, x, termError);
    if (modus >= 2) {
        if (termError != tfKeiner || v <= 0) {
            termError = tfDefinition;
            return 0;
        }
        v = std::log(v);
    }
    return v;
}

double TermAuswerter::feldwert(const std::string& text)
{
    std::string t;
    for (char c : text)
        t += c == ',' ? '.' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    int e = 0;
    const double v = wert(t, 1.0, e);
    return e != tfKeiner ? 0 : v;
}

TermAuswerter& termAuswerter()
{
    static KernelAuswerter a;
    return a;
}

std::string zahlText(int breite, int stellen, double x) { return kernel::RealToStr(breite, stellen, x); }
std::string zahlTextPunkt(int breite, int stellen, double x) { return kernel::RealToStrDot(breite, stellen, x); }
void setzeDezimalkomma(bool an) { kernel::UseDecimalComma = an; }

int pixelRunden(double v)
{
    return kernel::SafeRound(v);
}

}  // namespace graphs
