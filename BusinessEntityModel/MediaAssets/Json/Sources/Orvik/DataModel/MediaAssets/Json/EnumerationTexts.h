#pragma once

// The enumerations' texts read from documents, each conversion remembered per thread.

#include "ThreadOwn.h"

#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// The last text that a conversion to E accepted, and its value.
template <typename E>
struct AcceptedText {
    E (*convert)(const std::string&, bool&) = nullptr;
    std::string text;
    E value{};
};

/// Converts `text` with `convert` (one of the model's ToXxx functions); false when it refuses the
/// text. A document repeats the same few texts of an enumeration, and a lookup in the model's
/// table costs a few hundred instructions: the last text that `convert` accepted on this thread
/// is remembered.
template <typename E>
bool ConvertText(std::string_view text, E (*convert)(const std::string&, bool&), E& result)
{
    AcceptedText<E>& last = ThreadOwn<AcceptedText<E>>();
    if (last.convert == convert && last.text == text) {
        result = last.value;
        return true;
    }
    last.convert = nullptr;
    last.text = text;
    bool failed = false;
    const E value = convert(last.text, failed);
    if (failed)
        return false;
    last.convert = convert;
    last.value = value;
    result = value;
    return true;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
