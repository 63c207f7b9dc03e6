// Known-answer vectors of the block and stream ciphers, read from vectors.txt (sources named there).
// Exact match required; every block cipher must also decipher its answer back.
#include "crypto/blockciphers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace crypto;

namespace {

template <class Cipher>
void checkBlock(const Bytes& key, const Bytes& in, const Bytes& expected, const std::string& line)
{
    ASSERT_EQ(in.size(), static_cast<std::size_t>(Cipher::blockSize)) << line;
    const Cipher c(key);
    Bytes block = in;
    c.encryptBlock(reinterpret_cast<std::uint8_t*>(block.data()));
    EXPECT_EQ(toHex(block), toHex(expected)) << "encrypt: " << line;
    c.decryptBlock(reinterpret_cast<std::uint8_t*>(block.data()));
    EXPECT_EQ(toHex(block), toHex(in)) << "decrypt: " << line;
}

}  // namespace

TEST(KnownAnswer, PublishedVectors)
{
    std::ifstream f(std::string(QUORIX_TEST_DATA) + "/vectors.txt");
    ASSERT_TRUE(f) << "vectors.txt missing";
    std::string line;
    int count = 0;
    while (std::getline(f, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream ls(line);
        std::string alg, keyHex, inText, outHex;
        ls >> alg >> keyHex >> inText >> outHex;
        Bytes key, in, expected;
        ASSERT_TRUE(fromHex(keyHex, key) && fromHex(outHex, expected)) << line;
        if (alg == "rc4") {
            Rc4 rc4(key);
            const int offset = std::stoi(inText);
            for (int i = 0; i < offset; ++i)
                rc4.next();
            Bytes stream;
            for (std::size_t i = 0; i < expected.size(); ++i)
                stream += static_cast<char>(rc4.next());
            EXPECT_EQ(toHex(stream), toHex(expected)) << line;
        } else {
            ASSERT_TRUE(fromHex(inText, in)) << line;
            if (alg == "rc5")
                checkBlock<Rc5>(key, in, expected, line);
            else if (alg == "rc6")
                checkBlock<Rc6>(key, in, expected, line);
            else if (alg == "idea")
                checkBlock<Idea>(key, in, expected, line);
            else if (alg == "aes128")
                checkBlock<Aes128>(key, in, expected, line);
            else
                ADD_FAILURE() << "unknown algorithm: " << line;
        }
        ++count;
    }
    EXPECT_GE(count, 20);
}

TEST(Hex, ReadsPairsAndRejectsOddOrForeignSigns)
{
    Bytes b;
    EXPECT_TRUE(fromHex("0aFf 10", b));
    EXPECT_EQ(b, std::string("\x0a\xff\x10", 3));
    EXPECT_FALSE(fromHex("ABC", b));
    EXPECT_FALSE(fromHex("AZ", b));
    EXPECT_EQ(toHex(std::string("\x00\xab", 2)), "00AB");
}
