#include "tools/packer.h"

#include "lexicon/keywordorder.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QString>
#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

namespace fs = std::filesystem;
using platform::StringList;

namespace packer {

std::string pictureBytesFromSource(const fs::path& source, const std::string& type);  // pictures.cpp

namespace {

std::string where(const std::string& file, int line)
{
    return file + ":" + std::to_string(line) + ": ";
}

std::string trimRight(std::string s)
{
    while (!s.empty() && (s.back() == '\r' || s.back() == ' ' || s.back() == '\t'))
        s.pop_back();
    return s;
}

std::string trim(std::string s)
{
    s = trimRight(std::move(s));
    size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t'))
        ++i;
    return s.substr(i);
}

std::vector<std::string> utf8Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::string cur;
    for (char c : text) {
        if (c == '\n') {
            if (!cur.empty() && cur.back() == '\r')
                cur.pop_back();
            lines.push_back(cur);
            cur.clear();
        } else {
            cur.push_back(c);
        }
    }
    if (!cur.empty())
        lines.push_back(cur);
    return lines;
}

std::string readText(const fs::path& p)
{
    std::string data;
    if (!platform::readFile(p.string(), data))
        throw PackError(p.string() + ":0: Datei nicht lesbar");
    return data;
}

StringList convertLines(const std::string& utf8Text, const std::string& file)
{
    StringList out;
    int n = 0;
    for (const auto& l : utf8Lines(utf8Text))
        out.push_back(toCp1252Checked(l, file, ++n));
    return out;
}

}  // namespace

std::string toCp1252Checked(const std::string& utf8, const std::string& file, int line)
{
    const QString q = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    std::string out = platform::toCp1252(q);
    // A '?' in the output that was no '?' in the source marks a character outside the code page.
    if (std::count(out.begin(), out.end(), '?') != q.count(QLatin1Char('?')))
        throw PackError(where(file, line) + "Zeichen außerhalb von Windows-1252");
    return out;
}

std::vector<SourcePage> parsePageSource(const std::string& utf8Text, const std::string& fileName)
{
    std::vector<SourcePage> pages;
    const auto lines = utf8Lines(utf8Text);
    bool inHead = false;
    auto finish = [&]() {
        if (pages.empty())
            return;
        SourcePage& p = pages.back();
        if (p.title.empty())
            throw PackError(where(p.file, p.line) + "Seite " + std::to_string(p.number) + " ohne Titel");
        if (p.keywords.empty())
            throw PackError(where(p.file, p.line) + "Seite " + std::to_string(p.number) + " ohne Stichwort");
        while (!p.body.empty() && p.body.back().empty())
            p.body.pop_back();
    };
    for (size_t i = 0; i < lines.size(); ++i) {
        const int ln = static_cast<int>(i) + 1;
        const std::string& raw = lines[i];
        if (raw.rfind("@seite", 0) == 0) {
            finish();
            std::string num = trim(raw.substr(6));
            if (num.empty() || !std::all_of(num.begin(), num.end(), ::isdigit) || num.size() > 5)
                throw PackError(where(fileName, ln) + "ungültige Seitennummer '" + num + "'");
            SourcePage p;
            p.number = std::stoi(num);
            p.file = fileName;
            p.line = ln;
            pages.push_back(std::move(p));
            inHead = true;
            continue;
        }
        if (pages.empty()) {
            if (trim(raw).empty() || raw.rfind("//", 0) == 0)
                continue;  // comments before the first page
            throw PackError(where(fileName, ln) + "Text vor der ersten @seite");
        }
        SourcePage& p = pages.back();
        if (inHead && raw.rfind("@", 0) == 0) {
            const size_t sp = raw.find(' ');
            const std::string key = raw.substr(0, sp);
            const std::string value = sp == std::string::npos ? "" : trim(raw.substr(sp + 1));
            if (value.empty())
                throw PackError(where(fileName, ln) + key + " ohne Wert");
            const std::string v = toCp1252Checked(value, fileName, ln);
            if (key == "@titel") {
                p.title = v;
            } else if (key == "@stichwort") {
                if (v.find('\t') != std::string::npos)
                    throw PackError(where(fileName, ln) + "Tabulator im Stichwort");
                p.keywords.insert(p.keywords.begin(), v);
            } else if (key == "@synonym") {
                p.keywords.push_back(v);
            } else {
                throw PackError(where(fileName, ln) + "unbekannte Angabe " + key);
            }
            continue;
        }
        inHead = false;
        std::string body = toCp1252Checked(trimRight(raw), fileName, ln);
        if (!body.empty() && body[0] == '[')
            throw PackError(where(fileName, ln) + "Zeile beginnt mit '[' (Seitenende)");
        p.body.push_back(body);
    }
    finish();
    return pages;
}

