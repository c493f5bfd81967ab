#pragma once

#include <Orvik/DataModel/MediaAssets/Essence.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets {

/// A data track. It has no fields of its own: two data essences are equal when the base
/// comparison (see Essence) says so. Clone() behaves as Essence documents.
class DataEssence : public Essence {
public:
    DataEssence() : Essence(Essence::Data) {}
    DataEssence(DataEssence&& other) noexcept = default;
    DataEssence& operator=(const DataEssence& other) = default;
    DataEssence& operator=(DataEssence&& other) noexcept = default;

    std::unique_ptr<Essence> Clone() const override;

protected:
    DataEssence(const DataEssence& other) = default;
};

}  // namespace Orvik::DataModel::MediaAssets
