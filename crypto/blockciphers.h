#pragma once
// Block and stream ciphers written from their published definitions: RC4, RC5-32/12/b,
// RC6-32/20/b, IDEA and AES-128. Plain byte strings in, byte strings out; no Qt.
#include <array>
#include <cstdint>
#include <string>

namespace crypto {

using Bytes = std::string;  // raw bytes

// RC4 with a 256-byte state; the key is 1 to 256 bytes.
class Rc4 {
public:
    explicit Rc4(const Bytes& key);
    std::uint8_t next();
    Bytes apply(const Bytes& data);  // XOR with the key stream (its own inverse)

private:
    std::array<std::uint8_t, 256> s_{};
    std::uint8_t i_ = 0, j_ = 0;
};

// RC5 with 32-bit words, 12 rounds; 8-byte blocks, words packed little-endian.
class Rc5 {
public:
    static constexpr int blockSize = 8;
    explicit Rc5(const Bytes& key, int rounds = 12);
    void encryptBlock(std::uint8_t* block) const;
    void decryptBlock(std::uint8_t* block) const;

private:
    int rounds_;
    std::uint32_t s_[2 * 255 + 2]{};
};

// RC6 with 32-bit words, 20 rounds; 16-byte blocks.
class Rc6 {
public:
    static constexpr int blockSize = 16;
    explicit Rc6(const Bytes& key);
    void encryptBlock(std::uint8_t* block) const;
    void decryptBlock(std::uint8_t* block) const;

private:
    std::uint32_t s_[44]{};
};

// IDEA with a 128-bit key; 8-byte blocks, 16-bit words big-endian.
class Idea {
public:
    static constexpr int blockSize = 8;
    explicit Idea(const Bytes& key);  // shorter keys are padded with zero bytes
    void encryptBlock(std::uint8_t* block) const;
    void decryptBlock(std::uint8_t* block) const;

private:
    static void crypt(const std::uint16_t* k, std::uint8_t* block);
    std::uint16_t ek_[52]{};
    std::uint16_t dk_[52]{};
};

// AES with a 128-bit key (ten rounds); 16-byte blocks.
class Aes128 {
public:
    static constexpr int blockSize = 16;
    explicit Aes128(const Bytes& key);  // shorter keys are padded with zero bytes
    void encryptBlock(std::uint8_t* block) const;
    void decryptBlock(std::uint8_t* block) const;

private:
    std::uint8_t rk_[176]{};
};

// Hex helpers shared by the cipher page and the commands.
std::string toHex(const Bytes& data);  // two upper-case digits a byte
// Reads pairs of hex digits, ignoring white space; false on any other sign or an odd count.
bool fromHex(const std::string& hex, Bytes& out);

}  // namespace crypto
