// The Enigma machine: stepping with the double step, the involution, the plugboard rules,
// the settings line and the text preparation.
#include "crypto/enigma.h"

#include <gtest/gtest.h>

using namespace crypto;

namespace {

EnigmaSettings at(const std::string& positions, std::array<int, 3> rotors = {0, 1, 2})
{
    EnigmaSettings s;
    s.rotors = rotors;
    for (int k = 0; k < 3; ++k)
        s.positions[k] = positions[k] - 'A' + 1;
    return s;
}

std::string positionsAfter(const EnigmaSettings& s, int presses)
{
    Enigma e(s);
    for (int i = 0; i < presses; ++i)
        e.press('A');
    return e.positionLetters();
}

}  // namespace

TEST(Enigma, KnownOutputOfRotorsOneTwoThreeFromAAA)
{
    // The check sum of every Enigma I simulator: rotors I-II-III, reflector B, rings and start
    // at A, five times A gives BDZGO.
    Enigma e(at("AAA"));
    EXPECT_EQ(encipherEnigma(e, "AAAAA"), "BDZGO");
    EXPECT_EQ(e.positionLetters(), "AAF");
    // after a reset the same text gives the same output
    Enigma again(at("AAA"));
    EXPECT_EQ(encipherEnigma(again, "AAAAA"), "BDZGO");
}

TEST(Enigma, RightRotorStepsFirstAndMovesTheMiddleAtItsStepValue)
{
    // rotor III in the right slot: its step value 23 ("W") moves the middle rotor
    EXPECT_EQ(positionsAfter(at("AAA"), 1), "AAB");
    EXPECT_EQ(positionsAfter(at("AAA"), 21), "AAV");
    EXPECT_EQ(positionsAfter(at("AAA"), 22), "ABW");
    // rotor I in the right slot: the middle rotor moves when the right one goes to 18 ("R")
    EXPECT_EQ(positionsAfter(at("AAA", {1, 2, 0}), 16), "AAQ");
    EXPECT_EQ(positionsAfter(at("AAA", {1, 2, 0}), 17), "ABR");
    // Z stores as 26, and the next step gives A
    EXPECT_EQ(positionsAfter(at("AAZ"), 1), "AAA");
}

TEST(Enigma, DoubleStepOfTheMiddleRotor)
{
    // ADU -> ADV -> AEW -> BFX: the middle rotor steps again together with the left one
    const EnigmaSettings s = at("ADU");
    EXPECT_EQ(positionsAfter(s, 1), "ADV");
    EXPECT_EQ(positionsAfter(s, 2), "AEW");
    EXPECT_EQ(positionsAfter(s, 3), "BFX");
    EXPECT_EQ(positionsAfter(s, 4), "BFY");
    // starting with the middle rotor one before its step value, the left rotor moves when
    // the middle one reaches it
    EXPECT_EQ(positionsAfter(at("AEA"), 21), "AEV");
    EXPECT_EQ(positionsAfter(at("AEA"), 22), "BFW");
    // the middle rotor wraps from Z to A
    EXPECT_EQ(positionsAfter(at("AZV"), 1), "AAW");
}

TEST(Enigma, EncipheringTwiceGivesTheTextBack)
{
    const std::string text = "DIEMATHEMATIKISTEINEDERAELTESTENWISSENSCHAFTENDERMENSCHHEITXYZ";
    for (const char* pos : {"AAA", "QEV", "ZZZ", "MDU"}) {
        EnigmaSettings s = at(pos, {2, 0, 1});
        s.plugs[0] = {0, 25};
        s.plugs[3] = {4, 13};
        Enigma a(s), b(s);
        const std::string code = encipherEnigma(a, text);
        EXPECT_EQ(encipherEnigma(b, code), text) << pos;
        for (std::size_t i = 0; i < text.size(); ++i)
            EXPECT_NE(code[i], text[i]) << "a letter never enciphers to itself, " << pos << " at " << i;
    }
}

