#include "app/lint.h"

#include "app/winfkt.h"
#include "lexicon/linkroute.h"
#include "lexicon/pagestore.h"
#include "platform/codepage.h"
#include "platform/container.h"
#include "lexicon/globals.h"

#include <QListWidget>
#include <map>
#include <set>

namespace app {

std::function<bool(const std::string&)> lintTermPruefen;

namespace {

struct SeitenText {
    std::string stichwort;
    platform::StringList body;
};

// The link texts of a body: what follows "$*" or "$<" up to the next "$".
std::vector<std::pair<char, std::string>> linkTexte(const platform::StringList& body)
{
    std::vector<std::pair<char, std::string>> links;
    for (const auto& z : body) {
        for (size_t i = 0; i + 1 < z.size(); ++i) {
            if (z[i] != '$' || (z[i + 1] != '*' && z[i + 1] != '<'))
                continue;
            const size_t ende = z.find('$', i + 2);
            std::string t = z.substr(i + 2, ende == std::string::npos ? std::string::npos : ende - i - 2);
            if (!t.empty() && t.back() == ' ')
                t.pop_back();
            links.emplace_back(z[i + 1], t);
            i += 1;
        }
    }
    return links;
}

bool hatMarker(const platform::StringList& body, char art)
{
    for (const auto& [k, t] : linkTexte(body))
        if (t.size() >= 3 && t[0] == '\xBB' && t[1] == art && t[2] == ':')
            return true;
    return false;
}

}  // namespace

int lexikonPruefen(TForm1& form, std::ostream& out)
{
    int probleme = 0;
    auto melde = [&](int seite, const std::string& stichwort, const std::string& problem) {
        out << seite << "\t" << platform::cp1252ToUtf8(stichwort) << "\t" << problem << "\n";
        ++probleme;
    };
    lexicon::PageStore& store = form.pageStore();
    const int bloecke = store.letzterBlock();
    std::map<int, SeitenText> seiten;
    for (int b = 1; b <= bloecke; ++b) {
        for (int local = 0; local < 100; ++local) {
            const int n = (b - 1) * 100 + local;
            const int L = store.kopfzeile(n);
            if (L <= 0 || seiten.count(n))
                continue;
            if (local > 0 && store.seitenblock[static_cast<size_t>(local)] == store.seitenblock[static_cast<size_t>(local) - 1])
                continue;  // the repeated head lines past the last page
            SeitenText s;
            const auto& blk = store.seitenblock;
            size_t z = static_cast<size_t>(L) + 2;
            if (z < blk.size() && !blk[z].empty() && blk[z][0] == '\xA7')
                s.stichwort = blk[z].substr(1);
            for (++z; z < blk.size() && (blk[z].empty() || blk[z][0] != '['); ++z)
                s.body.push_back(blk[z]);
            seiten[n] = std::move(s);
        }
    }

    // Keywords: each names one page, and every page is named.
    std::map<std::string, int> stichwortSeite;
    std::set<int> erreichbar;
    for (const auto& zeile : form.lb1Zeilen()) {
        const std::string w = lexicon::stichwortText(zeile);
        const int n = lexicon::seitennummerAusStichwort(zeile);
        auto [it, neu] = stichwortSeite.emplace(w, n);
        if (!neu && it->second != n)
            melde(n, w, "Stichwort auch bei Seite " + std::to_string(it->second));
        if (!seiten.count(n))
            melde(n, w, "Stichwort führt zu keiner Seite");
        erreichbar.insert(n);
    }

    for (const auto& [n, s] : seiten) {
        if (!erreichbar.count(n))
            melde(n, s.stichwort, "kein Stichwort führt zu dieser Seite");
        const auto links = linkTexte(s.body);
        int querverweise = 0;
        for (const auto& [art, t] : links) {
            if (art == '<')
                ++querverweise;
            if (t.find("http") != std::string::npos)
                continue;
            if (t.size() >= 3 && t[0] == '\xBB' && t[2] == ':' && std::string("BCFGRTV").find(t[1]) != std::string::npos) {
                const std::string wert = lexicon::markerWert(t);
                if (t[1] == 'V' && !(seiten.count(n + 1) && hatMarker(seiten[n + 1].body, 'R')))
                    melde(n, s.stichwort, "V:-Link führt nicht zur Fortsetzung desselben Artikels");
                if (t[1] == 'R' && !(seiten.count(n - 1) && hatMarker(seiten[n - 1].body, 'V')))
                    melde(n, s.stichwort, "R:-Link führt nicht zum Anfang desselben Artikels");
                if (t[1] == 'F' && lintTermPruefen && !wert.empty() && wert[0] != '~') {
                    // The terms as the plot link hands them to the plotter: each behind a "#F" line.
                    const auto plot = lexicon::plotAuftragAusWert(wert);
                    for (size_t k = 0; k + 1 < plot.plotliste.size(); ++k)
                        if (plot.plotliste[k] == "#F" && !lintTermPruefen(plot.plotliste[k + 1]))
                            melde(n, s.stichwort,
                                  "F:-Term wird nicht angenommen: " + platform::cp1252ToUtf8(plot.plotliste[k + 1]));
                }
                continue;
            }
            if (!t.empty() && t[0] == '\xBB') {
                lexicon::ToolTriple tt;
                if (!form.katalog().suche(t.substr(1), tt))
                    melde(n, s.stichwort, "Werkzeuglink ohne Katalogtitel: " + platform::cp1252ToUtf8(t.substr(1)));
                continue;
            }
            if (t.empty() || lexicon::stichwortIndex(form.lb1Zeilen(), t) < 0)
                melde(n, s.stichwort, "toter Link: " + platform::cp1252ToUtf8(t));
        }
        if (links.size() > 120)
            melde(n, s.stichwort, "mehr als 120 Links");
        if (querverweise == 0)
            melde(n, s.stichwort, "kein Querverweis");
        // Painted as the user sees it: nothing may run past the bottom of the box.
        if (form.seiteWaehlen(n) && form.aktseite() == n) {
            const int hoehe = form.seitenbild().height();
            if (form.seitenEnde() > hoehe)
                melde(n, s.stichwort, "Seite läuft unten über (" + std::to_string(form.seitenEnde()) + " > " +
                                          std::to_string(hoehe) + " Pixel)");
        }
    }
    return probleme;
}

}  // namespace app
