// TryParse never throws; an accepted identifier is valid, and a server it keeps is valid.

#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>

#include "FuzzText.h"

using Orvik::DataModel::MediaAssets::PelkId;
using Orvik::DataModel::MediaAssets::ZanServerId;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    PelkId id(ZanServerId(), 0, 1, 0, 'A');
    int serialNumber = -1;
    if (PelkId::TryParse(Text(data, size), id, serialNumber)) {
        Check(id.IsValid() && id.HasCamera(), "an accepted identifier is valid and has a camera");
        Check(id.ServerId().SerialNumber() == 0 || ZanServerId::IsValid(id.ServerId().SerialNumber()),
              "a kept server is valid");
    }
    return 0;
}
