// Media asset groups and their items, tagged by their "kind" (the class): a group's "type" is a
// field of its own that any group may set.

#include "Codecs.h"
#include "Collections.h"
#include "FieldTable.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

constexpr std::string_view kGroupKind = "MediaAssetGroup";
constexpr std::string_view kAnglesGroupKind = "AnglesMediaAssetGroup";
constexpr std::string_view kItemKind = "MediaAssetGroupItem";
constexpr std::string_view kAnglesItemKind = "AnglesMediaAssetGroupItem";

// clang-format off
/// The members of every item, first in both items' tables.
template <typename I>
constexpr auto kItemFields = Fields(
    Field(kObjectId,
     [](Writer& w, const I& item) { w.Int(item.ObjectId()); },
     [](Reader& r, value& v, I& item) { item.ObjectId(r.Int64(v)); }),
    Field(kMediaAsset,
     [](Writer& w, const I& item) { w.String(item.MediaAsset().Id().Value()); },
     [](Reader& r, value& v, I& item) { item.MediaAsset(MediaAssetReference(MediaAssetId(r.Text(v)))); }));

constexpr auto kItemTable = MakeTable(kItemFields<MediaAssetGroupItem>);

constexpr auto kAnglesItemTable = MakeTable(kItemFields<AnglesMediaAssetGroupItem>, Fields(
    Field(kName,
     [](Writer& w, const AnglesMediaAssetGroupItem& item) { w.String(item.Name()); },
     [](Reader& r, value& v, AnglesMediaAssetGroupItem& item) { item.Name(r.Text(v)); })));
// clang-format on

void Write(Writer& w, const std::shared_ptr<MediaAssetGroupItem>& item)
{
    if (!item)
        w.Fail("expected a group item, found a null pointer");
    if (const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(item.get()))
        WriteTagged(w, kKind, kAnglesItemKind, kAnglesItemTable, *angles);
    else
        WriteTagged(w, kKind, kItemKind, kItemTable, *item);
}

std::shared_ptr<MediaAssetGroupItem> ReadItem(Reader& r, value& v)
{
    std::shared_ptr<MediaAssetGroupItem> result;
    r.Polymorphic(v, kKind, [&](std::string_view kind, Reader::Rest& rest) {
        if (kind == kItemKind)
            result = ReadInto(r, rest, kItemTable, std::make_shared<MediaAssetGroupItem>());
        else if (kind == kAnglesItemKind)
            result = ReadInto(r, rest, kAnglesItemTable, std::make_shared<AnglesMediaAssetGroupItem>(Utf8String()));
        else
            r.FailTag(kKind, Alternatives({kItemKind, kAnglesItemKind}), kind);
    });
    return result;
}

// clang-format off
constexpr auto kGroupTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const MediaAssetGroup& group) { w.Int(group.ObjectId()); },
     [](Reader& r, value& v, MediaAssetGroup& group) { group.ObjectId(r.Int64(v)); }),
    Field(kMetadata,
     [](Writer& w, const MediaAssetGroup& group) { Write(w, group.Metadata()); },
     [](Reader& r, value& v, MediaAssetGroup& group) { Read(r, v, group.Metadata()); }),
    Field(kId,
     [](Writer& w, const MediaAssetGroup& group) { w.String(group.Id().Value()); },
     [](Reader& r, value& v, MediaAssetGroup& group) { group.Id(MediaAssetGroupId(r.Text(v))); }),
    Field(kType,
     [](Writer& w, const MediaAssetGroup& group) { w.String(group.Type()); },
     [](Reader& r, value& v, MediaAssetGroup& group) { group.Type(r.Text(v)); }),
    Field(kName,
     [](Writer& w, const MediaAssetGroup& group) { w.String(group.Name()); },
     [](Reader& r, value& v, MediaAssetGroup& group) { group.Name(r.Text(v)); }),
    Field(kItems,
     [](Writer& w, const MediaAssetGroup& group) {
         w.Array(group.Items(), [&](const std::shared_ptr<MediaAssetGroupItem>& item) { Write(w, item); });
     },
     [](Reader& r, value& v, MediaAssetGroup& group) {
         ReadAppending<std::shared_ptr<MediaAssetGroupItem>>(r, v, group.Items(),
                                                             [&](value& element) { return ReadItem(r, element); });
     })));
// clang-format on

}  // namespace

void WriteMembers(Writer& w, const MediaAssetGroup& group)
{
    w.Key(kKind);
    w.String(dynamic_cast<const AnglesMediaAssetGroup*>(&group) != nullptr ? kAnglesGroupKind : kGroupKind);
    WriteFields(w, kGroupTable, group);
}

std::shared_ptr<MediaAssetGroup> ReadGroup(Reader& r, Reader::Rest& rest)
{
    std::shared_ptr<MediaAssetGroup> group;
    {
        const std::string kind = r.Tag(rest, kKind);
        if (kind == kAnglesGroupKind)
            group = std::make_shared<AnglesMediaAssetGroup>();
        else if (kind == kGroupKind)
            group = std::make_shared<MediaAssetGroup>(Identifier::Empty(), Utf8String());
        else
            r.FailTag(kKind, Alternatives({kGroupKind, kAnglesGroupKind}), kind);
    }
    ReadFields(r, rest, kGroupTable, *group);
    return group;
}

void AddGroupTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"mediaAssetGroupItem", NamesOf(kItemTable)});
    tables.push_back({"anglesMediaAssetGroupItem", NamesOf(kAnglesItemTable)});
    tables.push_back({"mediaAssetGroup", NamesOf(kGroupTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
