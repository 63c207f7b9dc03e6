// Operation tables of residue classes and the Cayley tables of the dihedral groups.
#include "algebra/algebraseiten.h"

#include <cctype>
#include <cmath>

namespace algebra {

namespace {

bool ganzeZahl(const std::string& t, int lo, int hi, int& n)
{
    double v;
    if (!leseZahl(t, v) || v != std::floor(v) || v < lo || v > hi) return false;
    n = static_cast<int>(v);
    return true;
}

bool prim(int n)
{
    if (n < 2) return false;
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return true;
}

}  // namespace

Ergebnis operationstafelSeite(const std::vector<std::string>& f)
{
    int n;
    if (f.size() != 2 || !ganzeZahl(f[0], 2, 30, n)) return eingabefehler("Der Modul muss eine ganze Zahl von 2 bis 30 sein.");
    std::string op;
    for (char c : f[1]) op += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const bool mal = op.rfind("m", 0) == 0 || op == "*";
    if (!mal && op.rfind("a", 0) != 0 && op != "+") return eingabefehler("Verknüpfung: Addition oder Multiplikation.");
    Ergebnis e;
    e.zeilen.push_back(std::string(mal ? "Multiplikation " : "Addition ") +
                       (prim(n) ? "im Restklassenkörper Z" : "im Restklassenring Z") + " zur Basis " +
                       std::to_string(n));
    std::string kopf = mal ? "·" : "+";
    for (int j = 0; j < n; ++j) kopf += "\t" + std::to_string(j);
    e.zeilen.push_back(kopf);
    for (int i = 0; i < n; ++i) {
        std::string z = std::to_string(i);
        for (int j = 0; j < n; ++j) z += "\t" + std::to_string(mal ? i * j % n : (i + j) % n);
        e.zeilen.push_back(z);
    }
    e.ok = true;
    return e;
}

// Element k < n is the rotation d_k by k·360°/n, element n + k the reflection s_k = d_k s_0.
int diederProdukt(int n, int a, int b)
{
    const bool sa = a >= n, sb = b >= n;
    const int i = a % n, j = b % n;
    if (!sa && !sb) return (i + j) % n;
    if (!sa && sb) return n + (i + j) % n;
    if (sa && !sb) return n + ((i - j) % n + n) % n;
    return ((i - j) % n + n) % n;
}

std::string diederName(int n, int k) { return (k < n ? "d" : "s") + std::to_string(k % n); }

Ergebnis diederSeite(const std::vector<std::string>& f)
{
    int n;
    if (f.size() != 1 || !ganzeZahl(f[0], 2, 12, n)) return eingabefehler("n muss eine ganze Zahl von 2 bis 12 sein.");
    Ergebnis e;
    e.zeilen.push_back("Dieder-Gruppe D" + std::to_string(n) + " mit " + std::to_string(2 * n) + " Elementen");
    std::string kopf = "∘";
    for (int j = 0; j < 2 * n; ++j) kopf += "\t" + diederName(n, j);
    e.zeilen.push_back(kopf);
    for (int i = 0; i < 2 * n; ++i) {
        std::string z = diederName(n, i);
        for (int j = 0; j < 2 * n; ++j) z += "\t" + diederName(n, diederProdukt(n, i, j));
        e.zeilen.push_back(z);
    }
    e.ok = true;
    return e;
}

}  // namespace algebra
