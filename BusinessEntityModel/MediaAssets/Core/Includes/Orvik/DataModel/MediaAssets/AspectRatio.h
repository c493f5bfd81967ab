#pragma once

#include <cstdint>

namespace Orvik::DataModel::MediaAssets {

/// The picture aspect ratio of a video essence as width and height factors (16:9). Compared
/// factor by factor: 16:9 and 32:18 differ. AspectRatio() and Empty() are 0:0, "not known".
class AspectRatio {
public:
    AspectRatio() = default;
    AspectRatio(int32_t widthFactor, int32_t heightFactor) : widthFactor(widthFactor), heightFactor(heightFactor) {}

    static AspectRatio Empty() { return AspectRatio(); }

    int32_t WidthFactor() const { return widthFactor; }
    void WidthFactor(int32_t value) { widthFactor = value; }
    int32_t HeightFactor() const { return heightFactor; }
    void HeightFactor(int32_t value) { heightFactor = value; }

    bool operator==(const AspectRatio& other) const
    {
        return widthFactor == other.widthFactor && heightFactor == other.heightFactor;
    }
    bool operator!=(const AspectRatio& other) const { return !(*this == other); }

private:
    int32_t widthFactor = 0;
    int32_t heightFactor = 0;
};

}  // namespace Orvik::DataModel::MediaAssets
