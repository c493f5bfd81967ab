// FromUri either throws std::invalid_argument or returns a valid identifier that reads back from
// its short text unchanged.

#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>

#include "FuzzText.h"

#include <stdexcept>

using Orvik::DataModel::MediaAssets::PelkId;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PelkId id;
    try {
        id = PelkId::FromUri(Text(data, size));
    } catch (const std::invalid_argument&) {
        return 0;
    }
    Check(id.IsValid(), "a returned identifier is valid");
    const PelkId again = PelkId::FromUri(id.ToShortString());
    Check(again.Page() == id.Page() && again.Bank() == id.Bank() && again.Row() == id.Row() && again.Camera() == id.Camera(),
          "FromUri(ToShortString()) gives back page, bank, row and camera");
    return 0;
}
