#include "algebra/algebra.h"

#include "algebra/algebraseiten.h"
#include "algebra/uglsystem.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"

#include <cctype>
#include <cmath>

namespace algebra {

const std::vector<std::string>& seitennamen()
{
    static const std::vector<std::string> namen = {
        "Lineares Gleichungssystem", "Diophantisches Gleichungssystem",
        "Matrizenrechnung und Determinanten", "Numerische Lösung einer Gleichung",
        "Ganzrationale Gleichung", "Cramersche Regel", "Nichtlineares Gleichungssystem",
        "Lineare Optimierung", "Differenzialgleichungssystem", "Vektorrechnung",
        "Linearkombination von Vektoren", "Gebrochene Zahlen", "Standardaufgaben", "Ungleichungen",
        "Aussagenlogik", "Mengen", "Jahreszinsen", "Operationstafel", "Dieder-Gruppen",
        "Numerische Lösung einer Ungleichung"};
    return namen;
}

namespace {

std::string gaussHinweis()
{
    std::string s = "A1·X1";
    for (int i = 2; i <= 10; ++i) s += " + A" + std::to_string(i) + "·X" + std::to_string(i);
    return s + " = B;  je Gleichung die Koeffizienten A1 A2 ... und B durch Leerzeichen getrennt";
}

std::string diophantHinweis()
{
    std::string s = "A1·X1";
    for (int i = 2; i <= 9; ++i) s += " + A" + std::to_string(i) + "·X" + std::to_string(i);
    return s + " = B; nur ganzzahlige Koeffizienten A und B verwenden";
}

std::vector<Seite> seitenTabelle()
{
    std::vector<Seite> s(seitenzahl);
    s[0] = {true, gaussHinweis(),
            {{"Gleichung 1", "2 1 -1 8"}, {"Gleichung 2", "-3 -1 2 -11"}, {"Gleichung 3", "-2 1 2 -3"}},
            true, 10};
    s[1] = {true, diophantHinweis(), {{"Gleichung 1", "3 5 7 1"}, {"Gleichung 2", "1 1 1 1"}}, true, 9};
    s[2] = {true, "Koeffizienten der Matrix A und B zeilenweise, Zeilen durch ; getrennt; Rechnung: A, B, A+B, A-B, -A, A*B, B*A, AT, A^-1, A^2, A^n",
            {{"Matrix A", "2 1 0; 1 3 1; 0 1 4"}, {"Matrix B", "1 0 0; 0 2 0; 1 0 1"}, {"Rechnung", "A*B"}, {"n =", "3"}},
            false, 4};
    s[3] = {true, "Gleichung in X; Suche im Intervall von a bis b",
            {{"linke Seite", "X^3-2*X"}, {"rechte Seite", "X-1"}, {"von a =", "-5"}, {"bis b =", "5"}},
            false, 4};
    s[4] = {true, "a6·x^6 + a5·x^5 + ... + a1·x + a0 = 0; reelle Lösungen zwischen -15 und 15",
            {{"a6 =", "0"}, {"a5 =", "0"}, {"a4 =", "1"}, {"a3 =", "0"}, {"a2 =", "-5"}, {"a1 =", "0"},
             {"a0 =", "4"}},
            false, 7};
    s[5] = {true, "a1·x + b1·y = c1 und a2·x + b2·y = c2",
            {{"a1 =", "2"}, {"b1 =", "3"}, {"c1 =", "8"}, {"a2 =", "1"}, {"b2 =", "-1"}, {"c2 =", "-1"}},
            false, 6};
    s[6] = {true, "Nur Variablen X, Y, U und V verwenden.",
            {{"0 =", "X^4+Y^4-12*X*Y"}, {"0 =", "X*SQRT(ABS(X))-Y*SQRT(ABS(Y))-X"}, {"0 =", ""}, {"0 =", ""}},
            false, 4};
    s[7] = {true, "Eingabeform z.B. 23*X+12*Y<23; Variablen X, Y, Z >= 0; Operatoren + - * < >",
            {{"Zielfunktion", "3*X+5*Y"}, {"Maximum/Minimum", "Maximum"}, {"Bedingung 1", "X<4"}, {"Bedingung 2", "2*Y<12"},
             {"Bedingung 3", "3*X+2*Y<18"}, {"Bedingung 4", ""}, {"Bedingung 5", ""}, {"Bedingung 6", ""}},
            false, 8};
    s[8] = {true, "dy = f(X, Y1, Y2, Y3); Startwerte bei x0, Integration bis x = Ende",
            {{"dY1 =", "-0.04*Y1"}, {"dY2 =", "0.04*Y1-0.03*Y2"}, {"dY3 =", "0.03*Y2"}, {"x0 =", "0"},
             {"Y1(x0) =", "1"}, {"Y2(x0) =", "0"}, {"Y3(x0) =", "0"}, {"bis x =", "10"}},
            false, 8};
    s[9] = {true, "Vektoren mit drei Komponenten, z.B. 1;2;3",
            {{"Vektor a", "1;2;3"}, {"Vektor b", "-2;0;4"}, {"Vektor c", "0;0;1"}, {"Vektor d", "3;4;0"}},
            false, 4};
    s[10] = {true, "Ist c eine Linearkombination von a und b?",
             {{"Vektor a", "1;0;2"}, {"Vektor b", "0;1;-1"}, {"Vektor c", "2;3;1"}}, false, 3};
    s[11] = {true, "Bruch Z/N (z.B. 3/7) oder Dezimalzahl mit Periode in Klammern (z.B. 0,1(6)); Basis 2 bis 16 für die p-adische Darstellung",
             {{"Zahl", "1/7"}, {"Basis", "10"}}, false, 2};
    s[12] = {true,
             "Aufgabe 1: a·x + b = c    2: x² + a·x + b = 0    3: a^x = b    6: quadratische Ergänzung von x² + a·x + b",
             {{"Aufgabe (1-6)", "2"}, {"a =", "-2"}, {"b =", "-8"}, {"c =", "0"}}, false, 4};
    s[13] = {true, "Lineare Ungleichung a·x + b < c·x + d (Relation <, <=, > oder >=)",
             {{"a =", "-2"}, {"b =", "3"}, {"Relation", "<"}, {"c =", "1"}, {"d =", "-6"}}, false, 5};
    s[14] = {true,
             "- NOT, Negation   +,& AND, Konjunktion   *,| OR, Disjunktion   # XOR, Alternative   "
             "> Implikation   = Äquivalenz   \\ NAND-Operation   / NOR-Operation   1 TRUE   0 FALSE",
             {{"Aussage", "(A>B)&(B>C)>(A>C)"}}, false, 1};
    s[15] = {true, "Elemente durch Leerzeichen getrennt; Verknüpfung mit + Vereinigung, * Schnitt, - Differenz, ' Komplement in A+B+C",
             {{"Menge A", "1 2 3 4 5"}, {"Menge B", "4 5 6 7"}, {"Menge C", "1 5 7 9"}, {"Verknüpfung", "(A+B)*C'"}}, false, 4};
    s[16] = {true, "Deutsche Zinsmethode: jeder Monat 30 Tage, das Jahr 360 Tage; der Buchungstag zählt mit. Buchungen z.B. 15.3. 500; 1.7. -200",
             {{"Kapital am 1.1. in €", "1000"}, {"Zinssatz in %", "3"}, {"Buchungen", "15.3. 500; 1.7. -200"}}, false, 3};
    s[17] = {true, "Modul n von 2 bis 30; Verknüpfung Addition oder Multiplikation",
             {{"Modul n =", "7"}, {"Verknüpfung", "Multiplikation"}}, false, 2};
    s[18] = {true, "Drehungen d0 ... d(n-1) um k·360°/n, Spiegelungen s0 ... s(n-1); Verknüpfung: erst rechts, dann links",
             {{"n =", "4"}}, false, 1};
    s[19] = {true, "Ungleichung in X mit <, <=, > oder >=; Suche im Intervall von a bis b",
             {{"linke Seite", "X^2"}, {"Relation", "<"}, {"rechte Seite", "X+2"}, {"von a =", "-5"},
              {"bis b =", "5"}},
             false, 5};
    return s;
}

}  // namespace

const Seite& seite(int nummer)
{
    static const std::vector<Seite> tabelle = seitenTabelle();
    static const Seite leer;
    if (nummer < 0 || nummer >= seitenzahl) return leer;
    return tabelle[nummer];
}

std::string termText(const std::string& text)
{
    std::string t;
    for (char c : text) {
        if (c == ',') c = '.';
        t += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return t;
}

bool leseZahl(const std::string& text, double& wert)
{
    const std::string t = termText(text);
    if (t.find_first_not_of(' ') == std::string::npos) return false;
    wert = quorix::EvalTerm(t, 1.0);
    return quorix::TermError == 0 && std::isfinite(wert);
}

std::string zahl(double x, int stellen)
{
    if (std::fabs(x) < 0.5 * std::pow(10.0, -stellen)) x = 0;
    return kernel::RealToStr(1, stellen, x);
}

Ergebnis eingabefehler(const std::string& text)
{
    Ergebnis e;
    e.zeilen.push_back(text);
    e.eingabefehler = true;
    return e;
}

std::vector<std::string> teile(const std::string& zeile)
{
    std::vector<std::string> teile;
    std::string t;
    for (char c : zeile) {
        if (c == ' ' || c == ';' || c == '\t') {
            if (!t.empty()) teile.push_back(t);
            t.clear();
        } else {
            t += c;
        }
    }
    if (!t.empty()) teile.push_back(t);
    return teile;
}

Ergebnis gaussSeite(const std::vector<std::string>& f)
{
    LgsMatrix m;
    int n = -1;
    for (size_t i = 0; i < f.size(); ++i) {
        const auto t = teile(f[i]);
        if (t.empty()) continue;
        if (n < 0) n = static_cast<int>(t.size()) - 1;
        if (static_cast<int>(t.size()) != n + 1)
            return eingabefehler("Gleichung " + std::to_string(i + 1) + " hat nicht " + std::to_string(n + 1) +
                                 " Einträge (Koeffizienten und B).");
        std::vector<double> z;
        for (const auto& s : t) {
            double v;
            if (!leseZahl(s, v)) return eingabefehler("Ungültige Zahl: " + s);
            z.push_back(v);
        }
        m.push_back(z);
    }
    if (m.empty() || n < 1) return eingabefehler("Bitte mindestens eine Gleichung mit Koeffizienten und B eingeben.");
    if (n > 10 || m.size() > 10) return eingabefehler("Höchstens 10 Gleichungen mit 10 Variablen.");
    const LgsLoesung l = loeseLgs(m, n);
    Ergebnis e;
    e.zeilen = lgsZeilen(l, static_cast<int>(m.size()), n);
    e.ok = l.art != LgsArt::unloesbar;
    return e;
}

Ergebnis cramerSeite(const std::vector<std::string>& f)
{
    double v[6];
    if (f.size() != 6) return eingabefehler("Die Cramersche Regel braucht sechs Zahlen: a1 b1 c1 a2 b2 c2.");
    for (int i = 0; i < 6; ++i)
        if (!leseZahl(f[i], v[i])) return eingabefehler("Ungültige Zahl: " + f[i]);
    const double d = v[0] * v[4] - v[1] * v[3];
    const double dx = v[2] * v[4] - v[1] * v[5];
    const double dy = v[0] * v[5] - v[2] * v[3];
    Ergebnis e;
    e.zeilen = {"D = " + zahl(d), "D(x) = " + zahl(dx), "D(y) = " + zahl(dy)};
    const double eps = 1e-12;
    if (std::fabs(d) > eps) {
        e.zeilen.push_back("eindeutige Lösung (" + zahl(dx / d) + " ; " + zahl(dy / d) + ")");
        e.ok = true;
    } else if (std::fabs(dx) <= eps && std::fabs(dy) <= eps) {
        // With D = Dx = Dy = 0 the system may still contradict itself (0x + 0y = 1).
        const bool leer1 = v[0] == 0 && v[1] == 0, leer2 = v[3] == 0 && v[4] == 0;
        if ((leer1 && v[2] != 0) || (leer2 && v[5] != 0)) {
            e.zeilen.push_back("keine Lösung");
        } else {
            e.zeilen.push_back("unendlich viele Lösungspaare");
            e.ok = true;
        }
    } else {
        e.zeilen.push_back("keine Lösung");
    }
    return e;
}

Ergebnis berechne(int nummer, const std::vector<std::string>& f, Abbruch* abbruch)
{
    switch (nummer) {
    case 0: return gaussSeite(f);
    case 1: return diophantSeite(f);
    case 2: return matrixSeite(f);
    case 3: return gleichungSeite(f);
    case 4: return polynomSeite(f);
    case 5: return cramerSeite(f);
    case 6: return nichtlinearSeite(f, abbruch);
    case 7: return optimierungSeite(f);
    case 8: return dglSeite(f);
    case 9: return vektorSeite(f);
    case 10: return linearkombinationSeite(f);
    case 11: return bruchSeite(f);
    case 12: return standardSeite(f);
    case 13: return ungleichungLinearSeite(f);
    case 14: return logikSeite(f);
    case 15: return mengenSeite(f);
    case 16: return zinsenSeite(f);
    case 17: return operationstafelSeite(f);
    case 18: return diederSeite(f);
    case 19: return ungleichungSeite(f);
    default: break;
    }
    if (nummer < 0 || nummer >= seitenzahl) return eingabefehler("Unbekannte Seite " + std::to_string(nummer) + ".");
    return eingabefehler("Die Seite \"" + seitennamen()[nummer] + "\" ist in dieser Version noch nicht verfügbar.");
}

}  // namespace algebra
