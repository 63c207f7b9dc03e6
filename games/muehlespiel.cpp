#include "games/muehlespiel.h"

#include <algorithm>
#include <cstdio>

namespace muehle {

void Muehlespiel::start(Variante v)
{
    stellung_ = startstellung();
    zweiSpieler_ = v == Variante::SpielerGegenSpieler;
    namen_[1] = "Spieler A";
    namen_[2] = zweiSpieler_ ? "Spieler B" : "Computer";
    ersterSpieler_ = v == Variante::ComputerBeginnt ? 2 : 1;
    anDerReihe_ = ersterSpieler_;
    for (auto& h : historie_)
        h.clear();
    spielzuege_.clear();
    letzter_ = Zug{};
    ergebnis_.clear();
    zugzahl_ = 1;
    laeuft_ = true;
}

bool Muehlespiel::ziehe(const Zug& z)
{
    if (!laeuft_)
        return false;
    const Zugliste legal = legaleZuege();
    if (std::find(legal.begin(), legal.end(), z) == legal.end())
        return false;
    const int mover = anDerReihe_;
    ZugAusfuehren(stellung_, z, mover);
    const std::string wer = mover == 2 && !zweiSpieler_ ? "Computer " : "Spieler ";
    char nummer[16];
    std::snprintf(nummer, sizeof nummer, "%2d", zugzahl_);
    spielzuege_.push_back(std::string(nummer) + ": " + wer + zugText(z, " x "));
    if (historie_[mover].size() < kMaxHistorie)
        historie_[mover].push_back(z);
    letzter_ = z;
    ++zugzahl_;
    endtest();
    if (laeuft_)
        anDerReihe_ = gegner(mover);
    return true;
}

void Muehlespiel::endtest()
{
    const bool remis = remisprobe();
    if (!SpielEnde(stellung_, zugzahl_) && zugzahl_ != kZugGrenze && !remis)
        return;
    laeuft_ = false;
    if (zugzahl_ >= 18 && zugzahl_ != kZugGrenze && !remis) {
        const bool zweiterKann = !ZugErzeugen(stellung_, 2).empty() && Zugfreiheit(stellung_, 2) > 0;
        std::string sieger = zweiterKann ? namen_[2] : namen_[1];
        if (zweiterKann && !zweiSpieler_)
            sieger = "der PC";
        ergebnis_ = "Gewonnen hat " + sieger;
        spielzuege_.push_back(ergebnis_);
    } else {
        ergebnis_ = "Das Spiel endet Remis!";
    }
}

Entscheidung Muehlespiel::computerZiehen(int tiefe, Suche& suche)
{
    suche.zugzahl = zugzahl_;
    Entscheidung e = Computerzug(stellung_, anDerReihe_, tiefe, suche);
    if (e.gefunden)
        ziehe(e.zug);
    return e;
}

bool Muehlespiel::remisprobe() const
{
    for (int p = 1; p <= 2; ++p)
        if (stellung_.spieler[p].phase == Setzen)
            return false;
    for (int p = 1; p <= 2; ++p) {
        const auto& h = historie_[p];
        const std::size_t n = h.size();
        if (n < 4)
            return false;
        if (h[n - 1].von != h[n - 3].von || h[n - 1].nach != h[n - 3].nach ||
            h[n - 2].von != h[n - 4].von || h[n - 2].nach != h[n - 4].nach)
            return false;
        for (std::size_t i = n - 4; i < n; ++i)
            if (h[i].schlag != kKein)
                return false;
    }
    return true;
}

bool Muehlespiel::abbrechen()
{
    if (!laeuft_ || SpielEnde(stellung_, zugzahl_))
        return false;
    laeuft_ = false;
    ergebnis_ = "Remis!";
    return true;
}

bool Muehlespiel::zurueck()
{
    if (zugzahl_ < 3)
        return false;
    // Two half moves are one move of each side.
    for (int p = 1; p <= 2; ++p)
        if (!historie_[p].empty())
            historie_[p].pop_back();
    for (int i = 0; i < 2 && !spielzuege_.empty(); ++i)
        spielzuege_.pop_back();
    zugzahl_ -= 2;
    // The move lists are the only record: replay them in turns from the empty board.
    stellung_ = startstellung();
    std::size_t idx[3] = {0, 0, 0};
    int wer = ersterSpieler_;
    letzter_ = Zug{};
    while (idx[wer] < historie_[wer].size()) {
        letzter_ = historie_[wer][idx[wer]++];
        ZugAusfuehren(stellung_, letzter_, wer);
        wer = gegner(wer);
    }
    anDerReihe_ = wer;
    ergebnis_.clear();
    laeuft_ = true;
    return true;
}

std::string Muehlespiel::steineText(int steine)
{
    return std::to_string(steine) + (steine == 1 ? " Stein" : " Steine");
}

const char* Muehlespiel::phasenwort(int phase)
{
    return phase == Setzen ? "Setzen" : phase == Ziehen ? "Ziehen" : "Springen";
}

std::string Muehlespiel::amZugText() const
{
    const int ph = stellung_.spieler[anDerReihe_].phase;
    return namen_[anDerReihe_] + (ph == Setzen ? " setzt!" : ph == Ziehen ? " zieht!" : " springt!");
}

}  // namespace muehle
