#include "dynamics/commands.h"

#include "dynamics/life.h"
#include "dynamics/lifepatterns.h"
#include "dynamics/lifepicture.h"
#include "dynamics/wator.h"
#include "platform/picture.h"

#include <cctype>
#include <string>

using quorix::Args;

namespace {

const char* const kLifeUsage =
    "Aufruf: quorix life MUSTER [--schritte N] [--groesse N] [--torus] [--datei DATEI] [--png DATEI] | "
    "quorix life --liste";
const char* const kWatorUsage =
    "Aufruf: quorix wator [--chrononen N] [--groesse N] [--fische P] [--haie P] [--brutzeit-fische N] "
    "[--brutzeit-haie N] [--fastenzeit N] [--variante2] [--start N]";

int usage(std::ostream& err, const std::string& text)
{
    err << text << "\n";
    return 2;
}

// A whole number in lo..hi from an option, or false with a message.
bool intOption(Args& a, const std::string& name, int lo, int hi, int& value, std::ostream& err)
{
    std::string s;
    if (!quorix::takeOption(a, name, s)) return true;
    bool ok = !s.empty() && s.size() < 10;
    for (char c : s)
        ok = ok && std::isdigit(static_cast<unsigned char>(c));
    if (ok) value = std::stoi(s);
    if (!ok || value < lo || value > hi) {
        err << "Ungültiger Wert für " << name << ": " << s << " (erlaubt " << lo << " bis " << hi << ")\n";
        return false;
    }
    return true;
}

int cmdLife(Args a, std::ostream& out, std::ostream& err)
{
    std::string datei, png;
    const bool liste = quorix::takeFlag(a, "--liste");
    const bool torus = quorix::takeFlag(a, "--torus");
    quorix::takeOption(a, "--datei", datei);
    const bool mitPng = quorix::takeOption(a, "--png", png);
    int schritte = 10, groesse = 60;
    if (!intOption(a, "--schritte", 0, 100000, schritte, err) ||
        !intOption(a, "--groesse", dynamics::kMinBoardSize, dynamics::kMaxBoardSize, groesse, err))
        return usage(err, kLifeUsage);
    const auto patterns = dynamics::parsePatterns(dynamics::loadPatternLines(datei));
    if (patterns.empty()) {
        err << "Die Musterbibliothek \"game\" ist nicht zu finden.\n";
        return 1;
    }
    if (liste) {
        if (!a.empty()) return usage(err, kLifeUsage);
        for (const dynamics::PatternName& n : dynamics::availablePatterns(patterns))
            out << n.number << "\t" << n.name << "\n";
        return 0;
    }
    if (a.size() != 1) return usage(err, kLifeUsage);
    const dynamics::LifePattern* p = dynamics::findPattern(patterns, a[0]);
    if (!p) {
        err << "Kein Muster \"" << a[0] << "\" in der Bibliothek (quorix life --liste zeigt alle).\n";
        return 1;
    }
    dynamics::LifeGame game(groesse);
    game.torus = torus;
    dynamics::loadPattern(game, *p);
    out << "Generation\tAnzahl\n";
    out << game.generation() << "\t" << game.population() << "\n";
    for (int k = 0; k < schritte; ++k) {
        game.step();
        out << game.generation() << "\t" << game.population() << "\n";
    }
    if (mitPng) {
        const int cell = dynamics::clampCellPixels(480 / game.boardSize());
        const int side = game.boardSize() * cell + 20;
        platform::Picture bild(side, side);
        {
            platform::Canvas c(bild);
            dynamics::drawBoard(c, 10, 10, game.boardSize(), cell, true,
                                [&](int r, int col) { return dynamics::kindColor(game.cell(r, col)); });
        }
        if (!bild.savePng(png)) {
            err << "Die Datei " << png << " kann nicht geschrieben werden.\n";
            return 1;
        }
    }
    return 0;
}

int cmdWator(Args a, std::ostream& out, std::ostream& err)
{
    dynamics::WaTorSettings s;
    int chrononen = 50, start = 1;
    s.variante2 = quorix::takeFlag(a, "--variante2");
    if (!intOption(a, "--chrononen", 0, 100000, chrononen, err) ||
        !intOption(a, "--groesse", dynamics::kMinBoardSize, dynamics::kMaxBoardSize, s.boardSize, err) ||
        !intOption(a, "--fische", 0, 100, s.fischAnteil, err) || !intOption(a, "--haie", 0, 100, s.haiAnteil, err) ||
        !intOption(a, "--brutzeit-fische", 1, 200, s.fischBrutzeit, err) ||
        !intOption(a, "--brutzeit-haie", 1, 200, s.haiBrutzeit, err) ||
        !intOption(a, "--fastenzeit", 1, 200, s.haiFastenzeit, err) ||
        !intOption(a, "--start", 0, 1000000000, start, err))
        return usage(err, kWatorUsage);
    if (!a.empty()) return usage(err, kWatorUsage);
    if (s.fischAnteil + s.haiAnteil > 100) {
        err << "Fische und Haie zusammen dürfen höchstens 100 % sein.\n";
        return 2;
    }
    dynamics::WaTor w(s, static_cast<std::uint32_t>(start));
    out << "Chrononen\tFische\tHaie\n";
    out << w.chrononen() << "\t" << w.fische() << "\t" << w.haie() << "\n";
    for (int k = 0; k < chrononen; ++k) {
        w.step();
        out << w.chrononen() << "\t" << w.fische() << "\t" << w.haie() << "\n";
    }
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> dynamicsCommands()
{
    return {
        {"life", "life MUSTER [--schritte N] [--groesse N] [--torus] [--png DATEI]: Game of Life, Generation und Anzahl",
         cmdLife},
        {"wator",
         "wator [--chrononen N] [--groesse N] [--fische P] [--haie P] [--fastenzeit N]: Wa-Tor, Fische und Haie je "
         "Chronon",
         cmdWator},
    };
}
