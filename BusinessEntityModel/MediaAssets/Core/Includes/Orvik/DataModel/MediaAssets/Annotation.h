#pragma once

#include <Orvik/DataModel/MediaAssets/AnnotationType.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <memory>
#include <vector>

namespace Orvik::DataModel::MediaAssets {

/// A typed note on a stretch of a media asset's time line (a cue point, for example), with
/// metadata profiles of its own.
///
/// Two annotations are equal when type, data, time bounds and metadata (by value) are; objectId
/// is not compared. A plain copy shares the metadata profiles; Clone() makes an annotation with
/// objectId -1 and its own copies of the profiles. An annotation always has a type: there is no
/// default constructor.
///
/// Failure guarantee: Clone() and setters are strong; copy assignment is member-wise and basic.
class Annotation : public PersistentObject {
public:
    /// Explicit: a kind alone is not an annotation.
    explicit Annotation(AnnotationType type) : type(type) {}
    Annotation(AnnotationType type, const Utf8String& data) : type(type), data(data) {}

    bool operator==(const Annotation& other) const;
    bool operator!=(const Annotation& other) const { return !(*this == other); }

    AnnotationType Type() const { return type; }
    void Type(const AnnotationType& value) { type = value; }
    const Utf8String& Data() const { return data; }
    void Data(const Utf8String& value) { data = value; }
    const MediaAssets::TimeBounds& TimeBounds() const { return timeBounds; }
    void TimeBounds(const MediaAssets::TimeBounds& value) { timeBounds = value; }
    EditorialMetadata& Metadata() { return metadata; }
    const EditorialMetadata& Metadata() const { return metadata; }

    Annotation Clone() const;

private:
    AnnotationType type;
    Utf8String data;
    MediaAssets::TimeBounds timeBounds;
    EditorialMetadata metadata;
};

/// The annotations of a media asset, in insertion order; duplicates are allowed.
using AnnotationArray = std::vector<std::shared_ptr<Annotation>>;

/// Compares two annotations by value, as Annotation::operator== does. A null pointer on either
/// side makes them unequal, so two null pointers are unequal too.
struct equal_to {
    bool operator()(const std::shared_ptr<Annotation>& a, const std::shared_ptr<Annotation>& b) const
    {
        return a && b && *a == *b;
    }
};

}  // namespace Orvik::DataModel::MediaAssets
