#include <Orvik/DataModel/MediaAssets/AudioCodingFormat.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<AudioCodingFormat>& GetConverter()
{
    static const StringAssociation<AudioCodingFormat> converter(
        {
            {AudioCodingFormat::unknown, "unknown"},
            {AudioCodingFormat::AAC, "AAC"},
            {AudioCodingFormat::Alaw, "Alaw"},
            {AudioCodingFormat::DolbyE, "DolbyE"},
            {AudioCodingFormat::MP1, "MP1"},
            {AudioCodingFormat::MP2, "MP2"},
            {AudioCodingFormat::MP3, "MP3"},
            {AudioCodingFormat::PCM, "PCM"},
            {AudioCodingFormat::WMA, "WMA"},
        },
        AudioCodingFormat::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(AudioCodingFormat value) { return GetConverter().ToString(value); }
AudioCodingFormat ToAudioCodingFormat(const std::string& text) { return GetConverter().ToEnum(text); }
AudioCodingFormat ToAudioCodingFormat(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
