// The headless commands: their output formats, exit codes and usage errors.
#include "crypto/commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

struct Result {
    int code;
    std::string out, err;
};

Result run(const std::string& name, const quorix::Args& args)
{
    for (const auto& c : crypto::cryptoCommands())
        if (c.name == name) {
            std::ostringstream out, err;
            const int code = c.run(args, out, err);
            return {code, out.str(), err.str()};
        }
    ADD_FAILURE() << "no command " << name;
    return {-1, "", ""};
}

}  // namespace

TEST(Commands, AllFiveAreOffered)
{
    std::vector<std::string> names;
    for (const auto& c : crypto::cryptoCommands()) {
        names.push_back(c.name);
        EXPECT_FALSE(c.usage.empty());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"cipher", "blockcipher", "rc4", "enigma", "vigenere-crack"}));
}

TEST(Commands, Cipher)
{
    EXPECT_EQ(run("cipher", {"2", "--encrypt", "--key", "3", "Hallo Welt"}).out, "KDOORZHOW\n");
    // a repaired key is told on the error stream; the output uses it
    const Result caesar = run("cipher", {"2", "--encrypt", "--key", "27", "abc"});
    EXPECT_EQ(caesar.code, 0);
    EXPECT_EQ(caesar.out, "FGH\n");
    EXPECT_EQ(caesar.err, "Schl\xC3\xBCssel: 5\n");
    // UTF-8 in and out, umlauts as single signs
    EXPECT_EQ(run("cipher", {"19", "--encrypt", "\xC3\xA4" "b"}).out, "\xC3\xA4" "d\n");
    // byte outputs come as hex and go back with --hex-in
    const Result x = run("cipher", {"4", "--encrypt", "--key", "nebel", "nebel!"});
    EXPECT_EQ(x.out, "FFFFFFFFFF4F\n");
    EXPECT_EQ(run("cipher", {"4", "--decrypt", "--key", "nebel", "--hex-in", "FFFFFFFFFF4F"}).out, "nebel!\n");
    const Result rc4 = run("cipher", {"10", "--encrypt", "--key", "Key", "Plaintext"});
    EXPECT_EQ(rc4.out, "BBF316E8D940AF0AD3\n");
    // AES: hex text both ways, default code word
    const Result aes = run("cipher", {"14", "--encrypt", "Geheim"});
    ASSERT_EQ(aes.code, 0);
    EXPECT_EQ(aes.out.size(), 8u + 32u + 1u);
    EXPECT_EQ(run("cipher", {"14", "--decrypt", aes.out.substr(0, 40)}).out, "Geheim\n");
    // the full Vigenère code may hold any sign from 31 to 255; it goes through UTF-8 and back
    const Result v = run("cipher", {"0", "--encrypt", "--key", "\xC3\xBF\xC3\xBF", "Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC"});
    ASSERT_EQ(v.code, 0);
    EXPECT_EQ(run("cipher", {"0", "--decrypt", "--key", "\xC3\xBF\xC3\xBF", v.out.substr(0, v.out.size() - 1)}).out,
              "Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC\n");
    // the text may come in several arguments
    EXPECT_EQ(run("cipher", {"5", "--encrypt", "A", "Z"}).out, "ZA\n");
}

TEST(Commands, CipherErrors)
{
    EXPECT_EQ(run("cipher", {"22", "--encrypt", "x"}).code, 2);
    EXPECT_EQ(run("cipher", {"2", "x"}).code, 2);
    EXPECT_EQ(run("cipher", {"2", "--encrypt", "--decrypt", "x"}).code, 2);
    EXPECT_EQ(run("cipher", {"4", "--decrypt", "--hex-in", "XYZ"}).code, 2);
    const Result bad = run("cipher", {"14", "--decrypt", "00"});
    EXPECT_EQ(bad.code, 1);
    EXPECT_FALSE(bad.err.empty());
}

