#include "crypto/blockciphers.h"

#include <algorithm>
#include <cctype>

namespace crypto {

namespace {

std::uint32_t rotl(std::uint32_t x, std::uint32_t n)
{
    n &= 31;
    return n ? (x << n) | (x >> (32 - n)) : x;
}
std::uint32_t rotr(std::uint32_t x, std::uint32_t n)
{
    n &= 31;
    return n ? (x >> n) | (x << (32 - n)) : x;
}
std::uint32_t load32le(const std::uint8_t* p)
{
    return p[0] | (p[1] << 8) | (p[2] << 16) | (std::uint32_t(p[3]) << 24);
}
void store32le(std::uint8_t* p, std::uint32_t v)
{
    p[0] = v & 0xFF;
    p[1] = (v >> 8) & 0xFF;
    p[2] = (v >> 16) & 0xFF;
    p[3] = v >> 24;
}

// The key schedule that RC5 and RC6 share: t words of S mixed with the key words.
void rcKeySchedule(const Bytes& key, std::uint32_t* s, int t)
{
    const int b = static_cast<int>(key.size());
    const int c = std::max(1, (b + 3) / 4);
    std::uint32_t l[64] = {};
    for (int i = b - 1; i >= 0; --i)
        l[i / 4] = (l[i / 4] << 8) + static_cast<std::uint8_t>(key[i]);
    s[0] = 0xB7E15163u;  // P32 = Odd((e - 2) * 2^32)
    for (int i = 1; i < t; ++i)
        s[i] = s[i - 1] + 0x9E3779B9u;  // Q32 = Odd((phi - 1) * 2^32)
    std::uint32_t a = 0, bb = 0;
    int i = 0, j = 0;
    for (int k = 0; k < 3 * std::max(t, c); ++k) {
        a = s[i] = rotl(s[i] + a + bb, 3);
        bb = l[j] = rotl(l[j] + a + bb, a + bb);
        i = (i + 1) % t;
        j = (j + 1) % c;
    }
}

}  // namespace

// ---------------------------------------------------------------- RC4

Rc4::Rc4(const Bytes& key)
{
    for (int i = 0; i < 256; ++i)
        s_[i] = static_cast<std::uint8_t>(i);
    if (key.empty())
        return;
    std::uint8_t j = 0;
    for (int i = 0; i < 256; ++i) {
        j = static_cast<std::uint8_t>(j + s_[i] + static_cast<std::uint8_t>(key[i % key.size()]));
        std::swap(s_[i], s_[j]);
    }
}

std::uint8_t Rc4::next()
{
    ++i_;
    j_ = static_cast<std::uint8_t>(j_ + s_[i_]);
    std::swap(s_[i_], s_[j_]);
    return s_[static_cast<std::uint8_t>(s_[i_] + s_[j_])];
}

Bytes Rc4::apply(const Bytes& data)
{
    Bytes out(data);
    for (char& ch : out)
        ch = static_cast<char>(static_cast<std::uint8_t>(ch) ^ next());
    return out;
}

// ---------------------------------------------------------------- RC5

Rc5::Rc5(const Bytes& key, int rounds) : rounds_(std::clamp(rounds, 1, 255))
{
    rcKeySchedule(key.substr(0, 255), s_, 2 * rounds_ + 2);
}

void Rc5::encryptBlock(std::uint8_t* block) const
{
    std::uint32_t a = load32le(block) + s_[0];
    std::uint32_t b = load32le(block + 4) + s_[1];
    for (int i = 1; i <= rounds_; ++i) {
        a = rotl(a ^ b, b) + s_[2 * i];
        b = rotl(b ^ a, a) + s_[2 * i + 1];
    }
    store32le(block, a);
    store32le(block + 4, b);
}

void Rc5::decryptBlock(std::uint8_t* block) const
{
    std::uint32_t a = load32le(block);
    std::uint32_t b = load32le(block + 4);
    for (int i = rounds_; i >= 1; --i) {
        b = rotr(b - s_[2 * i + 1], a) ^ a;
        a = rotr(a - s_[2 * i], b) ^ b;
    }
    store32le(block, a - s_[0]);
    store32le(block + 4, b - s_[1]);
}

// ---------------------------------------------------------------- RC6

namespace {
constexpr int kRc6Rounds = 20;
}

Rc6::Rc6(const Bytes& key)
{
    rcKeySchedule(key.substr(0, 255), s_, 2 * kRc6Rounds + 4);
}

void Rc6::encryptBlock(std::uint8_t* block) const
{
    std::uint32_t a = load32le(block), b = load32le(block + 4);
    std::uint32_t c = load32le(block + 8), d = load32le(block + 12);
    b += s_[0];
    d += s_[1];
    for (int i = 1; i <= kRc6Rounds; ++i) {
        const std::uint32_t t = rotl(b * (2 * b + 1), 5);
        const std::uint32_t u = rotl(d * (2 * d + 1), 5);
        a = rotl(a ^ t, u) + s_[2 * i];
        c = rotl(c ^ u, t) + s_[2 * i + 1];
        const std::uint32_t oldA = a;
        a = b;
        b = c;
        c = d;
        d = oldA;
    }
    a += s_[2 * kRc6Rounds + 2];
    c += s_[2 * kRc6Rounds + 3];
    store32le(block, a);
    store32le(block + 4, b);
    store32le(block + 8, c);
    store32le(block + 12, d);
}

void Rc6::decryptBlock(std::uint8_t* block) const
{
    std::uint32_t a = load32le(block), b = load32le(block + 4);
    std::uint32_t c = load32le(block + 8), d = load32le(block + 12);
    c -= s_[2 * kRc6Rounds + 3];
    a -= s_[2 * kRc6Rounds + 2];
    for (int i = kRc6Rounds; i >= 1; --i) {
        const std::uint32_t oldD = d;
        d = c;
        c = b;
        b = a;
        a = oldD;
        const std::uint32_t u = rotl(d * (2 * d + 1), 5);
        const std::uint32_t t = rotl(b * (2 * b + 1), 5);
        c = rotr(c - s_[2 * i + 1], t) ^ u;
        a = rotr(a - s_[2 * i], u) ^ t;
    }
    d -= s_[1];
    b -= s_[0];
    store32le(block, a);
    store32le(block + 4, b);
    store32le(block + 8, c);
    store32le(block + 12, d);
}

// ---------------------------------------------------------------- IDEA

namespace {

// Multiplication modulo 2^16 + 1, where the word 0 stands for 2^16.
std::uint16_t ideaMul(std::uint16_t a, std::uint16_t b)
{
    const std::uint64_t x = a ? a : 0x10000u;
    const std::uint64_t y = b ? b : 0x10000u;
    return static_cast<std::uint16_t>((x * y) % 0x10001u);  // 2^16 comes out as 0
}

std::uint16_t ideaInv(std::uint16_t a)
{
    // a^(p-2) mod p with p = 65537 prime
    std::uint64_t base = a ? a : 0x10000u, result = 1;
    for (std::uint32_t e = 0x10001u - 2; e; e >>= 1) {
        if (e & 1)
            result = result * base % 0x10001u;
        base = base * base % 0x10001u;
    }
    return static_cast<std::uint16_t>(result);
}

}  // namespace

Idea::Idea(const Bytes& key)
{
    std::uint8_t k[16] = {};
    for (std::size_t i = 0; i < key.size() && i < 16; ++i)
        k[i] = static_cast<std::uint8_t>(key[i]);
    // The 128-bit key is read in 16-bit words; after each eight it is rotated left by 25 bits.
    for (int n = 0; n < 52; ++n) {
        const int bit = (n / 8) * 25 + (n % 8) * 16;
        std::uint32_t w = 0;
        for (int b = 0; b < 16; ++b) {
            const int pos = (bit + b) % 128;
            w = (w << 1) | ((k[pos / 8] >> (7 - pos % 8)) & 1);
        }
        ek_[n] = static_cast<std::uint16_t>(w);
    }
    for (int j = 0; j <= 8; ++j) {
        const int src = 6 * (8 - j);
        dk_[6 * j] = ideaInv(ek_[src]);
        dk_[6 * j + 3] = ideaInv(ek_[src + 3]);
        const bool outer = (j == 0 || j == 8);
        dk_[6 * j + 1] = static_cast<std::uint16_t>(-ek_[src + (outer ? 1 : 2)]);
        dk_[6 * j + 2] = static_cast<std::uint16_t>(-ek_[src + (outer ? 2 : 1)]);
        if (j < 8) {
            dk_[6 * j + 4] = ek_[6 * (7 - j) + 4];
            dk_[6 * j + 5] = ek_[6 * (7 - j) + 5];
        }
    }
}

void Idea::crypt(const std::uint16_t* k, std::uint8_t* block)
{
    std::uint16_t x1 = (block[0] << 8) | block[1], x2 = (block[2] << 8) | block[3];
    std::uint16_t x3 = (block[4] << 8) | block[5], x4 = (block[6] << 8) | block[7];
    for (int r = 0; r < 8; ++r, k += 6) {
        x1 = ideaMul(x1, k[0]);
        x2 = static_cast<std::uint16_t>(x2 + k[1]);
        x3 = static_cast<std::uint16_t>(x3 + k[2]);
        x4 = ideaMul(x4, k[3]);
        std::uint16_t t0 = ideaMul(x1 ^ x3, k[4]);
        std::uint16_t t1 = ideaMul(static_cast<std::uint16_t>((x2 ^ x4) + t0), k[5]);
        t0 = static_cast<std::uint16_t>(t0 + t1);
        x1 ^= t1;
        x3 ^= t1;
        x2 ^= t0;
        x4 ^= t0;
        std::swap(x2, x3);
    }
    // output transformation; it undoes the last swap
    const std::uint16_t y1 = ideaMul(x1, k[0]);
    const std::uint16_t y2 = static_cast<std::uint16_t>(x3 + k[1]);
    const std::uint16_t y3 = static_cast<std::uint16_t>(x2 + k[2]);
    const std::uint16_t y4 = ideaMul(x4, k[3]);
    const std::uint16_t y[4] = {y1, y2, y3, y4};
    for (int i = 0; i < 4; ++i) {
        block[2 * i] = y[i] >> 8;
        block[2 * i + 1] = y[i] & 0xFF;
    }
}

void Idea::encryptBlock(std::uint8_t* block) const { crypt(ek_, block); }
void Idea::decryptBlock(std::uint8_t* block) const { crypt(dk_, block); }

// ---------------------------------------------------------------- AES

namespace {

std::uint8_t xtime(std::uint8_t a) { return static_cast<std::uint8_t>((a << 1) ^ ((a & 0x80) ? 0x1B : 0)); }

std::uint8_t gmul(std::uint8_t a, std::uint8_t b)
{
    std::uint8_t p = 0;
    while (b) {
        if (b & 1)
            p ^= a;
        a = xtime(a);
        b >>= 1;
    }
    return p;
}

struct SBoxes {
    std::uint8_t fwd[256];
    std::uint8_t inv[256];
    SBoxes()
    {
        // The S-box is the inverse in GF(2^8) followed by the affine map of the standard.
        for (int x = 0; x < 256; ++x) {
            std::uint8_t b = 0;
            if (x) {
                b = 1;  // x^254
                std::uint8_t base = static_cast<std::uint8_t>(x);
                for (int e = 254; e; e >>= 1) {
                    if (e & 1)
                        b = gmul(b, base);
                    base = gmul(base, base);
                }
            }
            std::uint8_t s = b;
            for (int r = 1; r <= 4; ++r)
                s ^= static_cast<std::uint8_t>((b << r) | (b >> (8 - r)));
            s ^= 0x63;
            fwd[x] = s;
            inv[s] = static_cast<std::uint8_t>(x);
        }
    }
};

const SBoxes& sboxes()
{
    static const SBoxes boxes;
    return boxes;
}

void addRoundKey(std::uint8_t* st, const std::uint8_t* rk)
{
    for (int i = 0; i < 16; ++i)
        st[i] ^= rk[i];
}

}  // namespace

Aes128::Aes128(const Bytes& key)
{
    const auto& sb = sboxes().fwd;
    for (int i = 0; i < 16; ++i)
        rk_[i] = i < static_cast<int>(key.size()) ? static_cast<std::uint8_t>(key[i]) : 0;
    std::uint8_t rcon = 1;
    for (int w = 4; w < 44; ++w) {
        std::uint8_t t[4] = {rk_[4 * w - 4], rk_[4 * w - 3], rk_[4 * w - 2], rk_[4 * w - 1]};
        if (w % 4 == 0) {
            const std::uint8_t first = t[0];
            t[0] = static_cast<std::uint8_t>(sb[t[1]] ^ rcon);
            t[1] = sb[t[2]];
            t[2] = sb[t[3]];
            t[3] = sb[first];
            rcon = xtime(rcon);
        }
        for (int b = 0; b < 4; ++b)
            rk_[4 * w + b] = rk_[4 * (w - 4) + b] ^ t[b];
    }
}

void Aes128::encryptBlock(std::uint8_t* st) const
{
    const auto& sb = sboxes().fwd;
    addRoundKey(st, rk_);
    for (int round = 1; round <= 10; ++round) {
        std::uint8_t t[16];
        // SubBytes and ShiftRows together: row r moves left by r columns
        for (int c = 0; c < 4; ++c)
            for (int r = 0; r < 4; ++r)
                t[r + 4 * c] = sb[st[r + 4 * ((c + r) % 4)]];
        if (round < 10) {
            for (int c = 0; c < 4; ++c) {
                const std::uint8_t* a = t + 4 * c;
                std::uint8_t* o = st + 4 * c;
                o[0] = gmul(a[0], 2) ^ gmul(a[1], 3) ^ a[2] ^ a[3];
                o[1] = a[0] ^ gmul(a[1], 2) ^ gmul(a[2], 3) ^ a[3];
                o[2] = a[0] ^ a[1] ^ gmul(a[2], 2) ^ gmul(a[3], 3);
                o[3] = gmul(a[0], 3) ^ a[1] ^ a[2] ^ gmul(a[3], 2);
            }
        } else {
            std::copy(t, t + 16, st);
        }
        addRoundKey(st, rk_ + 16 * round);
    }
}

void Aes128::decryptBlock(std::uint8_t* st) const
{
    const auto& isb = sboxes().inv;
    addRoundKey(st, rk_ + 160);
    for (int round = 9; round >= 0; --round) {
        std::uint8_t t[16];
        for (int c = 0; c < 4; ++c)
            for (int r = 0; r < 4; ++r)
                t[r + 4 * ((c + r) % 4)] = isb[st[r + 4 * c]];
        addRoundKey(t, rk_ + 16 * round);
        if (round > 0) {
            for (int c = 0; c < 4; ++c) {
                const std::uint8_t* a = t + 4 * c;
                std::uint8_t* o = st + 4 * c;
                o[0] = gmul(a[0], 14) ^ gmul(a[1], 11) ^ gmul(a[2], 13) ^ gmul(a[3], 9);
                o[1] = gmul(a[0], 9) ^ gmul(a[1], 14) ^ gmul(a[2], 11) ^ gmul(a[3], 13);
                o[2] = gmul(a[0], 13) ^ gmul(a[1], 9) ^ gmul(a[2], 14) ^ gmul(a[3], 11);
                o[3] = gmul(a[0], 11) ^ gmul(a[1], 13) ^ gmul(a[2], 9) ^ gmul(a[3], 14);
            }
        } else {
            std::copy(t, t + 16, st);
        }
    }
}

// ---------------------------------------------------------------- hex

std::string toHex(const Bytes& data)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(2 * data.size());
    for (unsigned char c : data) {
        out += digits[c >> 4];
        out += digits[c & 15];
    }
    return out;
}

bool fromHex(const std::string& hex, Bytes& out)
{
    out.clear();
    int pending = -1;
    for (unsigned char c : hex) {
        if (std::isspace(c))
            continue;
        int v;
        if (c >= '0' && c <= '9')
            v = c - '0';
        else if (c >= 'A' && c <= 'F')
            v = c - 'A' + 10;
        else if (c >= 'a' && c <= 'f')
            v = c - 'a' + 10;
        else
            return false;
        if (pending < 0) {
            pending = v;
        } else {
            out += static_cast<char>(pending * 16 + v);
            pending = -1;
        }
    }
    return pending < 0;
}

}  // namespace crypto
