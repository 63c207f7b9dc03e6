#pragma once
// Headless commands of the platform layer: export.
#include "kernel/headless.h"
#include "platform/canvas.h"

#include <vector>

namespace platform {

std::vector<quorix::HeadlessCommand> platformCommands();

// The fixed drawing of `quorix export`: every pen style, filled and clear shapes, rotated
// text and a Symbol character, so each export path can be looked at.
constexpr int kExportWidth = 400;
constexpr int kExportHeight = 300;
void paintExportTestDrawing(Canvas& canvas, int width, int height);

}  // namespace platform
