// The JSON form of the full benchmark asset: writing and reading it with this library, against
// what the candidate JSON libraries (nlohmann/json, RapidJSON, simdjson) take for the same
// document on their own, and against cloning the asset (allocations).

#include "AllocationCounter.h"
#include "BenchmarkAsset.h"

#include <Orvik/DataModel/MediaAssets/Json.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <simdjson.h>

#include <string>

using namespace Orvik::DataModel::MediaAssets;
using namespace OrvikBenchmarks;

namespace {

const std::string& AssetDocument()
{
    static const std::string document = Json::ToJson(MakeAsset());
    return document;
}

void SetBytes(benchmark::State& state, size_t bytes)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["bytes"] = static_cast<double>(bytes);
}

void JsonWriteAsset(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Json::ToJson(asset)); });
    SetBytes(state, AssetDocument().size());
}
BENCHMARK(JsonWriteAsset);

void JsonReadAsset(benchmark::State& state)
{
    const std::string& document = AssetDocument();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Json::FromJson<MediaAsset>(document)); });
    SetBytes(state, document.size());
}
BENCHMARK(JsonReadAsset);

void JsonWriteAssetIndented(benchmark::State& state)
{
    const MediaAsset asset = MakeAsset();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(Json::ToJson(asset, Json::Layout::Indented)); });
    SetBytes(state, AssetDocument().size());
}
BENCHMARK(JsonWriteAssetIndented);

// The candidate libraries on the same document, each on its own: parsing into its own form and
// writing that form back, with no model objects involved. These bound what a codec built on each
// can reach.
void NlohmannParse(benchmark::State& state)
{
    const std::string& document = AssetDocument();
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(nlohmann::json::parse(document)); });
    SetBytes(state, document.size());
}
BENCHMARK(NlohmannParse);

void NlohmannDump(benchmark::State& state)
{
    const nlohmann::json parsed = nlohmann::json::parse(AssetDocument());
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(parsed.dump()); });
    SetBytes(state, AssetDocument().size());
}
BENCHMARK(NlohmannDump);

void RapidJsonParse(benchmark::State& state)
{
    const std::string& document = AssetDocument();
    MeasureAllocations(state, [&] {
        rapidjson::Document parsed;
        parsed.Parse(document.data(), document.size());
        benchmark::DoNotOptimize(parsed.IsObject());
    });
    SetBytes(state, document.size());
}
BENCHMARK(RapidJsonParse);

void RapidJsonWrite(benchmark::State& state)
{
    rapidjson::Document parsed;
    parsed.Parse(AssetDocument().data(), AssetDocument().size());
    MeasureAllocations(state, [&] {
        rapidjson::StringBuffer buffer;
        rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
        parsed.Accept(writer);
        benchmark::DoNotOptimize(std::string(buffer.GetString(), buffer.GetSize()));
    });
    SetBytes(state, AssetDocument().size());
}
BENCHMARK(RapidJsonWrite);

// Visits every value, as a codec must.
size_t Visit(simdjson::ondemand::value value)
{
    size_t count = 1;
    switch (value.type()) {
    case simdjson::ondemand::json_type::object:
        for (auto field : value.get_object())
            count += Visit(field.value());
        break;
    case simdjson::ondemand::json_type::array:
        for (auto element : value.get_array())
            count += Visit(element.value());
        break;
    case simdjson::ondemand::json_type::string:
        benchmark::DoNotOptimize(value.get_string().value());
        break;
    default:
        benchmark::DoNotOptimize(value.raw_json_token());
    }
    return count;
}

void SimdjsonOnDemandVisit(benchmark::State& state)
{
    const std::string& document = AssetDocument();
    simdjson::ondemand::parser parser;
    MeasureAllocations(state, [&] {
        const simdjson::padded_string padded(document);
        auto parsed = parser.iterate(padded);
        benchmark::DoNotOptimize(Visit(parsed.get_value().value()));
    });
    SetBytes(state, document.size());
    state.SetLabel(simdjson::get_active_implementation()->name());
}
BENCHMARK(SimdjsonOnDemandVisit);

void SimdjsonDomParse(benchmark::State& state)
{
    const std::string& document = AssetDocument();
    simdjson::dom::parser parser;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(parser.parse(document).is_object()); });
    SetBytes(state, document.size());
}
BENCHMARK(SimdjsonDomParse);

}  // namespace
