#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>

#include <cstdlib>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the refused text and "'.".
constexpr char kInvalidServerSerialNumber[] = "Invalid server serial number '";

}  // namespace

bool ZanServerId::TryParse(const std::string& text, ZanServerId& serverId)
{
    if (text.empty() || text.size() > 10 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    if (value > 2147483647LL || !IsValid(static_cast<int>(value)))
        return false;
    serverId.serialNumber = static_cast<int>(value);
    return true;
}

ZanServerId ZanServerId::Parse(const std::string& text)
{
    ZanServerId serverId;
    if (!TryParse(text, serverId))
        throw std::invalid_argument(kInvalidServerSerialNumber + text + "'.");
    return serverId;
}

}  // namespace Orvik::DataModel::MediaAssets
