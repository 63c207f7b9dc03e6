#pragma once
// Resource containers: ZIP archives mapping (type, name) to bytes, entry "<type>/<name>".
// Each read opens the archive and closes it again; nothing stays open.
#include "platform/textlist.h"

#include <map>
#include <vector>
#include <string>

namespace platform {

// Raw bytes of one resource; throws ResourceError if the container or resource is missing.
std::string readResource(const std::string& containerPath, const std::string& type,
                         const std::string& name);
bool hasResource(const std::string& containerPath, const std::string& type, const std::string& name);
// Names of all resources of one type, in the container's order.
std::vector<std::string> listResources(const std::string& containerPath, const std::string& type);
// The one loader of text resources: fetch, inflate, split into lines.
StringList loadTextResource(const std::string& containerPath, const std::string& type,
                            const std::string& name);

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
