#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeJump.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>

#include <string>

namespace Orvik::DataModel::MediaAssets {

/// One timecode track of an essence: its name, standard, kind and jumps (sorted by time point).
///
/// Tables are ordered by name alone; two are equal when name, standard, kind and the jumps (by
/// value, in order) are. A copy shares the jump objects. Null jumps must not be stored.
///
/// Failure guarantee: setters are strong; copy assignment is member-wise and basic.
class TimeCodeTable {
public:
    TimeCodeTable() = default;

    const MediaAssets::FullyQualifiedName& FullyQualifiedName() const { return fqn_; }
    void FullyQualifiedName(const MediaAssets::FullyQualifiedName& value) { fqn_ = value; }
    TimeCodeStandard Standard() const { return standard_; }
    void Standard(const TimeCodeStandard& value) { standard_ = value; }
    const std::string& Type() const { return type_; }
    void Type(const std::string& value) { type_ = value; }
    SortedVectorSharedPointer<TimeCodeJump>& TimeCodeJumpItems() { return timeCodeJumpItems_; }
    const SortedVectorSharedPointer<TimeCodeJump>& TimeCodeJumpItems() const { return timeCodeJumpItems_; }

    bool operator==(const TimeCodeTable& other) const;
    bool operator!=(const TimeCodeTable& other) const { return !(*this == other); }
    bool operator<(const TimeCodeTable& other) const { return fqn_ < other.fqn_; }

private:
    MediaAssets::FullyQualifiedName fqn_;
    TimeCodeStandard standard_ = TimeCodeStandard::NotSet;
    std::string type_;
    SortedVectorSharedPointer<TimeCodeJump> timeCodeJumpItems_;
};

}  // namespace Orvik::DataModel::MediaAssets