std::vector<StringList> buildBlocks(const std::vector<SourcePage>& pages)
{
    std::map<int, const SourcePage*> byNumber;
    for (const auto& p : pages) {
        auto [it, fresh] = byNumber.emplace(p.number, &p);
        if (!fresh)
            throw PackError(where(p.file, p.line) + "Seitennummer " + std::to_string(p.number) +
                            " doppelt (auch " + it->second->file + ":" + std::to_string(it->second->line) + ")");
    }
    if (byNumber.empty())
        throw PackError("data:0: keine Lexikonseiten");
    const int last = byNumber.rbegin()->first;
    const int blockCount = last / 100 + 1;
    std::vector<StringList> blocks;
    for (int b = 0; b < blockCount; ++b) {
        StringList block(100);
        int lastReal = -1;
        for (int local = 0; local < 100; ++local) {
            const int n = b * 100 + local;
            auto it = byNumber.find(n);
            if (it == byNumber.end()) {
                // Past the last page the head lines repeat the last real one (the page walk
                // finds the end of the data this way); gaps inside have no content.
                // Gaps get distinct negative numbers so that only the tail repeats.
                block[local] = (n > last && lastReal >= 0) ? block[lastReal] : std::to_string(-(local + 1));
                continue;
            }
            const SourcePage& p = *it->second;
            block[local] = std::to_string(block.size());
            block.push_back("[" + std::to_string(local) + "]");
            block.push_back(p.title);
            block.push_back("\xA7" + p.keywords.front());
            for (const auto& l : p.body)
                block.push_back(l);
            lastReal = local;
        }
        block.push_back("[#]");
        blocks.push_back(std::move(block));
    }
    return blocks;
}

StringList buildKeywordList(const std::vector<SourcePage>& pages)
{
    std::map<std::string, const SourcePage*> seen;
    std::vector<std::pair<std::string, int>> items;
    for (const auto& p : pages) {
        for (const auto& k : p.keywords) {
            auto [it, fresh] = seen.emplace(k, &p);
            if (!fresh)
                throw PackError(where(p.file, p.line) + "Stichwort '" + platform::cp1252ToUtf8(k) +
                                "' schon bei Seite " + std::to_string(it->second->number));
            items.emplace_back(k, p.number);
        }
    }
    std::sort(items.begin(), items.end(),
              [](const auto& a, const auto& b) { return lexicon::keywordLess(a.first, b.first); });
    StringList out;
    for (const auto& [k, n] : items)
        out.push_back(k + "\t" + std::to_string(n));
    return out;
}

StringList buildCatalog(const std::string& utf8Text, const std::string& fileName)
{
    static const std::regex triple(R"(^-?\d+ -?\d+ -?\d+$)");
    StringList out;
    const auto lines = utf8Lines(utf8Text);
    std::vector<std::pair<std::string, int>> content;
    for (size_t i = 0; i < lines.size(); ++i) {
        std::string l = trimRight(lines[i]);
        if (l.empty() || l.rfind("//", 0) == 0)
            continue;
        content.emplace_back(l, static_cast<int>(i) + 1);
    }
    for (size_t i = 0; i < content.size(); i += 2) {
        const auto& [title, ln] = content[i];
        if (std::regex_match(title, triple))
            throw PackError(where(fileName, ln) + "Titel erwartet, Zahlen gefunden");
        if (title.find('&') != std::string::npos)
            throw PackError(where(fileName, ln) + "'&' im Katalogtitel");
        if (i + 1 >= content.size())
            throw PackError(where(fileName, ln) + "Titel ohne Zeile mit drei Zahlen");
        const auto& [nums, ln2] = content[i + 1];
        if (!std::regex_match(nums, triple))
            throw PackError(where(fileName, ln2) + "drei ganze Zahlen mit je einem Leerzeichen erwartet");
        out.push_back(toCp1252Checked(title, fileName, ln));
        out.push_back(nums);
    }
    return out;
}

namespace {

void writeBuiltins(const fs::path& file, const std::map<std::string, std::string>& blobs)
{
    std::ostringstream cpp;
    cpp << "// Generated by quorix-pack; do not edit.\n#include <string_view>\n#include <utility>\n\n"
           "namespace builtin {\n";
    int idx = 0;
    for (const auto& [name, bytes] : blobs) {
        cpp << "static const unsigned char blob" << idx++ << "[] = {";
        for (size_t i = 0; i < bytes.size(); ++i) {
            if (i % 24 == 0)
                cpp << "\n";
            cpp << static_cast<int>(static_cast<unsigned char>(bytes[i])) << ",";
        }
        cpp << "0};\n";
    }
    cpp << "\nstd::string_view resource(std::string_view name)\n{\n";
    idx = 0;
    for (const auto& [name, bytes] : blobs) {
        cpp << "    if (name == \"" << name << "\") return {reinterpret_cast<const char*>(blob" << idx++
            << "), " << bytes.size() << "};\n";
    }
    cpp << "    return {};\n}\n\n}  // namespace builtin\n";
    const std::string text = cpp.str();
    // Leave an unchanged file alone, so a data edit elsewhere doesn't relink everything.
    std::string old;
    if (platform::readFile(file.string(), old) && old == text)
        return;
    platform::writeFileSafely(file.string(), text);
}

void packTextFolder(const fs::path& dir, platform::ContainerWriter& w)
{
    if (!fs::exists(dir))
        return;
    for (const auto& e : fs::directory_iterator(dir)) {
        if (!e.is_regular_file() || e.path().extension() != ".txt")
            continue;
        w.addText("10", e.path().stem().string(), convertLines(readText(e.path()), e.path().string()));
    }
}

}  // namespace

