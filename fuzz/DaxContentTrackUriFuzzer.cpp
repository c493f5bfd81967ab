// InitFromUri never throws; a text is accepted exactly when it matches the documented form,
// written here as a regular expression (for texts of up to 256 bytes: std::regex recurses once
// per character); on success Uri() writes the input back, on failure nothing changes.

#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>

#include "FuzzText.h"

#include <regex>

using namespace Orvik::DataModel::MediaAssets;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::regex documented("^storage://[^/]*/[^/]*/[^/]*$");
    const std::string text = Text(data, size);
    DaxContentTrackLocation location;
    location.ServerId(Identifier("S"));
    const DaxContentTrackLocation before = location;
    const bool accepted = location.InitFromUri(text);
    if (size <= 256)
        Check(accepted == std::regex_search(text, documented), "accepted exactly when of the documented form");
    if (accepted)
        Check(location.Uri().Value() == text, "an accepted URI reads back");
    else
        Check(location == before, "a refused URI changes nothing");
    return 0;
}
