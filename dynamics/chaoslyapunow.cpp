#include "dynamics/chaoslyapunow.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace chaos {

double ljapunowExponent(const std::string& folge, double a, double b, int vorlauf, int n)
{
    if (folge.empty() || n <= 0) return 0;
    const std::size_t m = folge.size();
    // not 0.5: at r = 4 that start falls onto the fixed point 0 in two steps
    double x = 0.4;
    std::size_t k = 0;
    for (int i = 0; i < vorlauf; ++i, k = (k + 1) % m) {
        const double r = folge[k] == 'a' ? a : b;
        x = r * x * (1 - x);
    }
    double summe = 0;
    for (int i = 0; i < n; ++i, k = (k + 1) % m) {
        const double r = folge[k] == 'a' ? a : b;
        const double d = std::fabs(r * (1 - 2 * x));
        // a superstable point would give ln 0: count it as very strong order
        summe += d > 1e-300 ? std::log(d) : -700.0;
        x = r * x * (1 - x);
        if (!std::isfinite(x)) return std::numeric_limits<double>::infinity();
    }
    return summe / n;
}

double logistikLjapunow(double r, int vorlauf, int n) { return ljapunowExponent("a", r, r, vorlauf, n); }

const std::vector<std::string>& ljapunowVorgabezeilen()
{
    static const std::vector<std::string> z = {
        "ZirconZity|bbbbbbaaaaaa|3.46|4.00|2.52|3.65",
        "JellyFish|bbaba|3.8225|3.8711|3.8218|3.8607",
        "Swallow|ba|3.808|3.867|3.808|3.867",
        "LyapunovSpace|ba|2|4|2|4",
        "Hess3|bbaba|3.54|3.67|3.45|3.61",
        "Hess5|aaaaaaaaaaaaaaaaaaaaab|3.20|3.60|1.10|1.27",
        "Hess6|aaaaaaaaaaaab|3.24|3.59|3.51|4.00",
        "Hess7|bbbbbaaaaa|2.84|3.27|3.44|3.81",
        "Markus7A|bbababa|3.7906|3.865279|3.5576|3.650967",
        "Markus7B|bbababa|3.8308|3.8471|3.5842|3.6050",
        "Markus12|bbbbbbbaabbbbbbbbbbababababababababaaaaaaaabbaaaaaaa|3.7945|3.7989|1.1593|1.16062",
        "efg12|ab|3.65|3.80|2.60|2.80",
        "efg112|ab|3.885|3.915|3.820|3.860",
        "efg1111|ab|3.847|3.853|3.8410|3.8490",
        "efg1112|ab|3.8360|3.8405|3.845|3.851",
    };
    return z;
}

bool leseLjapunowVorgabe(const std::string& zeile, LjapunowVorgabe& v)
{
    std::vector<std::string> teile;
    std::size_t s = 0;
    while (true) {
        const std::size_t e = zeile.find('|', s);
        teile.push_back(zeile.substr(s, e == std::string::npos ? std::string::npos : e - s));
        if (e == std::string::npos) break;
        s = e + 1;
    }
    if (teile.size() != 6 || teile[0].empty() || teile[1].empty()) return false;
    if (teile[1].find_first_not_of("ab") != std::string::npos) return false;
    double w[4];
    for (int i = 0; i < 4; ++i) {
        char* end = nullptr;
        w[i] = std::strtod(teile[static_cast<std::size_t>(2 + i)].c_str(), &end);
        if (end == teile[static_cast<std::size_t>(2 + i)].c_str() || *end != '\0') return false;
    }
    if (!(w[0] < w[1]) || !(w[2] < w[3])) return false;
    v = {teile[0], teile[1], w[0], w[1], w[2], w[3]};
    return true;
}

const std::vector<std::string>& ljapunowFarbnamen()
{
    static const std::vector<std::string> n = {"Ordnung", "Einzelfarbe", "Gradient", "Regenbogen",
                                               "Inverser Regenbogen", "Umgekehrter Gradient"};
    return n;
}

