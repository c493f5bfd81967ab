#pragma once

// The syntax errors of JSON text, in the library's own words.

#include <simdjson.h>

#include <string>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// What is wrong with malformed JSON that simdjson refused with `error`, in the library's own
/// words ("malformed JSON (a string without its closing quote)"), so that a new version of the
/// parser does not change the texts of the errors.
std::string Malformed(simdjson::error_code error);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
