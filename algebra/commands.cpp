#include "algebra/commands.h"

#include "algebra/algebra.h"

#include <cstdlib>

using quorix::Args;

namespace {

int cmdAlgebra(const Args& a, std::ostream& out, std::ostream& err)
{
    const char* aufruf = "Aufruf: quorix algebra SEITE EINGABE... (SEITE 0..19, ohne EINGABE das Beispiel der Seite)";
    if (a.empty()) {
        err << aufruf << "\n";
        return 2;
    }
    char* ende = nullptr;
    const long seite = std::strtol(a[0].c_str(), &ende, 10);
    if (a[0].empty() || *ende != '\0' || seite < 0 || seite >= algebra::seitenzahl) {
        err << "Unbekannte Seite: " << a[0] << "\n" << aufruf << "\n";
        return 2;
    }
    const algebra::Seite& s = algebra::seite(static_cast<int>(seite));
    std::vector<std::string> felder(a.begin() + 1, a.end());
    if (felder.empty())
        for (const auto& f : s.felder) felder.push_back(f.beispiel);
    else if (!s.zeilenfelder && felder.size() < s.felder.size())
        felder.resize(s.felder.size());  // trailing fields left empty, as in the window
    const algebra::Ergebnis e = algebra::berechne(static_cast<int>(seite), felder);
    if (e.eingabefehler) {
        for (const auto& z : e.zeilen) err << z << "\n";
        return 2;
    }
    for (const auto& z : e.zeilen) out << z << "\n";
    return e.ok ? 0 : 1;
}

}  // namespace

std::vector<quorix::HeadlessCommand> algebraCommands()
{
    return {{"algebra", "algebra SEITE EINGABE... - eine Seite der Algebra-Werkbank berechnen (0 LGS, 1 diophantisch, 2 Matrizen, 3 Gleichung, 4 Polynom, 5 Cramer, 6 nichtlinear, 7 Optimierung, 8 DGL, 9/10 Vektoren, 11 Brüche, 12 Standardaufgaben, 13 lineare Ungleichung, 14 Logik, 15 Mengen, 16 Zinsen, 17/18 Tafeln, 19 Ungleichung)", cmdAlgebra}};
}
