#include "games/muehle.h"

#include <algorithm>
#include <cctype>

namespace muehle {

const char* const kPunktnamen[kPunkte] = {"A7", "D7", "G7", "B6", "D6", "F6", "C5", "D5",
                                           "E5", "A4", "B4", "C4", "E4", "F4", "G4", "C3",
                                           "D3", "E3", "B2", "D2", "F2", "A1", "D1", "G1"};
const int kPunktX[kPunkte] = {40,  258, 480, 100, 258, 420, 160, 258, 360, 40,  100, 160,
                              360, 420, 480, 160, 258, 360, 100, 258, 420, 40,  258, 480};
const int kPunktY[kPunkte] = {40,  40,  40,  100, 100, 100, 160, 160, 160, 258, 258, 258,
                              258, 258, 258, 360, 360, 360, 420, 420, 420, 480, 480, 480};
const int kMuehle[kMuehlen][3] = {{0, 1, 2},   {3, 4, 5},    {6, 7, 8},    {9, 10, 11},
                                  {12, 13, 14}, {15, 16, 17}, {18, 19, 20}, {21, 22, 23},
                                  {0, 9, 21},  {3, 10, 18},  {6, 11, 15},  {1, 4, 7},
                                  {16, 19, 22}, {8, 12, 17},  {5, 13, 20},  {2, 14, 23}};

namespace {

// The board's lines are exactly the neighbouring pairs inside the mills; the slot follows
// from the direction on the drawing.
std::array<std::array<int, 4>, kPunkte> bildeNachbarn()
{
    std::array<std::array<int, 4>, kPunkte> n;
    for (auto& row : n)
        row.fill(kKein);
    auto verbinde = [&](int a, int b) {
        const int dx = kPunktX[b] - kPunktX[a];
        const int dy = kPunktY[b] - kPunktY[a];
        int slot = dx > 0 ? 0 : dy > 0 ? 1 : dx < 0 ? 2 : 3;
        n[a][slot] = b;
        n[b][(slot + 2) % 4] = a;
    };
    for (const auto& m : kMuehle) {
        verbinde(m[0], m[1]);
        verbinde(m[1], m[2]);
    }
    return n;
}

std::array<std::array<std::array<int, 2>, 2>, kPunkte> bildeMuehlenDurch()
{
    std::array<std::array<std::array<int, 2>, 2>, kPunkte> d{};
    int zahl[kPunkte] = {};
    for (const auto& m : kMuehle)
        for (int i = 0; i < 3; ++i) {
            const int p = m[i];
            int k = 0;
            for (int j = 0; j < 3; ++j)
                if (j != i)
                    d[p][zahl[p]][k++] = m[j];
            ++zahl[p];
        }
    return d;
}

std::vector<std::array<int, 5>> bildeGabeln()
{
    std::vector<std::array<int, 5>> rows;
    const auto& md = muehlenDurch();
    for (int c = 0; c < kPunkte; ++c)
        for (int i = 0; i < 2; ++i)
            for (int j = 0; j < 2; ++j) {
                const int x = md[c][0][i], d = md[c][0][1 - i];
                const int y = md[c][1][j], e = md[c][1][1 - j];
                rows.push_back({std::min(x, y), std::max(x, y), c, d, e});
            }
    // The shape round point 4 is counted twice; the evaluation has always weighed it so.
    rows.push_back({3, 1, 4, 5, 7});
    return rows;
}

bool aufMuehle(const std::array<std::uint8_t, kPunkte>& b, int p, int spieler)
{
    const auto& md = muehlenDurch();
    for (int k = 0; k < 2; ++k)
        if (b[md[p][k][0]] == spieler && b[md[p][k][1]] == spieler)
            return true;
    return false;
}

}  // namespace

const std::array<std::array<int, 4>, kPunkte>& nachbarn()
{
    static const auto n = bildeNachbarn();
    return n;
}

const std::array<std::array<std::array<int, 2>, 2>, kPunkte>& muehlenDurch()
{
    static const auto d = bildeMuehlenDurch();
    return d;
}

const std::vector<std::array<int, 5>>& gabeln()
{
    static const auto g = bildeGabeln();
    return g;
}

Stellung startstellung()
{
    Stellung s;
    for (int p = 1; p <= 2; ++p)
        s.spieler[p] = SpielerStand{Setzen, 0, 9};
    return s;
}

int Zugfreiheit(const Stellung& s, int spieler)
{
    if (s.spieler[spieler].phase == Springen)
        return 3;
    int frei = 0;
    for (int p = 0; p < kPunkte; ++p)
        if (s.brett[p] == spieler)
            for (int n : nachbarn()[p])
                if (n != kKein && s.brett[n] == 0)
                    ++frei;
    return frei;
}

bool SpielEnde(const Stellung& s, int zugzahl)
{
    if (zugzahl < 19)
        return false;
    if (s.spieler[1].steine < 3 || s.spieler[2].steine < 3)
        return true;
    return Zugfreiheit(s, 1) == 0 || Zugfreiheit(s, 2) == 0;
}

bool BildetMuehle(const Stellung& s, int punkt, int spieler, int frei)
{
    auto b = s.brett;
    if (frei >= 0 && frei < kPunkte)
        b[frei] = 0;
    return aufMuehle(b, punkt, spieler);
}

Zugliste ZugErzeugen(const Stellung& s, int spieler)
{
    Zugliste liste;
    const SpielerStand& st = s.spieler[spieler];
    if (st.steine + st.vorrat < 3)
        return liste;
    const int feind = gegner(spieler);
    auto aufnehmen = [&](int von, int nach) {
        Zug z{von, nach, kKein};
        const int frei = von == kKein ? nach : von;
        if (!BildetMuehle(s, nach, spieler, frei)) {
            liste.push_back(z);
            return;
        }
        bool erster = true;
        for (int q = 0; q < kPunkte; ++q) {
            if (s.brett[q] != feind || BildetMuehle(s, q, feind, frei))
                continue;
            z.schlag = q;
            liste.push_back(z);
            erster = false;
        }
        if (erster)  // every opposing stone stands in a mill: the move goes without a capture
            liste.push_back(Zug{von, nach, kKein});
    };
    for (int p = 0; p < kPunkte; ++p) {
        switch (st.phase) {
        case Setzen:
            if (s.brett[p] == 0)
                aufnehmen(kKein, p);
            break;
        case Ziehen:
            if (s.brett[p] == spieler)
                for (int n : nachbarn()[p])
                    if (n != kKein && s.brett[n] == 0)
                        aufnehmen(p, n);
            break;
        default:
            if (s.brett[p] == spieler)
                for (int q = 0; q < kPunkte; ++q)
                    if (s.brett[q] == 0)
                        aufnehmen(p, q);
            break;
        }
    }
    return liste;
}

void ZugAusfuehren(Stellung& s, const Zug& z, int spieler)
{
    SpielerStand& st = s.spieler[spieler];
    if (st.phase == Setzen) {
        ++st.steine;
        --st.vorrat;
        if (st.vorrat == 0)
            st.phase = Ziehen;
    } else if (z.von != kKein) {
        s.brett[z.von] = 0;
    }
    s.brett[z.nach] = static_cast<std::uint8_t>(spieler);
    if (z.schlag < kKein) {
        SpielerStand& f = s.spieler[gegner(spieler)];
        s.brett[z.schlag] = 0;
        --f.steine;
        // Jumping begins only through a capture, never by leaving the placing phase with three.
        if (f.steine == 3 && f.vorrat == 0)
            f.phase = Springen;
    }
}

void MuehlenZaehlen(const Stellung& s, int spieler, int& geschlossen, int& offen)
{
    geschlossen = 0;
    offen = 0;
    int doppelt = 0;
    Stellung w = s;  // closed mills are emptied in this copy as they are counted
    const auto& nb = nachbarn();
    const auto& md = muehlenDurch();
    const int phase = s.spieler[spieler].phase;
    for (const auto& m : kMuehle) {
        int eigene = 0, leer = kKein;
        bool tot = false;
        for (int p : m) {
            if (w.brett[p] == spieler)
                ++eigene;
            else if (w.brett[p] == 0)
                leer = p;
            else
                tot = true;
        }
        if (tot)
            continue;
        if (eigene == 2) {
            // the other mill through the empty point: the pair that is not this mill's
            for (const auto& paar : md[leer]) {
                const bool dieseMuehle =
                    std::find(std::begin(m), std::end(m), paar[0]) != std::end(m);
                if (!dieseMuehle && w.brett[paar[0]] == spieler && w.brett[paar[1]] == spieler)
                    ++doppelt;
            }
            if (phase != Ziehen) {
                ++offen;
            } else {
                for (int n : nb[leer])
                    if (n != kKein && w.brett[n] == spieler &&
                        std::find(std::begin(m), std::end(m), n) == std::end(m)) {
                        ++offen;
                        break;
                    }
            }
        } else if (eigene == 3) {
            int frei = 0;
            for (int p : m)
                for (int n : nb[p])
                    if (n != kKein && w.brett[n] == 0)
                        ++frei;
            if (frei == 0)
                continue;
            ++geschlossen;
            for (int p : m)
                w.brett[p] = 0;
            for (int p : m)
                for (int n : nb[p])
                    if (n != kKein && BildetMuehle(w, n, spieler, p)) {
                        --offen;
                        ++geschlossen;
                    }
        }
    }
    offen -= doppelt / 2;  // each double was met from both of its mills
}

int Bewerten(const Stellung& s, Suche& suche)
{
    ++suche.stellungen;
    const auto& b = s.brett;
    int g1 = 0, o1 = 0, g2 = 0, o2 = 0;
    MuehlenZaehlen(s, 1, g1, o1);
    MuehlenZaehlen(s, 2, g2, o2);
    const int m1 = Zugfreiheit(s, 1);
    const int m2 = Zugfreiheit(s, 2);
    int A = 0, B = 0;
    if (s.spieler[1].phase == Setzen || s.spieler[2].phase == Setzen) {
        for (const auto& r : gabeln()) {
            const bool cde = b[r[2]] == 0 && b[r[3]] == 0 && b[r[4]] == 0;
            const bool de = b[r[3]] == 0 && b[r[4]] == 0;
            if (b[r[0]] == 2 && b[r[1]] == 2) {
                if (cde)
                    A += 2 * 25;
                else if (b[r[2]] == 2 && de)
                    A += 3 * 25;
            }
            if (b[r[0]] == 1 && b[r[1]] == 1) {
                if (cde)
                    B += 2 * 30;
                else if (b[r[2]] == 1 && de)
                    B += 3 * 30;
            }
        }
        A += 30 * m2;
        B += 40 * m1;
        A += 100 * g2 + 60 * o2;
        B += 110 * g1 + 70 * o1;
        return A - B;
    }
    if (m2 == 0 || s.spieler[2].steine < 3)
        B = kVerloren;
    if (m1 == 0 || s.spieler[1].steine < 3) {
        A = kVerloren;
        B = 0;
    }
    A += 15 * m2 + 120 * g2 + 80 * o2;
    B += 18 * m1 + 130 * g1 + 90 * o1;
    if (s.spieler[2].phase == Ziehen && s.spieler[2].steine >= 7 && s.spieler[1].steine == 4 && g1 == 0)
        A += 2 * 15 * m2;
    if (s.spieler[1].phase == Ziehen && s.spieler[1].steine >= 7 && s.spieler[2].steine == 4 && g2 == 0)
        B += 2 * 18 * m1;
    return A - B;
}

int AlphaBeta(Zug& bester, int beta, int alpha, int spieler, const Stellung& s, int tiefe, int oben,
              Suche& suche)
{
    if (tiefe == 0 || SpielEnde(s, suche.zugzahl))
        return Bewerten(s, suche);
    const Zugliste zuege = ZugErzeugen(s, spieler);
    const bool wurzel = tiefe == oben;
    Zug dummy;
    for (const Zug& z : zuege) {
        if (alpha >= beta)
            break;
        Stellung kopie = s;
        ZugAusfuehren(kopie, z, spieler);
        const long long vorher = suche.stellungen;
        const int wert = AlphaBeta(dummy, beta, alpha, gegner(spieler), kopie, tiefe - 1, oben, suche);
        if (wurzel && suche.testausgabe)
            suche.ausgabe.push_back("Wert Von " + zugText(z) + " = " + std::to_string(wert) + "  " +
                                    std::to_string(suche.stellungen - vorher) + " Stellungen");
        const bool besser = spieler == 2 ? wert > alpha : wert < beta;
        if (!besser)
            continue;
        if (spieler == 2)
            alpha = wert;
        else
            beta = wert;
        if (wurzel) {
            bester = z;
            if (suche.testausgabe)
                suche.ausgabe.push_back("bester Zug:" + zugText(z) + " = " + std::to_string(wert));
        }
    }
    return spieler == 2 ? alpha : beta;
}

Entscheidung Computerzug(const Stellung& s, int spieler, int tiefe, Suche& suche)
{
    Entscheidung e;
    suche.stellungen = 0;
    const Zugliste zuege = ZugErzeugen(s, spieler);
    if (zuege.empty())
        return e;
    e.gefunden = true;
    const int feind = gegner(spieler);
    if (suche.zugzahl >= 18) {
        for (const Zug& z : zuege) {
            Stellung kopie = s;
            ZugAusfuehren(kopie, z, spieler);
            if (Zugfreiheit(kopie, feind) == 0 || kopie.spieler[feind].steine < 3) {
                e.zug = z;
                e.sofortsieg = true;
                e.wert = spieler == 2 ? kVerloren : -kVerloren;
                return e;
            }
        }
    }
    e.zug = zuege.front();
    e.wert = AlphaBeta(e.zug, kFenster, -kFenster, spieler, s, tiefe, tiefe, suche);
    return e;
}

std::string zugText(const Zug& z, const std::string& schlagwort)
{
    std::string t;
    if (z.von != kKein)
        t = std::string(kPunktnamen[z.von]) + " - ";
    if (z.nach != kKein)
        t += kPunktnamen[z.nach];
    if (z.schlag != kKein)
        t += schlagwort + kPunktnamen[z.schlag];
    return t;
}

int punktNachName(const std::string& name)
{
    if (name.size() != 2)
        return -1;
    const std::string n{static_cast<char>(std::toupper(static_cast<unsigned char>(name[0]))), name[1]};
    for (int p = 0; p < kPunkte; ++p)
        if (n == kPunktnamen[p])
            return p;
    return -1;
}

bool stellungAusText(const std::string& text, Stellung& s, std::string& fehler)
{
    s = startstellung();
    const std::size_t doppelpunkt = text.find(':');
    const std::string brett = text.substr(0, doppelpunkt);
    if (brett.size() != kPunkte) {
        fehler = "Die Stellung braucht 24 Zeichen (. x o), gefunden " + std::to_string(brett.size()) + ".";
        return false;
    }
    for (int p = 0; p < kPunkte; ++p) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(brett[p])));
        if (c == '.')
            s.brett[p] = 0;
        else if (c == 'x')
            s.brett[p] = 1;
        else if (c == 'o')
            s.brett[p] = 2;
        else {
            fehler = std::string("Unbekanntes Zeichen '") + brett[p] + "' an Punkt " + kPunktnamen[p] + ".";
            return false;
        }
        if (s.brett[p])
            ++s.spieler[s.brett[p]].steine;
    }
    int vorrat[3] = {0, 0, 0};
    if (doppelpunkt != std::string::npos) {
        const std::string rest = text.substr(doppelpunkt + 1);
        const std::size_t komma = rest.find(',');
        auto zahl = [](const std::string& t, int& v) {
            if (t.empty() || t.size() > 1 || !std::isdigit(static_cast<unsigned char>(t[0])))
                return false;
            v = t[0] - '0';
            return true;
        };
        if (komma == std::string::npos || !zahl(rest.substr(0, komma), vorrat[1]) ||
            !zahl(rest.substr(komma + 1), vorrat[2])) {
            fehler = "Der Vorrat steht als zwei Ziffern hinter dem Doppelpunkt, etwa :5,4.";
            return false;
        }
    }
    for (int i = 1; i <= 2; ++i) {
        SpielerStand& st = s.spieler[i];
        st.vorrat = vorrat[i];
        if (st.steine + st.vorrat > 9) {
            fehler = "Mehr als neun Steine für Spieler " + std::to_string(i) + ".";
            return false;
        }
        st.phase = st.vorrat > 0 ? Setzen : st.steine == 3 ? Springen : Ziehen;
    }
    return true;
}

std::string stellungAlsText(const Stellung& s)
{
    std::string t;
    for (int p = 0; p < kPunkte; ++p)
        t += s.brett[p] == 0 ? '.' : s.brett[p] == 1 ? 'x' : 'o';
    if (s.spieler[1].vorrat || s.spieler[2].vorrat)
        t += ":" + std::to_string(s.spieler[1].vorrat) + "," + std::to_string(s.spieler[2].vorrat);
    return t;
}

}  // namespace muehle
