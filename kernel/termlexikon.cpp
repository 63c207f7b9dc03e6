#include "kernel/termlexikon.h"
#include "kernel/term.h"
#include "kernel/term_support.h"

#include <cmath>
#include <cstdint>

namespace quorix {

namespace {

const char* const kError = "Fehler";

// Upper case as the numeric fields do it: ASCII only, so the exponent letter stays as it is.
char upper(char c)
{
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool latticePoints(double x, double& result)
{
    if (!(x <= 1000) || !std::isfinite(x) || std::fabs(x) > 1000)
        return false;
    const std::int64_t r = static_cast<std::int64_t>(std::trunc(std::fabs(x)));
    const std::int64_t r2 = r * r;
    std::int64_t sum = 0;
    for (std::int64_t i = 1; i <= r2; ++i) {
        const std::int64_t term = r2 / (2 * i - 1);
        sum += (i % 2 == 1) ? term : -term;
    }
    result = static_cast<double>(1 + 4 * sum);
    return true;
}

bool triangulations(double x, double& result)
{
    const double n = std::nearbyint(x);
    if (!(n >= 3 && n <= 28))
        return false;
    double p = 1;
    for (int i = 3; i <= static_cast<int>(n); ++i)
        p = p * (4 * i - 10) / (i - 1);
    result = std::nearbyint(p);
    return true;
}

bool julianDate(double dayIn, double monthIn, double yearIn, double& result)
{
    const double day = std::nearbyint(dayIn), month = std::nearbyint(monthIn), year = std::nearbyint(yearIn);
    if (!std::isfinite(day + month + year) || std::fabs(year) > 1e7)
        return false;
    double y = year + 4712, m = month + 1;
    if (month <= 2) {
        y -= 1;
        m += 12;
    }
    double b = -63.5;
    if (year * 10000 + month * 100 + day >= 15821015) {
        const double c = std::trunc((y + 88) / 100);
        b += 38 - c + std::trunc(0.25 * c);
    }
    result = std::trunc(365.25 * y) + std::trunc(30.6001 * m) + day + b;
    return true;
}

}  // namespace

std::string lexikonListName(const std::string& lexikonwert)
{
    const char c = lexikonwert.empty() ? ' ' : upper(lexikonwert[0]);
    return (c >= 'A' && c <= 'M') ? "aktivb1" : "aktivb2";
}

int lexikonWindowHeight(int inputs)
{
    switch (inputs) {
    case 1: return 166;
    case 2: return 200;
    case 3: return 230;
    default: return 264;
    }
}

bool lexikonCalculation(const std::string& lexikonwert, const std::vector<std::string>& list,
                        LexikonCalculation& out)
{
    out = LexikonCalculation{};
    if (!lexikonwert.empty() && lexikonwert[0] == '#') {
        out.caption = "Funktionswert";
        out.labels = {"Funktionswert " + lexikonwert.substr(1)};
        out.formula = "#" + (lexikonwert.size() > 3 ? lexikonwert.substr(3) : std::string());
        return true;
    }
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] != "*" + lexikonwert)
            continue;
        if (i + 1 >= list.size())
            return false;
        int k = 0;
        try {
            k = std::stoi(list[i + 1]);
        } catch (...) {
            return false;
        }
        if (k < 1 || k > 4 || i + 2 + k >= list.size())
            return false;
        out.caption = lexikonwert;
        out.labels.assign(list.begin() + i + 2, list.begin() + i + 2 + k);
        out.formula = list[i + 2 + k];
        return true;
    }
    return false;
}

std::string lexikonD2(const std::string& formula, const std::array<std::string, 4>& inputs, bool decimalComma)
{
    double v[4];
    for (int i = 0; i < 4; ++i)
        v[i] = ReadTermValue(inputs[i]);
    if (formula.empty())
        return kError;
    double result = 0;
    const bool builtIn = formula[0] == 'A' && (formula == "A1" || formula == "A2" || formula == "A3");
    if (builtIn) {
        bool ok = formula == "A1"   ? latticePoints(v[0], result)
                  : formula == "A2" ? triangulations(v[0], result)
                                    : julianDate(v[0], v[1], v[2], result);
        if (!ok)
            return kError;
    } else {
        std::string term = formula[0] == '#' ? formula.substr(1) : formula;
        for (char& c : term)
            c = upper(c);
        const double p = TermParamP, q = TermParamQ, r = TermParamR;
        TermParamP = v[1];
        TermParamQ = v[2];
        TermParamR = v[3];
        result = EvalTerm(term, v[0]);
        const int code = TermError;
        TermParamP = p;
        TermParamQ = q;
        TermParamR = r;
        // Code 3 marks a jump of a good value; every other code means no value.
        if (code != 0 && code != 3)
            return kError;
    }
    std::string text = termsupport::realToStrDot(1, std::fabs(result) > 0.01 ? 5 : 8, result);
    if (decimalComma) {
        const std::size_t dot = text.find('.');
        if (dot != std::string::npos)
            text[dot] = ',';
    }
    return text;
}

}  // namespace quorix
