#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroupItem.h>

namespace Orvik::DataModel::MediaAssets {

/// A member of a multi-angle group: an asset and the name of its angle.
///
/// Equal to another angles item when the asset ids and then the names are; never equal to an
/// item of another kind. A plain MediaAssetGroupItem on the left of == looks at the asset ids
/// only, so it can be equal to an angles item that is not equal to it: this asymmetry is
/// intended.
class AnglesMediaAssetGroupItem : public MediaAssetGroupItem {
public:
    /// Explicit: a text is not an item.
    explicit AnglesMediaAssetGroupItem(const Utf8String& name) : name(name) {}
    /// Shares the asset with `asset`.
    AnglesMediaAssetGroupItem(const Utf8String& name, const MediaAssetReference& asset)
        : MediaAssetGroupItem(asset), name(name)
    {}

    bool operator==(const MediaAssetGroupItem& other) const override;
    bool operator==(const AnglesMediaAssetGroupItem& other) const;
    bool operator!=(const MediaAssetGroupItem& other) const override { return !(*this == other); }
    bool operator!=(const AnglesMediaAssetGroupItem& other) const { return !(*this == other); }

    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }

private:
    Utf8String name;
};

}  // namespace Orvik::DataModel::MediaAssets
