#pragma once

#include <string>
#include <utility>

namespace Orvik::DataModel::MediaAssets {

/// Where two objects first differ, and the two values found there, as FirstDifference() reports
/// it.
///
/// Path() names the field from the compared objects down, in the model's own field names:
/// "mediaResources[2].id", "tracks[3].name", "essences[0].(VideoEssence).frameRate.numerator",
/// "metadata[\"orvik.pelkoperator\"].keywords[4]". A "[n]" is a position in a collection, a
/// "[\"name\"]" a profile of a metadata dictionary, and a "(Class)" the fields that a class adds
/// to the kind it is compared as. The path is empty when the objects themselves are of different
/// kinds (two group items or two profiles of different classes).
///
/// Left() and Right() are the two values as text: enumerations by their canonical strings,
/// identifiers and texts in double quotes (with \" \\ \n \t \r and \xNN escapes), numbers, time
/// points and dates as decimal integers, colours as 0xAARRGGBB, flags as true or false. Where one
/// side has no element at that position it says "missing", a null pointer says "null", and an
/// element or object present on one side only (or of another kind) is named by its class and,
/// where it has one, its id.
class Difference {
public:
    Difference(std::string path, std::string left, std::string right)
        : path(std::move(path)), left(std::move(left)), right(std::move(right))
    {
    }

    const std::string& Path() const { return path; }
    const std::string& Left() const { return left; }
    const std::string& Right() const { return right; }

    bool operator==(const Difference& other) const
    {
        return path == other.path && left == other.left && right == other.right;
    }
    bool operator!=(const Difference& other) const { return !(*this == other); }

private:
    std::string path;
    std::string left;
    std::string right;
};

}  // namespace Orvik::DataModel::MediaAssets
