#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

namespace Orvik::DataModel::MediaAssets {

bool VideoEssence::operator==(const Essence& other) const
{
    if (!Essence::operator==(other))  // false for every other kind
        return false;
    const auto& rhs = static_cast<const VideoEssence&>(other);
    return videoCodec == rhs.videoCodec && bitRate == rhs.bitRate && bitRateMode == rhs.bitRateMode
        && bitDepth == rhs.bitDepth && frameRate.Numerator() == rhs.frameRate.Numerator()
        && frameRate.Denominator() == rhs.frameRate.Denominator() && height == rhs.height && width == rhs.width
        && chromaSubSampling == rhs.chromaSubSampling && colorSpace == rhs.colorSpace && scanMode == rhs.scanMode
        && fourCC == rhs.fourCC && aspectRatio.WidthFactor() == rhs.aspectRatio.WidthFactor()
        && aspectRatio.HeightFactor() == rhs.aspectRatio.HeightFactor() && boxing == rhs.boxing;
}

std::unique_ptr<Essence> VideoEssence::Clone() const
{
    std::unique_ptr<VideoEssence> copy(new VideoEssence(*this));
    copy->CloneContentsFrom(*this);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
