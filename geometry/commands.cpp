#include "geometry/commands.h"

#include "geometry/dreieck.h"
#include "geometry/konstrubefehl.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using quorix::Args;

namespace {

const char* kAufruf =
    "Aufruf: quorix dreieck AX AY BX BY CX CY [--objekt NAME]... [--alle] [--trilinear]";

// coordinates beyond a million units are refused: the picture works in screen pixels
bool zahl(const std::string& s, double& v) { return quorix::argNumber(s, v) && std::fabs(v) < 1e6; }

int cmdDreieck(Args a, std::ostream& out, std::ostream& err)
{
    geo::Auswahl auswahl = geo::grundauswahl();
    const auto& bekannt = geo::bekannteObjekte();
    if (quorix::takeFlag(a, "--alle")) auswahl.insert(bekannt.begin(), bekannt.end());
    geo::Ansicht v;
    v.trilinear = quorix::takeFlag(a, "--trilinear");
    std::string name;
    while (quorix::takeOption(a, "--objekt", name)) {
        if (std::find(bekannt.begin(), bekannt.end(), name) == bekannt.end()) {
            err << "Unbekanntes Objekt: " << name << "\n";
            return 2;
        }
        auswahl.insert(name);
    }
    double k[6];
    if (a.size() != 6) {
        err << kAufruf << "\n";
        return 2;
    }
    for (int i = 0; i < 6; ++i)
        if (!zahl(a[i], k[i])) {
            err << "Ungültige Zahl: " << a[i] << "\n" << kAufruf << "\n";
            return 2;
        }
    // the window's default origin and scale: one unit is 100 pixels, y grows downward
    v.x0 = 500;
    v.y0 = 350;
    geo::PointTable t;
    for (int i = 0; i < 3; ++i)
        t.setze(geo::nA + i, {k[2 * i] * 100 + v.x0, v.y0 - k[2 * i + 1] * 100});
    const geo::Szene s = geo::berechneDreieck(t, auswahl, v);
    if (s.entartet) {
        out << "Das Dreieck ist entartet: zwei Eckpunkte fallen zusammen.\n";
        return 1;
    }
    for (const std::string& z : s.zeilen) out << z << "\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> geometryCommands()
{
    return {{"dreieck", "Dreieck aus drei Eckpunkten: Seiten, Winkel und gewählte Objekte", cmdDreieck},
            {"konstruktion", "Konstruktion aus einer Datei (.dyn) ausführen und alle Objekte mit Koordinaten ausgeben",
             konstruktionsBefehl}};
}
