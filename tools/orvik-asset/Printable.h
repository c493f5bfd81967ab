#pragma once

#include <string>

namespace Orvik::AssetTool {

/// `text` with every control character (C0, DEL and UTF-8 encoded C1) written as a visible
/// escape ("\n", "\t", "\x1b", "\u009b"), so that text from a document cannot break a line of
/// output or drive the terminal. Everything else, other UTF-8 included, is kept.
std::string Printable(const std::string& text);

}  // namespace Orvik::AssetTool
