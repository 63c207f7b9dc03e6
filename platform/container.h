#pragma once
// Resource containers: ZIP archives mapping (type, name) to bytes, entry "<type>/<name>".
// Each read opens the archive and closes it again; nothing stays open.
#include "platform/textlist.h"

#include <map>
#include <vector>
#include <string>

struct zip;  // libzip's archive handle

namespace platform {

// Raw bytes of one resource; throws ResourceError if the container or resource is missing.
std::string readResource(const std::string& containerPath, const std::string& type,
                         const std::string& name);
bool hasResource(const std::string& containerPath, const std::string& type, const std::string& name);
// Names of all resources of one type, in the container's order.
std::vector<std::string> listResources(const std::string& containerPath, const std::string& type);
// Several reads from one container with one opening, for walks over many resources (search).
class ContainerReader {
public:
    explicit ContainerReader(const std::string& containerPath);  // throws ResourceError
    ~ContainerReader();
    ContainerReader(const ContainerReader&) = delete;
    ContainerReader& operator=(const ContainerReader&) = delete;
    std::string read(const std::string& type, const std::string& name) const;

private:
    ::zip* zip_ = nullptr;
};

// The one loader of text resources: fetch, inflate, split into lines.
StringList loadTextResource(const std::string& containerPath, const std::string& type,
                            const std::string& name);

// Path of a container in the "000" folder beside the running program (texte.dll, ...).
std::string programContainer(const std::string& fileName);
// The authored text list `name` (type "10") as UTF-8 lines; a missing container or list is an
// empty list, since the tools then simply offer nothing to choose.
std::vector<std::string> loadTextListUtf8(const std::string& containerPath, const std::string& name);

// Writes a whole container at once (used by the packer and by tests).
class ContainerWriter {
public:
    void add(const std::string& type, const std::string& name, const std::string& bytes);
    void addText(const std::string& type, const std::string& name, const StringList& lines);
    void write(const std::string& containerPath) const;  // temp file + rename
    size_t size() const { return entries_.size(); }

private:
    std::map<std::string, std::string> entries_;
};

}  // namespace platform
