#include "DifferenceVisitor.h"

#include <cstdio>
#include <typeinfo>
#include <vector>

namespace Orvik::DataModel::MediaAssets::detail {
namespace {

/// `text` in double quotes, with quotes, backslashes and control characters escaped; other
/// bytes (UTF-8 sequences included) as they are.
std::string Quote(const std::string& text)
{
    std::string quoted = "\"";
    for (const char character : text) {
        switch (character) {
        case '"':
            quoted += "\\\"";
            break;
        case '\\':
            quoted += "\\\\";
            break;
        case '\n':
            quoted += "\\n";
            break;
        case '\t':
            quoted += "\\t";
            break;
        case '\r':
            quoted += "\\r";
            break;
        default:
            if (static_cast<unsigned char>(character) < 0x20 || character == 0x7F) {
                char escape[5];
                std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(character)));
                quoted += escape;
            } else {
                quoted += character;
            }
        }
    }
    return quoted + "\"";
}

}  // namespace

std::string Text(const std::string& text) { return Quote(text); }
std::string Text(const Identifier& id) { return Quote(id.Value()); }
std::string Text(const FullyQualifiedName& name) { return Quote(name.Value()); }
std::string Text(int32_t number) { return std::to_string(number); }
std::string Text(int64_t number) { return std::to_string(number); }
std::string Text(bool flag) { return flag ? "true" : "false"; }
std::string Text(char character) { return Quote(std::string(1, character)); }
std::string Text(const TimePoint& point) { return std::to_string(point.ToNanoseconds()); }
std::string Text(const TimeCodeString& timeCode) { return Quote(timeCode.Value()); }
std::string Text(Essence::Type type) { return Essence::ToString(type); }
std::string Text(Location::Type type) { return Location::ToString(type); }

std::string Text(uint32_t color)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(color));
    return text;
}

std::string Describe(const std::string& text) { return Text(text); }
std::string Describe(const TrackChannel& channel)
{
    return "TrackChannel " + Text(channel.TrackId()) + " " + Text(channel.ChannelNr());
}
std::string Describe(const TimeCodeJump& jump) { return "TimeCodeJump at " + Text(jump.TimePoint()); }
std::string Describe(const TimeCodeTable& table) { return "TimeCodeTable " + Text(table.FullyQualifiedName()); }
std::string Describe(const Track& track) { return "Track " + Text(track.Id()); }
std::string Describe(const TrackLayout& layout) { return "TrackLayout " + Text(layout.Id()); }
std::string Describe(const TrackLayoutItem& item) { return "TrackLayoutItem " + Text(item.Id()); }
std::string Describe(const Annotation& annotation) { return "Annotation " + Text(annotation.Type()); }
std::string Describe(const Essence& essence) { return Essence::ToString(essence.GetType()) + "Essence"; }
std::string Describe(const Location& location) { return Location::ToString(location.GetType()); }

std::string Describe(const TimeBounds& bounds)
{
    return "TimeBounds " + Text(bounds.InBoundary().TimePoint()) + " to " + Text(bounds.OutBoundary().TimePoint());
}

std::string Describe(const MetadataProfile& profile)
{
    if (typeid(profile) == typeid(PelkOperatorMetadataProfile))
        return "PelkOperatorMetadataProfile";
    if (typeid(profile) == typeid(AnglesPelkOperatorMetadataProfile))
        return "AnglesPelkOperatorMetadataProfile";
    return "profile " + Text(profile.FullyQualifiedName());
}

std::string Describe(const MediaAssetGroupItem& item)
{
    const std::string asset = " for " + Text(item.MediaAsset().Id());
    if (typeid(item) == typeid(AnglesMediaAssetGroupItem))
        return "AnglesMediaAssetGroupItem" + asset;
    if (typeid(item) == typeid(MediaAssetGroupItem))
        return "MediaAssetGroupItem" + asset;
    return "item of another class" + asset;
}

bool DifferenceVisitor::Value(const Rate& a, const Rate& b)
{
    return Value("numerator", a.Numerator(), b.Numerator()) && Value("denominator", a.Denominator(), b.Denominator());
}

