#pragma once

#include <string_view>

/// The member names of the JSON documents, one constant per name, as the codecs' tables of fields
/// write and read them. A caller that points into a document (a validator reporting a JSON
/// pointer, say) builds its pointers from these: `JsonPointer() / Members::kTracks / 2 / Members::kName`.
/// Which class has which member is documented in docs/guide.md and docs/schema.
namespace Orvik::DataModel::MediaAssets::Json::Members {

// clang-format off
inline constexpr std::string_view kAncestor = "ancestor";
inline constexpr std::string_view kAnnotations = "annotations";
inline constexpr std::string_view kArchiveStatus = "archiveStatus";
inline constexpr std::string_view kAspectRatio = "aspectRatio";
inline constexpr std::string_view kAssetType = "assetType";
inline constexpr std::string_view kAudioCodec = "audioCodec";
inline constexpr std::string_view kBank = "bank";
inline constexpr std::string_view kBitDepth = "bitDepth";
inline constexpr std::string_view kBitRate = "bitRate";
inline constexpr std::string_view kBitRateMode = "bitRateMode";
inline constexpr std::string_view kBoxing = "boxing";
inline constexpr std::string_view kCamera = "camera";
inline constexpr std::string_view kChannelCount = "channelCount";
inline constexpr std::string_view kChannelNr = "channelNr";
inline constexpr std::string_view kChannels = "channels";
inline constexpr std::string_view kChromaSubSampling = "chromaSubSampling";
inline constexpr std::string_view kClip = "clip";
inline constexpr std::string_view kColor = "color";
inline constexpr std::string_view kColorSpace = "colorSpace";
inline constexpr std::string_view kCreationDate = "creationDate";
inline constexpr std::string_view kData = "data";
inline constexpr std::string_view kDaxContentTrackId = "daxContentTrackId";
inline constexpr std::string_view kDaxPartitionId = "daxPartitionId";
inline constexpr std::string_view kDaxServerId = "daxServerId";
inline constexpr std::string_view kDaxUri = "daxUri";
inline constexpr std::string_view kDenominator = "denominator";
inline constexpr std::string_view kDescription = "description";
inline constexpr std::string_view kDuration = "duration";
inline constexpr std::string_view kElements = "elements";
inline constexpr std::string_view kEssenceNr = "essenceNr";
inline constexpr std::string_view kEssences = "essences";
inline constexpr std::string_view kFillAndKeyMediaAssetId = "fillAndKeyMediaAssetId";
inline constexpr std::string_view kFillAndKeyType = "fillAndKeyType";
inline constexpr std::string_view kFormat = "format";
inline constexpr std::string_view kFourCC = "fourCC";
inline constexpr std::string_view kFqn = "fqn";
inline constexpr std::string_view kFrameRate = "frameRate";
inline constexpr std::string_view kGeneralFormat = "generalFormat";
inline constexpr std::string_view kHasDate = "hasDate";
inline constexpr std::string_view kHeight = "height";
inline constexpr std::string_view kHeightFactor = "heightFactor";
inline constexpr std::string_view kIcon = "icon";
inline constexpr std::string_view kId = "id";
inline constexpr std::string_view kInBoundary = "inBoundary";
inline constexpr std::string_view kIsDrop = "isDrop";
inline constexpr std::string_view kIsMoving = "isMoving";
inline constexpr std::string_view kIsReadOnly = "isReadOnly";
inline constexpr std::string_view kItems = "items";
inline constexpr std::string_view kKeywords = "keywords";
inline constexpr std::string_view kKind = "kind";
inline constexpr std::string_view kLastAccessDate = "lastAccessDate";
inline constexpr std::string_view kLocations = "locations";
inline constexpr std::string_view kMediaAsset = "mediaAsset";
inline constexpr std::string_view kMediaResources = "mediaResources";
inline constexpr std::string_view kMetadata = "metadata";
inline constexpr std::string_view kModificationDate = "modificationDate";
inline constexpr std::string_view kName = "name";
inline constexpr std::string_view kNr = "nr";
inline constexpr std::string_view kNumerator = "numerator";
inline constexpr std::string_view kObjectId = "objectId";
inline constexpr std::string_view kOutBoundary = "outBoundary";
inline constexpr std::string_view kPage = "page";
inline constexpr std::string_view kParent = "parent";
inline constexpr std::string_view kPelkUIProtected = "pelkUIProtected";
inline constexpr std::string_view kPhysicalTimebounds = "physicalTimebounds";
inline constexpr std::string_view kPointer = "pointer";
inline constexpr std::string_view kPrimaryTimecode = "primaryTimecode";
inline constexpr std::string_view kRate = "rate";
inline constexpr std::string_view kRating = "rating";
inline constexpr std::string_view kSampleRate = "sampleRate";
inline constexpr std::string_view kScanMode = "scanMode";
inline constexpr std::string_view kSchema = "schema";
inline constexpr std::string_view kSequenceId = "sequenceId";
inline constexpr std::string_view kServerId = "serverId";
inline constexpr std::string_view kSize = "size";
inline constexpr std::string_view kStandard = "standard";
inline constexpr std::string_view kStream = "stream";
inline constexpr std::string_view kStreamId = "streamId";
inline constexpr std::string_view kStreams = "streams";
inline constexpr std::string_view kTimeBounds = "timeBounds";
inline constexpr std::string_view kTimebounds = "timebounds";
inline constexpr std::string_view kTimeCode = "timeCode";
inline constexpr std::string_view kTimeCodeJumpItems = "timeCodeJumpItems";
inline constexpr std::string_view kTimecodes = "timecodes";
inline constexpr std::string_view kTimePoint = "timePoint";
inline constexpr std::string_view kTodTimecode = "todTimecode";
inline constexpr std::string_view kTotalSample = "totalSample";
inline constexpr std::string_view kTrackChannels = "trackChannels";
inline constexpr std::string_view kTrackId = "trackId";
inline constexpr std::string_view kTrackLayoutItems = "trackLayoutItems";
inline constexpr std::string_view kTrackLayouts = "trackLayouts";
inline constexpr std::string_view kTracks = "tracks";
inline constexpr std::string_view kType = "type";
inline constexpr std::string_view kUmId = "umId";
inline constexpr std::string_view kUri = "uri";
inline constexpr std::string_view kUserProtected = "userProtected";
inline constexpr std::string_view kUserTimecode = "userTimecode";
inline constexpr std::string_view kUserTimecodeType = "userTimecodeType";
inline constexpr std::string_view kVarId = "varId";
inline constexpr std::string_view kVersion = "version";
inline constexpr std::string_view kVideoCodec = "videoCodec";
inline constexpr std::string_view kWidth = "width";
inline constexpr std::string_view kWidthFactor = "widthFactor";
// clang-format on

}  // namespace Orvik::DataModel::MediaAssets::Json::Members
