#include "crypto/ciphers.h"

#include "crypto/blockciphers.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace crypto {

namespace {

const char* const kNames[methodCount] = {
    "Vigenere-Code",
    "Vigenere-Code (Gro\xDF" "buchstaben)",
    "C\xE4" "sar-Code (Buchstaben)",
    "C\xE4" "sar-Code (ASCII-Satz)",
    "Bin\xE4" "res Verschl\xFC" "sseln (XOR-Verschl\xFC" "sseln)",
    "Atbasch-Verschl\xFC" "sselung",
    "Permutations-Code",
    "Gartenzaun-Kodierung",
    "Gartenzaun-Kodierung (Ziffern, Buchstaben)",
    "Blockverschl\xFC" "sselung",
    "RC4-Verschl\xFC" "sselung",
    "RC5-Verschl\xFC" "sselung",
    "RC6-Verschl\xFC" "sselung",
    "IDEA-Verschl\xFC" "sselung",
    "Rijndael, AES-Verschl\xFC" "sselung",
    "Autokey-Chiffre",
    "Autokey-Chiffre (Gro\xDF" "buchstaben)",
    "Skytale",
    "Differenzkodierung",
    "Monotoner C\xE4" "sar-Code",
    "Up-Down-C\xE4" "sar-Code",
    "Affine Chiffre",
};

const char* const kCodeWord = "Codewort (maximal 16 Buchstaben)";
const char* const kRows = "Zeilenzahl (von 3 bis 200)";
const char* const kBlockNumber = "Codezahl (von 1 bis 50000)";
const char* const kOddNumber = "Codezahl (ungerade 1,3,5,...,25)";
const char* const kWordOrNumber = "Codewort oder -zahl";
const char* const kDiameter = "Zylinderdurchmesser";
const char* const kShift = "Verschiebungszahl (von 1 bis 26)";

// The numbers prime to 26 that the affine cipher accepts (1 is left out: it is no cipher).
const int kAffineTable[] = {3, 5, 7, 9, 11, 15, 17, 19, 21, 23, 25};

constexpr int kBlockDefault = 1000;

bool parseInt(const std::string& s, long& value)
{
    std::size_t a = s.find_first_not_of(" \t");
    std::size_t b = s.find_last_not_of(" \t");
    if (a == std::string::npos)
        return false;
    std::string t = s.substr(a, b - a + 1);
    std::size_t i = (t[0] == '+' || t[0] == '-') ? 1 : 0;
    if (i >= t.size() || t.size() > 12)
        return false;
    for (std::size_t j = i; j < t.size(); ++j)
        if (t[j] < '0' || t[j] > '9')
            return false;
    value = std::stol(t);
    return true;
}

// A number field: a value outside [lo, hi] (or no number at all) becomes `fallback`.
int numberKey(const std::string& key, long lo, long hi, int fallback, CipherResult& r)
{
    long v = 0;
    if (!parseInt(key, v) || v < lo || v > hi)
        v = fallback;
    r.key = std::to_string(v);
    r.keyRepaired = (r.key != key);
    return static_cast<int>(v);
}

// A code word field: empty gives the default word, longer texts are cut to 16 characters.
std::string wordKey(const std::string& key, CipherResult& r)
{
    std::string k = key.empty() ? std::string(defaultCodeWord) : key.substr(0, 16);
    r.key = k;
    r.keyRepaired = (k != key);
    return k;
}

int affineKey(const std::string& key, CipherResult& r)
{
    long v = 0;
    bool ok = parseInt(key, v) && v >= 2 && v <= 25 &&
              std::find(std::begin(kAffineTable), std::end(kAffineTable), v) != std::end(kAffineTable);
    if (!ok)
        v = 3;
    r.key = std::to_string(v);
    r.keyRepaired = (r.key != key);
    return static_cast<int>(v);
}

int wrap(int v, int lo, int hi)
{
    const int n = hi - lo + 1;
    return ((v - lo) % n + n) % n + lo;
}

// ------------------------------------------------ Vigenère and Autokey

std::string controlToSpace(std::string s)
{
    for (char& ch : s)
        if (static_cast<unsigned char>(ch) < 32)
            ch = ' ';
    return s;
}

std::string upperAll(std::string s)
{
    for (char& ch : s)
        ch = static_cast<char>(upper1252(static_cast<unsigned char>(ch)));
    return s;
}

unsigned char vigenereOne(unsigned char c, unsigned char k, bool upper, bool decode)
{
    int v;
    if (upper) {
        v = decode ? c - k + 64 : k + c - 64;
        return static_cast<unsigned char>(wrap(v, 65, 90));
    }
    if (decode) {
        v = c - k;
        while (v < 32)
            v += 225;
    } else {
        v = k + c;
        while (v > 255)
            v -= 225;  // 225 signs from 31 to 255
    }
    return static_cast<unsigned char>(v);
}

std::string vigenere(const std::string& text, std::string key, bool upper, bool autokey, bool decode)
{
    std::string t = decode ? text : controlToSpace(text);
    if (upper) {
        t = upperAll(t);
        key = upperAll(key);
    }
    std::string out;
    out.reserve(t.size());
    std::string stream = key;  // Autokey: the plain text runs on after the code word
    for (std::size_t i = 0; i < t.size(); ++i) {
        const unsigned char k = autokey ? static_cast<unsigned char>(stream[i])
                                        : static_cast<unsigned char>(key[i % key.size()]);
        const unsigned char r = vigenereOne(static_cast<unsigned char>(t[i]), k, upper, decode);
        out += static_cast<char>(r);
        if (autokey)
            stream += decode ? static_cast<char>(r) : t[i];
    }
    return out;
}

// ------------------------------------------------ letter shifts

std::string caesarLetters(const std::string& t, int shift)
{
    std::string out;
    for (unsigned char c : t) {
        if (!isAsciiLetter(c))
            continue;
        c = upper1252(c);
        out += static_cast<char>(wrap(c + shift, 65, 90));
    }
    return out;
}

std::string atbasch(const std::string& t)
{
    std::string out;
    for (unsigned char c : t)
        if (isAsciiLetter(c))
            out += static_cast<char>(155 - upper1252(c));
    return out;
}

// Shift a letter within its case; other signs stay.
char shiftLetter(unsigned char c, int by)
{
    if (c >= 'A' && c <= 'Z')
        return static_cast<char>(wrap(c + by, 65, 90));
    if (c >= 'a' && c <= 'z')
        return static_cast<char>(wrap(c + by, 97, 122));
    return static_cast<char>(c);
}

std::string monotone(const std::string& t, bool decode)
{
    std::string out;
    for (std::size_t i = 0; i < t.size(); ++i) {
        const int by = static_cast<int>((i + 1) % 26);
        out += shiftLetter(static_cast<unsigned char>(t[i]), decode ? -by : by);
    }
    return out;
}

std::string upDown(const std::string& t, int n)
{
    std::string out;
    for (unsigned char c : t) {
        out += shiftLetter(c, n);
        n = -n;  // every sign turns the direction, letters or not
    }
    return out;
}

std::string affine(const std::string& t, int a, bool decode)
{
    int inv = 1;
    while ((a * inv) % 26 != 1)
        ++inv;
    std::string out;
    for (unsigned char c : t) {
        int base = (c >= 'A' && c <= 'Z') ? 65 : (c >= 'a' && c <= 'z') ? 97 : 0;
        if (!base) {
            out += static_cast<char>(c);
            continue;
        }
        const int x = c - base;
        const int y = decode ? wrap(inv * (x - 3), 0, 25) : (a * x + 3) % 26;
        out += static_cast<char>(base + y);
    }
    return out;
}

// ------------------------------------------------ transpositions

// Applies an order of positions: encoding reads text[order[j]] into place j, decoding undoes it.
std::string permute(const std::string& t, const std::vector<std::size_t>& order, bool decode)
{
    std::string out(t.size(), ' ');
    for (std::size_t j = 0; j < order.size(); ++j) {
        if (decode)
            out[order[j]] = t[j];
        else
            out[j] = t[order[j]];
    }
    return out;
}

// Columnar transposition: the text is written in rows under the key, the columns are read
// in the alphabetical order of the key's signs (equal signs from left to right).
std::vector<std::size_t> columnOrder(std::size_t n, const std::string& key)
{
    const std::size_t cols = key.size();
    std::vector<std::size_t> colIdx(cols);
    std::iota(colIdx.begin(), colIdx.end(), 0);
    std::stable_sort(colIdx.begin(), colIdx.end(), [&](std::size_t a, std::size_t b) {
        return static_cast<unsigned char>(key[a]) < static_cast<unsigned char>(key[b]);
    });
    std::vector<std::size_t> order;
    for (std::size_t c : colIdx)
        for (std::size_t p = c; p < n; p += cols)
            order.push_back(p);
    return order;
}

// The classical zigzag of the rail fence: rail after rail.
std::vector<std::size_t> railOrder(std::size_t n, int rows)
{
    const std::size_t cycle = 2 * static_cast<std::size_t>(rows - 1);
    std::vector<std::size_t> order;
    for (int r = 0; r < rows; ++r)
        for (std::size_t p = 0; p < n; ++p) {
            const std::size_t m = p % cycle;
            const std::size_t rail = m < static_cast<std::size_t>(rows) ? m : cycle - m;
            if (rail == static_cast<std::size_t>(r))
                order.push_back(p);
        }
    return order;
}

// The Skytale: d passes, pass p taking the places p, p + d, p + 2d, ...
std::vector<std::size_t> skytaleOrder(std::size_t n, int d)
{
    std::vector<std::size_t> order;
    for (int p = 0; p < d; ++p)
        for (std::size_t i = p; i < n; i += d)
            order.push_back(i);
    return order;
}

// Permutes only the kept signs (digits, letters); all others keep their places.
template <class OrderFn>
std::string permuteKept(const std::string& t, OrderFn orderFn, bool decode)
{
    std::string kept;
    std::vector<std::size_t> slots;
    for (std::size_t i = 0; i < t.size(); ++i)
        if (isKeptSign(static_cast<unsigned char>(t[i]))) {
            kept += t[i];
            slots.push_back(i);
        }
    const std::string moved = permute(kept, orderFn(kept.size()), decode);
    std::string out = t;
    for (std::size_t j = 0; j < slots.size(); ++j)
        out[slots[j]] = moved[j];
    return out;
}

// ------------------------------------------------ difference coding

std::string differenceEncode(const std::string& t)
{
    int last = -1;
    std::string out;
    for (unsigned char c : t) {
        if (!isKeptSign(c)) {
            out += static_cast<char>(c);
            continue;
        }
        const int v = last < 0 ? c : (c - last + 256) % 256;
        out += toHex(std::string(1, static_cast<char>(v)));
        last = c;
    }
    return out;
}

int hexValue(unsigned char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

std::string differenceDecode(const std::string& t)
{
    int last = -1;
    std::string out;
    for (std::size_t i = 0; i < t.size(); ++i) {
        const int hi = hexValue(static_cast<unsigned char>(t[i]));
        const int lo = i + 1 < t.size() ? hexValue(static_cast<unsigned char>(t[i + 1])) : -1;
        if (hi < 0 || lo < 0) {
            out += t[i];  // signs outside the set stand as they are
            continue;
        }
        const int v = hi * 16 + lo;
        const int c = last < 0 ? v : (last + v) % 256;
        out += static_cast<char>(c);
        last = c;
        ++i;
    }
    return out;
}

// ------------------------------------------------ block method

// A small generator of its own, so that the code number always gives the same stream.
struct Lcg {
    std::uint32_t x;
    std::uint32_t next()
    {
        x = x * 1103515245u + 12345u;
        return (x >> 8) & 0xFFFFFF;
    }
};

// Blocks of eight bytes: the bytes of each block are shuffled and each gets an added byte,
// both drawn from a generator seeded by the code number.
std::string blockMethod(const std::string& t, int number, bool decode)
{
    Lcg g{static_cast<std::uint32_t>(number) * 2654435761u + 1};
    std::string out(t.size(), '\0');
    for (std::size_t start = 0; start < t.size(); start += 8) {
        const std::size_t len = std::min<std::size_t>(8, t.size() - start);
        std::size_t perm[8];
        std::iota(perm, perm + len, 0);
        for (std::size_t i = len; i > 1; --i)
            std::swap(perm[i - 1], perm[g.next() % i]);
        for (std::size_t j = 0; j < len; ++j) {
            const unsigned char add = static_cast<unsigned char>(g.next());
            if (decode)
                out[start + perm[j]] = static_cast<char>(static_cast<unsigned char>(t[start + j]) - add);
            else
                out[start + j] = static_cast<char>(static_cast<unsigned char>(t[start + perm[j]]) + add);
        }
    }
    return out;
}

// ------------------------------------------------ RC5, RC6, IDEA, AES

Bytes keyBytes(const std::string& word)
{
    Bytes k = word.substr(0, 16);
    k.resize(16, '\0');
    return k;
}

Bytes lengthPrefix(std::uint32_t n)
{
    Bytes b(4, '\0');
    for (int i = 0; i < 4; ++i)
        b[i] = static_cast<char>((n >> (8 * i)) & 0xFF);
    return b;
}

// The stream starts with the plain text's length as a 32-bit value; the text follows in
// blocks, the last one filled with zero bytes. AES takes each block alone, as the cipher page
// always did; RC5, RC6 and IDEA chain the blocks (CBC from a zero vector).
template <class Cipher>
std::string streamEncrypt(const std::string& text, const Bytes& key, bool chain)
{
    const Cipher c(key);
    const std::size_t bs = Cipher::blockSize;
    Bytes data = text;
    data.resize((text.size() + bs - 1) / bs * bs, '\0');
    Bytes prev(bs, '\0');
    for (std::size_t i = 0; i < data.size(); i += bs) {
        auto* p = reinterpret_cast<std::uint8_t*>(&data[i]);
        if (chain)
            for (std::size_t j = 0; j < bs; ++j)
                p[j] ^= static_cast<std::uint8_t>(prev[j]);
        c.encryptBlock(p);
        prev = data.substr(i, bs);
    }
    return toHex(lengthPrefix(static_cast<std::uint32_t>(text.size())) + data);
}

template <class Cipher>
std::string streamDecrypt(const std::string& hex, const Bytes& key, bool chain, std::string& message)
{
    const std::size_t bs = Cipher::blockSize;
    Bytes data;
    if (!fromHex(hex, data) || data.size() < 4 || (data.size() - 4) % bs != 0) {
        message = "Der Codetext ist keine g\xFCltige Folge von Hexadezimalziffern dieses Verfahrens.";
        return {};
    }
    std::uint32_t n = 0;
    for (int i = 3; i >= 0; --i)
        n = (n << 8) | static_cast<std::uint8_t>(data[i]);
    data.erase(0, 4);
    if (n > data.size() || (n + bs - 1) / bs * bs != data.size()) {
        message = "Die L\xE4nge im Codetext passt nicht zu den Daten.";
        return {};
    }
    const Cipher c(key);
    Bytes prev(bs, '\0');
    for (std::size_t i = 0; i < data.size(); i += bs) {
        const Bytes thisBlock = data.substr(i, bs);
        auto* p = reinterpret_cast<std::uint8_t*>(&data[i]);
        c.decryptBlock(p);
        if (chain)
            for (std::size_t j = 0; j < bs; ++j)
                p[j] ^= static_cast<std::uint8_t>(prev[j]);
        prev = thisBlock;
    }
    data.resize(n);
    return data;
}

CipherResult run(int method, const std::string& rawText, const std::string& key, bool decode)
{
    CipherResult r;
    r.key = key;
    if (method < 0 || method >= methodCount) {
        r.message = "Unbekanntes Verfahren.";
        return r;
    }
    // Byte code may hold any byte, line end codes too: it is taken as it stands.
    const std::string t = (decode && outputKind(method) == OutputKind::Bytes) ? rawText : joinLines(rawText);
    // Repair the key first, so the field is right even when there is no text.
    std::string word;
    int number = 0;
    switch (method) {
    case 0: case 1: case 4: case 10: case 11: case 12: case 13: case 14: case 15: case 16:
    case 6:
        word = wordKey(key, r);
        break;
    case 2: case 3: case 20:
        number = numberKey(key, 1, 26, 5, r);
        break;
    case 7: case 8:
        number = numberKey(key, 3, 200, 3, r);
        break;
    case 9:
        number = numberKey(key, 1, 50000, kBlockDefault, r);
        break;
    case 17:
        number = numberKey(key, 2, 20, 3, r);
        break;
    case 21:
        number = affineKey(key, r);
        break;
    default:
        break;  // 5, 18, 19 take no key
    }
    if (t.empty())
        return r;

    switch (method) {
    case 0: r.output = vigenere(t, word, false, false, decode); break;
    case 1: r.output = vigenere(t, word, true, false, decode); break;
    case 15: r.output = vigenere(t, word, false, true, decode); break;
    case 16: r.output = vigenere(t, word, true, true, decode); break;
    case 2: r.output = caesarLetters(t, decode ? -number : number); break;
    case 3:
        r.output = t;
        for (char& ch : r.output)
            ch = static_cast<char>(static_cast<unsigned char>(ch) + (decode ? -number : number));
        break;
    case 4:
        r.output = t;
        for (std::size_t i = 0; i < t.size(); ++i) {
            const unsigned char k = static_cast<unsigned char>(word[i % word.size()]);
            const unsigned char c = static_cast<unsigned char>(t[i]);
            unsigned char v = c ^ k;
            if (!decode && v == 0)
                v = 255;  // a sign equal to its key sign survives as 255
            if (decode && c == 255)
                v = k;  // and reads back as that key sign
            r.output[i] = static_cast<char>(v);
        }
        break;
    case 5: r.output = atbasch(t); break;
    case 6: r.output = permute(t, columnOrder(t.size(), word), decode); break;
    case 7: r.output = permute(t, railOrder(t.size(), number), decode); break;
    case 8:
        r.output = permuteKept(t, [&](std::size_t n) { return railOrder(n, number); }, decode);
        break;
    case 9: r.output = blockMethod(t, number, decode); break;
    case 10: r.output = Rc4(word).apply(t); break;
    case 11:
        r.output = decode ? streamDecrypt<Rc5>(t, keyBytes(word), true, r.message)
                          : streamEncrypt<Rc5>(t, keyBytes(word), true);
        break;
    case 12:
        r.output = decode ? streamDecrypt<Rc6>(t, keyBytes(word), true, r.message)
                          : streamEncrypt<Rc6>(t, keyBytes(word), true);
        break;
    case 13:
        r.output = decode ? streamDecrypt<Idea>(t, keyBytes(word), true, r.message)
                          : streamEncrypt<Idea>(t, keyBytes(word), true);
        break;
    case 14:
        r.output = decode ? streamDecrypt<Aes128>(t, keyBytes(word), false, r.message)
                          : streamEncrypt<Aes128>(t, keyBytes(word), false);
        break;
    case 17:
        r.output = permuteKept(t, [&](std::size_t n) { return skytaleOrder(n, number); }, decode);
        break;
    case 18: r.output = decode ? differenceDecode(t) : differenceEncode(t); break;
    case 19: r.output = monotone(t, decode); break;
    case 20: r.output = upDown(t, decode ? -number : number); break;
    case 21: r.output = affine(t, number, decode); break;
    }
    return r;
}

}  // namespace

const char* methodName(int method)
{
    return method >= 0 && method < methodCount ? kNames[method] : "";
}

const char* keyCaption(int method)
{
    switch (method) {
    case 2: case 3: case 20: return kShift;
    case 5: case 18: case 19: return "";
    case 6: return kWordOrNumber;
    case 7: case 8: return kRows;
    case 9: return kBlockNumber;
    case 17: return kDiameter;
    case 21: return kOddNumber;
    default: return kCodeWord;
    }
}

OutputKind outputKind(int method)
{
    switch (method) {
    case 3: case 4: case 9: case 10: return OutputKind::Bytes;
    case 11: case 12: case 13: case 14: case 18: return OutputKind::HexText;
    default: return OutputKind::Text;
    }
}

bool takesKey(int method) { return *keyCaption(method) != '\0'; }

CipherResult encipher(int method, const std::string& text, const std::string& key)
{
    return run(method, text, key, false);
}

CipherResult decipher(int method, const std::string& text, const std::string& key)
{
    return run(method, text, key, true);
}

unsigned char upper1252(unsigned char c)
{
    if (c >= 'a' && c <= 'z')
        return c - 32;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7)
        return c - 32;  // à..þ -> À..Þ
    if (c == 0x9A || c == 0x9C || c == 0x9E)
        return c - 16;  // š œ ž
    if (c == 0xFF)
        return 0x9F;  // ÿ
    return c;
}

bool isAsciiLetter(unsigned char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isKeptSign(unsigned char c) { return isAsciiLetter(c) || (c >= '0' && c <= '9'); }

std::string joinLines(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (char ch : text)
        if (ch != '\r' && ch != '\n')
            out += ch;
    return out;
}

}  // namespace crypto
