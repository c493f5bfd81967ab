#pragma once

#include "ByteSource.h"
#include "FFmpeg.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Probe {

/// A media file opened by FFmpeg through the probe's own I/O context, with its stream information
/// read. Owns the format and I/O contexts; the byte source must outlive it.
class OpenedMedia {
public:
    /// Opens the bytes of `source`; `url` is the file's name, which FFmpeg uses only as a hint of
    /// the format (its extension), and `name` is how errors name the file. Only the demuxers of a
    /// fixed list are used: one that follows names inside the file to other files or URLs is
    /// refused, and any attempt of a demuxer to open another file or URL fails. Throws ProbeError.
    OpenedMedia(ByteSource& source, const std::string& url, const std::string& name);

    const AVFormatContext& Context() const { return *format; }
    /// The first bytes of the file, for what FFmpeg does not report (Matroska's DocType).
    const std::string& Head() const { return head; }
    /// The size of the first packet of stream `index`, in bytes: from the packets that reading
    /// the stream information buffered, and a few more at most; 0 when none comes.
    int64_t FirstPacketSize(int index);

private:
    struct IoDeleter {
        void operator()(AVIOContext* io) const;
    };
    struct FormatDeleter {
        void operator()(AVFormatContext* format) const;
    };

    std::string head;
    std::vector<int64_t> firstPacketSizes;
    int packetsRead = 0;
    std::unique_ptr<AVIOContext, IoDeleter> io;
    std::unique_ptr<AVFormatContext, FormatDeleter> format;
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
