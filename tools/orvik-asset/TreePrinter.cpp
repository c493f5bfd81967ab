#include "TreePrinter.h"

#include "Printable.h"

#include <algorithm>
#include <cstddef>

namespace Orvik::AssetTool {
namespace {

constexpr char kReset[] = "\x1b[0m";
constexpr char kBold[] = "\x1b[1m";

const char* Escape(Tone tone)
{
    switch (tone) {
    case Tone::Plain:
        return "";
    case Tone::Id:
        return "\x1b[36m";  // cyan
    case Tone::Keyword:
        return "\x1b[32m";  // green
    case Tone::Time:
        return "\x1b[33m";  // yellow
    case Tone::Faint:
        return "\x1b[2m";  // dim
    }
    return "";
}

class Printer {
public:
    Printer(std::ostream& out, bool color) : out(out), color(color) {}

    void Node(const TreeNode& node, size_t indent, size_t labelWidth)
    {
        out << std::string(indent, ' ');
        const std::string label = Printable(node.label);
        if (!node.object) {
            out << label;
            if (!node.value.empty())
                out << std::string(labelWidth - std::min(labelWidth, label.size()) + 2, ' ');
        } else {
            Paint(label, kBold);
            if (!node.value.empty())
                out << ' ';
        }
        for (const Span& span : node.value)
            Paint(Printable(span.text), Escape(span.tone));
        out << '\n';

        const size_t fieldWidth = FieldLabelWidth(node);
        for (const TreeNode& child : node.children)
            Node(child, indent + 2, fieldWidth);
    }

private:
    void Paint(const std::string& text, const char* escape)
    {
        if (color && *escape != '\0')
            out << escape << text << kReset;
        else
            out << text;
    }

    /// The widest label among the fields under `node`.
    static size_t FieldLabelWidth(const TreeNode& node)
    {
        size_t width = 0;
        for (const TreeNode& child : node.children)
            if (!child.object)
                width = std::max(width, Printable(child.label).size());
        return width;
    }

    std::ostream& out;
    bool color;
};

}  // namespace

void PrintTree(std::ostream& out, const TreeNode& root, bool color) { Printer(out, color).Node(root, 0, 0); }

}  // namespace Orvik::AssetTool
