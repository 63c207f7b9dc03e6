#include "platform/textlist.h"

#include <zlib.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace platform {

std::string zlibCompress(const std::string& data)
{
    uLongf size = compressBound(static_cast<uLong>(data.size()));
    std::string out(size, '\0');
    int rc = compress2(reinterpret_cast<Bytef*>(out.data()), &size,
                       reinterpret_cast<const Bytef*>(data.data()), static_cast<uLong>(data.size()), 9);
    if (rc != Z_OK)
        throw ResourceError("Komprimierung fehlgeschlagen");
    out.resize(size);
    return out;
}

std::string zlibInflate(const std::string& data)
{
    // Text packs about four to one; grow by doubling so a large list is not copied many times.
    std::string out;
    out.resize(data.size() * 4 + 256);
    z_stream zs{};
    if (inflateInit(&zs) != Z_OK)
        throw ResourceError("Dekomprimierung fehlgeschlagen");
    zs.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    zs.avail_in = static_cast<uInt>(data.size());
    int rc = Z_OK;
    while (true) {
        zs.next_out = reinterpret_cast<Bytef*>(out.data() + zs.total_out);
        zs.avail_out = static_cast<uInt>(out.size() - zs.total_out);
        rc = inflate(&zs, Z_NO_FLUSH);
        if (rc == Z_STREAM_END)
            break;
        if (rc != Z_OK && rc != Z_BUF_ERROR) {
            inflateEnd(&zs);
            throw ResourceError("Fehlerhafte komprimierte Daten");
        }
        if (zs.avail_out == 0) {
            out.resize(out.size() * 2);
        } else if (zs.avail_in == 0) {
            inflateEnd(&zs);
            throw ResourceError("Unvollständige komprimierte Daten");
        }
    }
    out.resize(zs.total_out);
    inflateEnd(&zs);
    return out;
}

StringList splitLines(const std::string& text)
{
    StringList lines;
    size_t start = 0;
    const size_t n = text.size();
    while (start < n) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            lines.emplace_back(text, start, std::string::npos);
            break;
        }
        size_t stop = end;
        if (stop > start && text[stop - 1] == '\r')
            --stop;
        lines.emplace_back(text, start, stop - start);
        start = end + 1;
    }
    return lines;
}

std::string joinLines(const StringList& lines)
{
    size_t total = 0;
    for (const auto& l : lines)
        total += l.size() + 2;
    std::string out;
    out.reserve(total);
    for (const auto& l : lines) {
        out += l;
        out += "\r\n";
    }
    return out;
}

bool readFile(const std::string& path, std::string& data)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    std::ostringstream ss;
    ss << in.rdbuf();
    data = ss.str();
    return true;
}

void writeFileSafely(const std::string& path, const std::string& data)
{
    const std::string tmp = path + ".tmp";
    {
        std::ofstream out(tmp, std::ios::binary | std::ios::trunc);
        if (!out)
            throw ResourceError("Datei kann nicht geschrieben werden: " + path);
        out.write(data.data(), static_cast<std::streamsize>(data.size()));
        out.flush();
        if (!out)
            throw ResourceError("Datei kann nicht geschrieben werden: " + path);
    }
    if (std::rename(tmp.c_str(), path.c_str()) != 0) {
        std::remove(tmp.c_str());
        throw ResourceError("Datei kann nicht geschrieben werden: " + path);
    }
}

bool LoadCompressedList(StringList& list, const std::string& path)
{
    list.clear();
    std::string raw;
    if (!readFile(path, raw))
        return false;
    list = splitLines(zlibInflate(raw));
    return true;
}

void SaveCompressedList(const StringList& list, const std::string& path)
{
    writeFileSafely(path, zlibCompress(joinLines(list)));
}

}  // namespace platform
