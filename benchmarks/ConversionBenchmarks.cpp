// Sorted-vector inserts, enumeration conversions (the two largest tables one way at a time, and
// every enumeration's round trip over all its values) and the text parsers, with allocations per
// operation (enumeration conversions must make none).

#include "AllocationCounter.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using namespace OrvikBenchmarks;

namespace {

enum class Order { Ascending, Descending, Random };

template <Order order>
void SortedVectorInsert(benchmark::State& state)
{
    std::vector<std::shared_ptr<TrackChannel>> channels;
    for (int32_t i = 0; i < state.range(0); ++i)
        channels.push_back(std::make_shared<TrackChannel>(Identifier("t"), i));
    if (order == Order::Descending)
        std::reverse(channels.begin(), channels.end());
    if (order == Order::Random)
        std::shuffle(channels.begin(), channels.end(), std::mt19937(42));
    for (auto _ : state) {
        SortedVectorSharedPointer<TrackChannel> vector;
        for (const auto& channel : channels)
            vector.Insert(channel);
        benchmark::DoNotOptimize(vector.Size());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(SortedVectorInsert<Order::Ascending>)->RangeMultiplier(4)->Range(16, 4096)->Complexity();
BENCHMARK(SortedVectorInsert<Order::Descending>)->RangeMultiplier(4)->Range(16, 4096)->Complexity();
BENCHMARK(SortedVectorInsert<Order::Random>)->RangeMultiplier(4)->Range(16, 4096)->Complexity();

void VideoCodingFormatToString(benchmark::State& state)
{
    MeasureAllocations(state, [] { benchmark::DoNotOptimize(ToString(VideoCodingFormat::SonyXAVCIntraHD100)); });
}
BENCHMARK(VideoCodingFormatToString);

void VideoCodingFormatFromText(benchmark::State& state)
{
    const std::string text = "SonyXAVCIntraHD100";
    bool failed = false;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(ToVideoCodingFormat(text, failed)); });
}
BENCHMARK(VideoCodingFormatFromText);

void WrapperFormatToString(benchmark::State& state)
{
    MeasureAllocations(state, [] { benchmark::DoNotOptimize(ToString(WrapperFormat::MXFOP1a_SonyXDCAMSxS)); });
}
BENCHMARK(WrapperFormatToString);

void WrapperFormatFromText(benchmark::State& state)
{
    const std::string text = "MXFOP1a_SonyXDCAMSxS";
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(ToWrapperFormat(text)); });
}
BENCHMARK(WrapperFormatFromText);

void UnknownTextToEnumeration(benchmark::State& state)
{
    const std::string text = "no such format";
    bool failed = false;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(ToWrapperFormat(text, failed)); });
}
BENCHMARK(UnknownTextToEnumeration);

// Every value of an enumeration to its text and back, the values taken in turn.
template <typename Print, typename Parse>
void EnumerationRoundTrip(benchmark::State& state, Print print, Parse parse, int32_t count)
{
    int32_t value = 0;
    bool failed = false;
    MeasureAllocations(state, [&] {
        benchmark::DoNotOptimize(parse(print(value), failed));
        value = value + 1 == count ? 0 : value + 1;
    });
}

#define ROUND_TRIP(name, E, print, parse, count)                                                                            \
    BENCHMARK_CAPTURE(                                                                                                      \
        EnumerationRoundTrip, name, [](int32_t value) -> decltype(auto) { return print(static_cast<E>(value)); },           \
        [](const std::string& text, bool& failed) { return parse(text, failed); }, count)
#define ENUMERATION(E, count) ROUND_TRIP(E, E, ToString, To##E, count)
ENUMERATION(AnnotationType, 2);
ENUMERATION(ArchiveStatus, 3);
ENUMERATION(AssetType, 3);
ENUMERATION(AudioCodingFormat, 9);
ENUMERATION(BitRateMode, 3);
ENUMERATION(Boxing, 9);
ENUMERATION(ChromaSubSampling, 8);
ENUMERATION(ColorSpace, 9);
ENUMERATION(FieldOrdering, 3);
ENUMERATION(FillAndKeyType, 3);
ENUMERATION(ResourceFormat, 2);
ENUMERATION(ScanMode, 3);
ENUMERATION(TimeCodeStandard, 4);
ENUMERATION(TimecodePrimary, 3);
ENUMERATION(UserTimecodeType, 3);
ENUMERATION(VideoCodingFormat, 54);
ENUMERATION(WrapperFormat, 36);
ROUND_TRIP(EssenceType, Essence::Type, Essence::ToString, Essence::ToType, 3);
ROUND_TRIP(LocationType, Location::Type, Location::ToString, Location::ToType, 4);

void TimeCodeStringConstruction(benchmark::State& state)
{
    const std::string text = "23:59:59;29";
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(TimeCodeString(text)); });
}
BENCHMARK(TimeCodeStringConstruction);

void PelkIdFromUri(benchmark::State& state)
{
    const std::string text = "023A/120";
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(PelkId::FromUri(text)); });
}
BENCHMARK(PelkIdFromUri);

void PelkIdTryParse(benchmark::State& state)
{
    const std::string text = "023A/120";
    PelkId id;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(PelkId::TryParse(text, id)); });
}
BENCHMARK(PelkIdTryParse);

void DaxContentTrackInitFromUri(benchmark::State& state)
{
    const std::string text = "storage://server-01/partition-02/track-0003";
    DaxContentTrackLocation location;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(location.InitFromUri(text)); });
}
BENCHMARK(DaxContentTrackInitFromUri);

void DaxContentTrackUri(benchmark::State& state)
{
    DaxContentTrackLocation location;
    location.InitFromUri("storage://server-01/partition-02/track-0003");
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(location.Uri()); });
}
BENCHMARK(DaxContentTrackUri);

}  // namespace
