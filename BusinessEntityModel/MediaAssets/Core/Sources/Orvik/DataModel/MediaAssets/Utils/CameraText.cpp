#include <Orvik/DataModel/MediaAssets/Utils/CameraText.h>

#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>

namespace Orvik::DataModel::MediaAssets {

std::string CameraText(char camera)
{
    const auto byte = static_cast<unsigned char>(camera);
    if (byte == 0)
        return {};
    if (byte < 0x80)
        return std::string(1, camera);
    return {static_cast<char>(0xC0 | (byte >> 6)), static_cast<char>(0x80 | (byte & 0x3F))};
}

bool CameraFromText(std::string_view text, char& camera)
{
    if (text.empty()) {
        camera = '\0';
        return true;
    }
    const auto first = static_cast<unsigned char>(text[0]);
    if (text.size() == 1 && first < 0x80) {
        camera = text[0];
        return true;
    }
    const auto second = text.size() == 2 ? static_cast<unsigned char>(text[1]) : 0;
    if (text.size() == 2 && (first == 0xC2 || first == 0xC3) && (second & 0xC0) == 0x80) {
        camera = static_cast<char>(((first & 0x03) << 6) | (second & 0x3F));
        return true;
    }
    return false;
}

std::string ValidCamerasText() { return std::string("'") + PelkId::MinCamera + "' to '" + PelkId::MaxCamera + "'"; }

}  // namespace Orvik::DataModel::MediaAssets
