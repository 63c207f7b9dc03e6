#include "kernel/termtext.h"

namespace quorix {

std::string termFromUtf8(const std::string& utf8)
{
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(utf8[i]);
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if ((c == 0xC2 || c == 0xC3) && i + 1 < utf8.size()) {
            const unsigned char d = static_cast<unsigned char>(utf8[++i]);
            out += static_cast<char>((c == 0xC2 ? 0x80 : 0xC0) | (d & 0x3F));
        } else {
            // Skip the continuation bytes of a character outside Latin-1.
            while (i + 1 < utf8.size() && (static_cast<unsigned char>(utf8[i + 1]) & 0xC0) == 0x80)
                ++i;
            out += '?';
        }
    }
    return out;
}

std::string termToUtf8(const std::string& bytes)
{
    std::string out;
    out.reserve(bytes.size() + 8);
    for (unsigned char c : bytes) {
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

}  // namespace quorix
