#include "OtioClips.h"

#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using TimePoints::Rate;

/// The clock of a clip whose rate nothing in the asset gives: nanoseconds, the model's own unit.
constexpr Rate kNanosecondRate(1000000000, 1);

/// What the channels of one track name.
struct TrackEssences {
    bool video = false;
    std::optional<Rate> frameRate;   // of its first video essence, when usable
    std::optional<Rate> sampleRate;  // of its first audio essence, when usable
    const Stream* stream = nullptr;
    std::string streamId;
};

std::optional<Rate> Usable(const MediaAssets::Rate& rate)
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        return std::nullopt;
    return Rate(rate.Numerator(), rate.Denominator());
}

/// The essence of `stream` that a channel names by number: the first whose Nr() is `nr`.
const Essence* EssenceNumbered(const Stream& stream, int32_t nr)
{
    for (const auto& essence : stream.Essences())
        if (essence->Nr() == nr)
            return essence.get();
    return nullptr;
}

TrackEssences Examine(const Track& track)
{
    TrackEssences found;
    bool onlyVideo = true;
    bool any = false;
    for (const auto& channel : track.Channels()) {
        const std::shared_ptr<const Stream> stream = channel->Stream().Pointer();
        if (channel == track.Channels().front()) {
            found.stream = stream.get();
            found.streamId = channel->Stream().Id().Value();
        }
        const Essence* essence = stream ? EssenceNumbered(*stream, channel->EssenceNr()) : nullptr;
        if (essence == nullptr)
            continue;
        any = true;
        if (essence->GetType() == Essence::Video) {
            if (!found.frameRate)
                found.frameRate = Usable(static_cast<const VideoEssence&>(*essence).FrameRate());
        } else {
            onlyVideo = false;
            if (essence->GetType() == Essence::Audio && !found.sampleRate)
                found.sampleRate = Usable(static_cast<const AudioEssence&>(*essence).SampleRate());
        }
    }
    found.video = any && onlyVideo;
    return found;
}

/// The rate and drop-frame counting of a timecode track's labels; empty for NotSet.
std::optional<Rate> TimeCodeRate(TimeCodeStandard standard)
{
    switch (standard) {
    case TimeCodeStandard::SmptePal25:
        return Rate(25, 1);
    case TimeCodeStandard::SmpteNtsc30Drop:
    case TimeCodeStandard::SmpteNtsc30NoDrop:
        return Rate(30000, 1001);
    case TimeCodeStandard::NotSet:
        break;
    }
    return std::nullopt;
}

/// The clock of a clip at `rate` on `stream`: counted from the stream's start timecode (the first
/// jump of the first timecode track that has one, over the stream's essences in order) when its
/// label reads at its track's standard, otherwise from point 0.
OtioClock ClockOf(const Rate& rate, const Stream* stream)
{
    if (stream != nullptr)
        for (const auto& essence : stream->Essences())
            for (const auto& table : essence->Timecodes()) {
                if (table->TimeCodeJumpItems().Empty())
                    continue;
                const TimeCodeJump& start = *table->TimeCodeJumpItems()[0];
                const std::optional<Rate> labelRate = TimeCodeRate(table->Standard());
                if (!labelRate)
                    return OtioClock(rate, 0, 0);
                const auto [read, timecode] = TimePoints::SmpteTimeCodeParser(*labelRate).TryParse(start.TimeCode().Value());
                if (!read)
                    return OtioClock(rate, 0, 0);
                return OtioClock(rate, start.TimePoint().ToNanoseconds(),
                                 OtioClock::Convert(timecode.TotalSample(), *labelRate, rate));
            }
    return OtioClock(rate, 0, 0);
}

}  // namespace

std::vector<OtioClip> OtioClips(const MediaAsset& asset)
{
    std::vector<TrackEssences> examined;
    std::optional<Rate> assetFrameRate;
    for (const auto& track : asset.Tracks()) {
        examined.push_back(Examine(*track));
        if (!assetFrameRate && examined.back().video)
            assetFrameRate = examined.back().frameRate;
    }
    std::vector<OtioClip> clips;
    size_t index = 0;
    for (const auto& track : asset.Tracks()) {
        TrackEssences& essences = examined[index++];
        const Rate rate =
            essences.frameRate.value_or(assetFrameRate.value_or(essences.sampleRate.value_or(kNanosecondRate)));
        clips.push_back(OtioClip{track.get(), essences.video, ClockOf(rate, essences.stream), essences.stream,
                                 std::move(essences.streamId)});
    }
    return clips;
}

size_t MarkerClip(const std::vector<OtioClip>& clips)
{
    for (size_t index = 0; index < clips.size(); ++index)
        if (clips[index].video)
            return index;
    return 0;
}

std::optional<OtioRange> Range(const OtioClock& clock, const TimeBoundary& in, const TimeBoundary& out)
{
    if (in == TimeBoundary::Empty() || out == TimeBoundary::Empty())
        return std::nullopt;
    const double start = clock.Frame(in.TimePoint());
    return OtioRange{start, clock.Frame(out.TimePoint()) - start, clock.Rate()};
}

OtioRange MarkedRange(const OtioClock& clock, const TimeBounds& bounds)
{
    return Range(clock, bounds.InBoundary(), bounds.OutBoundary()).value_or(OtioRange{0, 0, clock.Rate()});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
