#include "lexicon/seitenrechner.h"
#include "lexicon/seitenrechner_intern.h"

#include "lexicon/einstellungen.h"
#include "kernel/realtostr.h"
#include "lexicon/linkroute.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace lexicon {

std::function<double(const std::string&, bool& ok)> feldWertLesen = [](const std::string& s, bool& ok) {
    std::string t = s;
    for (char& c : t)
        if (c == ',')
            c = '.';
    char* end = nullptr;
    const double v = std::strtod(t.c_str(), &end);
    ok = end != t.c_str();
    return ok ? v : 0.0;
};

namespace {

double wert(const std::string& s)
{
    bool ok = false;
    return feldWertLesen(s, ok);
}

std::string f5(double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.5f", v);
    return buf;
}

// Member 1: the seven means of two numbers.
void mittelwerte(SeitenrechnerRahmen& r)
{
    const double a = wert(r.ed1), b = wert(r.ed2);
    auto aus = [&](const char* name, bool definiert, double v) {
        r.zeilen.push_back(std::string(name) + (definiert && std::isfinite(v) ? f5(v) : " -"));
    };
    r.zeilen.push_back("Mittelwerte");
    aus("arithmetisch : ", true, (a + b) / 2);
    aus("geometrisch : ", a * b >= 0, std::sqrt(std::fabs(a * b)));
    aus("quadratisch : ", true, std::sqrt((a * a + b * b) / 2));
    aus("harmonisch : ", a + b != 0, 2 * a * b / (a + b));
    const bool logDef = a > 0 && b > 0;
    aus("logarithmisch : ", logDef, a == b ? a : (a - b) / (std::log(a) - std::log(b)));
    aus("heronisch : ", a * b >= 0, (a + std::sqrt(std::fabs(a * b)) + b) / 3);
    aus("kontraharmonisch : ", a + b != 0, (a * a + b * b) / (a + b));
}

// Member 2: sum, differences, product, quotients and mean of two numbers.
void zweiZahlen(SeitenrechnerRahmen& r)
{
    const double a = wert(r.ed1), b = wert(r.ed2);
    r.zeilen.push_back("Summe a+b = " + kernel::RealToStrDot(1, 10, a + b));
    r.zeilen.push_back("Differenz a-b = " + kernel::RealToStrDot(1, 10, a - b));
    r.zeilen.push_back("Differenz b-a = " + kernel::RealToStrDot(1, 10, b - a));
    r.zeilen.push_back("Produkt a\xB7" "b = " + kernel::RealToStrDot(1, 10, a * b));
    r.zeilen.push_back("Quotient a/b = " + (b != 0 ? kernel::RealToStrDot(1, 10, a / b) : std::string("-")));
    r.zeilen.push_back("Quotient b/a = " + (a != 0 ? kernel::RealToStrDot(1, 10, b / a) : std::string("-")));
    r.zeilen.push_back("Mittelwert = " + kernel::RealToStrDot(1, 10, (a + b) / 2));
}

// Member 4: pre-period and period of the decimal fraction a/b by long division.
void periode(SeitenrechnerRahmen& r)
{
    const double da = std::round(wert(r.ed1)), db = std::round(wert(r.ed2));
    if (!(db > 0) || std::fabs(da) > 1e15 || db > 1e15) {
        r.zeilen.push_back("Zahlen zu gro\xDF/falsch");
        return;
    }
    const long long a = static_cast<long long>(da), b = static_cast<long long>(db);
    long long n = b;
    int e2 = 0, e5 = 0;
    while (n % 2 == 0) { n /= 2; ++e2; }
    while (n % 5 == 0) { n /= 5; ++e5; }
    const int vor = std::max(e2, e5);
    r.zeilen.push_back(std::to_string(a / b) + ", ");
    long long rest = std::llabs(a % b);
    std::string zeile;
    int inZeile = 0;
    auto ziffer = [&](int d) {
        zeile.push_back(static_cast<char>('0' + d));
        ++inZeile;
        if (inZeile % 20 == 0) {
            r.zeilen.push_back(zeile);
            zeile.clear();
        } else if (inZeile % 5 == 0) {
            zeile.push_back(' ');
        }
    };
    auto abschluss = [&]() {
        if (!zeile.empty())
            r.zeilen.push_back(zeile);
        zeile.clear();
        inZeile = 0;
    };
    if (vor > 0) {
        r.zeilen.push_back("Vorperiode ");
        for (int i = 0; i < vor; ++i) {
            rest *= 10;
            ziffer(static_cast<int>(rest / b));
            rest %= b;
        }
        abschluss();
    }
    r.zeilen.push_back("Periode ");
    const long long start = rest;
    long long laenge = 0;
    bool abgebrochen = false;
    do {
        rest *= 10;
        ziffer(static_cast<int>(rest / b));
        rest %= b;
        ++laenge;
        if (laenge >= 50000) {
            abgebrochen = true;
            break;
        }
        if (laenge % 1000 == 0 && r.nachrichtenschleife) {
            r.nachrichtenschleife();
            if (r.zeitaufwaendig && !*r.zeitaufwaendig) {
                abgebrochen = true;
                break;
            }
        }
    } while (rest != start);
    abschluss();
    r.zeilen.push_back("Periodenl\xE4nge " + (abgebrochen ? std::string("> 50000") : std::to_string(laenge)));
}

struct Mitglied {
    int nummer;
    void (*lauf)(SeitenrechnerRahmen&);
};

const std::vector<Mitglied>& mitglieder()
{
    using namespace rechner;
    static const std::vector<Mitglied> m = {
        {1, mittelwerte},
        {2, zweiZahlen},
        {4, periode},
        {5, dreieckAusFlaecheRadien},
        {6, elliptischeFunktionen},
        {7, quadratwurzelHeron},
        {8, dreieckAusSeiten},
        {9, zinseszins},
        {10, ggtKgv},
        {11, primfaktoren},
        {12, quadratischeGleichung},
        {13, binomialkoeffizient},
        {14, fakultaet},
        {15, osterdatum},
        {16, primzahltest},
        {17, binomialverteilung},
        {18, wochentag},
        {19, roemischeZahlen},
        {20, zahlbasen},
        {22, collatzFolge},
        {23, kettenbruch},
    };
    return m;
}

}  // namespace

