#pragma once
// The twenty-two methods of the cipher page "Kryptografie". Text is Windows-1252 bytes; a
// method's key is repaired by the rules of its field and handed back, so that the window can
// write it into the field. No Qt here.
#include <string>

namespace crypto {

constexpr int methodCount = 22;
constexpr const char* defaultCodeWord = "nebelkrone";

enum class OutputKind {
    Text,     // readable characters
    Bytes,    // any byte 0..255; shown as two hex digits a byte
    HexText,  // the method writes hex digits itself
};

const char* methodName(int method);  // Windows-1252, as in the list of the page
const char* keyCaption(int method);  // Windows-1252; empty when the method takes no key
OutputKind outputKind(int method);
bool takesKey(int method);

struct CipherResult {
    std::string output;     // Windows-1252 bytes (raw bytes for OutputKind::Bytes)
    std::string key;        // the key as used
    bool keyRepaired = false;  // the field must show `key`
    std::string message;    // a German message when the text could not be read; empty if all went well
};

// Both join the lines of `text` first. An empty text gives an empty output.
CipherResult encipher(int method, const std::string& text, const std::string& key);
CipherResult decipher(int method, const std::string& text, const std::string& key);

// Windows-1252 helpers shared with the Vigenère analysis and the windows.
unsigned char upper1252(unsigned char c);
bool isAsciiLetter(unsigned char c);
bool isKeptSign(unsigned char c);  // digits and both cases of letters
std::string joinLines(const std::string& text);

}  // namespace crypto
