#include "lexicon/rtf.h"

#include "lexicon/druck.h"
#include "lexicon/globals.h"

#include <cstdio>

namespace lexicon {

namespace {

bool beginntMit(const std::string& s, const char* p)
{
    return s.rfind(p, 0) == 0;
}

bool markerSegment(const std::string& seg)
{
    if (seg.size() < 3 || seg[0] != '\xBB' || seg[2] != ':')
        return false;
    switch (seg[1]) {
    case 'G': case 'F': case 'C': case 'T': case 'B': case 'V': case 'R':
        return true;
    default:
        return false;
    }
}

std::string klammernSchuetzen(const std::string& s)
{
    std::string r;
    r.reserve(s.size() + 8);
    for (char c : s) {
        if (c == '\\' || c == '{' || c == '}')
            r += '\\';
        r += c;
    }
    return r;
}

}  // namespace

platform::StringList rtfKopf()
{
    return {
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031",
        "{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}",
        "{\\f1\\fnil\\fcharset2 Symbol;}{\\f2\\froman\\fprq2\\fcharset0 Times New Roman;}}",
        "{\\colortbl ;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}",
        "\\viewkind4\\uc1\\pard\\f0\\fs20",
    };
}

std::string rtfTokens(const std::string& zeile)
{
    std::string s = zeile;
    std::string aus;
    int hoch = 0;
    bool linkoffen = false;
    while (true) {
        const size_t d = s.find('$');
        const std::string seg = s.substr(0, d);
        // Commands and tool links mean nothing outside the program.
        const bool weg = markerSegment(seg) || (linkoffen && beginntMit(seg, "\xBB"));
        if (!weg)
            aus += seg;
        linkoffen = false;
        if (d == std::string::npos)
            break;
        s.erase(0, d + 1);
        if (s.empty())
            break;
        const char c = s[0];
        s.erase(0, 1);
        switch (c) {
        case '(': case ')': case '<': case '=': case '>':
            break;
        case '*':
            linkoffen = true;
            break;
        case '+':
            if (hoch == 0)
                aus += "\\super ";
            else if (hoch == -5)
                aus += "\\nosupersub ";
            hoch += 5;
            break;
        case '-':
            if (hoch == 0)
                aus += "\\sub ";
            else if (hoch == 5)
                aus += "\\nosupersub ";
            hoch -= 5;
            break;
        default:
            if (c >= '0' && c <= '9') {
                aus += "\\tab ";
            } else {
                aus += "\\f1 ";
                if (c == '\\' && !s.empty() && (s[0] == '\\' || s[0] == '{' || s[0] == '}')) {
                    // The character was escaped before: keep the pair together.
                    aus += c;
                    aus += s[0];
                    s.erase(0, 1);
                } else {
                    aus += c;
                }
                aus += "\\f0 ";
            }
            break;
        }
    }
    return aus;
}

std::string rtfAchtBit(const std::string& zeile)
{
    std::string r;
    r.reserve(zeile.size() + 16);
    for (unsigned char c : zeile) {
        if (c >= 0x80) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\'%02x", c);
            r += buf;
        } else {
            r += static_cast<char>(c);
        }
    }
    return r;
}

platform::StringList rtfSeite(const platform::StringList& block, int seite)
{
    platform::StringList aus = rtfKopf();
    const std::string marke = "[" + std::to_string(seite % 100) + "]";
    size_t cursor = block.size();
    for (size_t i = 0; i < block.size(); ++i) {
        if (block[i] == marke) {
            cursor = i + 1;
            break;
        }
    }
    auto naechste = [&]() -> std::string {
        if (cursor >= block.size())
            return "[";  // a page without its end marker stops at the block's end
        const std::string& z = block[cursor++];
        return druckzeileFiltern(z.empty() ? std::string(" ") : z);
    };
    if (cursor < block.size()) {
        ++cursor;  // the title
        while (true) {
            std::string s = naechste();
            while (istBildschirmzeile(s))
                s = naechste();
            s = klammernSchuetzen(s);
            while (beginntMit(s, "!"))
                s = klammernSchuetzen(naechste());
            if (s[0] == ']' || s[0] == '\xA7') {
                if (beginntMit(s, "]\xA7")) {
                    for (int i = 0; i < 4; ++i)
                        naechste();
                    continue;
                }
                if (s.size() > 1 && s[1] == '-')
                    s = klammernSchuetzen(naechste());
                if (s[0] == ']' || s[0] == '\xA7')
                    continue;
            }
            if (s[0] == '[')
                break;
            if (s[0] == '#')
                s = "\\par\\cf1\\b " + s.substr(1) + " " + "\\cf0\\b0 ";
            else if (s[0] == '&')
                s = "\\cf2\\b " + s.substr(1) + " " + "\\cf0\\b0 ";
            if (!s.empty())
                s = rtfTokens(s);
            aus.push_back(rtfAchtBit(s + "\\par "));
        }
    }
    aus.push_back("\\par Quorix\\par ");
    aus.push_back("}");
    return aus;
}

std::string rtfDateiname()
{
    return datenpfad + "rtf.000";
}

void rtfDateiSchreiben(const std::string& pfad, const platform::StringList& zeilen)
{
    platform::writeFileSafely(pfad, platform::joinLines(zeilen));
}

}  // namespace lexicon