void TLyapunovLambdaMap::starte(const LjapunowVorgabe& v, int breite, int hoehe, int vorlauf, int n)
{
    v_ = v;
    breite_ = std::max(1, breite);
    hoehe_ = std::max(1, hoehe);
    vorlauf_ = vorlauf;
    n_ = n;
    naechsteZeile_ = 0;
    lambda_.assign(static_cast<std::size_t>(breite_) * hoehe_, 0.0);
}

double TLyapunovLambdaMap::a(int x) const { return v_.amin + (v_.amax - v_.amin) * (x + 0.5) / breite_; }
double TLyapunovLambdaMap::b(int y) const { return v_.bmax - (v_.bmax - v_.bmin) * (y + 0.5) / hoehe_; }

bool TLyapunovLambdaMap::rechne(int zeilen)
{
    for (int k = 0; k < zeilen && naechsteZeile_ < hoehe_; ++k, ++naechsteZeile_) {
        const double bb = b(naechsteZeile_);
        double* reihe = &lambda_[static_cast<std::size_t>(naechsteZeile_) * breite_];
        for (int x = 0; x < breite_; ++x) reihe[x] = ljapunowExponent(v_.folge, a(x), bb, vorlauf_, n_);
    }
    return naechsteZeile_ < hoehe_;
}

double TLyapunovLambdaMap::minimum() const
{
    double m = 0;
    for (std::size_t i = 0; i < static_cast<std::size_t>(naechsteZeile_) * breite_; ++i)
        if (std::isfinite(lambda_[i])) m = std::min(m, lambda_[i]);
    return m;
}

platform::TColor TLyapunovLambdaMap::farbe(double l, Ljapunowfarben f, platform::TColor einzel)
{
    using platform::rgb;
    if (!std::isfinite(l)) return platform::clBlack;
    if (l >= 0) {
        // chaos: dark, a little brighter the stronger it is
        const int g = static_cast<int>(std::min(1.0, l) * 60);
        return f == Ljapunowfarben::InverserRegenbogen ? rgb(255 - g, 255 - g, 255 - g) : rgb(g, g, g / 2);
    }
    const double t = 1 - std::exp(2.5 * l);  // 0 at the edge of chaos, towards 1 for strong order
    auto regenbogen = [](double u) {
        const double h = u * 300.0;  // red to violet
        const double x = 1 - std::fabs(std::fmod(h / 60.0, 2) - 1);
        double r = 0, g = 0, b = 0;
        if (h < 60) r = 1, g = x;
        else if (h < 120) r = x, g = 1;
        else if (h < 180) g = 1, b = x;
        else if (h < 240) g = x, b = 1;
        else r = x, b = 1;
        return rgb(static_cast<int>(r * 255), static_cast<int>(g * 255), static_cast<int>(b * 255));
    };
    switch (f) {
    case Ljapunowfarben::Ordnung: {
        // the classic look: yellow at the border of chaos, deep brown in strong order
        const int r = static_cast<int>(255 - 120 * t), g = static_cast<int>(230 - 180 * t), b = static_cast<int>(40 * (1 - t));
        return rgb(r, g, b);
    }
    case Ljapunowfarben::Einzelfarbe:
        return einzel;
    case Ljapunowfarben::Gradient: {
        return rgb(static_cast<int>(platform::redOf(einzel) * t + 255 * (1 - t)),
                   static_cast<int>(platform::greenOf(einzel) * t + 255 * (1 - t)),
                   static_cast<int>(platform::blueOf(einzel) * t + 255 * (1 - t)));
    }
    case Ljapunowfarben::UmgekehrterGradient:
        return rgb(static_cast<int>(platform::redOf(einzel) * (1 - t) + 255 * t),
                   static_cast<int>(platform::greenOf(einzel) * (1 - t) + 255 * t),
                   static_cast<int>(platform::blueOf(einzel) * (1 - t) + 255 * t));
    case Ljapunowfarben::Regenbogen:
        return regenbogen(t);
    case Ljapunowfarben::InverserRegenbogen:
        return regenbogen(1 - t);
    }
    return platform::clBlack;
}

}  // namespace chaos
