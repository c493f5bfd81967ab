// Reading and writing timecode labels and time-point texts, beside plain C library baselines that
// do the same work with sscanf/snprintf and the C time functions (without the library's range
// checks and error reasons).

#include "AllocationCounter.h"

#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <ctime>
#include <string>

using namespace Orvik::TimePoints;
using namespace OrvikBenchmarks;

namespace {

const Rate kNtsc(30000, 1001);
const std::string kLabel = "13:27:45;17";
constexpr int64_t kLabelSample = 1452513;  // 13:27:45;17 at 30000/1001 drop-frame
const std::string kIsoText = "2026-11-23T09:15:00.040000000Z";
constexpr int64_t kIsoPoint = 1795425300040000000;

void TimeCodeParse(benchmark::State& state)
{
    const SmpteTimeCodeParser parser(kNtsc);
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(parser.Parse(kLabel)); });
}
BENCHMARK(TimeCodeParse);

void TimeCodeFormat(benchmark::State& state)
{
    const SmpteTimeCodeFormatter formatter;
    const TimeCode timeCode(kNtsc, kLabelSample, true, false);
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(formatter.Format(timeCode)); });
}
BENCHMARK(TimeCodeFormat);

void PlainTimeCodeParse(benchmark::State& state)
{
    MeasureAllocations(state, [&] {
        int hour = 0, minute = 0, second = 0, frame = 0;
        char separator = 0;
        std::sscanf(kLabel.c_str(), "%2d:%2d:%2d%c%2d", &hour, &minute, &second, &separator, &frame);
        const int64_t minutes = hour * 60 + minute;
        benchmark::DoNotOptimize((minutes * 60 + second) * 30 + frame - 2 * (minutes - minutes / 10));
    });
}
BENCHMARK(PlainTimeCodeParse);

void PlainTimeCodeFormat(benchmark::State& state)
{
    int64_t sample = kLabelSample;
    benchmark::DoNotOptimize(sample);
    MeasureAllocations(state, [&] {
        const int64_t tens = sample / 17982;
        const int64_t rest = sample % 17982;
        const int64_t frames = sample + 18 * tens + (rest > 2 ? 2 * ((rest - 2) / 1798) : 0);
        char text[16];
        std::snprintf(text, sizeof text, "%02d:%02d:%02d;%02d", static_cast<int>(frames / 108000),
                      static_cast<int>(frames / 1800 % 60), static_cast<int>(frames / 30 % 60),
                      static_cast<int>(frames % 30));
        benchmark::DoNotOptimize(std::string(text));
    });
}
BENCHMARK(PlainTimeCodeFormat);

void TimePointParse(benchmark::State& state)
{
    const Iso8601TimePointParser parser;
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(parser.Parse(kIsoText)); });
}
BENCHMARK(TimePointParse);

void TimePointFormat(benchmark::State& state)
{
    const Iso8601TimePointFormatter formatter;
    const TimePoint point(kIsoPoint);
    MeasureAllocations(state, [&] { benchmark::DoNotOptimize(formatter.Format(point)); });
}
BENCHMARK(TimePointFormat);

void PlainTimePointParse(benchmark::State& state)
{
    MeasureAllocations(state, [&] {
        std::tm fields{};
        long fraction = 0;
        std::sscanf(kIsoText.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d.%9ldZ", &fields.tm_year, &fields.tm_mon, &fields.tm_mday,
                    &fields.tm_hour, &fields.tm_min, &fields.tm_sec, &fraction);
        fields.tm_year -= 1900;
        fields.tm_mon -= 1;
        benchmark::DoNotOptimize(static_cast<int64_t>(timegm(&fields)) * 1000000000 + fraction);
    });
}
BENCHMARK(PlainTimePointParse);

void PlainTimePointFormat(benchmark::State& state)
{
    int64_t point = kIsoPoint;
    benchmark::DoNotOptimize(point);
    MeasureAllocations(state, [&] {
        const std::time_t seconds = static_cast<std::time_t>(point / 1000000000);
        std::tm fields{};
        gmtime_r(&seconds, &fields);
        char text[40];
        const size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &fields);
        std::snprintf(text + length, sizeof text - length, ".%09ldZ", static_cast<long>(point % 1000000000));
        benchmark::DoNotOptimize(std::string(text));
    });
}
BENCHMARK(PlainTimePointFormat);

}  // namespace
