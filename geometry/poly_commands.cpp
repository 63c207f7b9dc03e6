#include "geometry/poly_commands.h"

#include "geometry/polyeder.h"
#include "geometry/polyederbild.h"
#include "geometry/polyederdaten.h"
#include "kernel/realtostr.h"
#include "platform/toolframe.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

using quorix::Args;

namespace {

const char* kAufruf =
    "Aufruf: quorix polyeder NAME|--liste [--abstumpfung T] [--stern T] [--drehung A B C] [--png BILD] "
    "[--texte ORDNER]";

bool zahl(const std::string& s, double& v)
{
    if (s.empty()) return false;
    std::string t = s;
    std::replace(t.begin(), t.end(), ',', '.');
    char* end = nullptr;
    v = std::strtod(t.c_str(), &end);
    return end && *end == '\0' && std::isfinite(v) && std::fabs(v) < 1e6;
}

std::string z6(double x) { return kernel::RealToStrDot(1, 6, x); }

std::string flaechenArten(const poly::Koerper& k)
{
    static const std::map<size_t, std::string> wort = {{3, "Dreieck"}, {4, "Viereck"},  {5, "Fünfeck"},
                                                       {6, "Sechseck"}, {8, "Achteck"}, {10, "Zehneck"}};
    std::map<size_t, int> n;
    for (const auto& f : k.flaechen) ++n[f.size()];
    std::string s;
    for (const auto& [ecken, anzahl] : n) {
        if (!s.empty()) s += ", ";
        const auto w = wort.find(ecken);
        s += std::to_string(anzahl) + " " + (w != wort.end() ? w->second : std::to_string(ecken) + "-Eck");
        if (anzahl != 1) s += "e";
    }
    return s;
}

int cmdPolyeder(Args a, std::ostream& out, std::ostream& err)
{
    std::string ordner, png, wert;
    const bool liste = quorix::takeFlag(a, "--liste");
    quorix::takeOption(a, "--texte", ordner);
    quorix::takeOption(a, "--png", png);
    double stumpf = -1, stern = -1, dreh[3] = {0, 0, 0};
    if (quorix::takeOption(a, "--abstumpfung", wert) && (!zahl(wert, stumpf) || stumpf < 0 || stumpf > 0.5)) {
        err << "Abstumpfung zwischen 0 und 0.5 erwartet: " << wert << "\n";
        return 2;
    }
    if (quorix::takeOption(a, "--stern", wert) && (!zahl(wert, stern) || stern < 0 || stern > 0.5)) {
        err << "Sternhöhe zwischen 0 und 0.5 erwartet: " << wert << "\n";
        return 2;
    }
    const auto it = std::find(a.begin(), a.end(), "--drehung");
    if (it != a.end()) {
        if (a.end() - it < 4 || !zahl(it[1], dreh[0]) || !zahl(it[2], dreh[1]) || !zahl(it[3], dreh[2])) {
            err << "--drehung erwartet drei Winkel in Grad\n" << kAufruf << "\n";
            return 2;
        }
        a.erase(it, it + 4);
    }
    const std::vector<std::string> daten =
        ordner.empty() ? poly::ladeKoerperDaten(poly::standardTextContainer()) : poly::ladeKoerperQuellen(ordner);
    if (liste) {
        if (!a.empty()) {
            err << kAufruf << "\n";
            return 2;
        }
        int n = 0;
        for (int art = 0; art <= 5; ++art)
            for (const std::string& s : poly::koerperNamen(daten, art)) {
                out << poly::artNamen()[art] << "\t" << s << "\n";
                ++n;
            }
        return n > 0 ? 0 : 1;
    }
    if (a.size() != 1) {
        err << kAufruf << "\n";
        return 2;
    }
    std::string name = a[0];
    const std::string suffix = " Abstumpfung";
    if (name.size() > suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0) {
        name.resize(name.size() - suffix.size());
        if (stumpf < 0) stumpf = 0.33;
    }
    poly::Koerper k;
    if (!poly::sucheKoerper(daten, name, k)) {
        err << "Körper nicht gefunden: " << name << "\n";
        return 1;
    }
    if (stumpf >= 0) k = poly::abstumpfen(k, stumpf);
    if (stern >= 0) k = poly::sternkoerper(k, stern);
    if (dreh[0] != 0 || dreh[1] != 0 || dreh[2] != 0) poly::drehen(k, dreh[0], dreh[1], dreh[2]);

    const auto kanten = poly::kanten(k);
    double lo, hi;
    poly::kantenlaengen(k, lo, hi);
    out << "Körper\t" << k.name << "\n";
    out << "Ecken\t" << k.ecken.size() << "\n";
    out << "Kanten\t" << kanten.size() << "\n";
    out << "Flächen\t" << k.flaechen.size() << "\t" << flaechenArten(k) << "\n";
    out << "Euler\t" << static_cast<long>(k.ecken.size() + k.flaechen.size()) - static_cast<long>(kanten.size())
        << "\n";
    out << "Kantenlänge\t" << z6(lo) << "\t" << z6(hi) << "\n";
    out << "Volumen\t" << z6(poly::volumen(k)) << "\n";
    out << "Oberfläche\t" << z6(poly::oberflaeche(k)) << "\n";
    out << "Umkugelradius\t" << z6(poly::umkugelradius(k)) << "\n";
    for (size_t i = 0; i < k.ecken.size(); ++i)
        out << "P" << i + 1 << "\t" << z6(k.ecken[i].x) << "\t" << z6(k.ecken[i].y) << "\t" << z6(k.ecken[i].z) << "\n";
    for (const auto& e : kanten) out << "Kante\tP" << e.a + 1 << "\tP" << e.b + 1 << "\n";
    for (const auto& f : k.flaechen) {
        out << "Fläche";
        for (int i : f) out << "\tP" << i + 1;
        out << "\n";
    }
    if (!png.empty()) {
        poly::Koerper b = k;
        poly::skaliere(b, 230);
        poly::Darstellung d;
        d.bunteFlaechen = true;
        d.titel = k.name;
        d.unterzeile = "Ecken " + std::to_string(k.ecken.size()) + ", Kanten " + std::to_string(kanten.size()) +
                       ", Flächen " + std::to_string(k.flaechen.size());
        d.unterzeile2 = "Volumen " + kernel::RealToStr(1, 4, poly::volumen(k)) + "   Oberfläche " +
                        kernel::RealToStr(1, 4, poly::oberflaeche(k));
        try {
            platform::writePictureFile(png, platform::PictureFormat::Png, 740, 600,
                                       [&](platform::Canvas& c, int w, int h) { poly::zeichnePolyeder(c, w, h, b, d); });
        } catch (const std::exception& e) {
            err << "Bild nicht geschrieben: " << e.what() << "\n";
            return 1;
        }
    }
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> polyCommands()
{
    return {{"polyeder", kAufruf, cmdPolyeder}};
}
