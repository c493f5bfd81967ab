// Time boundaries, bounds and bounds arrays, timecodes, essence rates and timecode tables.

#include "Codecs.h"
#include "Collections.h"
#include "FieldTable.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

/// An essence rate has no setters: it is built from its two numbers once both are read.
struct RateParts {
    int32_t numerator = 0;
    int32_t denominator = 0;
};

// clang-format off
constexpr auto kBoundaryTable = MakeTable(Fields(
    Field(kTimePoint,
     [](Writer& w, const TimeBoundary& boundary) { w.Int(boundary.TimePoint().ToNanoseconds()); },
     [](Reader& r, value& v, TimeBoundary& boundary) { boundary.TimePoint(TimePoint(r.Int64(v))); }),
    Field(kIsMoving,
     [](Writer& w, const TimeBoundary& boundary) { w.Bool(boundary.IsMoving()); },
     [](Reader& r, value& v, TimeBoundary& boundary) { boundary.IsMoving(r.Bool(v)); })));

/// The two boundaries, first in the tables of bounds and of bounds arrays.
template <typename B>
constexpr auto kBoundaryFields = Fields(
    Field(kInBoundary,
     [](Writer& w, const B& bounds) { Write(w, bounds.InBoundary()); },
     [](Reader& r, value& v, B& bounds) { bounds.InBoundary(ReadTimeBoundary(r, v)); }),
    Field(kOutBoundary,
     [](Writer& w, const B& bounds) { Write(w, bounds.OutBoundary()); },
     [](Reader& r, value& v, B& bounds) { bounds.OutBoundary(ReadTimeBoundary(r, v)); }));

constexpr auto kBoundsTable = MakeTable(kBoundaryFields<TimeBounds>);

constexpr auto kBoundsArrayTable = MakeTable(kBoundaryFields<TimeBoundsArray>, Fields(
    Field(kElements,
     [](Writer& w, const TimeBoundsArray& array) {
         w.Array(array, [&](const TimeBounds& bounds) { Write(w, bounds); });
     },
     [](Reader& r, value& v, TimeBoundsArray& array) {
         ReadInDocumentOrder<TimeBounds>(r, v, array, [&](value& element) { return ReadTimeBounds(r, element); });
     })));

constexpr auto kTimecodeRateTable = MakeTable(Fields(
    Field(kNumerator,
     [](Writer& w, const TimePoints::Rate& rate) { w.Int(rate.Numerator()); },
     [](Reader& r, value& v, TimePoints::Rate& rate) { rate.Numerator(r.Int64(v)); }),
    Field(kDenominator,
     [](Writer& w, const TimePoints::Rate& rate) { w.Int(rate.Denominator()); },
     [](Reader& r, value& v, TimePoints::Rate& rate) { rate.Denominator(r.Int64(v)); })));

constexpr auto kTimecodeTable = MakeTable(Fields(
    Field(kRate,
     [](Writer& w, const Timecode& timecode) { WriteObject(w, kTimecodeRateTable, timecode.Rate()); },
     [](Reader& r, value& v, Timecode& timecode) {
         TimePoints::Rate rate;
         ReadObject(r, v, kTimecodeRateTable, rate);
         timecode.Rate(rate);
     }),
    Field(kTotalSample,
     [](Writer& w, const Timecode& timecode) { w.Int(timecode.TotalSample()); },
     [](Reader& r, value& v, Timecode& timecode) { timecode.TotalSample(r.Int64(v)); }),
    Field(kIsDrop,
     [](Writer& w, const Timecode& timecode) { w.Bool(timecode.IsDrop()); },
     [](Reader& r, value& v, Timecode& timecode) { timecode.IsDrop(r.Bool(v)); }),
    Field(kHasDate,
     [](Writer& w, const Timecode& timecode) { w.Bool(timecode.HasDate()); },
     [](Reader& r, value& v, Timecode& timecode) { timecode.HasDate(r.Bool(v)); })));

constexpr auto kRateTable = MakeTable(Fields(
    Field(kNumerator,
     [](Writer& w, const Rate& rate) { w.Int(rate.Numerator()); },
     [](Reader& r, value& v, RateParts& rate) { rate.numerator = r.Int32(v); }),
    Field(kDenominator,
     [](Writer& w, const Rate& rate) { w.Int(rate.Denominator()); },
     [](Reader& r, value& v, RateParts& rate) { rate.denominator = r.Int32(v); })));

