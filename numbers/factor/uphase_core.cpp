// Tfphase's chain: trial division to 10^6, Pollard rho, elliptic curves, then the sieve.
#include "numbers/factor/uphase_core.h"
#include "numbers/factor/mp_pfu.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/factor/ufakto_core.h"
#include "numbers/mp_int.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <functional>

namespace numbers {

const char* const PhaseMessage60 = "Die Zahl ist zu lang: höchstens 100 Ziffern sind möglich.";

std::string PhaseHooks::faktform(const std::string& digits)
{
    // forwards yield and status, keeps the lines of the inner run apart
    struct Inner : FactorHooks {
        PhaseHooks& outer;
        explicit Inner(PhaseHooks& o) : outer(o) {}
        bool yield() override { return aborted = outer.yield(); }
        void status(const std::string& t) override { outer.status(t); }
    } inner(*this);
    return faktformRun(digits, inner).resultText;
}

namespace {

bool parseArgs(const std::string& inside, std::vector<long>& out)
{
    std::string cur;
    for (char c : inside + ",") {
        if (c == ' ')
            continue;
        if (c == ',') {
            if (cur.empty() || cur.size() > 9)
                return false;
            out.push_back(std::stol(cur));
            cur.clear();
        } else if (c >= '0' && c <= '9')
            cur += c;
        else
            return false;
    }
    return true;
}

std::string dec(const mp_int& a) { return mp_decimal(a); }

}  // namespace

std::string phaseExpandFormula(const std::string& text)
{
    std::string t;
    for (char c : text)
        if (c != ' ')
            t += char(std::toupper(static_cast<unsigned char>(c)));
    if (t.size() < 4 || t[1] != '(' || t.back() != ')' || std::string("FMPR").find(t[0]) == std::string::npos)
        return text;
    std::vector<long> a;
    if (!parseArgs(t.substr(2, t.size() - 3), a))
        return "1";
    mp_tmp r, x;
    switch (t[0]) {
    case 'F': {
        if (a.size() != 1 || a[0] < 2 || a[0] >= 400)
            return "1";
        mp_tmp f0, f1;
        mp_set(f0, 0);
        mp_set(f1, 1);
        for (long i = 0; i < a[0]; ++i) {
            mp_add(f0, f1, x);
            mp_exch(f0.v, f1.v);
            mp_exch(f1.v, x.v);
        }
        return dec(f0);
    }
    case 'M':
        if (a.size() != 1 || a[0] < 2 || a[0] >= 320)
            return "1";
        mp_setbit(r, int32_t(a[0]));
        mp_sub_d(r, 1, r);
        return dec(r);
    default: {  // P(a,b) = a 2^b + 1, R(a,b) = a 2^b - 1
        if (a.size() != 2 || a[0] < 1 || std::log10(double(a[0])) + a[1] * std::log10(2.0) >= 84)
            return "1";
        mp_set_int(x, int32_t(a[0]));
        mp_shl(x, int32_t(a[1]), r);
        if (t[0] == 'P')
            mp_add_d(r, 1, r);
        else
            mp_sub_d(r, 1, r);
        return dec(r);
    }
    }
}

PhaseOutcome phaseRun(const PhaseOptions& opt, PhaseHooks& hooks)
{
    PhaseOutcome res;
    std::string text = phaseExpandFormula(opt.text);
    for (char c : text)
        if (c >= '0' && c <= '9')
            res.number += c;
    while (res.number.size() > 1 && res.number[0] == '0')
        res.number.erase(0, 1);
    if (res.number.empty() || res.number.size() > 100) {
        res.tooLong = true;
        return res;
    }
    if (res.number == "1" || res.number == "0")
        return res;  // nothing to report
    double t0 = factorNowMs();
    hooks.addLine("Faktorisierung von " + res.number + " (" + std::to_string(res.number.size()) + ")" + " Ziffern");
    if (!opt.onlyFactors)
        hooks.addLine("Probedivisionen");

    std::vector<FactorPiece>& pieces = res.pieces;
    std::vector<std::string> composites;  // left for the sieve
    auto found = [&](const std::string& v) {
        hooks.addLine("gefundener Teiler\t" + v);
        pieces.push_back({TVarInt(v), 1, true});
    };
    auto underLimit = [&](const mp_int& v) { return opt.mpqs && int(mp_decimal(v).size()) < opt.digitLimit; };
    uint32_t sigma = 123;
    // a composite divisor is split by the curves; what they cannot split is left for the sieve
    std::function<void(const mp_int&)> ecmSplit = [&](const mp_int& c) {
        if (mp_is_pprime(c)) {
            found(dec(c));
            return;
        }
        mp_tmp f, q;
        if (!hooks.aborted)
            ecmFactorTool(c, f, sigma, &hooks);
        if (hooks.aborted || mp_iszero(f)) {
            composites.push_back(dec(c));
            return;
        }
        mp_div(c, f, q);
        ecmSplit(f);
        ecmSplit(q);
    };
    try {
        mp_tmp rest, f, q;
        mp_read_decimal(rest, res.number);
        // trial division by 2 and the odd primes to 10^6 (the walk tests by the word-size table)
        while (mp_iseven(rest)) {
            mp_shr(rest, 1, rest);
            found("2");
        }
        for (uint32_t d = 3; d <= 1000000 && !mp_is1(rest); d += 2) {
            if (d % 20001 == 0 && hooks.yield())
                break;
            if (!isPrime32(d))
                continue;
            uint32_t rem = 0;
            while (mp_mod_int(rest, d) == 0) {
                mp_div_w(rest, d, &rest.v, rem);
                found(std::to_string(d));
            }
        }
        auto reportRest = [&] {
            hooks.addLine("Restzahl = " + dec(rest));
        };
        bool restPrime = false;
        if (!mp_is1(rest) && !hooks.aborted) {
            restPrime = mp_is_pprime(rest);
            hooks.addLine(restPrime ? "wahrscheinlich Primzahl" : "keine Primzahl");
            if (restPrime) {
                found(dec(rest));
                mp_set1(rest);
            }
        }
        auto takeFactor = [&](const mp_int& fac) {
            if (mp_is_pprime(fac))
                found(dec(fac));
            else {
                hooks.addLine("nichtprimer Teiler " + dec(fac));
                ecmSplit(fac);
            }
            mp_div(rest, fac, rest);
            reportRest();
            if (!mp_is1(rest) && mp_is_pprime(rest)) {
                found(dec(rest));
                mp_set1(rest);
            }
        };
        if (!mp_is1(rest) && !hooks.aborted && !underLimit(rest)) {
            hooks.addLine("Pollard-Rho-Verfahren");
            while (!mp_is1(rest) && !underLimit(rest) && hooks.rhoGroups < opt.groupLimit && !hooks.aborted) {
                mp_pollard_rho(rest, f, opt.groupLimit - hooks.rhoGroups, &hooks);
                if (mp_iszero(f) || hooks.aborted)
                    break;
                takeFactor(f);
            }
            if (!mp_is1(rest) && !underLimit(rest) && !hooks.aborted) {
                hooks.addLine("Faktorisierung mit elliptischen Kurven");
                while (!mp_is1(rest) && !hooks.aborted && !underLimit(rest)) {
                    ecmFactorTool(rest, f, sigma, &hooks);
                    if (mp_iszero(f) || hooks.aborted)
                        break;
                    takeFactor(f);
                }
            }
        }
        if (!mp_is1(rest))
            composites.push_back(dec(rest));

        // the sieve as the last stage
        bool headed = false;
        for (const std::string& c : composites) {
            if (!opt.mpqs || hooks.aborted) {
                pieces.push_back({TVarInt(c), 1, false});
                continue;
            }
            if (!headed)
                hooks.addLine("Faktorisierung mit quadratischem Sieb");
            headed = true;
            std::vector<FactorPiece> got;
            if (int(c.size()) < opt.digitLimit) {
                fillPrimeTable(PrimeTableBound);
                mpqsFactor(TVarInt(c), got, hooks);
            } else
                got = parseResultText(hooks.faktform(c));
            for (const FactorPiece& g : got) {
                if (g.prime)
                    for (int e = 0; e < g.exponent; ++e)
                        hooks.addLine("gefundener Teiler\t" + g.value.toDecimal());
                else
                    hooks.addLine(g.value.toDecimal() + " nicht prim");
                pieces.push_back(g);
            }
        }
    } catch (const MPXError& e) {
        mp_reset_error();
        hooks.aborted = true;
        hooks.addLine(std::string(e.what()) + ".");
    }
    mergePieces(pieces);
    res.aborted = hooks.aborted;
    res.complete = !pieces.empty() && !res.aborted &&
                   std::all_of(pieces.begin(), pieces.end(), [](const FactorPiece& p) { return p.prime; });
    if (!res.complete && !opt.mpqs)
        hooks.addLine("Faktorisierung unvollständig!");
    if (opt.productCheck) {
        TVarInt prod(1);
        for (const FactorPiece& p : pieces)
            for (int e = 0; e < p.exponent; ++e)
                TVarInt::mul(prod, p.value, prod);
        hooks.addLine("Produkt = " + prod.toDecimal());
    }
    if (res.complete)
        hooks.addLine("Zahl ist faktorisiert");
    char buf[48];
    std::snprintf(buf, sizeof buf, "%.3f", (factorNowMs() - t0) / 1000.0);
    hooks.addLine(std::string("Zeit = ") + buf + " s");
    hooks.addLine(MacronLine);
    return res;
}

}  // namespace numbers
