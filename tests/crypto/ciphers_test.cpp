// The methods of the cipher page: round trips of all twenty-two, their key repairs and the
// edge rules that make them what they are.
#include "crypto/blockciphers.h"
#include "crypto/ciphers.h"
#include "platform/codepage.h"

#include <gtest/gtest.h>

using namespace crypto;

namespace {

std::string upperLettersOnly(const std::string& t)
{
    std::string out;
    for (unsigned char c : t)
        if (isAsciiLetter(c))
            out += static_cast<char>(upper1252(c));
    return out;
}

// What a method gives back after enciphering and deciphering `t`.
std::string expectedRoundTrip(int method, const std::string& t)
{
    switch (method) {
    case 1: case 16: {
        // the upper-case variants turn every sign into a letter; letters come back upper-cased
        std::string out;
        for (unsigned char c : t)
            out += static_cast<char>(upper1252(c));
        return out;
    }
    case 2: case 5: return upperLettersOnly(t);
    default: return t;
    }
}

bool lettersOnly(const std::string& t)
{
    for (unsigned char c : t)
        if (!isAsciiLetter(c))
            return false;
    return true;
}

}  // namespace

TEST(CipherPage, EveryMethodDeciphersWhatItEnciphered)
{
    const std::string texts[] = {
        platform::utf8ToCp1252("Die Würde des Menschen ist unantastbar. Artikel 1, Absatz 1 (1949)!"),
        "Ab",
        "X",
        "GEHEIMERTEXTOHNELEERZEICHEN",
        platform::utf8ToCp1252("Zwölf Boxkämpfer jagen Viktor quer über den großen Sylter Deich"),
    };
    const std::string keys[] = {"", "Schluessel", "7", "3142", "ZEBRAS"};
    for (int m = 0; m < methodCount; ++m)
        for (const auto& t : texts)
            for (const auto& k : keys) {
                if ((m == 1 || m == 16) && !lettersOnly(t))
                    continue;  // signs other than letters become letters there
                const CipherResult e = encipher(m, t, k);
                ASSERT_TRUE(e.message.empty()) << m;
                const CipherResult d = decipher(m, e.output, e.key);
                EXPECT_EQ(d.output, expectedRoundTrip(m, t))
                    << "method " << m << " (" << methodName(m) << "), key '" << e.key << "', text '" << t << "'";
                EXPECT_FALSE(d.keyRepaired) << "the repaired key must be accepted as it stands, method " << m;
            }
}

TEST(CipherPage, UpperCaseVariantsKeepLetterPositions)
{
    const std::string t = "Ein Text mit Leerzeichen";
    for (int m : {1, 16}) {
        const CipherResult e = encipher(m, t, "Wort");
        for (unsigned char c : e.output)
            EXPECT_TRUE(c >= 'A' && c <= 'Z') << m;
        const std::string back = decipher(m, e.output, "Wort").output;
        ASSERT_EQ(back.size(), t.size());
        for (std::size_t i = 0; i < t.size(); ++i)
            if (isAsciiLetter(static_cast<unsigned char>(t[i])))
                EXPECT_EQ(back[i], static_cast<char>(upper1252(t[i]))) << m << " at " << i;
    }
}

