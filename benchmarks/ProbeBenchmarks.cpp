// The media probe on files that Debian's ffmpeg makes in a temporary folder when a benchmark first
// needs them: the bytes a probe reads from a file of about a gigabyte, and the time of one probe
// from disk and from memory. Beside each, plain FFmpeg on the same file (avformat_open_input and
// avformat_find_stream_info with the probe's limits, through FFmpeg's own file protocol), which
// describes nothing but gives the cost of reading the headers. Needs ffmpeg on the path.

#include <Orvik/DataModel/MediaAssets/Probe.h>

#include <benchmark/benchmark.h>

extern "C" {
#include <libavformat/avformat.h>
}

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

using namespace Orvik::DataModel::MediaAssets;

namespace {

namespace fs = std::filesystem;

/// The folder of the generated files, removed when the program ends.
class MediaFolder {
public:
    MediaFolder()
    {
        std::string pattern = (fs::temp_directory_path() / "orvik-probe-benchmark-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("cannot make a temporary folder");
        path = pattern;
    }
    ~MediaFolder() { fs::remove_all(path); }
    MediaFolder(const MediaFolder&) = delete;
    MediaFolder& operator=(const MediaFolder&) = delete;

    /// The file `name`, made by ffmpeg with `arguments` (its output name last) on first use.
    std::string File(const std::string& name, const std::string& arguments)
    {
        const auto found = made.find(name);
        if (found != made.end())
            return found->second;
        const std::string file = (path / name).string();
        Run("ffmpeg -nostdin -v error -y " + arguments + " '" + file + "'");
        return made[name] = file;
    }

    /// The file `name`: what ffmpeg makes with `arguments`, copied `copies` times over without
    /// encoding again.
    std::string LargeFile(const std::string& name, const std::string& arguments, int copies)
    {
        const auto found = made.find(name);
        if (found != made.end())
            return found->second;
        const std::string piece = File("piece-" + name, arguments);
        const std::string file = (path / name).string();
        Run("ffmpeg -nostdin -v error -y -stream_loop " + std::to_string(copies - 1) + " -i '" + piece + "' -c copy '" + file
            + "'");
        fs::remove(piece);
        made.erase("piece-" + name);
        return made[name] = file;
    }

private:
    static void Run(const std::string& command)
    {
        if (std::system(command.c_str()) != 0)
            throw std::runtime_error("ffmpeg failed: " + command);
    }

    fs::path path;
    std::map<std::string, std::string> made;
};

MediaFolder& Folder()
{
    static MediaFolder folder;
    return folder;
}

// Two seconds of 1080i25 DNxHD 120 Mb/s with 24-bit stereo, 34 times over: 1.0 GB.
const std::string kLargeArguments = "-f lavfi -i testsrc2=size=1920x1080:rate=25:duration=2 -f lavfi -i "
                                    "sine=frequency=1000:sample_rate=48000:duration=2 -ac 2 -c:v dnxhd -b:v 120M "
                                    "-pix_fmt yuv422p -flags +ildct -c:a pcm_s24le";
constexpr int kLargeCopies = 34;

std::string LargeFile(const std::string& extension)
{
    return Folder().LargeFile("large." + extension, kLargeArguments, kLargeCopies);
}

/// The small files: one second each, as a recorder or an ingest leaves them.
std::string SmallFile(const std::string& kind)
{
    if (kind == "mov")
        return Folder().File("prores.mov",
                             "-f lavfi -i testsrc2=size=1920x1080:rate=25:duration=1 -f lavfi -i "
                             "sine=sample_rate=48000:duration=1 -c:v prores_ks -profile:v 3 -c:a pcm_s24le "
                             "-timecode 10:00:00:00");
    if (kind == "mxf")
        return Folder().File("xdcam.mxf",
                             "-f lavfi -i testsrc2=size=1920x1080:rate=25:duration=1 -f lavfi -i "
                             "sine=sample_rate=48000:duration=1 -c:v mpeg2video -pix_fmt yuv422p -b:v 50M "
                             "-minrate 50M -maxrate 50M -bufsize 17825792 -g 12 -c:a pcm_s24le -timecode 10:00:00:00");
    return Folder().File("pcm.wav", "-f lavfi -i sine=sample_rate=48000:duration=1 -ac 2 -c:a pcm_s24le");
}

/// The bytes this process has read so far through read(2) and its kin, all threads included.
int64_t BytesRead()
{
    std::ifstream io("/proc/self/io");
    std::string key;
    int64_t value = 0;
    while (io >> key >> value)
        if (key == "rchar:")
            return value;
    throw std::runtime_error("no rchar in /proc/self/io");
}

/// What plain FFmpeg does to describe a file, with the probe's limits: open, read the stream
/// information, close.
void PlainOpen(const std::string& path)
{
    AVDictionary* options = nullptr;
    av_dict_set_int(&options, "probesize", 4 << 20, 0);
    av_dict_set_int(&options, "analyzeduration", 2 * AV_TIME_BASE, 0);
    AVFormatContext* context = nullptr;
    const int opened = avformat_open_input(&context, path.c_str(), nullptr, &options);
    av_dict_free(&options);
    if (opened < 0)
        throw std::runtime_error("FFmpeg cannot open " + path);
    const int found = avformat_find_stream_info(context, nullptr);
    benchmark::DoNotOptimize(context->nb_streams);
    avformat_close_input(&context);
    if (found < 0)
        throw std::runtime_error("FFmpeg cannot read the streams of " + path);
}

/// Runs `describe` on `path` and reports the bytes read per run and the file's size.
template <typename Describe>
void MeasureBytesRead(benchmark::State& state, const std::string& path, Describe describe)
{
    const int64_t before = BytesRead();
    for (auto _ : state)
        describe(path);
    state.counters["bytes_read"] =
        benchmark::Counter(static_cast<double>(BytesRead() - before), benchmark::Counter::kAvgIterations);
    state.counters["file_size"] = static_cast<double>(fs::file_size(path));
}

void ProbeLargeFile(benchmark::State& state, const std::string& extension)
{
    MeasureBytesRead(state, LargeFile(extension),
                     [](const std::string& path) { benchmark::DoNotOptimize(Probe::ProbeFile(path)); });
}
BENCHMARK_CAPTURE(ProbeLargeFile, mov, std::string("mov"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ProbeLargeFile, mxf, std::string("mxf"))->Unit(benchmark::kMicrosecond);

void PlainLargeFile(benchmark::State& state, const std::string& extension)
{
    av_log_set_level(AV_LOG_QUIET);
    MeasureBytesRead(state, LargeFile(extension), PlainOpen);
}
BENCHMARK_CAPTURE(PlainLargeFile, mov, std::string("mov"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlainLargeFile, mxf, std::string("mxf"))->Unit(benchmark::kMicrosecond);

void ProbeFile(benchmark::State& state, const std::string& kind)
{
    MeasureBytesRead(state, SmallFile(kind),
                     [](const std::string& path) { benchmark::DoNotOptimize(Probe::ProbeFile(path)); });
}
BENCHMARK_CAPTURE(ProbeFile, mov, std::string("mov"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ProbeFile, mxf, std::string("mxf"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ProbeFile, wav, std::string("wav"))->Unit(benchmark::kMicrosecond);

void ProbeBytes(benchmark::State& state, const std::string& kind)
{
    std::ifstream in(SmallFile(kind), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    for (auto _ : state)
        benchmark::DoNotOptimize(Probe::ProbeBytes(bytes, "clip." + kind));
    state.counters["file_size"] = static_cast<double>(bytes.size());
}
BENCHMARK_CAPTURE(ProbeBytes, mov, std::string("mov"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ProbeBytes, mxf, std::string("mxf"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ProbeBytes, wav, std::string("wav"))->Unit(benchmark::kMicrosecond);

void PlainFile(benchmark::State& state, const std::string& kind)
{
    av_log_set_level(AV_LOG_QUIET);
    MeasureBytesRead(state, SmallFile(kind), PlainOpen);
}
BENCHMARK_CAPTURE(PlainFile, mov, std::string("mov"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlainFile, mxf, std::string("mxf"))->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlainFile, wav, std::string("wav"))->Unit(benchmark::kMicrosecond);

}  // namespace
