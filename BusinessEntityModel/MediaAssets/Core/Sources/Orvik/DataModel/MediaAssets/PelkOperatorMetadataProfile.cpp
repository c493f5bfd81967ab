#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>

#include "EqualityVisitor.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the index in unsigned decimal and ".".
constexpr char kNegativeKeywordIndex[] = "Negative keyword index ";

/// The first `count` code points of `text`: each byte that is not a continuation byte (10xxxxxx)
/// starts one.
Utf8String FirstCharacters(const Utf8String& text, size_t count)
{
    size_t bytes = 0;
    for (size_t starts = 0; bytes < text.size(); ++bytes) {
        if ((static_cast<unsigned char>(text[bytes]) & 0xC0) != 0x80 && starts++ == count)
            break;
    }
    return text.substr(0, bytes);
}

}  // namespace

PelkOperatorMetadataProfile::PelkOperatorMetadataProfile(const MediaAssets::PelkId& id)
    : serverId(id.ServerId()), page(id.Page()), bank(id.Bank()), clip(id.Row()), camera(id.Camera())
{}

MediaAssets::FullyQualifiedName PelkOperatorMetadataProfile::StaticFullyQualifiedName()
{
    static const MediaAssets::FullyQualifiedName name("orvik.pelkoperator");
    return name;
}

MediaAssets::FullyQualifiedName PelkOperatorMetadataProfile::FullyQualifiedName() const
{
    return StaticFullyQualifiedName();
}

const std::vector<std::string>& PelkOperatorMetadataProfile::StaticKeys()
{
    static const std::vector<std::string> keys{"serverId",
                                               "page",
                                               "bank",
                                               "clip",
                                               "camera",
                                               "umId",
                                               "varId",
                                               "rating",
                                               "archiveStatus",
                                               "userTimecodeType",
                                               "primaryTimecode",
                                               "userTimecode",
                                               "todTimecode",
                                               "icon",
                                               "color",
                                               "fillAndKeyType",
                                               "fillAndKeyMediaAssetId",
                                               "keywords",
                                               "userProtected",
                                               "pelkUIProtected"};
    return keys;
}

const PelkOperatorMetadataProfile& PelkOperatorMetadataProfile::Empty()
{
    static const PelkOperatorMetadataProfile empty;
    return empty;
}

std::shared_ptr<MetadataProfile> PelkOperatorMetadataProfile::Clone() const
{
    return std::shared_ptr<MetadataProfile>(new PelkOperatorMetadataProfile(*this));
}

bool PelkOperatorMetadataProfile::Equals(const MetadataProfile& other) const { return detail::EqualInOrder(*this, other); }

MediaAssets::PelkId PelkOperatorMetadataProfile::PelkId() const
{
    return MediaAssets::PelkId(serverId, page, bank, clip, camera);
}

void PelkOperatorMetadataProfile::Keyword(size_t index, const Utf8String& keyword)
{
    if (index > static_cast<size_t>(std::numeric_limits<int32_t>::max()))
        throw std::invalid_argument(kNegativeKeywordIndex + std::to_string(index) + ".");
    Utf8String value = keyword;
    if (index >= keywords.size())
        keywords.resize(index + 1);
    keywords[index] = std::move(value);
}

Utf8String PelkOperatorMetadataProfile::Keyword(size_t index) const
{
    return index < keywords.size() ? keywords[index] : Utf8String();
}

PelkOperatorMetadataProfile::StringArray PelkOperatorMetadataProfile::Zan3Keywords() const
{
    StringArray slots;
    const size_t count = std::min(keywords.size(), slots.size());
    for (size_t i = 0; i < count; ++i)
        slots[i] = FirstCharacters(keywords[i], Zan3MaxKeywordLength);
    return slots;
}

void PelkOperatorMetadataProfile::Keywords(const Utf8String& text, const Utf8String& separator)
{
    StringVector pieces;
    if (!text.empty() && separator.empty()) {
        pieces.push_back(text);
    } else if (!text.empty()) {
        size_t start = 0;
        for (size_t found = text.find(separator); found != std::string::npos; found = text.find(separator, start)) {
            pieces.push_back(text.substr(start, found - start));
            start = found + separator.size();
        }
        pieces.push_back(text.substr(start));
    }
    keywords.swap(pieces);
}

bool PelkOperatorMetadataProfile::AnyKeyword() const
{
    return std::any_of(keywords.begin(), keywords.end(), [](const Utf8String& keyword) { return !keyword.empty(); });
}

bool PelkOperatorMetadataProfile::AnyKeyword(const Utf8String& keyword) const
{
    return std::find(keywords.begin(), keywords.end(), keyword) != keywords.end();
}

}  // namespace Orvik::DataModel::MediaAssets
