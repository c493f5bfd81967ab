#include "ShowTree.h"

#include "TimeText.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <string>
#include <utility>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;

namespace {

Span Text(std::string text) { return Span{std::move(text), Tone::Plain}; }

Span IdSpan(const std::string& id) { return id.empty() ? Span{"(no id)", Tone::Faint} : Span{id, Tone::Id}; }

TreeNode Leaf(std::string label, std::vector<Span> value) { return TreeNode{std::move(label), std::move(value), {}}; }

TreeNode Leaf(std::string label, std::string text, Tone tone)
{
    return Leaf(std::move(label), {Span{std::move(text), tone}});
}

TreeNode Object(std::string label, std::vector<Span> value)
{
    return TreeNode{std::move(label), std::move(value), {}, true};
}

/// An object's line: its kind and its id.
TreeNode Object(std::string label, const std::string& id) { return Object(std::move(label), {IdSpan(id)}); }

/// The line of a referenced object that is not loaded: its id alone.
TreeNode NotLoaded(std::string label, const std::string& id)
{
    return Object(std::move(label), {IdSpan(id), Span{"  not loaded", Tone::Faint}});
}

/// The line of a null pointer where an object should be.
TreeNode Null(std::string label) { return Object(std::move(label), {Span{"(null)", Tone::Faint}}); }

// The Add... helpers leave out a field at its default.

void AddText(TreeNode& node, std::string label, const std::string& text)
{
    if (!text.empty())
        node.children.push_back(Leaf(std::move(label), text, Tone::Plain));
}

void AddId(TreeNode& node, std::string label, const std::string& id)
{
    if (!id.empty())
        node.children.push_back(Leaf(std::move(label), id, Tone::Id));
}

void AddNumber(TreeNode& node, std::string label, int64_t number)
{
    if (number != 0)
        node.children.push_back(Leaf(std::move(label), std::to_string(number), Tone::Plain));
}

/// An enumeration by its canonical string; left out at value 0 unless `always`.
template <typename Enumeration>
void AddKeyword(TreeNode& node, std::string label, Enumeration value, bool always = false)
{
    if (always || static_cast<int32_t>(value) != 0)
        node.children.push_back(Leaf(std::move(label), ToString(value), Tone::Keyword));
}

void AddDate(TreeNode& node, std::string label, DateTime date)
{
    if (date != 0)
        node.children.push_back(Leaf(std::move(label), DateText(date), Tone::Time));
}

void AddBoundary(TreeNode& node, std::string label, const TimeBoundary& boundary)
{
    if (boundary != TimeBoundary::Empty())
        node.children.push_back(Leaf(std::move(label), BoundaryText(boundary), Tone::Time));
}

void AddRate(TreeNode& node, std::string label, const Rate& rate)
{
    if (rate != Rate::Empty())
        node.children.push_back(Leaf(std::move(label), RateText(rate.Numerator(), rate.Denominator()), Tone::Plain));
}

void AddTimecode(TreeNode& node, std::string label, const Timecode& timecode)
{
    if (timecode != Timecode())
        node.children.push_back(Leaf(std::move(label), TimecodeText(timecode), Tone::Time));
}

/// In and out boundaries, then one line per stretch.
void AddTimeBounds(TreeNode& node, const TimeBoundsArray& bounds)
{
    AddBoundary(node, "in", bounds.InBoundary());
    AddBoundary(node, "out", bounds.OutBoundary());
    for (const TimeBounds& stretch : bounds)
        node.children.push_back(Leaf("time bounds",
                                     {Span{BoundaryText(stretch.InBoundary()), Tone::Time}, Text(" to "),
                                      Span{BoundaryText(stretch.OutBoundary()), Tone::Time}}));
}

/// The operator's clip identifier as its short text ("123B") when every part is in range,
/// otherwise part by part, so that an out-of-range value shows as the number it is.
std::vector<Span> ClipSpans(int32_t page, int32_t bank, int32_t clip, char camera)
{
    if (PelkId::IsValidPage(page) && PelkId::IsValidBank(bank) && PelkId::IsValidRow(clip)
        && (camera == '\0' || PelkId::IsValidCamera(camera)))
        return {Span{PelkId(page, bank, clip, camera).ToShortString(), Tone::Id}};
    std::string text = "page " + std::to_string(page) + ", bank " + std::to_string(bank) + ", clip " + std::to_string(clip);
    if (camera != '\0')
        text += ", camera " + CameraText(camera);
    return {Text(text)};
}

TreeNode OperatorProfileTree(const PelkOperatorMetadataProfile& profile)
{
    TreeNode node = Object("operator profile", profile.FullyQualifiedName().Value());
    node.children.push_back(Leaf("clip", ClipSpans(profile.Page(), profile.Bank(), profile.Clip(), profile.Camera())));
    AddNumber(node, "server", profile.ServerId().SerialNumber());
    AddText(node, "umid", profile.UmId());
    AddText(node, "var id", profile.VarId());
    AddNumber(node, "rating", profile.Rating());
    AddKeyword(node, "archive status", profile.ArchiveStatus());
    AddKeyword(node, "user timecode type", profile.UserTimecodeType());
    AddKeyword(node, "primary timecode", profile.PrimaryTimecode());
    AddTimecode(node, "user timecode", profile.UserTimecode());
    AddTimecode(node, "tod timecode", profile.TodTimecode());
    AddText(node, "icon", profile.Icon());
    if (profile.Color() != Color::NotSet)
        node.children.push_back(Leaf("color", Color::ToString(profile.Color()), Tone::Plain));
    AddKeyword(node, "fill and key", profile.FillAndKeyType());
    AddId(node, "fill and key asset", profile.FillAndKeyMediaAssetId().Value());
    const auto keywords = profile.Keywords();
    for (size_t slot = 0; slot < keywords.size(); ++slot)
        node.children.push_back(keywords[slot].empty()
                                    ? Leaf("keyword " + std::to_string(slot), "(empty)", Tone::Faint)
                                    : Leaf("keyword " + std::to_string(slot), keywords[slot], Tone::Plain));
    if (profile.IsUserProtected())
        node.children.push_back(Leaf("protected", "by the user", Tone::Plain));
    if (profile.IsPelkUiProtected())
        node.children.push_back(Leaf("protected", "from the controller", Tone::Plain));
    return node;
}

TreeNode AnglesProfileTree(const AnglesPelkOperatorMetadataProfile& profile)
{
    TreeNode node = Object("angles operator profile", profile.FullyQualifiedName().Value());
    node.children.push_back(Leaf("clip", ClipSpans(profile.Page(), profile.Bank(), profile.Clip(), '\0')));
    AddNumber(node, "server", profile.ServerId().SerialNumber());
    return node;
}

/// One line, or one object, per profile, in the order of their names.
void AddMetadata(TreeNode& node, const MetadataProfileDictionary& metadata)
{
    for (const FullyQualifiedName& name : metadata.Keys()) {
        const MetadataProfile& profile = metadata.At(name);
        if (const auto* full = dynamic_cast<const PelkOperatorMetadataProfile*>(&profile))
            node.children.push_back(OperatorProfileTree(*full));
        else if (const auto* angles = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(&profile))
            node.children.push_back(AnglesProfileTree(*angles));
        else
            node.children.push_back(Object("profile", name.Value()));
    }
}

TreeNode TimecodeTableTree(const TimeCodeTable& table)
{
    TreeNode node = Object("timecode table", table.FullyQualifiedName().Value());
    AddKeyword(node, "standard", table.Standard());
    AddText(node, "type", table.Type());
    for (const auto& jump : table.TimeCodeJumpItems()) {
        std::vector<Span> value{Span{TimePointText(jump->TimePoint()), Tone::Time}, Text("  ")};
        if (jump->TimeCode().IsEmpty())
            value.push_back(Span{"(no timecode)", Tone::Faint});
        else
            value.push_back(Span{jump->TimeCode().Value(), Tone::Time});
        value.push_back(Text("  duration " + std::to_string(jump->Duration())));
        node.children.push_back(Leaf("jump", std::move(value)));
    }
    return node;
}

void AddVideoFields(TreeNode& node, const VideoEssence& video)
{
    AddKeyword(node, "codec", video.VideoCodec(), true);
    AddNumber(node, "bit rate", video.BitRate());
    AddKeyword(node, "bit rate mode", video.BitRateMode());
    AddNumber(node, "bit depth", video.BitDepth());
    AddRate(node, "frame rate", video.FrameRate());
    if (video.Width() != 0 || video.Height() != 0)
        node.children.push_back(
            Leaf("size", std::to_string(video.Width()) + "x" + std::to_string(video.Height()), Tone::Plain));
    AddKeyword(node, "chroma subsampling", video.ChromaSubSampling());
    AddKeyword(node, "color space", video.ColorSpace());
    AddKeyword(node, "scan mode", video.ScanMode());
    AddText(node, "fourcc", video.FourCC());
    if (video.AspectRatio() != AspectRatio::Empty())
        node.children.push_back(Leaf("aspect ratio",
                                     std::to_string(video.AspectRatio().WidthFactor()) + ":"
                                         + std::to_string(video.AspectRatio().HeightFactor()),
                                     Tone::Plain));
    AddKeyword(node, "boxing", video.Boxing());
}

void AddAudioFields(TreeNode& node, const AudioEssence& audio)
{
    AddKeyword(node, "codec", audio.AudioCodec(), true);
    AddNumber(node, "bit rate", audio.BitRate());
    AddKeyword(node, "bit rate mode", audio.BitRateMode());
    AddRate(node, "sample rate", audio.SampleRate());
    AddNumber(node, "bit depth", audio.BitDepth());
    AddText(node, "fourcc", audio.FourCC());
}

TreeNode EssenceTree(const Essence& essence)
{
    TreeNode node = Object("essence", {Span{Essence::ToString(essence.GetType()), Tone::Keyword}});
    if (essence.Nr() >= 0)
        node.value.push_back(Text(" #" + std::to_string(essence.Nr())));
    switch (essence.GetType()) {
    case Essence::Video:
        AddVideoFields(node, static_cast<const VideoEssence&>(essence));
        break;
    case Essence::Audio:
        AddAudioFields(node, static_cast<const AudioEssence&>(essence));
        break;
    case Essence::Data:
        break;  // no fields of its own
    }
    AddNumber(node, "channels", essence.ChannelCount());
    for (const auto& channel : essence.TrackChannels())
        node.children.push_back(
            Leaf("track channel",
                 {IdSpan(channel->TrackId().Value()), Text(" channel " + std::to_string(channel->ChannelNr()))}));
    AddMetadata(node, essence.Metadata());
    for (const auto& table : essence.Timecodes())
        node.children.push_back(TimecodeTableTree(*table));
    return node;
}

TreeNode LocationTree(const Location& location)
{
    TreeNode node = Object(
        "location",
        {Span{Location::ToString(location.GetType()), Tone::Keyword}, Text(" "), Span{location.Uri().Value(), Tone::Id}});
    switch (location.GetType()) {
    case Location::FileLocation: {
        const auto& file = static_cast<const FileLocation&>(location);
        AddText(node, "name", file.Name());
        AddNumber(node, "size", file.Size());
        if (file.IsReadOnly())
            node.children.push_back(Leaf("read-only", "yes", Tone::Plain));
        AddDate(node, "created", file.CreationDate());
        AddDate(node, "modified", file.ModificationDate());
        AddDate(node, "accessed", file.LastAccessDate());
        break;
    }
    case Location::DaxProtectLocation:
        AddId(node, "server", static_cast<const DaxProtectLocation&>(location).ServerId().Value());
        break;
    case Location::DaxContentTrackLocation:
    case Location::ZanLocation:
        break;  // the URI names every field
    }
    return node;
}

TreeNode StreamTree(const StreamReference& reference)
{
    if (!reference.Pointer())
        return NotLoaded("stream", reference.Id().Value());
    const Stream& stream = *reference.Pointer();
    TreeNode node = Object("stream", stream.Id().Value());
    AddKeyword(node, "format", stream.Format(), true);
    AddTimeBounds(node, stream.Timebounds());
    AddMetadata(node, stream.Metadata());
    for (const auto& essence : stream.Essences())
        node.children.push_back(EssenceTree(*essence));
    for (const auto& location : stream.Locations())
        node.children.push_back(LocationTree(*location));
    return node;
}

TreeNode ResourceTree(const MediaResourceReference& reference)
{
    if (!reference.Pointer())
        return NotLoaded("media resource", reference.Id().Value());
    const MediaResource& resource = *reference.Pointer();
    TreeNode node = Object("media resource", resource.Id().Value());
    AddText(node, "name", resource.Name());
    AddKeyword(node, "format", resource.GeneralFormat());
    AddDate(node, "created", resource.CreationDate());
    AddDate(node, "modified", resource.ModificationDate());
    AddTimeBounds(node, resource.Timebounds());
    AddMetadata(node, resource.Metadata());
    for (const StreamReference& stream : resource.Streams())
        node.children.push_back(StreamTree(stream));
    return node;
}

TreeNode TrackTree(const Track& track)
{
    TreeNode node = Object("track", track.Id().Value());
    AddText(node, "name", track.Name());
    for (const auto& channel : track.Channels())
        node.children.push_back(Leaf("channel",
                                     {Text("stream "), IdSpan(channel->Stream().Id().Value()),
                                      Text(", essence " + std::to_string(channel->EssenceNr()) + ", channel "
                                           + std::to_string(channel->ChannelNr()))}));
    return node;
}

TreeNode LayoutTree(const TrackLayout& layout)
{
    TreeNode node = Object("layout", layout.Id().Value());
    AddText(node, "name", layout.Name());
    for (const TrackLayoutItem& item : layout.TrackLayoutItems()) {
        TreeNode itemNode = Object("item", item.Id().Value());
        AddText(itemNode, "name", item.Name());
        for (const std::weak_ptr<Track>& weak : item.Tracks()) {
            const auto track = weak.lock();
            itemNode.children.push_back(track ? Leaf("track", {IdSpan(track->Id().Value())})
                                              : Leaf("track", "expired", Tone::Faint));
        }
        node.children.push_back(std::move(itemNode));
    }
    return node;
}

TreeNode AnnotationTree(const Annotation& annotation)
{
    TreeNode node = Object("annotation", {Span{ToString(annotation.Type()), Tone::Keyword}});
    AddText(node, "data", annotation.Data());
    AddBoundary(node, "in", annotation.TimeBounds().InBoundary());
    AddBoundary(node, "out", annotation.TimeBounds().OutBoundary());
    AddMetadata(node, annotation.Metadata());
    return node;
}

TreeNode ItemTree(const MediaAssetGroupItem& item)
{
    const std::string& assetId = item.MediaAsset().Id().Value();
    if (const auto* angle = dynamic_cast<const AnglesMediaAssetGroupItem*>(&item))
        return Object("angle", {Text(angle->Name() + "  asset "), IdSpan(assetId)});
    return Object("item", {Text("asset "), IdSpan(assetId)});
}

}  // namespace

