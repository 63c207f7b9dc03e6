#include "crypto/commands.h"

#include "crypto/blockciphers.h"
#include "crypto/ciphers.h"
#include "crypto/enigma.h"
#include "crypto/vigenereanalysis.h"
#include "platform/codepage.h"

#include <cctype>
#include <set>

namespace crypto {

namespace {

using quorix::Args;

std::string joinRest(const Args& args, std::size_t from)
{
    std::string s;
    for (std::size_t i = from; i < args.size(); ++i) {
        if (i > from)
            s += ' ';
        s += args[i];
    }
    return s;
}

bool parseNumber(const std::string& s, long lo, long hi, long& v)
{
    if (s.empty() || s.size() > 9 || s.find_first_not_of("0123456789") != std::string::npos)
        return false;
    v = std::stol(s);
    return v >= lo && v <= hi;
}

int runCipher(Args args, std::ostream& out, std::ostream& err)
{
    const bool enc = quorix::takeFlag(args, "--encrypt");
    const bool dec = quorix::takeFlag(args, "--decrypt");
    const bool hexIn = quorix::takeFlag(args, "--hex-in");
    std::string key;
    const bool hasKey = quorix::takeOption(args, "--key", key);
    long method = 0;
    if (enc == dec || args.size() < 2 || !parseNumber(args[0], 0, methodCount - 1, method)) {
        err << "Aufruf: quorix cipher VERFAHREN (--encrypt|--decrypt) [--key SCHL\xC3\x9C" "SSEL] "
               "[--hex-in] TEXT (VERFAHREN 0 bis 21)\n";
        return 2;
    }
    std::string text = platform::utf8ToCp1252(joinRest(args, 1));
    if (hexIn) {
        Bytes raw;
        if (!fromHex(text, raw)) {
            err << "Der Text ist keine Folge von Paaren hexadezimaler Ziffern.\n";
            return 2;
        }
        text = raw;
    }
    const std::string k = hasKey ? platform::utf8ToCp1252(key) : std::string();
    const int m = static_cast<int>(method);
    const CipherResult r = dec ? decipher(m, text, k) : encipher(m, text, k);
    if (!r.message.empty()) {
        err << platform::cp1252ToUtf8(r.message) << "\n";
        return 1;
    }
    if (r.keyRepaired && takesKey(m))
        err << "Schl\xC3\xBC" "ssel: " << platform::cp1252ToUtf8(r.key) << "\n";
    // Byte outputs are written as hex; so is every deciphered text that the caller asked
    // to get back as bytes by handing in hex.
    if (!dec && outputKind(m) == OutputKind::Bytes)
        out << toHex(r.output) << "\n";
    else
        out << platform::cp1252ToUtf8(r.output) << "\n";
    return 0;
}

int runBlockCipher(Args args, std::ostream& out, std::ostream& err)
{
    const bool dec = quorix::takeFlag(args, "--decrypt");
    std::string keyHex, blockHex;
    const bool haveKey = quorix::takeOption(args, "--key-hex", keyHex);
    const bool haveBlock = quorix::takeOption(args, "--block-hex", blockHex);
    const char* usage =
        "Aufruf: quorix blockcipher rc5|rc6|idea|aes128 --key-hex HEX --block-hex HEX [--decrypt]\n";
    if (args.size() != 1 || !haveKey || !haveBlock) {
        err << usage;
        return 2;
    }
    const std::string alg = args[0];
    int blockSize = 0;
    if (alg == "rc5" || alg == "idea")
        blockSize = 8;
    else if (alg == "rc6" || alg == "aes128")
        blockSize = 16;
    else {
        err << "Unbekanntes Verfahren: " << alg << "\n" << usage;
        return 2;
    }
    Bytes key, block;
    if (!fromHex(keyHex, key) || key.size() != 16) {
        err << "Der Schl\xC3\xBC" "ssel muss aus 16 Bytes (32 hexadezimalen Ziffern) bestehen.\n";
        return 2;
    }
    if (!fromHex(blockHex, block) || block.size() != static_cast<std::size_t>(blockSize)) {
        err << "Der Block muss aus " << blockSize << " Bytes (" << 2 * blockSize
            << " hexadezimalen Ziffern) bestehen.\n";
        return 2;
    }
    auto* p = reinterpret_cast<std::uint8_t*>(block.data());
    auto apply = [&](const auto& c) { dec ? c.decryptBlock(p) : c.encryptBlock(p); };
    if (alg == "rc5")
        apply(Rc5(key));
    else if (alg == "rc6")
        apply(Rc6(key));
    else if (alg == "idea")
        apply(Idea(key));
    else
        apply(Aes128(key));
    out << toHex(block) << "\n";
    return 0;
}

int runRc4(Args args, std::ostream& out, std::ostream& err)
{
    std::string keyHex, count;
    const bool ok = quorix::takeOption(args, "--key-hex", keyHex) && quorix::takeOption(args, "--bytes", count);
    long n = 0;
    Bytes key;
    if (!ok || !args.empty() || !parseNumber(count, 1, 1000000, n)) {
        err << "Aufruf: quorix rc4 --key-hex HEX --bytes N (N von 1 bis 1000000)\n";
        return 2;
    }
    if (!fromHex(keyHex, key) || key.empty() || key.size() > 256) {
        err << "Der Schl\xC3\xBC" "ssel muss aus 1 bis 256 Bytes in hexadezimalen Ziffern bestehen.\n";
        return 2;
    }
    Rc4 rc4(key);
    Bytes stream;
    for (long i = 0; i < n; ++i)
        stream += static_cast<char>(rc4.next());
    out << toHex(stream) << "\n";
    return 0;
}

int runEnigma(Args args, std::ostream& out, std::ostream& err)
{
    std::string rotors = "I-II-III", positions = "AAA", plugs;
    quorix::takeOption(args, "--rotors", rotors);
    quorix::takeOption(args, "--positions", positions);
    quorix::takeOption(args, "--plugs", plugs);
    if (args.empty()) {
        err << "Aufruf: quorix enigma [--rotors I-II-III] [--positions AAA] [--plugs AB,CD,...] TEXT\n";
        return 2;
    }
    // Build the settings line and let the tool's own reader check it.
    std::string pos;
    for (char c : positions)
        pos += std::string(pos.empty() ? "" : "-") + static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    std::string line = rotors + "; " + pos;
    std::vector<std::string> pairs;
    std::string cur;
    for (char c : plugs + ",") {
        if (c == ',') {
            if (!cur.empty())
                pairs.push_back(cur);
            cur.clear();
        } else {
            cur += c;
        }
    }
    if (pairs.size() > 6) {
        err << "Das Steckerbrett hat h\xC3\xB6" "chstens sechs Paare.\n";
        return 2;
    }
    std::set<char> used;
    for (std::size_t k = 0; k < 6; ++k) {
        line += "; " + (k < pairs.size() ? pairs[k] : std::string("n/a"));
        if (k < pairs.size())
            for (char c : pairs[k]) {
                const char u = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
                if (!used.insert(u).second) {
                    err << "Steckerbrett: der Buchstabe " << u << " ist doppelt belegt.\n";
                    return 2;
                }
            }
    }
    EnigmaSettings s;
    if (positions.size() != 3 || !parseSettingsLine(line, s)) {
        err << "Ung\xC3\xBC" "ltige Einstellung \"" << line
            << "\": Walzen als Anordnung von I, II, III, drei Buchstaben als Stellung, Paare aus zwei Buchstaben.\n";
        return 2;
    }
    Enigma machine(s);
    const std::string prepared = prepareEnigmaText(platform::utf8ToCp1252(joinRest(args, 0)));
    out << encipherEnigma(machine, prepared) << "\n" << machine.positionLetters() << "\n";
    return 0;
}

int runVigenereCrack(Args args, std::ostream& out, std::ostream& err)
{
    if (args.empty()) {
        err << "Aufruf: quorix vigenere-crack TEXT\n";
        return 2;
    }
    const VigenereAnalysis a = analyseVigenere(platform::utf8ToCp1252(joinRest(args, 0)));
    if (!a.message.empty())
        err << platform::cp1252ToUtf8(a.message) << "\n";
    if (!a.found)
        return 1;
    out << "Codewortl\xC3\xA4nge: " << a.keyLength << "\n" << "Codewort: " << a.key << "\n";
    return 0;
}

}  // namespace

std::vector<quorix::HeadlessCommand> cryptoCommands()
{
    return {
        {"cipher",
         "cipher VERFAHREN (--encrypt|--decrypt) [--key SCHL\xC3\x9C" "SSEL] [--hex-in] TEXT: "
         "ver- oder entschl\xC3\xBC" "sselt mit Verfahren 0 bis 21 der Kryptografie-Seite",
         runCipher},
        {"blockcipher",
         "blockcipher rc5|rc6|idea|aes128 --key-hex HEX --block-hex HEX [--decrypt]: ein Block, hexadezimal",
         runBlockCipher},
        {"rc4", "rc4 --key-hex HEX --bytes N: die ersten N Bytes des RC4-Schl\xC3\xBC" "sselstroms", runRc4},
        {"enigma",
         "enigma [--rotors I-II-III] [--positions AAA] [--plugs AB,CD,...] TEXT: Enigma-Text und Endstellung",
         runEnigma},
        {"vigenere-crack", "vigenere-crack TEXT: Codewortl\xC3\xA4nge und Codewort eines Vigenere-Textes",
         runVigenereCrack},
    };
}

}  // namespace crypto
