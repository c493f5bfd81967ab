#pragma once

namespace Orvik::DataModel::MediaAssets::Json {

/// How a document is laid out. Compact is the canonical form: fixed member order and no
/// whitespace, so equal objects give byte-identical documents. Indented is the same document with
/// line breaks and two-space indentation, for people.
enum class Layout { Compact, Indented };

}  // namespace Orvik::DataModel::MediaAssets::Json
