#include <Orvik/DataModel/MediaAssets/Color.h>

#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the refused text and "'.".
constexpr char kInvalidColor[] = "Invalid color '";
constexpr char kDigits[] = "0123456789ABCDEF";

int DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return -1;
}

}  // namespace

std::string Color::ToString(uint32_t color)
{
    std::string text(9, '#');
    for (int i = 8; i >= 1; --i, color >>= 4)
        text[static_cast<size_t>(i)] = kDigits[color & 0xF];
    return text;
}

bool Color::TryParse(const std::string& text, uint32_t& color)
{
    if (text.size() != 9 || text[0] != '#')
        return false;
    uint32_t value = 0;
    for (size_t i = 1; i < text.size(); ++i) {
        const int digit = DigitValue(text[i]);
        if (digit < 0)
            return false;
        value = value << 4 | static_cast<uint32_t>(digit);
    }
    color = value;
    return true;
}

uint32_t Color::Parse(const std::string& text)
{
    uint32_t color = NotSet;
    if (!TryParse(text, color))
        throw std::invalid_argument(kInvalidColor + text + "'.");
    return color;
}

}  // namespace Orvik::DataModel::MediaAssets
