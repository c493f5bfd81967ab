// The server serial number and colour parsers: TryParse never throws and leaves its argument
// unchanged on refusal, Parse throws only std::invalid_argument, and accepted values read back from
// their own text.

#include <Orvik/DataModel/MediaAssets/Color.h>
#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include "FuzzText.h"

#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text = Text(data, size);

    ZanServerId serverId(70);
    if (ZanServerId::TryParse(text, serverId)) {
        Check(ZanServerId::IsValid(serverId.SerialNumber()), "an accepted serial number is valid");
        Check(ZanServerId::Parse(serverId.ToString()) == serverId, "an accepted serial number reads back from its text");
    } else {
        Check(serverId.SerialNumber() == 70, "a refused text changes nothing");
        try {
            ZanServerId::Parse(text);
            Check(false, "Parse refuses what TryParse refuses");
        } catch (const std::invalid_argument&) {
        }
    }

    uint32_t color = Color::Red;
    if (Color::TryParse(text, color)) {
        Check(Color::Parse(Color::ToString(color)) == color, "a colour reads back from its text");
    } else {
        Check(color == Color::Red, "a refused text changes nothing");
    }
    return 0;
}
