// Time boundaries, bounds and bounds arrays, timecodes, essence rates and timecode tables.

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr auto kBoundaryMembers = MemberNames("timePoint", "isMoving");
constexpr auto kBoundsMembers = MemberNames("inBoundary", "outBoundary");
constexpr auto kBoundsArrayMembers = MemberNames("inBoundary", "outBoundary", "elements");
constexpr auto kRateMembers = MemberNames("numerator", "denominator");
constexpr auto kTimecodeMembers = MemberNames("rate", "totalSample", "isDrop", "hasDate");
constexpr auto kTableMembers = MemberNames("fqn", "standard", "type", "timeCodeJumpItems");
constexpr auto kJumpMembers = MemberNames("timePoint", "timeCode", "duration");

}  // namespace

void Write(Writer& w, const TimeBoundary& boundary)
{
    w.StartObject();
    w.Int("timePoint", boundary.TimePoint().ToNanoseconds());
    w.Bool("isMoving", boundary.IsMoving());
    w.EndObject();
}

TimeBoundary ReadTimeBoundary(Reader& r, value v)
{
    TimeBoundary boundary;
    r.Object(v, kBoundaryMembers, [&](size_t index, value member) {
        if (index == 0)
            boundary.TimePoint(TimePoint(r.Int64(member)));
        else
            boundary.IsMoving(r.Bool(member));
    });
    return boundary;
}

void Write(Writer& w, const TimeBounds& bounds)
{
    w.StartObject();
    w.Member("inBoundary", [&] { Write(w, bounds.InBoundary()); });
    w.Member("outBoundary", [&] { Write(w, bounds.OutBoundary()); });
    w.EndObject();
}

TimeBounds ReadTimeBounds(Reader& r, value v)
{
    TimeBounds bounds;
    r.Object(v, kBoundsMembers, [&](size_t index, value member) {
        if (index == 0)
            bounds.InBoundary(ReadTimeBoundary(r, member));
        else
            bounds.OutBoundary(ReadTimeBoundary(r, member));
    });
    return bounds;
}

void Write(Writer& w, const TimeBoundsArray& array)
{
    w.StartObject();
    w.Member("inBoundary", [&] { Write(w, array.InBoundary()); });
    w.Member("outBoundary", [&] { Write(w, array.OutBoundary()); });
    w.Array("elements", array, [&](const TimeBounds& bounds) { Write(w, bounds); });
    w.EndObject();
}

void Read(Reader& r, value v, TimeBoundsArray& array)
{
    r.Object(v, kBoundsArrayMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            array.InBoundary(ReadTimeBoundary(r, member));
            break;
        case 1:
            array.OutBoundary(ReadTimeBoundary(r, member));
            break;
        default: {
            ReadInDocumentOrder<TimeBounds>(r, member, array, [&](value element) { return ReadTimeBounds(r, element); });
        }
        }
    });
}

void Write(Writer& w, const Timecode& timecode)
{
    w.StartObject();
    w.Member("rate", [&] {
        w.StartObject();
        w.Int("numerator", timecode.Rate().Numerator());
        w.Int("denominator", timecode.Rate().Denominator());
        w.EndObject();
    });
    w.Int("totalSample", timecode.TotalSample());
    w.Bool("isDrop", timecode.IsDrop());
    w.Bool("hasDate", timecode.HasDate());
    w.EndObject();
}

Timecode ReadTimecode(Reader& r, value v)
{
    Timecode timecode;
    r.Object(v, kTimecodeMembers, [&](size_t index, value member) {
        switch (index) {
        case 0: {
            TimePoints::Rate rate;
            r.Object(member, kRateMembers, [&](size_t part, value number) {
                if (part == 0)
                    rate.Numerator(r.Int64(number));
                else
                    rate.Denominator(r.Int64(number));
            });
            timecode.Rate(rate);
            break;
        }
        case 1:
            timecode.TotalSample(r.Int64(member));
            break;
        case 2:
            timecode.IsDrop(r.Bool(member));
            break;
        default:
            timecode.HasDate(r.Bool(member));
        }
    });
    return timecode;
}

void Write(Writer& w, const Rate& rate)
{
    w.StartObject();
    w.Int("numerator", rate.Numerator());
    w.Int("denominator", rate.Denominator());
    w.EndObject();
}

Rate ReadRate(Reader& r, value v)
{
    int32_t numerator = 0;
    int32_t denominator = 0;
    r.Object(v, kRateMembers, [&](size_t index, value member) {
        if (index == 0)
            numerator = r.Int32(member);
        else
            denominator = r.Int32(member);
    });
    return Rate(numerator, denominator);
}

void Write(Writer& w, const std::shared_ptr<TimeCodeTable>& table)
{
    if (!table)
        w.Fail("expected a timecode table, found a null pointer");
    w.Shared(table.get(), [&] {
        w.StartObject();
        w.String("fqn", table->FullyQualifiedName().Value());
        w.String("standard", ToString(table->Standard()));
        w.String("type", table->Type());
        w.Array("timeCodeJumpItems", table->TimeCodeJumpItems(), [&](const std::shared_ptr<TimeCodeJump>& jump) {
            if (!jump)
                w.Fail("expected a timecode jump, found a null pointer");
            w.StartObject();
            w.Int("timePoint", jump->TimePoint().ToNanoseconds());
            w.String("timeCode", jump->TimeCode().Value());
            w.Int("duration", jump->Duration());
            w.EndObject();
        });
        w.EndObject();
    });
}

namespace {

std::shared_ptr<TimeCodeJump> ReadJump(Reader& r, value v)
{
    auto jump = std::make_shared<TimeCodeJump>();
    r.Object(v, kJumpMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            jump->TimePoint(TimePoint(r.Int64(member)));
            break;
        case 1: {
            const std::string text = r.Text(member);
            if (text.empty())
                break;
            try {
                jump->TimeCode(TimeCodeString(text));
            } catch (const std::runtime_error&) {
                r.Fail("expected a timecode text such as \"10:00:00:00\" or \"23:59:59;29\", or \"\", found \"" + text
                       + "\"");
            }
            break;
        }
        default:
            jump->Duration(r.Int64(member));
        }
    });
    return jump;
}

}  // namespace

std::shared_ptr<TimeCodeTable> ReadTimeCodeTable(Reader& r, value v)
{
    if (r.IsString(v))
        return r.Referenced<TimeCodeTable>(v, "a timecode table");
    auto table = std::make_shared<TimeCodeTable>();
    r.Object(v, kTableMembers, [&](size_t index, value member) {
        switch (index) {
        case 0:
            table->FullyQualifiedName(FullyQualifiedName(r.Text(member)));
            break;
        case 1:
            table->Standard(r.Enumeration(member, &ToTimeCodeStandard, "TimeCodeStandard"));
            break;
        case 2:
            table->Type(r.Text(member));
            break;
        default: {
            ReadInDocumentOrder<std::shared_ptr<TimeCodeJump>>(r, member, table->TimeCodeJumpItems(),
                                                               [&](value element) { return ReadJump(r, element); });
        }
        }
    });
    r.Register(table);
    return table;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
