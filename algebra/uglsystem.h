#pragma once
// Linear systems of up to 10 equations in up to 10 unknowns: the Gauss page's solver.
#include <string>
#include <vector>

namespace algebra {

enum class LgsArt { eindeutig, parametrisch, unloesbar, naeherung };

// A row holds the coefficients A1..An and then the constant B.
using LgsMatrix = std::vector<std::vector<double>>;

struct LgsLoesung {
    LgsArt art = LgsArt::unloesbar;
    // eindeutig / naeherung: the values; parametrisch: the special solution for all parameters 0.
    std::vector<double> x;
    // parametrisch: one direction per free unknown; the solution is x + sum e_k * richtung[k].
    std::vector<std::vector<double>> richtungen;
    std::vector<int> freie;        // indices of the free unknowns (0-based)
    double determinante = 0;       // of a square coefficient matrix, else 0
    double residuum = 0;           // naeherung: Euclidean norm of A x - B
    std::vector<std::string> schritte;  // the stages of the elimination, when asked for
};

// Gauss-Jordan with column pivoting; a pivot below 1e-10 times the row scale counts as zero.
// More equations than unknowns give the least-squares solution (when the columns are
// independent; else the rows are treated like a square system).
LgsLoesung loeseLgs(const LgsMatrix& zeilen, int unbekannte, bool mitSchritten = false);

// The result lines of the Gauss page.
std::vector<std::string> lgsZeilen(const LgsLoesung& l, int gleichungen, int unbekannte);

}  // namespace algebra
