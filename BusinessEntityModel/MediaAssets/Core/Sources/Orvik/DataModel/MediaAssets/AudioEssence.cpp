#include <Orvik/DataModel/MediaAssets/AudioEssence.h>

namespace Orvik::DataModel::MediaAssets {

bool AudioEssence::operator==(const Essence& other) const
{
    if (!Essence::operator==(other))  // false for every other kind
        return false;
    const auto& rhs = static_cast<const AudioEssence&>(other);
    return audioCodec == rhs.audioCodec && bitRate == rhs.bitRate && bitRateMode == rhs.bitRateMode
        && sampleRate.Numerator() == rhs.sampleRate.Numerator()
        && sampleRate.Denominator() == rhs.sampleRate.Denominator() && bitDepth == rhs.bitDepth
        && fourCC == rhs.fourCC;
}

std::unique_ptr<Essence> AudioEssence::Clone() const
{
    // Owned at once, so a throw below frees it; the copy constructor is protected, hence `new`.
    std::unique_ptr<AudioEssence> copy(new AudioEssence(*this));
    copy->CloneContentsFrom(*this);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
