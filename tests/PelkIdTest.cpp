// The operator's clip identifiers, their camera letters as text and server serial numbers, and the
// conversions that callers' code relies on: it must compile, and the calls that could mean two
// things must not.

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>
#include <Orvik/DataModel/MediaAssets/Utils/CameraText.h>
#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>
#include <Orvik/DataModel/MediaAssets/Utils/ZanServerId.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

static_assert(std::is_convertible_v<std::string, TimeCodeString>);
static_assert(std::is_convertible_v<MediaResourceReference, bool>);
static_assert(std::is_convertible_v<int, ZanServerId>);
static_assert(!std::is_convertible_v<std::string, ZanServerId>, "reading a serial number may throw");
static_assert(!std::is_convertible_v<int, PelkId>);
static_assert(!std::is_convertible_v<MediaAssetId, MediaAsset>);
static_assert(!std::is_convertible_v<int64_t, TimePoint>);
static_assert(!std::is_convertible_v<int64_t, Duration>);
// Where an int could be a server or a page and a number could be a camera or a position, either
// reading is possible, so the call does not compile.
static_assert(!std::is_constructible_v<PelkId, int, int, char>);
static_assert(!std::is_constructible_v<PelkId, int, int>);
static_assert(!std::is_constructible_v<PelkId, int, int, int, int>);

static_assert(PelkId::Empty() == PelkId(ZanServerId(), 255, 255, 255, '\0'),
              "the empty identifier is a compile-time constant");

namespace {

// What each parser makes of a text: the identifier printed by ToString(), or the error.
struct Verdict {
    const char* text;
    const char* strict;    // FromUri: ToString() of the result, or the exception message
    const char* tolerant;  // TryParse: ToString() of the result, or nullptr for false
    int serialNumber;      // what TryParse reports
};

constexpr Verdict kVerdicts[] = {
    {"123", "123/0", nullptr, 0},                                                     // no camera
    {"023A/120", "023A/120", "023A/120", 120},                                        // with server
    {"103A", "Invalid uri '103A'.", nullptr, 0},                                      // bank 0
    {"123M", "Invalid uri '123M'.", nullptr, 0},                                      // camera past L
    {"123a", "Invalid uri '123a'.", nullptr, 0},                                      // lower-case camera
    {"123A/125", "Invalid server serial number '125'.", "123A/0", 125},               // not a multiple of 10
    {"123A/120xyz", "123A/120", "123A/120", 120},                                     // trailing text ignored
    {"123AX120", "123A/0", nullptr, 0},                                               // text after the camera
    {"12", "Invalid uri '12'.", nullptr, 0},                                          // too short
    {"1x3A", "Invalid uri '1x3A'.", nullptr, 0},                                      // not a digit
    {"103A/125", "Invalid server serial number '125'.", nullptr, 0},                  // server checked before ranges
    {"123A/ 120", "123A/120", nullptr, 0},                                            // blank: stream extraction skips it
    {"123A/-10", "Invalid server serial number '-10'.", nullptr, 0},                  // sign
    {"123A/0", "Invalid server serial number '0'.", "123A/0", 0},                     // no server
    {"123A/", "Invalid server serial number ''.", nullptr, 0},                        // nothing after the slash
    {"123A/99999999990", "Invalid server serial number '99999999990'.", nullptr, 0},  // overflow
    {"123A", "123A/0", "123A/0", 0},
    {"999L", "999L/0", "999L/0", 0},
};

// A camera and its text, both ways: every byte is one code point, up to U+00FF.
struct CameraCase {
    char camera;
    const char* text;
};

constexpr CameraCase kCameras[] = {
    {'\0', ""},            // no camera
    {'A', "A"},            // a valid one
    {'\x7F', "\x7F"},      // the last one-byte code point
    {'\xE9', "\xC3\xA9"},  // U+00E9, two bytes
    {'\xFF', "\xC3\xBF"},  // U+00FF, the last
};

std::string Strictly(const std::string& text)
{
    try {
        return PelkId::FromUri(text).ToString();
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
}

}  // namespace

TEST(PelkIdParsers, StrictAndTolerantFormsDisagreeOnlyWhereIntended)
{
    for (const auto& row : kVerdicts) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(Strictly(row.text), row.strict);
        PelkId id;
        int serialNumber = -1;
        const bool accepted = PelkId::TryParse(row.text, id, serialNumber);
        EXPECT_EQ(accepted, row.tolerant != nullptr);
        if (accepted) {
            EXPECT_EQ(id.ToString(), row.tolerant);
        }
        EXPECT_EQ(serialNumber, row.serialNumber);
    }
}

