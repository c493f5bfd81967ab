#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// Colours packed in 32 bits as 0xAARRGGBB: alpha in the highest byte, then red, green, blue.
/// NotSet is the only constant with zero alpha: a colour not chosen, distinct from Black.
///
/// The text form is "#AARRGGBB" with eight hexadecimal digits, written in upper case and read in
/// either case. TryParse refuses any other text (answering false, the colour unchanged); Parse
/// throws std::invalid_argument "Invalid color '" + text + "'." for it.
class Color {
public:
    static constexpr uint32_t NotSet = 0x00000000;
    static constexpr uint32_t Black = 0xFF000000;
    static constexpr uint32_t Red = 0xFFFF0000;
    static constexpr uint32_t Green = 0xFF00FF00;
    static constexpr uint32_t Blue = 0xFF0000FF;
    static constexpr uint32_t Cyan = 0xFF00FFFF;
    static constexpr uint32_t Yellow = 0xFFFFFF00;
    static constexpr uint32_t Magenta = 0xFFFF00FF;
    static constexpr uint32_t White = 0xFFFFFFFF;

    Color() = delete;

    /// Packs alpha, red, green and blue (each taken modulo 256).
    static uint32_t Make(uint32_t alpha, uint32_t red, uint32_t green, uint32_t blue)
    {
        return (alpha & 0xFF) << 24 | (red & 0xFF) << 16 | (green & 0xFF) << 8 | (blue & 0xFF);
    }
    /// An opaque colour from red, green and blue.
    static uint32_t Make(uint32_t red, uint32_t green, uint32_t blue) { return Make(0xFF, red, green, blue); }

    static uint8_t GetAlpha(uint32_t color) { return static_cast<uint8_t>(color >> 24); }
    static uint8_t GetRed(uint32_t color) { return static_cast<uint8_t>(color >> 16); }
    static uint8_t GetGreen(uint32_t color) { return static_cast<uint8_t>(color >> 8); }
    static uint8_t GetBlue(uint32_t color) { return static_cast<uint8_t>(color); }

    static std::string ToString(uint32_t color);
    static bool TryParse(const std::string& text, uint32_t& color);
    static uint32_t Parse(const std::string& text);
};

}  // namespace Orvik::DataModel::MediaAssets
