// Number words in German, English, French, Italian and Spanish for 0 <= n < 10^12,
// by each language's ordinary rules of writing out cardinals.
#include "algebra/numer_intern.h"

#include <array>

namespace numer {
namespace {
using S = std::string;

// ---- German: one word below a million, "eine Million", "zwei Millionen"
S deutschUnter1000(int n, bool einsAlsEin)
{
    static const char* const e[] = {"", "eins", "zwei", "drei", "vier", "fünf", "sechs", "sieben", "acht", "neun",
                                    "zehn", "elf", "zwölf", "dreizehn", "vierzehn", "fünfzehn", "sechzehn", "siebzehn",
                                    "achtzehn", "neunzehn"};
    static const char* const z[] = {"", "", "zwanzig", "dreißig", "vierzig", "fünfzig", "sechzig", "siebzig", "achtzig", "neunzig"};
    S s;
    if (n >= 100) s += (n / 100 == 1 ? S("ein") : S(e[n / 100])) + "hundert", n %= 100;
    if (n == 1) return s + (einsAlsEin ? "ein" : "eins");
    if (n < 20) return s + e[n];
    if (n % 10) s += (n % 10 == 1 ? S("ein") : S(e[n % 10])) + "und";
    return s + z[n / 10];
}

S deutsch(int64_t n)
{
    if (n == 0) return "null";
    S s;
    const int mrd = static_cast<int>(n / 1000000000), mio = static_cast<int>(n / 1000000 % 1000);
    const int rest = static_cast<int>(n % 1000000);
    auto gross = [&](int k, const S& ein, const S& mehr) {
        if (!k) return;
        if (!s.empty()) s += " ";
        s += (k == 1 ? S("eine ") + ein : deutschUnter1000(k, true) + " " + mehr);
    };
    gross(mrd, "Milliarde", "Milliarden");
    gross(mio, "Million", "Millionen");
    if (rest) {
        S r;
        if (rest >= 1000) r = deutschUnter1000(rest / 1000, true) + "tausend";
        if (rest % 1000) r += deutschUnter1000(rest % 1000, false);
        s += (s.empty() ? "" : " ") + r;
    }
    return s;
}

// ---- English (short scale, hyphens from 21 to 99)
S englischUnter1000(int n)
{
    static const char* const e[] = {"", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten",
                                    "eleven", "twelve", "thirteen", "fourteen", "fifteen", "sixteen", "seventeen",
                                    "eighteen", "nineteen"};
    static const char* const z[] = {"", "", "twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety"};
    S s;
    if (n >= 100) {
        s = S(e[n / 100]) + " hundred";
        n %= 100;
        if (n) s += " ";
    }
    if (n >= 20) return s + z[n / 10] + (n % 10 ? S("-") + e[n % 10] : S());
    return s + e[n];
}

S englisch(int64_t n)
{
    if (n == 0) return "zero";
    static const char* const skala[] = {"", " thousand", " million", " billion"};
    S s;
    for (int g = 3; g >= 0; --g) {
        int64_t d = 1;
        for (int i = 0; i < g; ++i) d *= 1000;
        const int k = static_cast<int>(n / d % 1000);
        if (k) s += (s.empty() ? "" : " ") + englischUnter1000(k) + skala[g];
    }
    return s;
}

// ---- French (traditional spelling: hyphens below one hundred, "et un", "quatre-vingts")
S franzUnter100(int n)
{
    static const char* const e[] = {"", "un", "deux", "trois", "quatre", "cinq", "six", "sept", "huit", "neuf", "dix",
                                    "onze", "douze", "treize", "quatorze", "quinze", "seize", "dix-sept", "dix-huit",
                                    "dix-neuf"};
    static const char* const z[] = {"", "", "vingt", "trente", "quarante", "cinquante", "soixante"};
    if (n < 20) return e[n];
    if (n < 70) {
        const int t = n / 10, u = n % 10;
        if (u == 0) return z[t];
        return S(z[t]) + (u == 1 ? " et un" : S("-") + e[u]);
    }
    if (n < 80) return n == 71 ? "soixante et onze" : S("soixante-") + e[n - 60];
    if (n == 80) return "quatre-vingts";
    return S("quatre-vingt-") + e[n - 80];
}

S franzUnter1000(int n, bool vorMille)
{
    S s;
    const int h = n / 100, r = n % 100;
    if (h) {
        s = h == 1 ? S("cent") : franzUnter100(h) + " cent";
        // "deux cents" takes the plural only at the end and not before "mille"
        if (h > 1 && r == 0 && !vorMille) s += "s";
        if (r) s += " ";
    }
    S rr = franzUnter100(r);
    if (vorMille && r == 80) rr = "quatre-vingt";
    return s + rr;
}

S franz(int64_t n)
{
    if (n == 0) return "zéro";
    S s;
    auto teil = [&](const S& t) { s += (s.empty() ? "" : " ") + t; };
    const int mrd = static_cast<int>(n / 1000000000), mio = static_cast<int>(n / 1000000 % 1000);
    const int tsd = static_cast<int>(n / 1000 % 1000), rest = static_cast<int>(n % 1000);
    if (mrd) teil(franzUnter1000(mrd, false) + (mrd == 1 ? " milliard" : " milliards"));
    if (mio) teil(franzUnter1000(mio, false) + (mio == 1 ? " million" : " millions"));
    if (tsd) teil(tsd == 1 ? S("mille") : franzUnter1000(tsd, true) + " mille");
    if (rest) teil(franzUnter1000(rest, false));
    return s;
}

// ---- Spanish ("un" before nouns, "mil millones" for 10^9)
S spanUnter1000(int n, bool apokope)
{
    static const char* const e[] = {"", "uno", "dos", "tres", "cuatro", "cinco", "seis", "siete", "ocho", "nueve",
                                    "diez", "once", "doce", "trece", "catorce", "quince", "dieciséis", "diecisiete",
                                    "dieciocho", "diecinueve", "veinte", "veintiuno", "veintidós", "veintitrés",
                                    "veinticuatro", "veinticinco", "veintiséis", "veintisiete", "veintiocho",
                                    "veintinueve"};
    static const char* const z[] = {"", "", "", "treinta", "cuarenta", "cincuenta", "sesenta", "setenta", "ochenta", "noventa"};
    static const char* const c[] = {"", "ciento", "doscientos", "trescientos", "cuatrocientos", "quinientos",
                                    "seiscientos", "setecientos", "ochocientos", "novecientos"};
    if (n == 100) return "cien";
    S s;
    if (n >= 100) s = c[n / 100], n %= 100;
    if (!n) return s;
    if (!s.empty()) s += " ";
    S r = n < 30 ? S(e[n]) : S(z[n / 10]) + (n % 10 ? S(" y ") + e[n % 10] : S());
    if (apokope && n % 10 == 1 && n != 11) {
        if (n == 21) r = "veintiún";
        else r = r.substr(0, r.size() - 1);  // "uno" -> "un"
    }
    return s + r;
}

S spanUnterMillion(int n, bool apokope)
{
    S s;
    const int t = n / 1000, r = n % 1000;
    if (t) s = t == 1 ? S("mil") : spanUnter1000(t, true) + " mil";
    if (r) s += (s.empty() ? "" : " ") + spanUnter1000(r, apokope);
    return s;
}

S spanisch(int64_t n)
{
    if (n == 0) return "cero";
    const int mio = static_cast<int>(n / 1000000), rest = static_cast<int>(n % 1000000);
    S s;
    if (mio) s = mio == 1 ? S("un millón") : spanUnterMillion(mio, true) + " millones";
    if (rest) s += (s.empty() ? "" : " ") + spanUnterMillion(rest, false);
    return s;
}

// ---- Italian (one word below a million; vowel dropped before "uno" and "otto"; final "tré")
S italUnter1000(int n)
{
    static const char* const e[] = {"", "uno", "due", "tre", "quattro", "cinque", "sei", "sette", "otto", "nove",
                                    "dieci", "undici", "dodici", "tredici", "quattordici", "quindici", "sedici",
                                    "diciassette", "diciotto", "diciannove"};
    static const char* const z[] = {"", "", "venti", "trenta", "quaranta", "cinquanta", "sessanta", "settanta", "ottanta", "novanta"};
    S s;
    const int h = n / 100;
    n %= 100;
    if (h) s = h == 1 ? S("cento") : S(e[h]) + "cento";
    if (n >= 20) {
        S t = z[n / 10];
        const int u = n % 10;
        if (u == 1 || u == 8) t.pop_back();
        s += t + (u == 3 ? S("tré") : S(e[u]));
    } else if (n > 0) {
        s += (n == 3 && h ? S("tré") : S(e[n]));
    }
    return s;
}

S italienisch(int64_t n)
{
    if (n == 0) return "zero";
    const int mrd = static_cast<int>(n / 1000000000), mio = static_cast<int>(n / 1000000 % 1000);
    const int tsd = static_cast<int>(n / 1000 % 1000), rest = static_cast<int>(n % 1000);
    S s;
    auto teil = [&](const S& t) { s += (s.empty() ? "" : " ") + t; };
    if (mrd) teil(mrd == 1 ? S("un miliardo") : italUnter1000(mrd) + " miliardi");
    if (mio) teil(mio == 1 ? S("un milione") : italUnter1000(mio) + " milioni");
    S r;
    if (tsd) r = tsd == 1 ? S("mille") : italUnter1000(tsd) + "mila";
    if (rest) r += italUnter1000(rest);
    if (!r.empty()) teil(r);
    return s;
}
}  // namespace

std::string zahlwort(int64_t n, int sprache)
{
    if (n < 0 || n >= 1000000000000LL) return {};
    switch (sprache) {
    case 1: return englisch(n);
    case 2: return franz(n);
    case 3: return italienisch(n);
    case 4: return spanisch(n);
    default: return deutsch(n);
    }
}

namespace intern {
void zahlwoerter(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 0, 999999999999LL, von) || !l.ganz(1, 0, 999999999999LL, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis - von > 10000) bis = von + 10000;
    for (int64_t n = von; n <= bis; ++n) l.zeile(z(n) + "\t" + zahlwort(n, l.ein.option));
}
}  // namespace intern
}  // namespace numer
