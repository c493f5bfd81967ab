#include "Opening.h"

#include <Orvik/DataModel/MediaAssets/Probe/ProbeError.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <mutex>
#include <new>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

/// How much of a file FFmpeg may read to recognise its format and to fill in what the headers
/// leave open (a few frames of each stream), and how much media time that may span.
constexpr int kProbeSize = 4 << 20;
constexpr int64_t kAnalyzeDuration = 2 * AV_TIME_BASE;
constexpr int kIoBufferSize = 1 << 16;
constexpr int kHeadSize = 64;
/// How many packets FirstPacketSize() reads at most.
constexpr int kPacketLimit = 64;

/// The demuxers the probe uses: containers and elementary streams that describe themselves.
/// A demuxer not listed here is refused, listed or not below.
// clang-format off
constexpr std::string_view kDemuxers[] = {
    "mov,mp4,m4a,3gp,3g2,mj2", "mxf", "wav", "w64", "aiff", "avi", "mpegts", "mpeg", "matroska,webm", "asf", "flv",
    "ogg", "gxf", "dv", "mpegvideo", "m4v", "h264", "hevc", "vc1", "mjpeg", "mp3", "aac", "ac3", "eac3", "flac", "caf",
    "bmp_pipe", "dpx_pipe", "j2k_pipe", "jpeg_pipe", "png_pipe", "sgi_pipe", "tiff_pipe",
};
// clang-format on

/// Demuxers that read names inside the file and open what they name: the probe refuses them
/// with a message that says so.
struct Follower {
    std::string_view demuxer;
    const char* what;
};
constexpr Follower kFollowers[] = {
    {"hls", "an HLS playlist"},       {"concat", "a concat list"},
    {"image2", "an image sequence"},  {"webm_dash_manifest", "a DASH manifest"},
    {"imf", "an IMF composition"},    {"sdp", "a session description"},
    {"rtsp", "a stream description"}, {"tee", "a list of outputs"},
};

/// FFmpeg logs through one process-wide callback. The probe's own calls run with this flag set on
/// their thread (FFmpeg's decoders run single-threaded here, on the caller's thread) and are
/// silenced; every other message goes to FFmpeg's default callback as before.
thread_local bool probing = false;

void Log(void* context, int level, const char* format, va_list arguments)
{
    if (!probing)
        av_log_default_callback(context, level, format, arguments);
}

/// Sets the flag for one probe, and installs the callback on first use.
class Silence {
public:
    Silence()
    {
        static std::once_flag installed;
        std::call_once(installed, [] { av_log_set_callback(Log); });
        probing = true;
    }
    ~Silence() { probing = false; }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
};

int Read(void* opaque, uint8_t* buffer, int size) { return static_cast<ByteSource*>(opaque)->Read(buffer, size); }

int64_t Seek(void* opaque, int64_t offset, int whence) { return static_cast<ByteSource*>(opaque)->Seek(offset, whence); }

/// The one way out of the file that a demuxer could take, closed.
int RefuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) { return AVERROR(EPERM); }

/// FFmpeg's error while it reads the file, as a ProbeError. FFmpeg reports the same ENOMEM for a
/// size that a corrupt header declares beyond what it will allocate (a 2 KB file can ask for
/// gigabytes) as for memory that ran out, so that report names the file too: a damaged file must
/// not pass for a process out of memory.
[[noreturn]] void Fail(int error, const std::string& name, const std::string& reason)
{
    if (error == AVERROR(ENOMEM))
        throw ProbeError(name, reason + ": a size in the file out of range, or out of memory");
    throw ProbeError(name, reason);
}

/// Refuses a demuxer that follows names, or that is not one of the probe's.
void CheckDemuxer(const AVInputFormat& demuxer, const std::string& name)
{
    for (const Follower& follower : kFollowers)
        if (follower.demuxer == demuxer.name)
            throw ProbeError(name,
                             std::string("refused: ") + follower.what
                                 + " names other files or URLs, which the probe does not follow");
    for (std::string_view listed : kDemuxers)
        if (listed == demuxer.name)
            return;
    throw ProbeError(name,
                     std::string("not a format that the probe reads: ") + demuxer.long_name + " (" + demuxer.name + ")");
}