void seitenrechnerVorbereiten(int aktivnummer, SeitenrechnerFelder& f)
{
    f.l12.clear();
    f.ed1Breit = aktivnummer == 514;
    switch (aktivnummer) {
    case 5:
        f.l12 = "Inkreisradius";
        break;
    case 8:
    case 12:
        f.l12 = "c =";
        break;
    case 9:
        f.l12 = "n = ";
        break;
    default:
        break;
    }
    if (aktivnummer == 523 || aktivnummer == 524) {
        const std::time_t t = std::time(nullptr);
        const std::tm* lt = std::localtime(&t);
        f.ed1 = std::to_string(lt->tm_mday);
        f.ed2 = std::to_string(lt->tm_mon + 1);
    } else if (aktivnummer == 541) {
        f.ed1 = kernel::RealToStrDot(1, 10, einstellungen.gBreite);
        f.ed2 = kernel::RealToStrDot(1, 10, einstellungen.gLaenge);
    }
}

bool seitenrechnerVorhanden(int aktivnummer)
{
    for (const auto& m : mitglieder())
        if (m.nummer == aktivnummer)
            return true;
    return false;
}

bool seitenrechnerStarten(int aktivnummer, SeitenrechnerRahmen& r)
{
    for (const auto& m : mitglieder()) {
        if (m.nummer != aktivnummer)
            continue;
        r.zeilen.push_back(r.l10);
        m.lauf(r);
        return true;
    }
    return false;
}

}  // namespace lexicon
