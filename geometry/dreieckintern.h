#pragma once
// The worker behind berechneDreieck, shared by the files of the triangle core.
#include "geometry/dreieck.h"

#include <array>
#include <string>

namespace geo {

// Further entries of the point table.
enum NrWeitere {
    nHa = 14, nHb = 15, nHc = 16,    // altitude feet
    nFeuerbach = 17,
    nZentrum0 = 100,                 // the catalogued centres follow from here
    nMalfatti = 300,                 // three centres, then six tangent points
    nAjima = 312,
    nMorley = 320,
    nFermatApex = 330, nNapoleonAussen = 333, nNapoleonInnen = 336,
    nQuadrat = 340,                  // centres of the side squares
    nTangential = 350, nAntikompl = 353, nEuler = 356,
    nTaylor = 360,
    nFuhrmann = 370,
    nKiepert = 375,
    nLot = 380,                      // scratch for the foot triangles
};

// Colours, red in the low byte.
constexpr platform::TColor kRot = 255, kBlau = 0xFF0000, kGruen = 0x8000, kLila = 0x800080,
                           kBraun = 0x004080, kOliv = 0x008080, kOrange = 0x0080FF, kGrau = 0x808080,
                           kSchwarz = 0;

// Table number of a catalogued centre by its list name; 0 when there is none.
int zentrumNummer(const std::string& name);

inline const char* const kEll = "\xE2\x80\xA6";  // the ellipsis that starts a sub-label

class Rechner {
public:
    Rechner(PointTable& t, const Auswahl& an, const Ansicht& v, Szene& sz);
    void lauf();

    // results
    static std::string zahl(double v, int stellen = 4);
    std::string xy(Pkt p) const;
    double einheiten(double pixel) const;
    void zeile(const std::string& label, const std::string& wert);
    void zeilePunkt(const std::string& label, Pkt p);
    void zeileStrecke(const std::string& label, double pixel);
    void zeileWert(const std::string& label, double v);
    void zeileKreis(const std::string& label, Pkt m, double r);
    void zeileGerade(const std::string& label, Pkt p, Pkt q);
    void zeileDreieck(const std::string& name, Pkt p, Pkt q, Pkt r);

    // drawing
    void punkt(Pkt p, const std::string& text, platform::TColor farbe);
    void strecke(Pkt p, Pkt q, platform::TColor farbe, bool gestrichelt = false);
    void gerade(Pkt p, Pkt q, platform::TColor farbe);
    void kreis(Pkt m, double r, platform::TColor farbe);
    void flaeche(std::vector<Pkt> p, platform::TColor farbe);
    void kurve(std::vector<Pkt> p, platform::TColor farbe, Element::Art art = Element::Kurve);
    void dreieck(Pkt p, Pkt q, Pkt r, const std::string& name, platform::TColor farbe);

    bool an(const std::string& name) const { return auswahl.count(name) != 0; }
    bool trilinear(int nr, double u, double v, double w);
    bool zeigePunkt(const std::string& name, int nr, platform::TColor farbe, const std::string& marke = "");

private:
    bool grundrechnung();
    void grundpunkte();
    void grundzeilen();
    void ecken();
    void allgemein();
    void zentren();
    void familien();
    void soddy();
    void rekursivSoddy(std::array<double, 3> k, std::array<Pkt, 3> m, int tiefe, int& anzahl);
    void malfatti();
    void steinerEllipse();
    void weitere();
    void kegelschnitte();
    void lotdreiecke();

public:
    PointTable& t;
    const Auswahl& auswahl;
    Ansicht ansicht;
    Szene& szene;
    std::array<bool, PointTable::kAnzahl> gueltig{};
    std::string letzterLabel;
    double a = 0, b = 0, c = 0, al = 0, be = 0, ga = 0, s = 0, F = 0;  // pixels and radians
    double R = 0, rho = 0, omega = 0;
};

}  // namespace geo
