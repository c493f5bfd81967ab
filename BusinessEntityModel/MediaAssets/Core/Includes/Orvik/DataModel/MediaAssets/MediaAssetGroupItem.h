#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include <utility>

namespace Orvik::DataModel::MediaAssets {

/// A member of a media asset group: a reference to one asset.
///
/// Two items are equal when their asset ids are; the referenced assets, the pointers and
/// objectId are not compared. Derived item kinds compare their own fields too, so comparing a
/// plain item with a derived one can depend on which side the call is made from.
class MediaAssetGroupItem : public PersistentObject {
public:
    MediaAssetGroupItem() = default;
    /// Explicit: a reference is not an item; an implicit conversion would let `item == reference` compile.
    explicit MediaAssetGroupItem(const MediaAssetReference& asset) : mediaAsset(asset) {}
    virtual ~MediaAssetGroupItem() = default;

    virtual bool operator==(const MediaAssetGroupItem& other) const;
    virtual bool operator!=(const MediaAssetGroupItem& other) const { return !(*this == other); }

    const MediaAssetReference& MediaAsset() const { return mediaAsset; }
    void MediaAsset(const MediaAssetReference& value) { mediaAsset = value; }
    void MediaAsset(MediaAssetReference&& value) { mediaAsset = std::move(value); }

protected:
    MediaAssetGroupItem(const MediaAssetGroupItem&) = default;
    MediaAssetGroupItem(MediaAssetGroupItem&&) = default;
    MediaAssetGroupItem& operator=(const MediaAssetGroupItem&) = default;
    MediaAssetGroupItem& operator=(MediaAssetGroupItem&&) = default;

private:
    MediaAssetReference mediaAsset;
};

}  // namespace Orvik::DataModel::MediaAssets