TEST(PelkIdTryParse, FailureMayLeaveTheFieldsReadButNeverTheServer)
{
    PelkId id(ZanServerId(30), 1, 1, 1, 'B');
    EXPECT_FALSE(PelkId::TryParse("456CX", id));
    EXPECT_EQ(id.ToString(), "456C/30");
}

TEST(PelkIdText, WrapsUnsetAndOutOfRangeFieldsInEightBits)
{
    EXPECT_EQ(PelkId::Empty().ToString(), "////0");
    EXPECT_TRUE(PelkId().IsEmpty());
    EXPECT_EQ(PelkId(ZanServerId(120), 1, 2, 3, 'B').ToString(), "123B/120");
    EXPECT_EQ(PelkId(1, 2, 3).ToShortString(), "123");
    EXPECT_EQ(PelkId(ZanServerId(-10), 1, 2, 3).ToString(), "123/-10");
    const PelkId wrapped(10, 2, 3, 'A');
    EXPECT_EQ(wrapped.ToShortString(), ":23A");
    EXPECT_FALSE(wrapped.IsValid());
}

TEST(PelkIdPosition, SplitsIntoPageBankAndRow)
{
    const PelkId id(456, 'C');
    EXPECT_EQ((std::vector<int>{id.Page(), id.Bank(), id.Row(), id.Position(), id.Channel(), id.Index()}),
              (std::vector<int>{4, 5, 6, 456, 3, 456 * 12 + 2}));
    EXPECT_NE(id, PelkId(456, 'D'));
}

TEST(CameraText, EveryByteIsOneCodePointUpToU00FFAndBack)
{
    for (const auto& row : kCameras) {
        SCOPED_TRACE(static_cast<int>(static_cast<unsigned char>(row.camera)));
        EXPECT_EQ(CameraText(row.camera), row.text);
        char camera = 'X';
        EXPECT_TRUE(CameraFromText(row.text, camera));
        EXPECT_EQ(camera, row.camera);
    }
    // Two characters, a code point past U+00FF, a lead byte alone, a byte that is not UTF-8.
    for (const char* text : {"AB", "\xC4\x80", "\xC3", "\xE9"}) {
        SCOPED_TRACE(text);
        char camera = 'X';
        EXPECT_FALSE(CameraFromText(text, camera));
        EXPECT_EQ(camera, 'X') << "left as it was";
    }
    EXPECT_EQ(ValidCamerasText(), "'A' to 'L'");
}

TEST(ZanServerIdText, AcceptsOnlyValidSerialNumbersInDecimal)
{
    ZanServerId serverId(70);
    EXPECT_TRUE(ZanServerId::TryParse("120", serverId));
    EXPECT_EQ(serverId.SerialNumber(), 120);
    for (const char* text : {"", "0", "125", "-10", " 120", "120 ", "12a", "99999999990"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(ZanServerId::TryParse(text, serverId));
        EXPECT_EQ(serverId.SerialNumber(), 120);
        EXPECT_THAT(
            [&] { ZanServerId::Parse(text); },
            ThrowsMessage<std::invalid_argument>(StrEq(std::string("Invalid server serial number '") + text + "'.")));
    }
    EXPECT_EQ(ZanServerId("40").ToString(), "40");
}

TEST(PublishedConversions, ReferenceReadsAsLoadedOrNot)
{
    const MediaResourceReference byId(MediaResourceId("r1"));
    EXPECT_FALSE(MediaResourceReference());
    EXPECT_TRUE(byId);
    EXPECT_TRUE(MediaResourceReference(std::make_shared<MediaResource>(MediaResourceId("r2"))));
    EXPECT_TRUE(byId == Identifier("r1")) << "a reference meets an identifier by its id, not as a boolean";
}

TEST(PublishedConversions, SerialNumberGoesWhereAServerIsExpected)
{
    ZanLocation location(120, "A7F3");
    EXPECT_EQ(location.Uri().Value(), "120/A7F3");
    location.ServerId(130);
    EXPECT_EQ(location.ServerId(), ZanServerId(130));

    EXPECT_EQ(PelkId(120, 1, 2, 3, 'B').ToString(), "123B/120");
    EXPECT_EQ(PelkId(ZanServerId(120), 456).ToString(), "456/120");
    EXPECT_EQ(PelkId(4, 5, 6, 'B').ToString(), "456B/0");
    EXPECT_EQ(PelkId(456, 'B').ToString(), "456B/0");
}
