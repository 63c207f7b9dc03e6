// Standard tasks solved step by step, the way a pupil writes them down.
#include "algebra/algebraseiten.h"

#include <cmath>

namespace algebra {

namespace {

Ergebnis linear(double a, double b, double c)
{
    Ergebnis e;
    e.zeilen = {"Lineare Gleichung", zahl(a) + "·x + " + zahl(b) + " = " + zahl(c),
                zahl(a) + "·x = " + zahl(c) + " - " + zahl(b) + " = " + zahl(c - b)};
    if (a == 0) {
        e.zeilen.push_back(c - b == 0 ? "unendlich viele Lösungen" : "keine Lösung");
        e.ok = c - b == 0;
        return e;
    }
    e.zeilen.push_back("x = " + zahl(c - b) + " / " + zahl(a));
    e.zeilen.push_back("x = " + zahl((c - b) / a));
    e.ok = true;
    return e;
}

Ergebnis quadratisch(double p, double q)
{
    Ergebnis e;
    e.zeilen = {"Quadratische Gleichung x² + p·x + q = 0", "p = " + zahl(p), "q = " + zahl(q),
                "p/2 = " + zahl(p / 2), "(p/2)² = " + zahl(p * p / 4)};
    const double d = p * p / 4 - q;
    e.zeilen.push_back("D = (p/2)² - q = " + zahl(d));
    if (d < 0) {
        e.zeilen.push_back("Wurzel aus D ist keine reelle Zahl");
        e.zeilen.push_back("keine Lösung");
        return e;
    }
    const double w = std::sqrt(d);
    e.zeilen.push_back("Wurzel aus D = " + zahl(w));
    e.zeilen.push_back("x1 = -p/2 + Wurzel aus D = " + zahl(-p / 2 + w));
    e.zeilen.push_back("x2 = -p/2 - Wurzel aus D = " + zahl(-p / 2 - w));
    if (d == 0) e.zeilen.push_back("Doppelte Lösung");
    e.ok = true;
    return e;
}

Ergebnis exponential(double a, double b)
{
    Ergebnis e;
    e.zeilen = {"Exponentialgleichung", zahl(a) + "^x = " + zahl(b)};
    if (a <= 0 || a == 1) {
        e.zeilen.push_back("Basis der Exponentialfunktion muss größer 0 und verschieden 1 sein!");
        return e;
    }
    if (b <= 0) {
        e.zeilen.push_back("Exponentialfunktion kann keinen Funktionswert <= 0 annehmen!");
        e.zeilen.push_back("keine Lösung");
        return e;
    }
    e.zeilen.push_back("x = log(" + zahl(b) + ") / log(" + zahl(a) + ")");
    e.zeilen.push_back("x = " + zahl(std::log(b), 6) + " / " + zahl(std::log(a), 6));
    e.zeilen.push_back("x = " + zahl(std::log(b) / std::log(a)));
    e.ok = true;
    return e;
}

Ergebnis ergaenzung(double p, double q)
{
    Ergebnis e;
    const double h = p / 2, rest = q - h * h;
    e.zeilen = {"Quadratische Ergänzung von x² + p·x + q", "p = " + zahl(p), "q = " + zahl(q),
                "x² + " + zahl(p) + "·x + (" + zahl(h) + ")² - (" + zahl(h) + ")² + " + zahl(q),
                "(x + " + zahl(h) + ")² + " + zahl(rest),
                "Scheitelpunkt S(" + zahl(-h) + " ; " + zahl(rest) + ")"};
    e.ok = true;
    return e;
}

}  // namespace

Ergebnis standardSeite(const std::vector<std::string>& f)
{
    if (f.size() != 4) return eingabefehler("Die Standardaufgaben brauchen die Aufgabe und drei Zahlen.");
    double aufgabe, z[3] = {0, 0, 0};
    if (!leseZahl(f[0], aufgabe) || aufgabe < 1 || aufgabe > 6 || aufgabe != std::floor(aufgabe))
        return eingabefehler("Aufgabe: eine Zahl von 1 bis 6.");
    for (int i = 0; i < 3; ++i)
        if (f[i + 1].find_first_not_of(' ') != std::string::npos && !leseZahl(f[i + 1], z[i]))
            return eingabefehler("Ungültige Zahl: " + f[i + 1]);
    switch (static_cast<int>(aufgabe)) {
    case 1: return linear(z[0], z[1], z[2]);
    case 2: return quadratisch(z[0], z[1]);
    case 3: return exponential(z[0], z[1]);
    case 6: return ergaenzung(z[0], z[1]);
    default: return eingabefehler("Diese Aufgabe ist in dieser Version noch nicht verfügbar.");
    }
}

}  // namespace algebra

namespace algebra {

// A linear inequality a·x + b R c·x + d, solved the school way: collect x on the left and
// turn the relation round when dividing by a negative number.
Ergebnis ungleichungLinearSeite(const std::vector<std::string>& f)
{
    if (f.size() != 5) return eingabefehler("Die Ungleichung braucht a, b, die Relation, c und d.");
    double v[4];
    const int index[4] = {0, 1, 3, 4};
    for (int i = 0; i < 4; ++i)
        if (!leseZahl(f[index[i]], v[i])) return eingabefehler("Ungültige Zahl: " + f[index[i]]);
    std::string rel;
    for (char c : f[2])
        if (c != ' ') rel += c;
    if (rel != "<" && rel != "<=" && rel != ">" && rel != ">=") return eingabefehler("Relation muss <, <=, > oder >= sein.");
    const double a = v[0] - v[2], r = v[3] - v[1];
    Ergebnis e;
    e.zeilen = {zahl(v[0]) + "·x + " + zahl(v[1]) + " " + rel + " " + zahl(v[2]) + "·x + " + zahl(v[3]),
                zahl(a) + "·x " + rel + " " + zahl(r)};
    if (a == 0) {
        const bool gilt = rel == "<" ? 0 < r : rel == "<=" ? 0 <= r : rel == ">" ? 0 > r : 0 >= r;
        e.zeilen.push_back(gilt ? "wahr für alle x: L = R" : "keine Lösung: L = { }");
        e.ok = gilt;
        return e;
    }
    std::string neu = rel;
    if (a < 0) {
        neu = rel[0] == '<' ? ">" + rel.substr(1) : "<" + rel.substr(1);
        e.zeilen.push_back("Division durch " + zahl(a) + " < 0 kehrt das Relationszeichen um");
    }
    const double g = r / a;
    e.zeilen.push_back("x " + neu + " " + zahl(g));
    const bool offen = neu.size() == 1;
    if (neu[0] == '<') e.zeilen.push_back("L = ] -∞ ; " + zahl(g) + (offen ? " [" : " ]"));
    else e.zeilen.push_back(std::string("L = ") + (offen ? "] " : "[ ") + zahl(g) + " ; ∞ [");
    e.ok = true;
    return e;
}

}  // namespace algebra
