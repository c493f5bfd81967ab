// InitFromUri never throws; on success Uri() writes the input back, on failure nothing changes.

#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>

#include "FuzzText.h"

using namespace Orvik::DataModel::MediaAssets;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text = Text(data, size);
    DaxContentTrackLocation location;
    location.ServerId(Identifier("S"));
    const DaxContentTrackLocation before = location;
    if (location.InitFromUri(text))
        Check(location.Uri().Value() == text, "an accepted URI reads back");
    else
        Check(location == before, "a refused URI changes nothing");
    return 0;
}
