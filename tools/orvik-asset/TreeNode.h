#pragma once

// The tree that `orvik-asset show` prints: what each line says, independent of how it is printed.

#include <string>
#include <vector>

namespace Orvik::AssetTool {

/// How a piece of a line is painted on a colour terminal.
enum class Tone {
    Plain,
    Id,       // identifiers and URIs
    Keyword,  // canonical enumeration strings and kinds
    Time,     // time points, durations, timecodes and dates
    Faint,    // what is absent: "unset", "not loaded"
};

/// A piece of a line's value with its tone. The spans of a value are written one after the
/// other, so a span carries its own blanks and punctuation.
struct Span {
    std::string text;
    Tone tone = Tone::Plain;
};

/// One line of the tree: a label ("stream", "codec"), a value made of spans, and the lines
/// nested under it. A line is either an object's (a stream, a track; it may have lines under it)
/// or a field's (a codec, a name; it has none).
struct TreeNode {
    std::string label;
    std::vector<Span> value;
    std::vector<TreeNode> children;
    bool object = false;
};

}  // namespace Orvik::AssetTool
