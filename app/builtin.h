#pragma once
// Resources compiled into the executable by the packer: "txtueber" (catalogue), "menu".
#include <string_view>

namespace builtin {
std::string_view resource(std::string_view name);
}
