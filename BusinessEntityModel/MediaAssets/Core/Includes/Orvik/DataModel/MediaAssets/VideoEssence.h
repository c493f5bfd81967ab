#pragma once

#include <Orvik/DataModel/MediaAssets/AspectRatio.h>
#include <Orvik/DataModel/MediaAssets/BitRateMode.h>
#include <Orvik/DataModel/MediaAssets/Boxing.h>
#include <Orvik/DataModel/MediaAssets/ChromaSubSampling.h>
#include <Orvik/DataModel/MediaAssets/ColorSpace.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Rate.h>
#include <Orvik/DataModel/MediaAssets/ScanMode.h>
#include <Orvik/DataModel/MediaAssets/VideoCodingFormat.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

namespace detail {
struct ComparisonOrder;
}  // namespace detail

/// A picture track: coding, bit rate, geometry, colour description, scan mode and framing.
///
/// Equal to another video essence when the base comparison (see Essence) holds and codec, bit
/// rate, bit rate mode, bit depth, frame rate (numerator, denominator), height, width, chroma
/// subsampling, colour space, scan mode, four-character code, aspect ratio (width, height factor)
/// and boxing are equal, in that order; never equal to another kind. Clone() behaves as Essence
/// documents. A new video essence has every field at zero, unknown or empty.
class VideoEssence : public Essence {
public:
    VideoEssence() : Essence(Essence::Video) {}
    VideoEssence(VideoEssence&& other) noexcept = default;
    VideoEssence& operator=(const VideoEssence& other) = default;
    VideoEssence& operator=(VideoEssence&& other) noexcept = default;
    ~VideoEssence() override = default;

    VideoCodingFormat VideoCodec() const { return videoCodec; }
    void VideoCodec(VideoCodingFormat value) { videoCodec = value; }
    int32_t BitRate() const { return bitRate; }
    void BitRate(int32_t value) { bitRate = value; }
    MediaAssets::BitRateMode BitRateMode() const { return bitRateMode; }
    void BitRateMode(MediaAssets::BitRateMode value) { bitRateMode = value; }
    int32_t BitDepth() const { return bitDepth; }
    void BitDepth(int32_t value) { bitDepth = value; }
    Rate FrameRate() const { return frameRate; }
    void FrameRate(Rate value) { frameRate = value; }
    int32_t Height() const { return height; }
    void Height(int32_t value) { height = value; }
    int32_t Width() const { return width; }
    void Width(int32_t value) { width = value; }
    MediaAssets::ChromaSubSampling ChromaSubSampling() const { return chromaSubSampling; }
    void ChromaSubSampling(MediaAssets::ChromaSubSampling value) { chromaSubSampling = value; }
    MediaAssets::ColorSpace ColorSpace() const { return colorSpace; }
    void ColorSpace(MediaAssets::ColorSpace value) { colorSpace = value; }
    MediaAssets::ScanMode ScanMode() const { return scanMode; }
    void ScanMode(MediaAssets::ScanMode value) { scanMode = value; }
    std::string FourCC() const { return fourCC; }
    void FourCC(const std::string& value) { fourCC = value; }
    const MediaAssets::AspectRatio& AspectRatio() const { return aspectRatio; }
    void AspectRatio(const MediaAssets::AspectRatio& value) { aspectRatio = value; }
    MediaAssets::Boxing Boxing() const { return boxing; }
    void Boxing(MediaAssets::Boxing value) { boxing = value; }

    bool operator==(const Essence& other) const override;
    std::unique_ptr<Essence> Clone() const override;

protected:
    VideoEssence(const VideoEssence& other) = default;

private:
    friend struct detail::ComparisonOrder;  // the comparison reads the fields without copies

    VideoCodingFormat videoCodec = VideoCodingFormat::unknown;
    int32_t bitRate = 0;
    MediaAssets::BitRateMode bitRateMode = MediaAssets::BitRateMode::unknown;
    int32_t bitDepth = 0;
    Rate frameRate;
    int32_t height = 0;
    int32_t width = 0;
    MediaAssets::ChromaSubSampling chromaSubSampling = MediaAssets::ChromaSubSampling::unknown;
    MediaAssets::ColorSpace colorSpace = MediaAssets::ColorSpace::unknown;
    MediaAssets::ScanMode scanMode = MediaAssets::ScanMode::unknown;
    std::string fourCC;
    MediaAssets::AspectRatio aspectRatio;
    MediaAssets::Boxing boxing = MediaAssets::Boxing::unknown;
};

}  // namespace Orvik::DataModel::MediaAssets
