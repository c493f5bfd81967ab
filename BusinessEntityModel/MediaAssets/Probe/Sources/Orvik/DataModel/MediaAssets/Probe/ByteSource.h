#pragma once

#include <cstdint>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Probe {

/// The bytes that FFmpeg reads through the probe's own I/O context: a file that the probe opened
/// itself, or bytes in memory. Reading goes through here alone, so FFmpeg opens nothing.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// Up to `size` bytes into `buffer`; the number read, 0 at the end, negative (an AVERROR) on
    /// failure.
    virtual int Read(uint8_t* buffer, int size) = 0;
    /// As lseek(2), with AVSEEK_SIZE asking for the size; the new position, or an AVERROR.
    virtual int64_t Seek(int64_t offset, int whence) = 0;
};

/// An open file descriptor, closed on destruction.
class FileSource : public ByteSource {
public:
    FileSource(int descriptor, int64_t size) : descriptor(descriptor), size(size) {}
    ~FileSource() override;
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

    int Read(uint8_t* buffer, int size) override;
    int64_t Seek(int64_t offset, int whence) override;

private:
    int descriptor;
    int64_t size;
};

/// Bytes held by the caller, who keeps them alive while the probe runs.
class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::string_view bytes) : bytes(bytes) {}

    int Read(uint8_t* buffer, int size) override;
    int64_t Seek(int64_t offset, int whence) override;

private:
    std::string_view bytes;
    int64_t position = 0;
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