TreeNode AssetTree(const MediaAsset& asset)
{
    TreeNode node = Object("media asset", asset.Id().Value());
    AddKeyword(node, "type", asset.AssetType(), true);
    AddText(node, "name", asset.Name());
    AddText(node, "description", asset.Description());
    AddId(node, "ancestor", asset.Ancestor().Id().Value());
    AddId(node, "parent", asset.Parent().Id().Value());
    AddDate(node, "created", asset.CreationDate());
    AddDate(node, "modified", asset.ModificationDate());
    AddTimeBounds(node, asset.PhysicalTimebounds());
    if (asset.OutBoundary() != TimeBoundary::Empty())
        node.children.push_back(Leaf("duration", DurationText(asset.GetDuration().ToNanoseconds()), Tone::Time));
    AddMetadata(node, asset.Metadata());
    for (const auto& track : asset.Tracks())
        node.children.push_back(TrackTree(*track));
    for (const auto& layout : asset.TrackLayouts())
        node.children.push_back(LayoutTree(*layout));
    for (const MediaResourceReference& resource : asset.MediaResources())
        node.children.push_back(ResourceTree(resource));
    for (const auto& annotation : asset.Annotations())
        node.children.push_back(annotation ? AnnotationTree(*annotation) : Null("annotation"));
    return node;
}

TreeNode GroupTree(const MediaAssetGroup& group)
{
    TreeNode node = Object("media asset group", group.Id().Value());
    node.children.push_back(Leaf("type", group.Type(), Tone::Keyword));
    AddText(node, "name", group.Name());
    AddMetadata(node, group.Metadata());
    for (const auto& item : group.Items())
        node.children.push_back(item ? ItemTree(*item) : Null("item"));
    return node;
}

}  // namespace Orvik::AssetTool
