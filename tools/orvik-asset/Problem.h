#pragma once

#include <string>

namespace Orvik::AssetTool {

/// One thing wrong with a document: where (a JSON pointer into the document, "" for the whole
/// document) and what.
struct Problem {
    std::string path;
    std::string message;
};

}  // namespace Orvik::AssetTool
