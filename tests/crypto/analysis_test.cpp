// Breaking the upper-case Vigenère code of a long German text (german.txt, our own prose)
// enciphered with known keys.
#include "crypto/ciphers.h"
#include "crypto/vigenereanalysis.h"
#include "platform/codepage.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace crypto;

namespace {

std::string germanText()
{
    std::ifstream f(std::string(QUORIX_TEST_DATA) + "/german.txt");
    std::stringstream ss;
    ss << f.rdbuf();
    return platform::utf8ToCp1252(ss.str());
}

std::string lettersOnly(const std::string& t)
{
    std::string out;
    for (unsigned char c : t)
        if (isAsciiLetter(c))
            out += static_cast<char>(upper1252(c));
    return out;
}

}  // namespace

TEST(VigenereAnalysis, FindsKeyOfLongGermanText)
{
    const std::string plain = lettersOnly(germanText());
    ASSERT_GT(plain.size(), 2000u);
    for (const char* key : {"GEHEIMNIS", "KRYPTO", "MATHEMATIKLEXIKON", "Z", "QUORIX"}) {
        const std::string code = encipher(1, plain, key).output;
        const VigenereAnalysis a = analyseVigenere(code);
        const std::string expectedKey = encipher(1, "", key).key.substr(0, 16);
        ASSERT_TRUE(a.found) << key;
        EXPECT_TRUE(a.message.empty());
        std::string upperKey;
        for (char c : expectedKey)
            upperKey += static_cast<char>(upper1252(c));
        EXPECT_EQ(a.keyLength, static_cast<int>(upperKey.size())) << key;
        EXPECT_EQ(a.key, upperKey) << "expected " << upperKey << ", found " << a.key;
        EXPECT_EQ(decipher(1, code, a.key).output, plain) << key;
    }
}

TEST(VigenereAnalysis, TextWithWordGapsAsMethodOneLeavesIt)
{
    // method 1 makes letters of the gaps; the analysis allows for that
    std::string plain = joinLines(germanText());
    const std::string code = encipher(1, plain, "Schluessel").output;
    const VigenereAnalysis a = analyseVigenere(code);
    ASSERT_TRUE(a.found);
    EXPECT_EQ(a.key, "SCHLUESSEL");
}

TEST(VigenereAnalysis, ShortTextsLimitTheKeyLength)
{
    const std::string plain = lettersOnly(germanText()).substr(0, 120);
    const VigenereAnalysis a = analyseVigenere(encipher(1, plain, "AB").output);
    EXPECT_EQ(a.maxKeyLength, 6);
    EXPECT_EQ(a.message, "Text l\xE4sst nur Erkennung eines Codewortes von maximal 6 Zeichen zu");
    const VigenereAnalysis tiny = analyseVigenere("ABCDEFG");
    EXPECT_FALSE(tiny.found);
    EXPECT_EQ(tiny.message, "Text l\xE4sst nur Erkennung eines Codewortes von maximal 0 Zeichen zu");
}

TEST(VigenereAnalysis, KeysOfEveryLengthUpTo16)
{
    const std::string plain = lettersOnly(germanText());
    unsigned seed = 12345;
    int wrong = 0;
    for (int len = 1; len <= 16; ++len)
        for (int trial = 0; trial < 3; ++trial) {
            std::string key;
            for (int i = 0; i < len; ++i) {
                seed = seed * 1103515245u + 12345u;
                key += static_cast<char>('A' + (seed >> 16) % 26);
            }
            const VigenereAnalysis a = analyseVigenere(encipher(1, plain, key).output);
            if (a.key != key) {
                ++wrong;
                ADD_FAILURE() << "key " << key << " found as " << a.key;
            }
        }
    EXPECT_EQ(wrong, 0);
}
