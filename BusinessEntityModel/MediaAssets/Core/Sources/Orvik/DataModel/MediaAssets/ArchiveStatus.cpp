#include <Orvik/DataModel/MediaAssets/ArchiveStatus.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<ArchiveStatus>& GetConverter()
{
    static const StringAssociation<ArchiveStatus> converter(
        {
            {ArchiveStatus::None, "None"},
            {ArchiveStatus::ToArchive, "ToArchive"},
            {ArchiveStatus::Archived, "Archived"},
        },
        ArchiveStatus::None);
    return converter;
}

}  // namespace

const std::string& ToString(ArchiveStatus value) { return GetConverter().ToString(value); }
ArchiveStatus ToArchiveStatus(const std::string& text) { return GetConverter().ToEnum(text); }
ArchiveStatus ToArchiveStatus(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
