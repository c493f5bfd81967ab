#include "ByteSource.h"

#include "FFmpeg.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

/// The position that `offset` and `whence` name, or a negative value when they name none.
int64_t Target(int64_t offset, int whence, int64_t position, int64_t size)
{
    int64_t base;
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_SET:
        base = 0;
        break;
    case SEEK_CUR:
        base = position;
        break;
    case SEEK_END:
        base = size;
        break;
    default:
        return -1;
    }
    int64_t target;
    return __builtin_add_overflow(base, offset, &target) ? -1 : target;
}

}  // namespace

FileSource::~FileSource() { ::close(descriptor); }

int FileSource::Read(uint8_t* buffer, int size)
{
    ssize_t count;
    do
        count = ::read(descriptor, buffer, static_cast<size_t>(size));
    while (count < 0 && errno == EINTR);
    if (count < 0)
        return AVERROR(errno);
    return count == 0 ? AVERROR_EOF : static_cast<int>(count);
}

int64_t FileSource::Seek(int64_t offset, int whence)
{
    if (whence == AVSEEK_SIZE)
        return size;
    const off_t current = ::lseek(descriptor, 0, SEEK_CUR);
    const int64_t target = Target(offset, whence, current, size);
    if (current < 0 || target < 0)
        return AVERROR(EINVAL);
    const off_t reached = ::lseek(descriptor, static_cast<off_t>(target), SEEK_SET);
    return reached < 0 ? AVERROR(errno) : reached;
}

int MemorySource::Read(uint8_t* buffer, int size)
{
    const int64_t left = static_cast<int64_t>(bytes.size()) - position;
    if (left <= 0)
        return AVERROR_EOF;
    const int count = static_cast<int>(std::min<int64_t>(left, size));
    std::memcpy(buffer, bytes.data() + position, static_cast<size_t>(count));
    position += count;
    return count;
}

int64_t MemorySource::Seek(int64_t offset, int whence)
{
    const auto size = static_cast<int64_t>(bytes.size());
    if (whence == AVSEEK_SIZE)
        return size;
    const int64_t target = Target(offset, whence, position, size);
    if (target < 0)
        return AVERROR(EINVAL);
    position = target;
    return position;
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
