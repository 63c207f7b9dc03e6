// Topics on reals: the square root by Heron, complex numbers, iteration of a term.
#include "algebra/numer_intern.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"

#include <cmath>
#include <complex>
#include <cstdio>

namespace numer::intern {
namespace {
using C = std::complex<double>;

// The setting "Komma" holds here as in every shown number.
std::string komma(std::string s)
{
    if (kernel::UseDecimalComma)
        for (char& ch : s)
            if (ch == '.') ch = ',';
    return s;
}

std::string kart(C c)
{
    char b[128];
    std::snprintf(b, sizeof b, "%*.*f +%*.*f i", 1, 6, c.real(), 1, 6, c.imag());
    std::string s = b;
    const auto pos = s.find("+-");
    if (pos != std::string::npos) s.replace(pos, 2, "-");
    return komma(s);
}

std::string polar(C c)
{
    char b[128];
    std::snprintf(b, sizeof b, "%*.*f · CIS(%*.*f)", 1, 6, std::abs(c), 1, 6, std::arg(c) * 180 / M_PI);
    return komma(b);
}
}  // namespace

void heron(Lauf& l)
{
    double a, x;
    int64_t n;
    if (!l.reell(0, a) || !l.reell(1, x) || !l.ganz(2, 1, 1000, n)) return;
    if (a < 0) return l.fehler("Zahl muss positiv sein");
    if (x <= 0) x = a > 0 ? a : 1;
    l.zeile("Näherungswerte\tStartwerte");
    l.zeile("x0\t" + zahl(x, 15));
    for (int64_t i = 1; i <= n; ++i) {
        const double neu = (x + a / x) / 2;
        l.zeile("x" + z(i) + "\t" + zahl(neu, 15));
        if (neu == x) break;
        x = neu;
    }
    l.zeile("Wurzel(" + zahl(a, 10) + ")\t" + zahl(std::sqrt(a), 15));
}

void komplex(Lauf& l)
{
    double ar, ai;
    if (!l.reell(0, ar) || !l.reell(1, ai)) return;
    const C a(ar, ai);
    const bool zwei = !l.feld(2).empty() || !l.feld(3).empty();
    if (!zwei) {
        l.zeile("Komplexe Zahl\t" + kart(a));
        l.zeile("Absoluter Betrag |" + kart(a) + "|\t" + zahl(std::abs(a), 8));
        l.zeile("Winkelform\t" + polar(a));
        l.zeile("Konjugierte Zahl\t" + kart(std::conj(a)));
        if (a == C(0, 0))
            l.zeile("Reziprokes 1/z\tZahl ist (0,0)");
        else
            l.zeile("Reziprokes 1/z\t" + kart(1.0 / a));
        l.zeile("Wurzel(z)\t" + kart(std::sqrt(a)));
        l.zeile("3.Wurzel\t" + kart(std::polar(std::cbrt(std::abs(a)), std::arg(a) / 3)));
        if (a != C(0, 0)) l.zeile("z^(-i)\t" + kart(std::pow(a, C(0, -1))));
        l.zeile("(-i)^z\t" + kart(std::exp(a * std::log(C(0, -1)))));
        return;
    }
    double br, bi;
    if (!l.reell(2, br) || !l.reell(3, bi)) return;
    const C b(br, bi);
    l.zeile("Komplexe Zahl a\t" + kart(a));
    l.zeile("Komplexe Zahl b\t" + kart(b));
    l.zeile("Operationen mit a und b");
    l.zeile("a+b\t" + kart(a + b));
    l.zeile("a-b\t" + kart(a - b));
    l.zeile("a·b\t" + kart(a * b));
    l.zeile("a/b\t" + (b == C(0, 0) ? std::string("Zahl ist (0,0)") : kart(a / b)));
    l.zeile("b/a\t" + (a == C(0, 0) ? std::string("Zahl ist (0,0)") : kart(b / a)));
}

void iteration(Lauf& l)
{
    std::string term = l.feld(0);
    for (char& c : term) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    double x, p;
    int64_t n;
    if (term.empty()) return l.fehler("Term eingeben");
    if (!l.reell(1, x) || !l.reell(2, p) || !l.ganz(3, 1, 100000, n)) return;
    l.zeile("Iterationsgleichung X = " + term);
    l.zeile("Startwert X0 = " + zahl(x, 10));
    l.zeile("Parameter P = " + zahl(p, 10));
    const double altP = quorix::TermParamP;
    quorix::TermParamP = p;
    for (int64_t i = 1; i <= n; ++i) {
        if (!l.weiter(static_cast<int>(100 * i / n))) break;
        quorix::TermError = 0;
        const double neu = quorix::EvalTerm(term, x);
        if (quorix::TermError != 0 || !std::isfinite(neu)) {
            l.zeile("Fehler bei der Berechnung");
            break;
        }
        std::string s = z(i) + "\t" + zahl(neu, 15);
        if (i > 1 && x != 0) s += "\t" + zahl(100 * (neu - x) / std::fabs(x), 3) + " %";
        l.zeile(s);
        x = neu;
    }
    quorix::TermParamP = altP;
}

}  // namespace numer::intern