constexpr auto kJumpTable = MakeTable(Fields(
    Field(kTimePoint,
     [](Writer& w, const TimeCodeJump& jump) { w.Int(jump.TimePoint().ToNanoseconds()); },
     [](Reader& r, value& v, TimeCodeJump& jump) { jump.TimePoint(TimePoint(r.Int64(v))); }),
    Field(kTimeCode,
     [](Writer& w, const TimeCodeJump& jump) { w.String(jump.TimeCode().Value()); },
     [](Reader& r, value& v, TimeCodeJump& jump) {
         const std::string text = r.Text(v);
         if (text.empty())
             return;
         try {
             jump.TimeCode(TimeCodeString(text));
         } catch (const std::runtime_error&) {
             r.Fail("expected a timecode text such as \"10:00:00:00\" or \"23:59:59;29\", or \"\", found \"" + text
                    + "\"");
         }
     }),
    Field(kDuration,
     [](Writer& w, const TimeCodeJump& jump) { w.Int(jump.Duration()); },
     [](Reader& r, value& v, TimeCodeJump& jump) { jump.Duration(r.Int64(v)); })));

constexpr auto kTimeCodeTableTable = MakeTable(Fields(
    Field(kFqn,
     [](Writer& w, const TimeCodeTable& table) { w.String(table.FullyQualifiedName().Value()); },
     [](Reader& r, value& v, TimeCodeTable& table) { table.FullyQualifiedName(FullyQualifiedName(r.Text(v))); }),
    Field(kStandard,
     [](Writer& w, const TimeCodeTable& table) { w.String(ToString(table.Standard())); },
     [](Reader& r, value& v, TimeCodeTable& table) {
         table.Standard(r.Enumeration(v, &ToTimeCodeStandard, "TimeCodeStandard"));
     }),
    Field(kType,
     [](Writer& w, const TimeCodeTable& table) { w.String(table.Type()); },
     [](Reader& r, value& v, TimeCodeTable& table) { table.Type(r.Text(v)); }),
    Field(kTimeCodeJumpItems,
     [](Writer& w, const TimeCodeTable& table) {
         w.Array(table.TimeCodeJumpItems(), [&](const std::shared_ptr<TimeCodeJump>& jump) {
             if (!jump)
                 w.Fail("expected a timecode jump, found a null pointer");
             WriteObject(w, kJumpTable, *jump);
         });
     },
     [](Reader& r, value& v, TimeCodeTable& table) {
         ReadInDocumentOrder<std::shared_ptr<TimeCodeJump>>(r, v, table.TimeCodeJumpItems(), [&](value& element) {
             auto jump = std::make_shared<TimeCodeJump>();
             ReadObject(r, element, kJumpTable, *jump);
             return jump;
         });
     })));
// clang-format on

}  // namespace

void Write(Writer& w, const TimeBoundary& boundary) { WriteObject(w, kBoundaryTable, boundary); }

TimeBoundary ReadTimeBoundary(Reader& r, value& v)
{
    TimeBoundary boundary;
    ReadObject(r, v, kBoundaryTable, boundary);
    return boundary;
}

void Write(Writer& w, const TimeBounds& bounds) { WriteObject(w, kBoundsTable, bounds); }

TimeBounds ReadTimeBounds(Reader& r, value& v)
{
    TimeBounds bounds;
    ReadObject(r, v, kBoundsTable, bounds);
    return bounds;
}

void Write(Writer& w, const TimeBoundsArray& array) { WriteObject(w, kBoundsArrayTable, array); }

void Read(Reader& r, value& v, TimeBoundsArray& array) { ReadObject(r, v, kBoundsArrayTable, array); }

void Write(Writer& w, const Timecode& timecode) { WriteObject(w, kTimecodeTable, timecode); }

Timecode ReadTimecode(Reader& r, value& v)
{
    Timecode timecode;
    ReadObject(r, v, kTimecodeTable, timecode);
    return timecode;
}

void Write(Writer& w, const Rate& rate) { WriteObject(w, kRateTable, rate); }

Rate ReadRate(Reader& r, value& v)
{
    RateParts parts;
    ReadObject(r, v, kRateTable, parts);
    return Rate(parts.numerator, parts.denominator);
}

void Write(Writer& w, const std::shared_ptr<TimeCodeTable>& table)
{
    if (!table)
        w.Fail("expected a timecode table, found a null pointer");
    w.Shared(table.get(), [&] { WriteObject(w, kTimeCodeTableTable, *table); });
}

std::shared_ptr<TimeCodeTable> ReadTimeCodeTable(Reader& r, value& v)
{
    if (r.IsString(v))
        return r.Referenced<TimeCodeTable>(v, "a timecode table");
    auto table = std::make_shared<TimeCodeTable>();
    ReadObject(r, v, kTimeCodeTableTable, *table);
    r.Register(table);
    return table;
}

void AddTimeTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"timeBoundary", NamesOf(kBoundaryTable)});
    tables.push_back({"timeBounds", NamesOf(kBoundsTable)});
    tables.push_back({"timeBoundsArray", NamesOf(kBoundsArrayTable)});
    tables.push_back({"rate", NamesOf(kRateTable)});
    tables.push_back({"timecode", NamesOf(kTimecodeTable)});
    tables.push_back({"timecodeRate", NamesOf(kTimecodeRateTable)});
    tables.push_back({"timeCodeJump", NamesOf(kJumpTable)});
    tables.push_back({"timeCodeTable", NamesOf(kTimeCodeTableTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
