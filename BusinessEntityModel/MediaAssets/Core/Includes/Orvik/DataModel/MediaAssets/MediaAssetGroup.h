#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroupItem.h>

#include <memory>
#include <utility>
#include <vector>

namespace Orvik::DataModel::MediaAssets {

using MediaAssetGroupId = Identifier;
using MediaAssetGroupItemArray = std::vector<std::shared_ptr<MediaAssetGroupItem>>;

/// Several media assets gathered under one identity, for example the camera angles of one action.
///
/// Items are held by shared pointer in their stored order; a plain copy shares them (and the
/// metadata profiles). Items are looked up by the id of the asset they refer to: Find() gives
/// the first such item or end(); Asset(), ItemReference() and Item() throw std::runtime_error
/// "Orvik::DataModel::MediaAssets::MediaAssetGroup::<operation>: no item for asset " + id when
/// there is none.
///
/// Two groups are equal when metadata (by value), id, type, name and the items are; items are
/// compared by count and then pairwise in order through their virtual operator== (a null item is
/// never equal). objectId is not compared.
///
/// Failure guarantee: the copy constructor and setters are strong; copy assignment is member-wise and
/// basic.
class MediaAssetGroup : public PersistentObject {
public:
    MediaAssetGroup(const MediaAssetGroupId& id, const Utf8String& type) : id(id), type(type) {}
    MediaAssetGroup(const MediaAssetGroup&) = default;
    MediaAssetGroup(MediaAssetGroup&&) = default;
    MediaAssetGroup& operator=(const MediaAssetGroup&) = default;
    MediaAssetGroup& operator=(MediaAssetGroup&&) = default;
    virtual ~MediaAssetGroup() = default;

    bool operator==(const MediaAssetGroup& other) const;
    bool operator!=(const MediaAssetGroup& other) const { return !(*this == other); }

    const MediaAssetGroupId& Id() const { return id; }
    void Id(const MediaAssetGroupId& value) { id = value; }
    const Utf8String& Type() const { return type; }
    void Type(const Utf8String& value) { type = value; }
    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    MediaAssetGroupItemArray& Items() { return items; }
    const MediaAssetGroupItemArray& Items() const { return items; }
    void Items(const MediaAssetGroupItemArray& value) { items = value; }
    EditorialMetadata& Metadata() { return metadata; }
    const EditorialMetadata& Metadata() const { return metadata; }
    void Metadata(EditorialMetadata&& value) { metadata = std::move(value); }

    /// The first item that refers to the asset `assetId`, or Items().end().
    MediaAssetGroupItemArray::const_iterator Find(const MediaAssetGroupId& assetId) const;
    bool HasAsset(const MediaAssetGroupId& assetId) const { return Find(assetId) != items.end(); }
    /// The reference to the asset `assetId` held by its item.
    const MediaAssetReference& Asset(const MediaAssetGroupId& assetId) const;
    /// The item that refers to the asset `assetId`, shared with the group.
    const std::shared_ptr<MediaAssetGroupItem>& ItemReference(const MediaAssetGroupId& assetId) const;
    MediaAssetGroupItem& Item(const MediaAssetGroupId& assetId) const;

protected:
    bool AreItemsEqual(const MediaAssetGroup& other) const;

private:
    const std::shared_ptr<MediaAssetGroupItem>& Found(const char* operation, const MediaAssetGroupId& assetId) const;

    EditorialMetadata metadata;
    MediaAssetGroupId id;
    Utf8String type;
    Utf8String name;
    MediaAssetGroupItemArray items;
};

}  // namespace Orvik::DataModel::MediaAssets
