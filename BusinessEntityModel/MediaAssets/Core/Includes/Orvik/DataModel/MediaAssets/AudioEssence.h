#pragma once

#include <Orvik/DataModel/MediaAssets/AudioCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/BitRateMode.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Rate.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

namespace detail {
struct ComparisonOrder;
}  // namespace detail

/// A sound track: codec, bit rate and its mode, sample rate, bit depth and four-character code.
///
/// Equal to another audio essence when the base comparison (see Essence) holds and codec, bit
/// rate, bit rate mode, sample rate (numerator, denominator), bit depth and four-character code
/// (byte for byte) are equal; never equal to another kind. Clone() behaves as Essence documents.
/// A new audio essence has every field at zero, unknown or empty.
class AudioEssence : public Essence {
public:
    AudioEssence() : Essence(Essence::Audio) {}
    AudioEssence(AudioEssence&& other) noexcept = default;
    AudioEssence& operator=(const AudioEssence& other) = default;
    AudioEssence& operator=(AudioEssence&& other) noexcept = default;

    AudioCodingFormat AudioCodec() const { return audioCodec; }
    void AudioCodec(AudioCodingFormat value) { audioCodec = value; }
    int32_t BitRate() const { return bitRate; }
    void BitRate(int32_t value) { bitRate = value; }
    MediaAssets::BitRateMode BitRateMode() const { return bitRateMode; }
    void BitRateMode(MediaAssets::BitRateMode value) { bitRateMode = value; }
    Rate SampleRate() const { return sampleRate; }
    void SampleRate(Rate value) { sampleRate = value; }
    int32_t BitDepth() const { return bitDepth; }
    void BitDepth(int32_t value) { bitDepth = value; }
    std::string FourCC() const { return fourCC; }
    void FourCC(const std::string& value) { fourCC = value; }

    bool operator==(const Essence& other) const override;
    std::unique_ptr<Essence> Clone() const override;

protected:
    AudioEssence(const AudioEssence& other) = default;

private:
    friend struct detail::ComparisonOrder;  // the comparison reads the fields without copies

    AudioCodingFormat audioCodec = AudioCodingFormat::unknown;
    int32_t bitRate = 0;
    MediaAssets::BitRateMode bitRateMode = MediaAssets::BitRateMode::unknown;
    Rate sampleRate;
    int32_t bitDepth = 0;
    std::string fourCC;
};

}  // namespace Orvik::DataModel::MediaAssets
