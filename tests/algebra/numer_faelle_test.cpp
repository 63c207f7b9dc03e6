// Runs the topic cases of numer_faelle.txt: each expected line must appear in the result.
#include "algebra/numer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {
struct Fall {
    int zeile = 0;
    int thema = 0;
    numer::Eingabe eingabe;
    std::vector<std::string> erwartet;
};

std::vector<Fall> lies()
{
    std::ifstream f(std::string(QUORIX_TEST_DATA) + "/numer_faelle.txt");
    std::vector<Fall> faelle;
    std::string z;
    int nr = 0;
    Fall* aktuell = nullptr;
    while (std::getline(f, z)) {
        ++nr;
        if (!z.empty() && z[0] == '#') continue;
        if (z.empty()) {
            aktuell = nullptr;
            continue;
        }
        if (!aktuell) {
            Fall neu;
            neu.zeile = nr;
            const size_t a = z.find('|'), b = z.find('|', a + 1);
            neu.thema = std::stoi(z.substr(0, a));
            neu.eingabe.option = std::stoi(z.substr(a + 1, b - a - 1));
            std::stringstream felder(z.substr(b + 1));
            std::string feld;
            while (std::getline(felder, feld, ';')) neu.eingabe.felder.push_back(feld);
            if (!z.empty() && z.back() == ';') neu.eingabe.felder.push_back("");
            faelle.push_back(neu);
            aktuell = &faelle.back();
        } else {
            aktuell->erwartet.push_back(z);
        }
    }
    return faelle;
}
}  // namespace

TEST(NumerFaelle, PublishedValues)
{
    const auto faelle = lies();
    ASSERT_GT(faelle.size(), 50u);
    for (const Fall& f : faelle) {
        const auto r = numer::berechne(f.thema, f.eingabe);
        std::string alles;
        for (const auto& z : r.zeilen) alles += "  [" + z + "]\n";
        for (const auto& e : f.erwartet) {
            bool da = false;
            for (const auto& z : r.zeilen) da = da || z == e;
            EXPECT_TRUE(da) << "numer_faelle.txt line " << f.zeile << ", topic " << f.thema << ": expected [" << e
                            << "]\nactual:\n" << alles;
        }
    }
}
