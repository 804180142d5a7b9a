#pragma once

#include <string>

namespace wayloom {

/// The home screen's icon rasterizer: draws whatever Qt's picture formats read, SVG above all, and
/// answers PNG bytes; empty when Qt reads none of it. Any thread may call it.
std::string rasterizeIcon(const std::string& bytes);

}  // namespace wayloom