TEST(CipherPage, KeyFieldsAreRepairedAndWrittenBack)
{
    struct Case {
        int method;
        std::string key, expected;
    } cases[] = {
        {2, "27", "5"},  {3, "0", "5"},    {20, "abc", "5"},  {2, "26", "26"},
        {21, "13", "3"}, {21, "1", "3"},   {21, "2", "3"},    {21, "25", "25"},
        {17, "1", "3"},  {17, "21", "3"},  {17, "20", "20"},  {7, "2", "3"},
        {8, "201", "3"}, {9, "0", "1000"}, {9, "50000", "50000"},
        {0, "", "nebelkrone"}, {10, "", "nebelkrone"},
        {4, "abcdefghijklmnopqrstuvwxyz", "abcdefghijklmnop"},
    };
    for (const auto& c : cases) {
        const CipherResult r = encipher(c.method, "Hallo", c.key);
        EXPECT_EQ(r.key, c.expected) << "method " << c.method << " key '" << c.key << "'";
        EXPECT_EQ(r.keyRepaired, c.key != c.expected) << "method " << c.method;
    }
    // the repaired value is the one that is used
    EXPECT_EQ(encipher(2, "Hallo", "27").output, encipher(2, "Hallo", "5").output);
    EXPECT_EQ(encipher(21, "Hallo", "13").output, encipher(21, "Hallo", "3").output);
    EXPECT_EQ(encipher(0, "Hallo", "").output, encipher(0, "Hallo", "nebelkrone").output);
    // the key is repaired even when there is no text, and nothing comes out
    const CipherResult empty = encipher(2, "", "99");
    EXPECT_EQ(empty.key, "5");
    EXPECT_TRUE(empty.output.empty());
}

TEST(CipherPage, VigenereFullRangeReducesBy225)
{
    EXPECT_EQ(encipher(0, "z", "z").output, std::string(1, static_cast<char>(244)));
    // 255 + 255 = 510 -> 285 -> 60
    EXPECT_EQ(encipher(0, "\xFF", "\xFF").output, "<");
    // 'a' + 'a' = 194 stays; a control sign counts as 32
    EXPECT_EQ(encipher(0, "\t", "A").output, "a");
    // 256 becomes 31, the lowest code
    EXPECT_EQ(encipher(0, "\x80", "\x80").output, std::string(1, '\x1F'));
    EXPECT_EQ(decipher(0, std::string(1, '\x1F'), "\x80").output, "\x80");
    // the upper-case variant: A shifts by 1
    EXPECT_EQ(encipher(1, "abz", "a").output, "BCA");
    // Autokey runs on with the plain text: key "B" then the text itself
    EXPECT_EQ(encipher(16, "AAB", "B").output, "CBC");
}

TEST(CipherPage, ShiftsAndSubstitutions)
{
    EXPECT_EQ(encipher(2, "Hallo, Welt!", "3").output, "KDOORZHOW");
    EXPECT_EQ(encipher(3, "A", "26").output, "[");
    EXPECT_EQ(encipher(3, "\xFF", "1").output, std::string(1, '\0'));
    EXPECT_EQ(encipher(5, "Hallo, Welt!", "").output, "SZOOLDVOG");
    EXPECT_EQ(encipher(5, "AZ", "").output, "ZA");
    EXPECT_EQ(encipher(19, "abc Z", "").output, "bdf E");
    EXPECT_EQ(encipher(20, "aaaa", "3").output, "dxdx");
    EXPECT_EQ(encipher(20, "a a", "3").output, "d d");  // the gap turns the direction too
    EXPECT_EQ(encipher(21, "ABab!", "3").output, "DGdg!");
    EXPECT_EQ(decipher(21, "DGdg!", "3").output, "ABab!");
}

TEST(CipherPage, XorTurnsEqualSignsInto255)
{
    const CipherResult r = encipher(4, "nebel", "nebelkrone");
    EXPECT_EQ(r.output, std::string(5, '\xFF'));
    EXPECT_EQ(decipher(4, r.output, r.key).output, "nebel");
    EXPECT_EQ(toHex(encipher(4, "A", "B").output), "03");
}

TEST(CipherPage, Transpositions)
{
    // rail fence of three rows, the classical example
    EXPECT_EQ(encipher(7, "WEAREDISCOVEREDFLEEATONCE", "3").output, "WECRLTEERDSOEEFEAOCAIVDEN");
    // columnar transposition under the key ZEBRAS, an incomplete last row
    EXPECT_EQ(encipher(6, "WEAREDISCOVEREDFLEEATONCE", "ZEBRAS").output, "EVLNACDTESEAROFODEECWIREE");
    // Skytale: d passes; a text shorter than d keeps its order
    EXPECT_EQ(encipher(17, "ABCDEFG", "3").output, "ADGBECF");
    EXPECT_EQ(encipher(17, "AB", "5").output, "AB");
    // only digits and letters move; the other signs keep their places
    EXPECT_EQ(encipher(17, "AB-CD", "2").output, "AC-BD");
    EXPECT_EQ(encipher(8, "WE ARE DISCOVERED.", "3").output, "WE CRE RDSOEEAIVD.");
}

