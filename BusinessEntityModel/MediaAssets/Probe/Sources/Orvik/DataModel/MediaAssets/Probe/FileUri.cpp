#include "FileUri.h"

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

bool Unreserved(unsigned char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || byte == '-'
        || byte == '.' || byte == '_' || byte == '~' || byte == '/';
}

}  // namespace

std::string FileUri(const std::string& absolutePath)
{
    constexpr char kHex[] = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char character : absolutePath) {
        const auto byte = static_cast<unsigned char>(character);
        if (Unreserved(byte)) {
            uri += character;
        } else {
            uri += '%';
            uri += kHex[byte >> 4];
            uri += kHex[byte & 0xF];
        }
    }
    return uri;
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
