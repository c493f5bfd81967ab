#pragma once

#include <cstdint>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Base of every persistent entity: the key under which a store keeps it.
///
/// -1 means "not stored yet"; the model never interprets the value otherwise. It is copied with
/// the entity, never compared by an entity's operator==, and reset to -1 by an entity's Clone()
/// (where that entity's documentation says so). Entities are never deleted through this base.
class PersistentObject {
public:
    PersistentObject() = default;

    int64_t ObjectId() const { return objectId; }
    void ObjectId(int64_t value) { objectId = value; }

protected:
    ~PersistentObject() = default;

private:
    int64_t objectId = -1;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