TEST(CipherPage, DifferenceCoding)
{
    EXPECT_EQ(encipher(18, "Hallo Welt", "").output, "48190B0003 E80E0708");
    EXPECT_EQ(decipher(18, "48190B0003 E80E0708", "").output, "Hallo Welt");
    EXPECT_EQ(encipher(18, "-A", "").output, "-41");  // a sign outside the set is written as it is
}

TEST(CipherPage, StreamAndBlockMethods)
{
    // RC4 with the key "Key" on "Plaintext": the common example of the algorithm's description
    EXPECT_EQ(toHex(encipher(10, "Plaintext", "Key").output), "BBF316E8D940AF0AD3");
    // AES: 32-bit length first, then the blocks; 16 bytes give one block
    const std::string sixteen = "0123456789abcdef";
    const CipherResult aes = encipher(14, sixteen, "nebelkrone");
    ASSERT_GE(aes.output.size(), 40u);
    EXPECT_EQ(aes.output.substr(0, 8), "10000000");
    EXPECT_EQ(decipher(14, aes.output, "nebelkrone").output, sixteen);
    // each block alone: equal blocks give equal code
    const std::string twice = encipher(14, sixteen + sixteen, "k").output;
    EXPECT_EQ(twice.substr(8, 32), twice.substr(40, 32));
    // the key is the code word cut to 16 bytes, padded with zero bytes
    Bytes block = "Hallo";
    block.resize(16, '\0');
    Aes128 raw(Bytes("nebelkrone") + Bytes(6, '\0'));
    raw.encryptBlock(reinterpret_cast<std::uint8_t*>(block.data()));
    EXPECT_EQ(encipher(14, "Hallo", "").output, "05000000" + toHex(block));
    // RC5, RC6 and IDEA chain their blocks: equal blocks give different code
    for (int m : {11, 12, 13}) {
        const std::string c = encipher(m, sixteen + sixteen + sixteen + sixteen, "k").output;
        EXPECT_NE(c.substr(8, 16), c.substr(8 + 32, 16)) << m;
    }
    // code text that is no hex, or whose length does not fit, is refused with a message
    EXPECT_FALSE(decipher(14, "XYZ", "k").message.empty());
    EXPECT_FALSE(decipher(11, "FF000000" + std::string(16, '0'), "k").message.empty());
    // the block method stays within its blocks and depends on the number
    EXPECT_NE(encipher(9, "Geheimer Text", "1").output, encipher(9, "Geheimer Text", "2").output);
}

TEST(CipherPage, LinesAreJoinedAndEmptyTextGivesNothing)
{
    EXPECT_EQ(encipher(19, "ab\r\ncd", "").output, encipher(19, "abcd", "").output);
    for (int m = 0; m < methodCount; ++m)
        EXPECT_TRUE(encipher(m, "\r\n", "").output.empty()) << m;
}

TEST(CipherPage, NamesCaptionsAndKinds)
{
    EXPECT_STREQ(methodName(2), "C\xE4" "sar-Code (Buchstaben)");
    EXPECT_STREQ(methodName(21), "Affine Chiffre");
    EXPECT_STREQ(keyCaption(7), "Zeilenzahl (von 3 bis 200)");
    EXPECT_STREQ(keyCaption(9), "Codezahl (von 1 bis 50000)");
    EXPECT_FALSE(takesKey(5));
    EXPECT_FALSE(takesKey(18));
    EXPECT_TRUE(outputKind(10) == OutputKind::Bytes);
    EXPECT_TRUE(outputKind(14) == OutputKind::HexText);
    EXPECT_TRUE(outputKind(0) == OutputKind::Text);
}