std::string packAll(const std::string& dataDirS, const std::string& buildDirS)
{
    const fs::path dataDir(dataDirS), buildDir(buildDirS);
    fs::create_directories(buildDir / "000");
    fs::create_directories(buildDir / "bmp");
    fs::create_directories(buildDir / "generated");

    // Lexicon
    std::vector<SourcePage> pages;
    std::vector<fs::path> pageFiles;
    for (const auto& e : fs::recursive_directory_iterator(dataDir / "lexikon"))
        if (e.is_regular_file() && e.path().extension() == ".txt")
            pageFiles.push_back(e.path());
    std::sort(pageFiles.begin(), pageFiles.end());
    for (const auto& f : pageFiles) {
        auto more = parsePageSource(readText(f), fs::relative(f, dataDir.parent_path()).string());
        pages.insert(pages.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    }
    const auto blocks = buildBlocks(pages);
    platform::ContainerWriter lex;
    lex.addText("10", "ms", buildKeywordList(pages));
    for (size_t b = 0; b < blocks.size(); ++b)
        lex.addText("10", "t" + std::to_string(b + 1), blocks[b]);
    lex.write((buildDir / "000" / "tlexikon.dll").string());

    // Factory copies of the .c00 files, stored as they go to disk.
    static const char* kInit[] = {"mbib", "mdrei", "meinh", "minte", "mkurv", "mort", "mort1",
                                  "mchaos", "mimp", "mreak", "mschach", "mfavor", "mbaum"};
    platform::ContainerWriter init;
    for (const char* base : kInit) {
        const fs::path src = dataDir / "init" / (std::string(base) + ".txt");
        StringList list;
        if (fs::exists(src))
            list = convertLines(readText(src), src.string());
        init.add("10", base, platform::zlibCompress(platform::joinLines(list)));
    }
    init.write((buildDir / "000" / "tinit.dll").string());

    platform::ContainerWriter texte, textx, pdf;
    packTextFolder(dataDir / "texte", texte);
    packTextFolder(dataDir / "textx", textx);
    texte.write((buildDir / "000" / "texte.dll").string());
    textx.write((buildDir / "000" / "textx.dll").string());
    if (fs::exists(dataDir / "tpdf"))
        for (const auto& e : fs::directory_iterator(dataDir / "tpdf"))
            if (e.path().extension() == ".pdf")
                pdf.add("10", e.path().stem().string(), readText(e.path()));
    pdf.write((buildDir / "000" / "tpdf.dll").string());

    // Pictures: bilder/<container>/<Type>/<name>.<svg|png|jpg|gif|bmp>
    size_t pictureCount = 0;
    const fs::path pics = dataDir / "bilder";
    if (fs::exists(pics)) {
        for (const auto& c : fs::directory_iterator(pics)) {
            if (!c.is_directory())
                continue;
            platform::ContainerWriter w;
            for (const auto& t : fs::directory_iterator(c.path())) {
                if (!t.is_directory())
                    continue;
                for (const auto& f : fs::directory_iterator(t.path())) {
                    if (!f.is_regular_file())
                        continue;
                    const std::string type = t.path().filename().string();
                    w.add(type, f.path().stem().string(), pictureBytesFromSource(f.path(), type));
                    ++pictureCount;
                }
            }
            w.write((buildDir / "bmp" / (c.path().filename().string() + ".dll")).string());
        }
    }

    // Factory settings file, Windows-1252 with CR LF.
    {
        const fs::path ini = dataDir / "quorix.ini";
        platform::writeFileSafely((buildDir / "quorix.ini").string(),
                                  platform::joinLines(convertLines(readText(ini), ini.string())));
    }

    // Built into the executable: the catalogue and the menu.
    std::map<std::string, std::string> blobs;
    const fs::path cat = dataDir / "katalog.txt";
    const StringList catalog = buildCatalog(readText(cat), cat.string());
    blobs["txtueber"] = platform::zlibCompress(platform::joinLines(catalog));
    const fs::path menu = dataDir / "menu.txt";
    blobs["menu"] = platform::zlibCompress(platform::joinLines(convertLines(readText(menu), menu.string())));
    writeBuiltins(buildDir / "generated" / "builtin_resources.cpp", blobs);

    size_t keywords = 0;
    for (const auto& p : pages)
        keywords += p.keywords.size();
    std::ostringstream s;
    s << pages.size() << " Seiten, " << keywords << " Stichwörter, " << blocks.size() << " Blöcke, "
      << catalog.size() / 2 << " Katalogtitel, " << pictureCount << " Bilder";
    return s.str();
}

}  // namespace packer