bool DifferenceVisitor::Value(const AspectRatio& a, const AspectRatio& b)
{
    return Value("widthFactor", a.WidthFactor(), b.WidthFactor())
        && Value("heightFactor", a.HeightFactor(), b.HeightFactor());
}

bool DifferenceVisitor::Value(const TimeBoundary& a, const TimeBoundary& b)
{
    return Value("timePoint", a.TimePoint(), b.TimePoint()) && Value("isMoving", a.IsMoving(), b.IsMoving());
}

bool DifferenceVisitor::Value(const TimeBounds& a, const TimeBounds& b)
{
    return Value("inBoundary", a.InBoundary(), b.InBoundary())
        && Value("outBoundary", a.OutBoundary(), b.OutBoundary());
}

bool DifferenceVisitor::Value(const Timecode& a, const Timecode& b)
{
    return Value("rate.numerator", a.Rate().Numerator(), b.Rate().Numerator())
        && Value("rate.denominator", a.Rate().Denominator(), b.Rate().Denominator())
        && Value("isDrop", a.IsDrop(), b.IsDrop()) && Value("hasDate", a.HasDate(), b.HasDate())
        && Value("totalSample", a.TotalSample(), b.TotalSample());
}

bool DifferenceVisitor::Value(const TimeCodeJump& a, const TimeCodeJump& b)
{
    return Value("timePoint", a.TimePoint(), b.TimePoint()) && Value("timeCode", a.TimeCode(), b.TimeCode())
        && Value("duration", a.Duration(), b.Duration());
}

bool DifferenceVisitor::Value(const TrackChannel& a, const TrackChannel& b)
{
    return Value("trackId", a.TrackId(), b.TrackId()) && Value("channelNr", a.ChannelNr(), b.ChannelNr());
}

bool DifferenceVisitor::Value(const MetadataProfileDictionary& a, const MetadataProfileDictionary& b)
{
    // The dictionaries compare their counts first, then the entries pair by pair in name order:
    // a name on one side only is reported before any profile when the counts differ, and at its
    // place in the walk otherwise.
    const std::vector<FullyQualifiedName> left = a.Keys();
    const std::vector<FullyQualifiedName> right = b.Keys();
    const bool sameCount = left.size() == right.size();
    for (size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        if (i < left.size() && i < right.size() && left[i] == right[i]) {
            if (sameCount) {
                const Scope scope = Key(left[i].Value());
                if (!ComparisonOrder::Compare(*this, a.At(left[i]), b.At(right[i])))
                    return false;
            }
            continue;
        }
        // Both are in name order, so the smaller name (or the one left over) is on one side only.
        const FullyQualifiedName& name = i >= left.size() ? right[i]
            : i >= right.size()                           ? left[i]
                                                          : std::min(left[i], right[i]);
        const Scope scope = Key(name.Value());
        return Record(a.Contains(name) ? Describe(a.At(name)) : kMissing, b.Contains(name) ? Describe(b.At(name)) : kMissing);
    }
    return true;
}

DifferenceVisitor::Scope DifferenceVisitor::Field(const char* name)
{
    const size_t length = path.size();
    if (!path.empty())
        path += '.';
    path += name;
    return Scope(path, length);
}

DifferenceVisitor::Scope DifferenceVisitor::Index(size_t index)
{
    const size_t length = path.size();
    path += '[' + std::to_string(index) + ']';
    return Scope(path, length);
}

DifferenceVisitor::Scope DifferenceVisitor::Key(const std::string& name)
{
    const size_t length = path.size();
    path += '[' + Quote(name) + ']';
    return Scope(path, length);
}

DifferenceVisitor::Scope DifferenceVisitor::Kind(const char* kind)
{
    const size_t length = path.size();
    if (!path.empty())
        path += '.';
    path += '(' + std::string(kind) + ')';
    return Scope(path, length);
}

bool DifferenceVisitor::Record(std::string left, std::string right)
{
    if (!difference)
        difference.emplace(path, std::move(left), std::move(right));
    return false;
}

}  // namespace Orvik::DataModel::MediaAssets::detail
