// Matrix page: sums, products, transpose, inverse, powers and the determinants.
#include "algebra/algebraseiten.h"

#include <cctype>
#include <cmath>
#include <complex>

namespace algebra {

namespace {

using Matrix = std::vector<std::vector<double>>;

// "2 1; 1 3": rows separated by semicolons, entries by blanks. An empty text is no matrix.
bool leseMatrix(const std::string& text, Matrix& m, std::string& fehler)
{
    m.clear();
    std::string zeile;
    std::vector<std::string> zeilen;
    for (char c : text + ";") {
        if (c == ';') {
            if (zeile.find_first_not_of(' ') != std::string::npos) zeilen.push_back(zeile);
            zeile.clear();
        } else {
            zeile += c;
        }
    }
    for (const auto& z : zeilen) {
        std::vector<double> r;
        std::string t;
        for (char c : z + " ") {
            if (c == ' ' || c == '\t') {
                if (!t.empty()) {
                    double v;
                    if (!leseZahl(t, v)) {
                        fehler = "Ungültige Zahl: " + t;
                        return false;
                    }
                    r.push_back(v);
                }
                t.clear();
            } else {
                t += c;
            }
        }
        m.push_back(r);
    }
    if (m.empty()) return true;
    if (m.size() > 10) {
        fehler = "Höchstens 10 Zeilen.";
        return false;
    }
    for (const auto& r : m)
        if (r.size() != m.size()) {
            fehler = "Die Matrix muss quadratisch sein (Zeilen durch ; trennen).";
            return false;
        }
    return true;
}

template <typename T>
T determinante(std::vector<std::vector<T>> a)
{
    const size_t n = a.size();
    T det = 1;
    for (size_t c = 0; c < n; ++c) {
        size_t p = c;
        for (size_t i = c + 1; i < n; ++i)
            if (std::abs(a[i][c]) > std::abs(a[p][c])) p = i;
        if (std::abs(a[p][c]) < 1e-300) return 0;
        if (p != c) {
            std::swap(a[p], a[c]);
            det = -det;
        }
        det *= a[c][c];
        for (size_t i = c + 1; i < n; ++i) {
            const T f = a[i][c] / a[c][c];
            for (size_t j = c; j < n; ++j) a[i][j] -= f * a[c][j];
        }
    }
    return det;
}

Matrix produkt(const Matrix& a, const Matrix& b)
{
    const size_t n = a.size();
    Matrix c(n, std::vector<double>(n, 0.0));
    for (size_t i = 0; i < n; ++i)
        for (size_t k = 0; k < n; ++k)
            for (size_t j = 0; j < n; ++j) c[i][j] += a[i][k] * b[k][j];
    return c;
}

// Gauss-Jordan on [A | I]; false for a singular matrix.
bool inverse(const Matrix& a, Matrix& inv)
{
    const size_t n = a.size();
    Matrix m = a;
    inv.assign(n, std::vector<double>(n, 0.0));
    for (size_t i = 0; i < n; ++i) inv[i][i] = 1;
    double skala = 0;
    for (const auto& r : a)
        for (double v : r) skala = std::max(skala, std::fabs(v));
    for (size_t c = 0; c < n; ++c) {
        size_t p = c;
        for (size_t i = c + 1; i < n; ++i)
            if (std::fabs(m[i][c]) > std::fabs(m[p][c])) p = i;
        if (std::fabs(m[p][c]) <= 1e-12 * std::max(1.0, skala)) return false;
        std::swap(m[p], m[c]);
        std::swap(inv[p], inv[c]);
        const double d = m[c][c];
        for (size_t j = 0; j < n; ++j) {
            m[c][j] /= d;
            inv[c][j] /= d;
        }
        for (size_t i = 0; i < n; ++i) {
            if (i == c) continue;
            const double f = m[i][c];
            for (size_t j = 0; j < n; ++j) {
                m[i][j] -= f * m[c][j];
                inv[i][j] -= f * inv[c][j];
            }
        }
    }
    return true;
}

void zeigen(std::vector<std::string>& z, const std::string& titel, const Matrix& m)
{
    z.push_back(titel);
    for (const auto& r : m) {
        std::string s;
        for (double v : r) s += "\t" + zahl(v, 6);
        z.push_back(s);
    }
}

std::string normiert(const std::string& t)
{
    std::string s;
    for (char c : t)
        if (c != ' ') s += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    // the middle dot of "A · B" arrives as UTF-8
    size_t p;
    while ((p = s.find("\xC2\xB7")) != std::string::npos) s.replace(p, 2, "*");
    while ((p = s.find("\xC2\xB2")) != std::string::npos) s.replace(p, 2, "^2");
    return s;
}

}  // namespace

Ergebnis matrixSeite(const std::vector<std::string>& f)
{
    if (f.size() != 4) return eingabefehler("Die Matrizenrechnung braucht Matrix A, Matrix B, die Rechnung und n.");
    Matrix a, b;
    std::string fehler;
    if (!leseMatrix(f[0], a, fehler) || !leseMatrix(f[1], b, fehler)) return eingabefehler(fehler);
    if (a.empty()) return eingabefehler("Bitte die Matrix A eingeben, z.B. 2 1; 1 3.");
    const size_t n = a.size();
    const std::string op = normiert(f[2]);
    const bool brauchtB = op == "A+B" || op == "A*B" || op == "B*A" || op == "A-B";
    if ((brauchtB || !b.empty()) && b.size() != n)
        return eingabefehler("Matrix A und Matrix B müssen denselben Grad haben.");
    Ergebnis e;
    e.ok = true;
    Matrix r;
    if (op.empty() || op == "A") {
        zeigen(e.zeilen, "Matrix A", a);
    } else if (op == "B") {
        if (b.empty()) return eingabefehler("Bitte die Matrix B eingeben.");
        zeigen(e.zeilen, "Matrix B", b);
    } else if (op == "A+B" || op == "A-B") {
        r = a;
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) r[i][j] += (op == "A+B" ? 1 : -1) * b[i][j];
        zeigen(e.zeilen, op == "A+B" ? "A + B" : "A - B", r);
    } else if (op == "-A") {
        r = a;
        for (auto& z : r)
            for (double& v : z) v = -v;
        zeigen(e.zeilen, "- A", r);
    } else if (op == "A*B" || op == "B*A") {
        zeigen(e.zeilen, op == "A*B" ? "A · B" : "B · A", op == "A*B" ? produkt(a, b) : produkt(b, a));
    } else if (op == "AT" || op == "A^T" || op == "TRANSPONIERT") {
        r = a;
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) r[i][j] = a[j][i];
        zeigen(e.zeilen, "Transponierte Matrix zu A", r);
    } else if (op == "A^-1" || op == "A^(-1)" || op == "INVERS" || op == "INVERSE") {
        if (!inverse(a, r)) {
            e.zeilen.push_back("Die Matrix A ist singulär und hat keine Inverse.");
            e.ok = false;
        } else {
            zeigen(e.zeilen, "Inverse Matrix zu A", r);
        }
    } else if (op == "A^2" || op == "A^N") {
        double hoch = 2;
        if (op == "A^N" && (!leseZahl(f[3], hoch) || hoch != std::floor(hoch) || hoch < 0 || hoch > 1000))
            return eingabefehler("n muss eine ganze Zahl von 0 bis 1000 sein.");
        r.assign(n, std::vector<double>(n, 0.0));
        for (size_t i = 0; i < n; ++i) r[i][i] = 1;
        Matrix p = a;
        for (long k = static_cast<long>(hoch); k > 0; k >>= 1) {
            if (k & 1) r = produkt(r, p);
            p = produkt(p, p);
        }
        zeigen(e.zeilen, op == "A^2" ? "A²" : "A^" + zahl(hoch, 0), r);
    } else {
        return eingabefehler("Unbekannte Rechnung: " + f[2] + " (A+B, A-B, -A, A*B, B*A, AT, A^-1, A^2, A^n)");
    }
    e.zeilen.push_back("");
    e.zeilen.push_back("Determinante von A = " + zahl(determinante(a), 8));
    if (!b.empty()) {
        e.zeilen.push_back("Determinante von B = " + zahl(determinante(b), 8));
        std::vector<std::vector<std::complex<double>>> c(n, std::vector<std::complex<double>>(n));
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) c[i][j] = {a[i][j], b[i][j]};
        const auto d = determinante(c);
        e.zeilen.push_back("Determinante von A + i·B = " + zahl(d.real(), 8) + (d.imag() < 0 ? " - " : " + ") +
                           zahl(std::fabs(d.imag()), 8) + "·i");
    }
    return e;
}

}  // namespace algebra
