#include "games/commands.h"

#include "games/muehle.h"
#include "games/muehlespiel.h"

#include <cstdio>

namespace {

using quorix::Args;

const char* const kAufruf =
    "Aufruf: quorix muehle zug STELLUNG [--am 1|2] [--zugzahl N] [--tiefe N] [--test] | "
    "quorix muehle partie [--tiefe N] [--tiefe2 N]  (STELLUNG: 24 Zeichen . x o, "
    "optional :VORRAT1,VORRAT2; Tiefe 1 bis 6)";

bool zahlLesen(const std::string& t, int lo, int hi, int& v)
{
    if (t.empty() || t.size() > 4 || t.find_first_not_of("0123456789") != std::string::npos)
        return false;
    v = std::stoi(t);
    return v >= lo && v <= hi;
}

bool optionZahl(Args& args, const std::string& name, int lo, int hi, int& v, std::ostream& err)
{
    std::string t;
    if (!quorix::takeOption(args, name, t))
        return true;
    if (zahlLesen(t, lo, hi, v))
        return true;
    err << "Ungültiger Wert für " << name << ": " << t << " (erlaubt " << lo << " bis " << hi << ")\n";
    return false;
}

int zug(Args args, std::ostream& out, std::ostream& err)
{
    int tiefe = 3, am = 2, zugzahl = 0;
    const bool test = quorix::takeFlag(args, "--test");
    if (!optionZahl(args, "--tiefe", 1, 6, tiefe, err) || !optionZahl(args, "--am", 1, 2, am, err) ||
        !optionZahl(args, "--zugzahl", 1, muehle::kZugGrenze, zugzahl, err))
        return 2;
    if (args.size() != 1) {
        err << kAufruf << "\n";
        return 2;
    }
    muehle::Stellung s;
    std::string fehler;
    if (!muehle::stellungAusText(args[0], s, fehler)) {
        err << fehler << "\n";
        return 2;
    }
    if (zugzahl == 0) {
        // Placing takes the first 18 half moves; afterwards the number only matters from 19 on.
        const int gesetzt = 18 - s.spieler[1].vorrat - s.spieler[2].vorrat;
        zugzahl = gesetzt < 18 ? gesetzt + 1 : 19;
    }
    muehle::Suche suche;
    suche.zugzahl = zugzahl;
    suche.testausgabe = test;
    const muehle::Entscheidung e = muehle::Computerzug(s, am, tiefe, suche);
    for (const std::string& z : suche.ausgabe)
        out << z << "\n";
    if (!e.gefunden) {
        out << "Kein Zug möglich.\n";
        return 1;
    }
    muehle::ZugAusfuehren(s, e.zug, am);
    out << "Zug: " << muehle::zugText(e.zug) << "\n";
    out << "Wert: " << e.wert << (e.sofortsieg ? " (Sofortgewinn)" : "") << "\n";
    out << "Stellungen: " << suche.stellungen << "\n";
    out << "Danach: " << muehle::stellungAlsText(s) << "\n";
    return 0;
}

int partie(Args args, std::ostream& out, std::ostream& err)
{
    int tiefe = 3, tiefe2 = -1;
    if (!optionZahl(args, "--tiefe", 1, 6, tiefe, err) || !optionZahl(args, "--tiefe2", 1, 6, tiefe2, err))
        return 2;
    if (!args.empty()) {
        err << kAufruf << "\n";
        return 2;
    }
    if (tiefe2 < 0)
        tiefe2 = tiefe;
    // The engine plays both sides; side 1 searches at --tiefe, side 2 at --tiefe2.
    muehle::Muehlespiel spiel;
    spiel.start(muehle::Variante::SpielerGegenSpieler);
    std::size_t gezeigt = 0;
    while (spiel.laeuft()) {
        muehle::Suche suche;
        const muehle::Entscheidung e = spiel.computerZiehen(spiel.anDerReihe() == 1 ? tiefe : tiefe2, suche);
        if (!e.gefunden)
            break;
        for (; gezeigt < spiel.spielzuege().size(); ++gezeigt)
            out << spiel.spielzuege()[gezeigt] << "\n";
    }
    const auto& zuege = spiel.spielzuege();
    if (spiel.ergebnis().empty())
        out << "Kein Zug möglich.\n";
    else if (zuege.empty() || zuege.back() != spiel.ergebnis())
        out << spiel.ergebnis() << "\n";
    out << "Stellung: " << muehle::stellungAlsText(spiel.stellung()) << "\n";
    return 0;
}

int muehleBefehl(const Args& args, std::ostream& out, std::ostream& err)
{
    if (args.empty()) {
        err << kAufruf << "\n";
        return 2;
    }
    const Args rest(args.begin() + 1, args.end());
    if (args[0] == "zug")
        return zug(rest, out, err);
    if (args[0] == "partie")
        return partie(rest, out, err);
    err << kAufruf << "\n";
    return 2;
}

}  // namespace

std::vector<quorix::HeadlessCommand> gamesCommands()
{
    return {{"muehle", kAufruf, muehleBefehl}};
}
