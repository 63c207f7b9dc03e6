#include "platform/container.h"

#include "platform/codepage.h"

#include <zip.h>

#include <cstdio>
#include <filesystem>
#include <memory>

namespace platform {

namespace {

struct ZipCloser {
    void operator()(zip_t* z) const { zip_discard(z); }
};

std::string entryName(const std::string& type, const std::string& name)
{
    return type + "/" + name;
}

}  // namespace

ContainerReader::ContainerReader(const std::string& containerPath)
{
    int err = 0;
    zip_ = zip_open(containerPath.c_str(), ZIP_RDONLY, &err);
    if (!zip_)
        throw ResourceError("Ressourcendatei nicht gefunden: " + containerPath);
}

ContainerReader::~ContainerReader()
{
    zip_discard(zip_);
}

std::string ContainerReader::read(const std::string& type, const std::string& name) const
{
    const std::string entry = entryName(type, name);
    zip_stat_t st;
    zip_stat_init(&st);
    if (zip_stat(zip_, entry.c_str(), ZIP_FL_NOCASE, &st) != 0)
        throw ResourceError("Ressource nicht gefunden: " + name);
    zip_file_t* f = zip_fopen_index(zip_, st.index, 0);
    if (!f)
        throw ResourceError("Ressource nicht lesbar: " + name);
    std::string data(st.size, '\0');
    zip_int64_t got = zip_fread(f, data.data(), st.size);
    zip_fclose(f);
    if (got < 0 || static_cast<zip_uint64_t>(got) != st.size)
        throw ResourceError("Ressource nicht lesbar: " + name);
    return data;
}

std::string readResource(const std::string& containerPath, const std::string& type,
                         const std::string& name)
{
    return ContainerReader(containerPath).read(type, name);
}

bool hasResource(const std::string& containerPath, const std::string& type, const std::string& name)
{
    int err = 0;
    std::unique_ptr<zip_t, ZipCloser> z(zip_open(containerPath.c_str(), ZIP_RDONLY, &err));
    if (!z)
        return false;
    return zip_name_locate(z.get(), entryName(type, name).c_str(), ZIP_FL_NOCASE) >= 0;
}

std::vector<std::string> listResources(const std::string& containerPath, const std::string& type)
{
    std::vector<std::string> namen;
    int err = 0;
    std::unique_ptr<zip_t, ZipCloser> z(zip_open(containerPath.c_str(), ZIP_RDONLY, &err));
    if (!z)
        return namen;
    const std::string praefix = type + "/";
    const zip_int64_t n = zip_get_num_entries(z.get(), 0);
    for (zip_int64_t i = 0; i < n; ++i) {
        const char* name = zip_get_name(z.get(), static_cast<zip_uint64_t>(i), 0);
        if (name && std::string(name).rfind(praefix, 0) == 0)
            namen.emplace_back(name + praefix.size());
    }
    return namen;
}

StringList loadTextResource(const std::string& containerPath, const std::string& type,
                            const std::string& name)
{
    return splitLines(zlibInflate(readResource(containerPath, type, name)));
}

std::string programContainer(const std::string& fileName)
{
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? "000/" + fileName : (exe.parent_path() / "000" / fileName).string();
}

std::vector<std::string> loadTextListUtf8(const std::string& containerPath, const std::string& name)
{
    std::vector<std::string> out;
    try {
        for (const std::string& line : loadTextResource(containerPath, "10", name))
            out.push_back(cp1252ToUtf8(line));
    } catch (const ResourceError&) {
        // a missing list is an empty list
    }
    return out;
}

void ContainerWriter::add(const std::string& type, const std::string& name, const std::string& bytes)
{
    entries_[entryName(type, name)] = bytes;
}

void ContainerWriter::addText(const std::string& type, const std::string& name, const StringList& lines)
{
    add(type, name, zlibCompress(joinLines(lines)));
}

void ContainerWriter::write(const std::string& containerPath) const
{
    const std::string tmp = containerPath + ".tmp";
    std::remove(tmp.c_str());
    if (entries_.empty()) {
        // libzip writes no file for an empty archive; an end record alone is a valid empty ZIP.
        writeFileSafely(containerPath, std::string("PK\x05\x06", 4) + std::string(18, '\0'));
        return;
    }
    int err = 0;
    zip_t* z = zip_open(tmp.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &err);
    if (!z)
        throw ResourceError("Container kann nicht angelegt werden: " + containerPath);
    for (const auto& [entry, bytes] : entries_) {
        // The payload is already zlib or a picture: store it, don't compress twice.
        zip_source_t* src = zip_source_buffer(z, bytes.data(), bytes.size(), 0);
        zip_int64_t idx = src ? zip_file_add(z, entry.c_str(), src, ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8) : -1;
        if (idx < 0) {
            if (src)
                zip_source_free(src);
            zip_discard(z);
            throw ResourceError("Container kann nicht geschrieben werden: " + containerPath);
        }
        zip_set_file_compression(z, static_cast<zip_uint64_t>(idx), ZIP_CM_STORE, 0);
        zip_file_set_mtime(z, static_cast<zip_uint64_t>(idx), 315532800, 0);  // reproducible builds
    }
    if (zip_close(z) != 0) {
        zip_discard(z);
        throw ResourceError("Container kann nicht geschrieben werden: " + containerPath);
    }
    if (std::rename(tmp.c_str(), containerPath.c_str()) != 0)
        throw ResourceError("Container kann nicht geschrieben werden: " + containerPath);
}

}  // namespace platform
