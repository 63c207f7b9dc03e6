// Tfaktform's run: "Zahl:", the prime test, trial division by 64 rounds of 480 table primes,
// the sieve on the rest, the result line and the time.
#include "numbers/factor/ufakto_core.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/mp_prng.h"

#include <algorithm>
#include <cstdio>

namespace numbers {

const char* const MacronLine =
    "¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯";

std::string faktformFilter(const std::string& text)
{
    std::string out;
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            if (out == "0" || out == "-0" || out == "+0")
                out.pop_back();  // a leading zero is dropped
            out += c;
        } else if ((c == '-' || c == '+') && out.empty())
            out += c;
    }
    return out;
}

std::string faktformRandom()
{
    int n = 10 + int(mp_random_long() % 70);
    std::string s;
    s += char('1' + mp_random_long() % 9);
    for (int i = 1; i < n; ++i)
        s += char('0' + mp_random_long() % 10);
    s += "13579"[mp_random_long() % 5];
    return s;
}

void mergePieces(std::vector<FactorPiece>& pieces)
{
    std::sort(pieces.begin(), pieces.end(), [](const FactorPiece& a, const FactorPiece& b) {
        int c = TVarInt::compare(a.value, b.value);
        return c != 0 ? c < 0 : a.prime > b.prime;
    });
    std::vector<FactorPiece> out;
    for (FactorPiece& p : pieces) {
        if (!out.empty() && TVarInt::compare(out.back().value, p.value) == 0 && out.back().prime == p.prime)
            out.back().exponent += p.exponent;
        else
            out.push_back(p);
    }
    pieces.swap(out);
}

std::string factorListText(const std::vector<FactorPiece>& pieces)
{
    std::string s;
    for (const FactorPiece& p : pieces) {
        if (!s.empty())
            s += " · ";
        s += p.value.toDecimal();
        if (p.exponent > 1)
            s += "^" + std::to_string(p.exponent);
    }
    return s;
}

std::vector<FactorPiece> parseResultText(const std::string& text)
{
    std::vector<FactorPiece> out;
    size_t pos = 0;
    const std::string dot = "·";
    while (pos <= text.size()) {
        size_t e = text.find(dot, pos);
        std::string part = text.substr(pos, e == std::string::npos ? std::string::npos : e - pos);
        pos = e == std::string::npos ? text.size() + 1 : e + dot.size();
        FactorPiece f;
        f.prime = part.find("nicht prim") == std::string::npos;
        std::string digits, expo;
        bool inExp = false;
        for (size_t i = 0; i < part.size(); ++i) {
            char c = part[i];
            if (c == '^')
                inExp = true;
            else if (c >= '0' && c <= '9')
                (inExp ? expo : digits) += c;
            else if (c == ' ' && !digits.empty() && !inExp)
                break;  // " (d)" follows
        }
        if (digits.empty())
            continue;
        f.value = TVarInt(digits);
        f.exponent = expo.empty() ? 1 : std::stoi(expo);
        out.push_back(f);
    }
    return out;
}

namespace {

std::string resultTextOf(const std::vector<FactorPiece>& pieces)
{
    std::string s;
    for (const FactorPiece& p : pieces) {
        if (!s.empty())
            s += " · ";
        s += pieceText(p);
    }
    return s;
}

}  // namespace

FaktformOutcome faktformRun(const std::string& text, FactorHooks& hooks)
{
    FaktformOutcome res;
    std::string digits;
    for (char c : text)
        if (c >= '0' && c <= '9')
            digits += c;
    TVarInt n(digits.empty() ? std::string("0") : digits);
    if (n.isZero())
        return res;
    double t0 = factorNowMs();
    const size_t firstLine = hooks.lines.size();
    if (digits.size() < 500) {
        char buf[32];
        std::snprintf(buf, sizeof buf, " (%d)", decimalDigits(n));
        hooks.addLine("Zahl:  " + n.toDecimal() + buf);
    }
    if (TVarInt::compare(n, TVarInt(1)) != 0 && TVarInt::isProbablePrime(n)) {
        hooks.addLine("Zahl ist wahrscheinlich Primzahl");
        hooks.addLine(MacronLine);
        res.prime = res.complete = true;
        res.pieces.push_back({n, 1, true});
        res.resultText = resultTextOf(res.pieces);
        return res;
    }

    // trial division: the powers of 2, then 64 rounds of 480 primes of the table
    fillPrimeTable(PrimeTableBound);
    std::string small;
    auto note = [&](uint32_t p, int e) {
        char buf[40];
        if (e == 1)
            std::snprintf(buf, sizeof buf, "%u · ", p);
        else
            std::snprintf(buf, sizeof buf, "%u^%d · ", p, e);
        small += buf;
        res.pieces.push_back({TVarInt(int64_t(p)), e, true});
    };
    TVarInt rest = n, q;
    int e2 = 0;
    while (!rest.isZero() && !rest.isOdd()) {
        TVarInt::shiftRight(rest, 1, rest);
        ++e2;
    }
    if (e2)
        note(2, e2);
    const TVarInt one(1);
    for (int round = 0; round < 64 && TVarInt::compare(rest, one) != 0; ++round) {
        for (int k = 1 + round * 480; k <= (round + 1) * 480 && k < int(primeTable.size()); ++k) {
            uint32_t p = primeTable[size_t(k)];
            int e = 0;
            while (TVarInt::modWord(rest, p) == 0) {
                TVarInt::divWord(rest, p, rest);
                ++e;
            }
            if (e)
                note(p, e);
        }
        if (hooks.yield()) {
            res.aborted = true;
            break;
        }
    }

    bool restPrime = TVarInt::compare(rest, one) != 0 && TVarInt::isProbablePrime(rest);
    char dg[32];
    std::snprintf(dg, sizeof dg, " (%d)", decimalDigits(rest));
    if (!small.empty()) {
        if (TVarInt::compare(rest, one) == 0)
            hooks.addLine("Primfaktoren \t" + small.substr(0, small.size() - 4));  // " · " dropped
        else if (restPrime)
            hooks.addLine("Primfaktoren \t" + small + rest.toDecimal() + dg);
        else {
            hooks.addLine("Primfaktoren \t" + small);
            hooks.addLine("Restzahl   \t" + rest.toDecimal() + dg);
        }
    }
    if (restPrime)
        res.pieces.push_back({rest, 1, true});
    else if (TVarInt::compare(rest, one) != 0) {
        if (res.aborted)
            res.pieces.push_back({rest, 1, false});
        else {
            MpqsOutcome o = mpqsFactor(rest, res.pieces, hooks);
            res.aborted = o == MpqsOutcome::Aborted || hooks.aborted;
        }
    }
    mergePieces(res.pieces);
    res.complete = std::all_of(res.pieces.begin(), res.pieces.end(), [](const FactorPiece& p) { return p.prime; });
    res.resultText = resultTextOf(res.pieces);
    if (!res.pieces.empty() && !res.aborted && res.complete) {
        if (firstLine < hooks.lines.size()) {
            hooks.lines[firstLine] += "  =";
            hooks.linesChanged();
        }
        hooks.addLine("\t= " + res.resultText);
    }
    std::string time = factorTimeText(factorNowMs() - t0);
    if (res.aborted)
        hooks.addLine("Zeit:  " + time + "    " + res.resultText);
    else
        hooks.addLine("Zeit:  " + time);
    hooks.addLine(MacronLine);
    return res;
}

}  // namespace numbers