/// The options of one open: the limits, and no protocol but reading a file.
class Options {
public:
    Options()
    {
        av_dict_set_int(&dictionary, "probesize", kProbeSize, 0);
        av_dict_set_int(&dictionary, "analyzeduration", kAnalyzeDuration, 0);
        av_dict_set(&dictionary, "protocol_whitelist", "file", 0);
    }
    ~Options() { av_dict_free(&dictionary); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    AVDictionary** Get() { return &dictionary; }

private:
    AVDictionary* dictionary = nullptr;
};

}  // namespace

void OpenedMedia::IoDeleter::operator()(AVIOContext* context) const
{
    av_freep(&context->buffer);
    avio_context_free(&context);
}

void OpenedMedia::FormatDeleter::operator()(AVFormatContext* context) const { avformat_close_input(&context); }

OpenedMedia::OpenedMedia(ByteSource& source, const std::string& url, const std::string& name)
{
    const Silence silence;
    head.resize(kHeadSize);
    const int headRead = source.Read(reinterpret_cast<uint8_t*>(head.data()), kHeadSize);
    head.resize(static_cast<size_t>(std::max(headRead, 0)));
    if (source.Seek(0, SEEK_SET) != 0)
        throw ProbeError(name, "cannot read: the file cannot be read from its start again");
    auto* buffer = static_cast<unsigned char*>(av_malloc(kIoBufferSize));
    if (buffer == nullptr)
        throw std::bad_alloc();
    io.reset(avio_alloc_context(buffer, kIoBufferSize, 0, &source, Read, nullptr, Seek));
    if (!io) {
        av_free(buffer);
        throw std::bad_alloc();
    }

    const AVInputFormat* demuxer = nullptr;
    int score = av_probe_input_buffer2(io.get(), &demuxer, url.c_str(), nullptr, 0, kProbeSize);
    // The image sequence demuxer wins some single pictures by their name's extension alone; without
    // the name, the picture's own demuxer recognises it by its content.
    if (score >= 0 && demuxer != nullptr && std::string_view(demuxer->name) == "image2") {
        demuxer = nullptr;  // probing stops at once when given a demuxer
        score = av_probe_input_buffer2(io.get(), &demuxer, "", nullptr, 0, kProbeSize);
    }
    if (score < 0 || demuxer == nullptr)
        Fail(score, name, "not a media file: no format recognised");
    CheckDemuxer(*demuxer, name);

    AVFormatContext* context = avformat_alloc_context();
    if (context == nullptr)
        throw std::bad_alloc();
    context->pb = io.get();
    context->io_open = RefuseToOpen;
    Options options;
    // On failure, avformat_open_input frees the context itself.
    const int opened = avformat_open_input(&context, url.c_str(), demuxer, options.Get());
    if (opened < 0)
        Fail(opened, name, std::string("cannot read the ") + demuxer->long_name + " headers");
    format.reset(context);
    const int found = avformat_find_stream_info(context, nullptr);
    if (found < 0)
        Fail(found, name, std::string("cannot read the stream information of the ") + demuxer->long_name + " file");
    if (context->nb_streams == 0)
        throw ProbeError(name, std::string("the ") + demuxer->long_name + " file holds no stream");
}

int64_t OpenedMedia::FirstPacketSize(int index)
{
    const auto wanted = static_cast<size_t>(index);
    const auto size = [&]() -> int64_t { return wanted < firstPacketSizes.size() ? firstPacketSizes[wanted] : 0; };
    if (size() != 0 || packetsRead >= kPacketLimit)
        return size();
    const Silence silence;
    const std::unique_ptr<AVPacket, void (*)(AVPacket*)> packet(av_packet_alloc(),
                                                                [](AVPacket* unused) { av_packet_free(&unused); });
    if (!packet)
        throw std::bad_alloc();
    // Only until this stream's first packet: each packet read past those buffered is read from the
    // file. Reading may find streams that the headers did not declare.
    while (size() == 0 && packetsRead < kPacketLimit) {
        if (av_read_frame(format.get(), packet.get()) < 0) {
            packetsRead = kPacketLimit;  // nothing more comes
            break;
        }
        ++packetsRead;
        const auto stream = static_cast<size_t>(packet->stream_index);
        if (stream >= firstPacketSizes.size())
            firstPacketSizes.resize(stream + 1, 0);
        if (firstPacketSizes[stream] == 0)
            firstPacketSizes[stream] = packet->size;
        av_packet_unref(packet.get());
    }
    return size();
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
