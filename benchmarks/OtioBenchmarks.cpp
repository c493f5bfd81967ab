// The OpenTimelineIO form of the full benchmark asset: writing and reading its timeline, beside
// the JSON form's writing and reading of the same asset in the same run. Bytes per second are of
// each form's own compact document.
//   build/release/benchmarks/otio_benchmarks

#include "BenchmarkAsset.h"

#include <Orvik/DataModel/MediaAssets/Json.h>

#include <benchmark/benchmark.h>

#include <string>

using namespace Orvik::DataModel::MediaAssets;
using namespace OrvikBenchmarks;

namespace {

void SetBytes(benchmark::State& state, size_t bytes)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["bytes"] = static_cast<double>(bytes);
}

void JsonWrite(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    for (auto _ : state)
        benchmark::DoNotOptimize(Json::ToJson(asset));
    SetBytes(state, Json::ToJson(asset).size());
}
BENCHMARK(JsonWrite);

void JsonRead(benchmark::State& state)
{
    const std::string document = Json::ToJson(MakeAsset());
    for (auto _ : state)
        benchmark::DoNotOptimize(Json::FromJson<MediaAsset>(document));
    SetBytes(state, document.size());
}
BENCHMARK(JsonRead);

void OtioExport(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    const auto layout = static_cast<Json::Layout>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(Json::ToOtio(asset, layout));
    SetBytes(state, Json::ToOtio(asset, layout).size());
}
BENCHMARK(OtioExport)->ArgName("indented")->Arg(0)->Arg(1);

void OtioImport(benchmark::State& state)
{
    const std::string timeline = Json::ToOtio(MakeAsset(), static_cast<Json::Layout>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(Json::FromOtio(timeline));
    SetBytes(state, timeline.size());
}
BENCHMARK(OtioImport)->ArgName("indented")->Arg(0)->Arg(1);

}  // namespace
