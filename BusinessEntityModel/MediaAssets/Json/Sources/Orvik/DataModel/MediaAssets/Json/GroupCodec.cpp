// Media asset groups and their items, tagged by their "kind" (the class): a group's "type" is a
// field of its own that any group may set.

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr char kGroupKind[] = "MediaAssetGroup";
constexpr char kAnglesGroupKind[] = "AnglesMediaAssetGroup";
constexpr char kItemKind[] = "MediaAssetGroupItem";
constexpr char kAnglesItemKind[] = "AnglesMediaAssetGroupItem";

constexpr auto kGroupMembers = MemberNames("objectId", "metadata", "id", "type", "name", "items");
constexpr auto kItemMembers = MemberNames("objectId", "mediaAsset");
constexpr auto kAnglesItemMembers = MemberNames("objectId", "mediaAsset", "name");

void Write(Writer& w, const std::shared_ptr<MediaAssetGroupItem>& item)
{
    if (!item)
        w.Fail("expected a group item, found a null pointer");
    const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(item.get());
    w.StartObject();
    w.String("kind", angles != nullptr ? kAnglesItemKind : kItemKind);
    w.Int("objectId", item->ObjectId());
    w.String("mediaAsset", item->MediaAsset().Id().Value());
    if (angles != nullptr)
        w.String("name", angles->Name());
    w.EndObject();
}

std::shared_ptr<MediaAssetGroupItem> ReadItem(Reader& r, value v)
{
    std::shared_ptr<MediaAssetGroupItem> result;
    r.Polymorphic(v, "kind", [&](std::string_view kind, Reader::Rest& rest) {
        if (kind == kItemKind) {
            auto item = std::make_shared<MediaAssetGroupItem>();
            r.ReadRest(rest, kItemMembers, [&](size_t index, value member) {
                if (index == 0)
                    item->ObjectId(r.Int64(member));
                else
                    item->MediaAsset(MediaAssetReference(MediaAssetId(r.Text(member))));
            });
            result = std::move(item);
        } else if (kind == kAnglesItemKind) {
            auto item = std::make_shared<AnglesMediaAssetGroupItem>(Utf8String());
            r.ReadRest(rest, kAnglesItemMembers, [&](size_t index, value member) {
                if (index == 0)
                    item->ObjectId(r.Int64(member));
                else if (index == 1)
                    item->MediaAsset(MediaAssetReference(MediaAssetId(r.Text(member))));
                else
                    item->Name(r.Text(member));
            });
            result = std::move(item);
        } else {
            const PathSegment segment(r.CurrentPath(), "kind");
            r.Fail(std::string("expected \"") + kItemKind + "\" or \"" + kAnglesItemKind + "\", found \"" + std::string(kind)
                   + "\"");
        }
    });
    return result;
}

}  // namespace

void WriteMembers(Writer& w, const MediaAssetGroup& group)
{
    w.String("kind", dynamic_cast<const AnglesMediaAssetGroup*>(&group) != nullptr ? kAnglesGroupKind : kGroupKind);
    w.Int("objectId", group.ObjectId());
    w.Member("metadata", [&] { Write(w, group.Metadata()); });
    w.String("id", group.Id().Value());
    w.String("type", group.Type());
    w.String("name", group.Name());
    w.Array("items", group.Items(), [&](const std::shared_ptr<MediaAssetGroupItem>& item) { Write(w, item); });
}

std::shared_ptr<MediaAssetGroup> ReadGroup(Reader& r, Reader::Rest& rest)
{
    std::shared_ptr<MediaAssetGroup> group;
    {
        const std::string kind = r.Tag(rest, "kind");
        if (kind == kAnglesGroupKind) {
            group = std::make_shared<AnglesMediaAssetGroup>();
        } else if (kind == kGroupKind) {
            group = std::make_shared<MediaAssetGroup>(Identifier::Empty(), Utf8String());
        } else {
            const PathSegment segment(r.CurrentPath(), "kind");
            r.Fail(std::string("expected \"") + kGroupKind + "\" or \"" + kAnglesGroupKind + "\", found \"" + kind + "\"");
        }
    }
    r.ReadRest(rest, kGroupMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            group->ObjectId(r.Int64(member));
            break;
        case 1:
            Read(r, member, group->Metadata());
            break;
        case 2:
            group->Id(MediaAssetGroupId(r.Text(member)));
            break;
        case 3:
            group->Type(r.Text(member));
            break;
        case 4:
            group->Name(r.Text(member));
            break;
        default:
            ReadAppending<std::shared_ptr<MediaAssetGroupItem>>(r, member, group->Items(),
                                                                [&](value element) { return ReadItem(r, element); });
        }
    });
    return group;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
