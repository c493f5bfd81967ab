// Every enumeration of the model against its published texts, listed by their published numbers.

#include <Orvik/DataModel/MediaAssets.h>

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;

namespace {

// The words of `list` in order: text i is the text of the value numbered i.
std::vector<std::string> Texts(const std::string& list)
{
    std::istringstream words(list);
    return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

// Value i prints as text i and text i parses to value i (`failed` false). A number outside the
// list prints as text 0; a text outside the list (empty, padded, in another case) parses to
// value 0 with `failed` true.
template <typename E, typename Print, typename Parse, typename ParseFailed>
void ExpectPublishedTexts(const std::vector<std::string>& texts, Print print, Parse parse, ParseFailed parseFailed)
{
    const auto number = [](E value) { return static_cast<int>(value); };  // printable on failure
    for (size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(texts[i]);
        EXPECT_EQ(print(static_cast<E>(i)), texts[i]);
        EXPECT_EQ(number(parse(texts[i])), static_cast<int>(i));
        bool failed = true;
        EXPECT_EQ(number(parseFailed(texts[i], failed)), static_cast<int>(i));
        EXPECT_FALSE(failed);
    }
    EXPECT_EQ(print(static_cast<E>(texts.size())), texts[0]) << "first number past the end";
    EXPECT_EQ(print(static_cast<E>(-1)), texts[0]);
    std::string otherCase = texts.back();
    otherCase[0] = static_cast<char>(std::isupper(static_cast<unsigned char>(otherCase[0])) ? std::tolower(otherCase[0])
                                                                                            : std::toupper(otherCase[0]));
    for (const std::string& text : {std::string(), " " + texts.back(), texts.back() + " ", otherCase}) {
        SCOPED_TRACE("'" + text + "'");
        EXPECT_EQ(number(parse(text)), 0);
        bool failed = false;
        EXPECT_EQ(number(parseFailed(text, failed)), 0);
        EXPECT_TRUE(failed);
    }
}

}  // namespace

// For an enumeration E of the model's namespace, with ToString(E), ToE(text) and ToE(text, failed).
#define EXPECT_PUBLISHED_TEXTS(E, texts)                                                                                    \
    ExpectPublishedTexts<E>(                                                                                                \
        texts, [](E value) { return ToString(value); }, [](const std::string& text) { return To##E(text); },                \
        [](const std::string& text, bool& failed) { return To##E(text, failed); })

// For the type C::Type of a class C, with C::ToString(Type), C::ToType(text) and C::ToType(text, failed).
#define EXPECT_PUBLISHED_TYPE_TEXTS(C, texts)                                                                               \
    ExpectPublishedTexts<C::Type>(                                                                                          \
        texts, [](C::Type type) { return C::ToString(type); }, [](const std::string& text) { return C::ToType(text); },     \
        [](const std::string& text, bool& failed) { return C::ToType(text, failed); })

TEST(EnumerationTexts, EveryEnumerationPublishesItsTextsByNumber)
{
    EXPECT_PUBLISHED_TEXTS(
        WrapperFormat,
        Texts("unknown AIFF ASF AVI BDAVMPEGTS BWAVE DCP ORVIKMPEGMultistream ORVIKMXF ORVIKZAN HLS ISO_BMFF MP4 MPEGDASH "
              "MPEGPS MPEGTS MXFOP1a MXFOP1a_AFN100 MXFOP1a_ARDZDFHDF MXFOP1a_AS11UKDPP MXFOP1a_SonyXAVC "
              "MXFOP1a_SonyXDCAMSxS MXFOP1a_SonyXDCAM MXFOP1b MXFOPAtom_Avid MXFOPAtom_P2 QuickTime QuickTimeRef RAW R3D "
              "SmoothStreaming VOB WAVE WebM DaxContentTrack MPEGDASH_Index"));
    EXPECT_PUBLISHED_TEXTS(
        VideoCodingFormat,
        Texts("unknown AppleProRes422 AppleProRes422HQ AppleProRes422LT AppleProRes422Proxy AppleProRes4444 "
              "AppleProRes4444XQ AppleQuickTimeRLE AvidDNxHDLow AvidDNxHDHigh AvidDNxHDHigh10b BMP CameraRaw DPX DV25 "
              "DVCPRO DVCPRO50 DVCPROHD ORVIKCGTemplate ORVIKKM ORVIKMJPEG GXFillAndKey H264 H265 JPEG JPEG2000 MJPEG MPEG1 "
              "MPEG2 MPEG4 PanasonicAVCIntraHD100 PanasonicAVCIntraHD50 PanasonicAVCLongG PNG Raw REDCODERaw SGI SonyIMX30 "
              "SonyIMX40 SonyIMX50 SonyXAVCLongGOP SonyXAVCIntra4K100 SonyXAVCIntra4K300 SonyXAVCIntra4K480 "
              "SonyXAVCIntraHD100 SonyXAVCIntraHD200 SonyXAVCIntraHD50 SonyXDCAMEX SonyXDCAMHD TIFF TGA VC1 VP8 VP9"));
    EXPECT_PUBLISHED_TEXTS(AudioCodingFormat, Texts("unknown AAC Alaw DolbyE MP1 MP2 MP3 PCM WMA"));
    EXPECT_PUBLISHED_TEXTS(ResourceFormat, Texts("unknown ToBeDefined"));
    EXPECT_PUBLISHED_TEXTS(BitRateMode, Texts("unknown cbr vbr"));
    EXPECT_PUBLISHED_TEXTS(ChromaSubSampling, Texts("unknown CS_444 CS_422 CS_421 CS_411 CS_420 CS_410 CS_311"));
    EXPECT_PUBLISHED_TEXTS(ColorSpace, Texts("unknown BT709 BT601 BT601_JPEG BT2020 FCC SMPTE_170M SMPTE_240M SRGB"));
    EXPECT_PUBLISHED_TEXTS(ScanMode, Texts("unknown progressive interlaced"));
    EXPECT_PUBLISHED_TEXTS(FieldOrdering, Texts("unknown top bottom"));
    EXPECT_PUBLISHED_TEXTS(Boxing,
                           Texts("unknown topaligned wide fullframe pillarbox letterbox window protect14x9 protect4x3"));
    EXPECT_PUBLISHED_TEXTS(FillAndKeyType, Texts("unknown fill key"));
    EXPECT_PUBLISHED_TEXTS(AnnotationType, Texts("unknown CuePoint"));
    EXPECT_PUBLISHED_TEXTS(ArchiveStatus, Texts("None ToArchive Archived"));
    EXPECT_PUBLISHED_TEXTS(AssetType, Texts("unknown train media"));
    EXPECT_PUBLISHED_TEXTS(TimecodePrimary, Texts("NotSet Tod User"));
    EXPECT_PUBLISHED_TEXTS(TimeCodeStandard, Texts("NotSet smpte.pal.25 smpte.ntsc.30.drop smpte.ntsc.30.nodrop"));
    EXPECT_PUBLISHED_TEXTS(UserTimecodeType, Texts("HancVitc HancLtc AnalLtc"));
}

TEST(EnumerationTexts, RepeatedCallsReturnTheSameStringObject)
{
    EXPECT_EQ(&ToString(VideoCodingFormat::H264), &ToString(VideoCodingFormat::H264));
    EXPECT_EQ(&ToString(static_cast<ScanMode>(42)), &ToString(ScanMode::unknown));
}

TEST(EnumerationTexts, NestedTypesConvertThroughTheirClass)
{
    EXPECT_PUBLISHED_TYPE_TEXTS(Essence, Texts("Audio Data Video"));
    EXPECT_PUBLISHED_TYPE_TEXTS(Location, Texts("FileLocation DaxContentTrackLocation DaxProtectLocation ZanLocation"));
}