TEST(Commands, BlockCipher)
{
    // FIPS-197 appendix C.1
    EXPECT_EQ(run("blockcipher", {"aes128", "--key-hex", "000102030405060708090a0b0c0d0e0f", "--block-hex",
                                  "00112233445566778899aabbccddeeff"})
                  .out,
              "69C4E0D86A7B0430D8CDB78070B4C55A\n");
    EXPECT_EQ(run("blockcipher", {"aes128", "--decrypt", "--key-hex", "000102030405060708090a0b0c0d0e0f",
                                  "--block-hex", "69C4E0D86A7B0430D8CDB78070B4C55A"})
                  .out,
              "00112233445566778899AABBCCDDEEFF\n");
    // IDEA, Lai and Massey's example
    EXPECT_EQ(run("blockcipher", {"idea", "--key-hex", "00010002000300040005000600070008", "--block-hex",
                                  "0000000100020003"})
                  .out,
              "11FBED2B01986DE5\n");
    // RC5 and RC6 papers
    EXPECT_EQ(run("blockcipher", {"rc5", "--key-hex", std::string(32, '0'), "--block-hex", std::string(16, '0')}).out,
              "21A5DBEE154B8F6D\n");
    EXPECT_EQ(run("blockcipher", {"rc6", "--key-hex", "0123456789abcdef0112233445566778", "--block-hex",
                                  "02132435465768798a9bacbdcedfe0f1"})
                  .out,
              "524E192F4715C6231F51F6367EA43F18\n");
    EXPECT_EQ(run("blockcipher", {"des", "--key-hex", "00", "--block-hex", "00"}).code, 2);
    EXPECT_EQ(run("blockcipher", {"rc5", "--key-hex", "00", "--block-hex", std::string(16, '0')}).code, 2);
    EXPECT_EQ(run("blockcipher", {"rc6", "--key-hex", std::string(32, '0'), "--block-hex", "00"}).code, 2);
}

TEST(Commands, Rc4)
{
    // RFC 6229, 40-bit key, first 16 bytes
    EXPECT_EQ(run("rc4", {"--key-hex", "0102030405", "--bytes", "16"}).out, "B2396305F03DC027CCC3524A0A1118A8\n");
    EXPECT_EQ(run("rc4", {"--key-hex", "0102030405", "--bytes", "0"}).code, 2);
    EXPECT_EQ(run("rc4", {"--key-hex", "", "--bytes", "4"}).code, 2);
}

TEST(Commands, Enigma)
{
    EXPECT_EQ(run("enigma", {"AAAAA"}).out, "BDZGO\nAAF\n");
    EXPECT_EQ(run("enigma", {"--rotors", "I-II-III", "--positions", "ADU", "AAA"}).out.substr(4), "BFX\n");
    // preparation as on load, and the involution through the command
    const Result r = run("enigma", {"--positions", "QEV", "--plugs", "AB,CD,EF", "Größe 3"});
    ASSERT_EQ(r.code, 0);
    const std::string code = r.out.substr(0, r.out.find('\n'));
    EXPECT_EQ(code.size(), std::string("GROESSEDREI").size());
    EXPECT_EQ(run("enigma", {"--positions", "QEV", "--plugs", "AB,CD,EF", code}).out.substr(0, code.size()),
              "GROESSEDREI");
    EXPECT_EQ(run("enigma", {"--rotors", "I-I-III", "A"}).code, 2);
    EXPECT_EQ(run("enigma", {"--positions", "AA", "A"}).code, 2);
    EXPECT_EQ(run("enigma", {"--plugs", "AB,BC", "A"}).code, 2);
    EXPECT_EQ(run("enigma", {"--plugs", "AB,CD,EF,GH,IJ,KL,MN", "A"}).code, 2);
    EXPECT_EQ(run("enigma", {}).code, 2);
}

TEST(Commands, VigenereCrack)
{
    const std::string plain =
        "INDERMATHEMATIKWERDENAUSSAGENBEWIESENDIEAUSWENIGENGRUNDSAETZENFOLGENSOWURDEDIEGEOMETRIEZU"
        "EINEMGEBAEUDEINDEMJEDERSTEINAUFDENANDERENGESETZTISTSPAETERKAMENDIEZAHLENHINZUDIEGLEICHUNGEN"
        "UNDDIEKURVENUNDSCHLIESSLICHDIERECHNUNGMITDEMUNENDLICHKLEINENMITDERMANDIEBEWEGUNGDERPLANETEN"
        "UNDDENFALLEINESSTEINSBESCHREIBENKANNHEUTESTECKTDIEMATHEMATIKINJEDEMTELEFONINJEDERBANKUNDIN"
        "JEDEMWETTERBERICHTWEREINENACHRICHTVERSCHLUESSELTVERLAESSTSICHDARAUFDASSGEWISSEAUFGABENDER"
        "ZAHLENTHEORIESCHWERZULOESENSINDDIEGEHEIMSCHRIFTENSINDDABEIVIELAELTERALSDIERECHENMASCHINEN";
    const Result enc = run("cipher", {"1", "--encrypt", "--key", "ABC", plain});
    const Result r = run("vigenere-crack", {enc.out});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "Codewortl\xC3\xA4nge: 3\nCodewort: ABC\n");
    EXPECT_EQ(run("vigenere-crack", {"KURZ"}).code, 1);
    EXPECT_EQ(run("vigenere-crack", {}).code, 2);
}
