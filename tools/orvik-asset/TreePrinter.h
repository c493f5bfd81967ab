#pragma once

#include "TreeNode.h"

#include <ostream>

namespace Orvik::AssetTool {

/// Writes `root` and everything under it, one line per node, each level indented by two more
/// blanks. The labels of the fields under one object are padded to a common width so that their
/// values line up. With `color`, labels of objects are bold and values are painted by their
/// tone with ANSI escape sequences; without, the output is plain text.
///
/// Labels and values go through Printable(), so that a document cannot break the tree or drive
/// the terminal.
void PrintTree(std::ostream& out, const TreeNode& root, bool color);

}  // namespace Orvik::AssetTool
