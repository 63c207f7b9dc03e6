#include "graphs/commands.h"

#include "graphs/analysis_commands.h"

#include "graphs/zeichnen.h"
#include "platform/codepage.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

namespace graphs {

namespace {

using quorix::Args;

const char* kAufruf =
    "Aufruf: quorix plot TERM... [--range XMIN XMAX YMIN YMAX] [--size BxH] --png DATEI\n"
    "        quorix plot --script DATEI [--range XMIN XMAX YMIN YMAX] [--size BxH] --png DATEI\n";

bool zahlLesen(const std::string& s, double& v)
{
    std::string t = s;
    std::replace(t.begin(), t.end(), ',', '.');
    char* ende = nullptr;
    v = std::strtod(t.c_str(), &ende);
    return !t.empty() && ende && *ende == 0;
}

std::string grossbuchstaben(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

int runPlot(Args args, std::ostream& out, std::ostream& err)
{
    std::string png, skriptDatei, groesse;
    const bool mitPng = quorix::takeOption(args, "--png", png);
    const bool mitSkript = quorix::takeOption(args, "--script", skriptDatei);
    const bool mitGroesse = quorix::takeOption(args, "--size", groesse);
    Bereich b;
    bool mitBereich = false;
    auto it = std::find(args.begin(), args.end(), "--range");
    if (it != args.end()) {
        if (args.end() - it < 5 || !zahlLesen(it[1], b.xmin) || !zahlLesen(it[2], b.xmax) ||
            !zahlLesen(it[3], b.ymin) || !zahlLesen(it[4], b.ymax)) {
            err << "Der Bereich braucht vier Zahlen: XMIN XMAX YMIN YMAX.\n" << kAufruf;
            return 2;
        }
        args.erase(it, it + 5);
        mitBereich = true;
    }
    int breite = 1000, hoehe = 700;
    if (mitGroesse) {
        int w = 0, h = 0;
        char x = 0, rest = 0;
        std::istringstream in(groesse);
        if (!(in >> w >> x >> h) || (x != 'x' && x != 'X') || in >> rest || w < 50 || h < 50 || w > 8000 || h > 8000) {
            err << "Die Gr\xC3\xB6\xC3\x9F" "e ist als BxH anzugeben, je 50 bis 8000 Pixel.\n" << kAufruf;
            return 2;
        }
        breite = w;
        hoehe = h;
    }
    if (!mitPng || (mitSkript == !args.empty())) {
        err << kAufruf;
        return 2;
    }
    for (const std::string& a : args)
        if (a.rfind("--", 0) == 0) {
            err << "Unbekannte Option " << a << ".\n" << kAufruf;
            return 2;
        }

    Skriptliste skript;
    if (mitSkript) {
        std::ifstream in(skriptDatei, std::ios::binary);
        if (!in) {
            err << "Die Datei " << skriptDatei << " kann nicht gelesen werden.\n";
            return 2;
        }
        std::stringstream ss;
        ss << in.rdbuf();
        std::string text = ss.str();
        // a script file may be UTF-8 or the program's own code page
        if (platform::cp1252ToUtf8(platform::utf8ToCp1252(text)) == text)
            text = platform::utf8ToCp1252(text);
        std::string zeile;
        std::istringstream zeilen(text);
        while (std::getline(zeilen, zeile)) {
            if (!zeile.empty() && zeile.back() == '\r')
                zeile.pop_back();
            skript.addText(zeile);
        }
    } else {
        for (const std::string& t : args)
            skript.addFunktion(grossbuchstaben(platform::utf8ToCp1252(t)));
    }

    PlotZustand z;
    z.bereich = mitBereich ? bereichKorrigieren(b) : Bereich{};
    if (!mitBereich)
        z.bereich = yAufloesungAnpassen(z.bereich, breite + 1, hoehe + 1);
    Skriptliste zahlen;
    Graphzeichner g(z, skript, zahlen, termAuswerter());
    platform::Picture bild(breite, hoehe);
    g.darstellung(bild);
    if (!bild.savePng(png)) {
        err << "Die Datei " << png << " kann nicht geschrieben werden.\n";
        return 2;
    }
    out << "Bild\t" << png << "\t" << breite << "x" << hoehe << "\n";
    out << "Bereich\t" << zahlTextPunkt(1, 4, z.bereich.xmin) << "\t" << zahlTextPunkt(1, 4, z.bereich.xmax) << "\t"
        << zahlTextPunkt(1, 4, z.bereich.ymin) << "\t" << zahlTextPunkt(1, 4, z.bereich.ymax) << "\n";
    bool sichtbar = false;
    int n = 0;
    for (const Gezeichnet& k : g.protokoll()) {
        const size_t zuege = k.spur.polylinien().size(), punkte = k.spur.einzelpunkte().size();
        sichtbar = sichtbar || zuege > 0 || punkte > 0;
        if (k.label.empty())
            continue;
        out << "Kurve\t" << ++n << "\t" << platform::cp1252ToUtf8(k.label) << "\t" << zuege << "\t" << punkte << "\n";
    }
    return sichtbar ? 0 : 1;
}

}  // namespace

std::vector<quorix::HeadlessCommand> graphsCommands()
{
    std::vector<quorix::HeadlessCommand> liste = {{"plot",
             "plot TERM... [--range XMIN XMAX YMIN YMAX] [--size BxH] --png DATEI | plot --script DATEI --png DATEI: "
             "Funktionen zeichnen",
             runPlot}};
    for (quorix::HeadlessCommand& k : kurvenCommands())
        liste.push_back(std::move(k));
    return liste;
}

}  // namespace graphs