TEST(Enigma, PlugboardPairs)
{
    const std::string text = "HALLOWELTDASISTEINTEST";
    Enigma plain(at("AAA"));
    const std::string unplugged = encipherEnigma(plain, text);
    // a pair of a letter with itself changes nothing
    EnigmaSettings self = at("AAA");
    self.plugs[2] = {7, 7};
    Enigma e1(self);
    EXPECT_EQ(encipherEnigma(e1, text), unplugged);
    // a pair swaps its letters on the way in and out: plugging A-B at the input and output is
    // the same as swapping A and B around an unplugged machine
    EnigmaSettings ab = at("AAA");
    ab.plugs[0] = {0, 1};
    Enigma e2(ab), e3(at("AAA"));
    const std::string in = "ABCAB";
    std::string swapped;
    for (char c : in)
        swapped += c == 'A' ? 'B' : c == 'B' ? 'A' : c;
    std::string viaPlain = encipherEnigma(e3, swapped);
    for (char& c : viaPlain)
        c = c == 'A' ? 'B' : c == 'B' ? 'A' : c;
    EXPECT_EQ(encipherEnigma(e2, in), viaPlain);
    // pairs sharing a letter are applied in pair order: A-B then B-C sends A to C on entry
    EnigmaSettings chain = at("AAA");
    chain.plugs[0] = {0, 1};
    chain.plugs[1] = {1, 2};
    Enigma e4(chain), e5(at("AAA"));
    const char out = e4.press('A');
    char expected = e5.press('C');
    for (auto p : {std::array<int, 2>{0, 1}, std::array<int, 2>{1, 2}}) {
        if (expected - 'A' == p[0])
            expected = static_cast<char>('A' + p[1]);
        else if (expected - 'A' == p[1])
            expected = static_cast<char>('A' + p[0]);
    }
    EXPECT_EQ(out, expected);
}

TEST(Enigma, SettingsLine)
{
    EnigmaSettings s;
    EXPECT_EQ(settingsLine(s), kEnigmaStartLine);
    ASSERT_TRUE(parseSettingsLine("III-I-II; Q-E-V; AB; n/a; XZ; n/a; n/a; CD", s));
    EXPECT_EQ(s.rotors, (std::array<int, 3>{2, 0, 1}));
    EXPECT_EQ(s.positions, (std::array<int, 3>{17, 5, 22}));
    EXPECT_EQ(s.plugs[0], (std::array<int, 2>{0, 1}));
    EXPECT_EQ(s.plugs[1], (std::array<int, 2>{-1, -1}));
    EXPECT_EQ(settingsLine(s), "III-I-II; Q-E-V; AB; n/a; XZ; n/a; n/a; CD");
    EnigmaSettings unchanged = s;
    EXPECT_FALSE(parseSettingsLine("I-I-III; A-A-A; n/a; n/a; n/a; n/a; n/a; n/a", s));
    EXPECT_FALSE(parseSettingsLine("I-II-III; A-A; n/a; n/a; n/a; n/a; n/a; n/a", s));
    EXPECT_FALSE(parseSettingsLine("I-II-III; A-A-A; ABC; n/a; n/a; n/a; n/a; n/a", s));
    EXPECT_FALSE(parseSettingsLine("Unsinn", s));
    EXPECT_EQ(settingsLine(s), settingsLine(unchanged));
}

TEST(Enigma, TextPreparation)
{
    // Windows-1252: Ä \xC4, ö \xF6, ü \xFC, ß \xDF
    EXPECT_EQ(prepareEnigmaText("Gr\xF6\xDF" "e 3+4 ist 7."), "GROESSEDREIPLUSVIERISTSIEBEN");
    EXPECT_EQ(prepareEnigmaText("\xC4rger, M\xFChe\n2-1=1 / 5*0"),
              "AERGERMUEHE\nZWEIMINUSEINSEINSDURCHFUENFMALNULL");
    EXPECT_EQ(prepareEnigmaText("6 8 9!?"), "SECHSACHTNEUN");
    // the line structure stays; the machine passes line ends through
    Enigma e(at("AAA"));
    EXPECT_EQ(encipherEnigma(e, "AAA\nAA"), "BDZ\nGO");
}
