// Clone and operator== of the realistic asset and of its parts, against the plain baseline, and
// how they grow with the number of tracks, resources, annotations and essences.

#include "AllocationCounter.h"
#include "BenchmarkAsset.h"
#include "PlainBaseline.h"

#include <benchmark/benchmark.h>

using namespace Orvik::DataModel::MediaAssets;
using namespace OrvikBenchmarks;

namespace {

void MediaAssetClone(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(asset.Clone()); });
}
BENCHMARK(MediaAssetClone);

// The full asset, and the same without layouts: the difference is what comparing the layouts
// costs, most of it the locking of their items' weak track pointers.
AssetShape WithoutLayouts()
{
    AssetShape shape;
    shape.layouts = 0;
    return shape;
}

void MediaAssetCompareWithClone(benchmark::State& state, const AssetShape& shape)
{
    const MediaAsset asset = MakeAsset(shape);
    const MediaAsset clone = asset.Clone();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(asset == clone); });
}
BENCHMARK_CAPTURE(MediaAssetCompareWithClone, full, AssetShape());
BENCHMARK_CAPTURE(MediaAssetCompareWithClone, without_layouts, WithoutLayouts());

void StreamClone(benchmark::State& state)
{
    const auto stream = MakeStream(0, 8);
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(stream->Clone()); });
}
BENCHMARK(StreamClone);

void MediaResourceClone(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    const MediaResource& resource = asset.MediaResources().Front().Value();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(resource.Clone()); });
}
BENCHMARK(MediaResourceClone);

void PlainAssetDeepCopy(benchmark::State& state)
{
    const Plain::Asset asset = Plain::FromModel(MakeAsset());
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Plain::DeepCopy(asset)); });
}
BENCHMARK(PlainAssetDeepCopy);

void PlainAssetCompareWithCopy(benchmark::State& state, const AssetShape& shape)
{
    const Plain::Asset asset = Plain::FromModel(MakeAsset(shape));
    const Plain::Asset copy = Plain::DeepCopy(asset);
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Plain::Equal(asset, copy)); });
}
BENCHMARK_CAPTURE(PlainAssetCompareWithCopy, full, AssetShape());
BENCHMARK_CAPTURE(PlainAssetCompareWithCopy, without_layouts, WithoutLayouts());

void PlainStreamDeepCopy(benchmark::State& state)
{
    const Plain::Asset asset = Plain::FromModel(MakeAsset());
    const Plain::Stream& stream = *asset.resources.front().resource->streams.front().stream;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Plain::DeepCopy(stream)); });
}
BENCHMARK(PlainStreamDeepCopy);

// Scaling: one part grows to N while the others stay small.
AssetShape Scaled(size_t tracks, size_t resources, size_t annotations)
{
    AssetShape shape;
    shape.tracks = tracks;
    shape.layouts = 1;
    shape.resources = resources;
    shape.streamsPerResource = 1;
    shape.audioEssencesPerStream = 1;
    shape.annotations = annotations;
    return shape;
}

template <typename MakeShape>
void CloneScaling(benchmark::State& state, MakeShape makeShape)
{
    const MediaAsset asset = MakeAsset(makeShape(static_cast<size_t>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(asset.Clone());
    state.SetComplexityN(state.range(0));
}

template <typename MakeShape>
void CompareScaling(benchmark::State& state, MakeShape makeShape)
{
    const MediaAsset asset = MakeAsset(makeShape(static_cast<size_t>(state.range(0))));
    const MediaAsset clone = asset.Clone();
    for (auto _ : state)
        benchmark::DoNotOptimize(asset == clone);
    state.SetComplexityN(state.range(0));
}

const auto kTracks = [](size_t n) { return Scaled(n, 1, 1); };
const auto kResources = [](size_t n) { return Scaled(1, n, 1); };
const auto kAnnotations = [](size_t n) { return Scaled(1, 1, n); };

void CloneByTracks(benchmark::State& state) { CloneScaling(state, kTracks); }
void CloneByResources(benchmark::State& state) { CloneScaling(state, kResources); }
void CloneByAnnotations(benchmark::State& state) { CloneScaling(state, kAnnotations); }
void CompareByTracks(benchmark::State& state) { CompareScaling(state, kTracks); }
void CompareByResources(benchmark::State& state) { CompareScaling(state, kResources); }
void CompareByAnnotations(benchmark::State& state) { CompareScaling(state, kAnnotations); }

void StreamCloneByEssences(benchmark::State& state)
{
    const auto stream = MakeStream(0, static_cast<size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(stream->Clone());
    state.SetComplexityN(state.range(0));
}

void StreamCompareByEssences(benchmark::State& state)
{
    const auto stream = MakeStream(0, static_cast<size_t>(state.range(0)));
    const Stream clone = stream->Clone();
    for (auto _ : state)
        benchmark::DoNotOptimize(*stream == clone);
    state.SetComplexityN(state.range(0));
}

#define SCALING(name) BENCHMARK(name)->RangeMultiplier(4)->Range(1, 4096)->Complexity()
SCALING(CloneByTracks);
SCALING(CloneByResources);
SCALING(CloneByAnnotations);
SCALING(CompareByTracks);
SCALING(CompareByResources);
SCALING(CompareByAnnotations);
SCALING(StreamCloneByEssences);
SCALING(StreamCompareByEssences);

}  // namespace
