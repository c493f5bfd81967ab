#include <Orvik/DataModel/MediaAssets/Probe/MediaProbe.h>

#include "ByteSource.h"
#include "Description.h"
#include "FileUri.h"
#include "Opening.h"

#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeError.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

constexpr char kEmpty[] = "cannot read: the file is empty";

std::string Reason(const char* what, int error) { return std::string(what) + ": " + std::strerror(error); }

/// The file's name, its size and dates as the file system gives them, and its absolute URI.
std::unique_ptr<FileLocation> Locate(const std::string& path, const struct stat& status)
{
    auto location = std::make_unique<FileLocation>();
    const std::filesystem::path absolute = std::filesystem::absolute(path).lexically_normal();
    location->Name(absolute.filename().string());
    location->Size(status.st_size);
    location->IsReadOnly(::access(path.c_str(), W_OK) != 0);
    struct statx extended {};
    if (::statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME, &extended) == 0 && (extended.stx_mask & STATX_BTIME) != 0)
        location->CreationDate(static_cast<DateTime>(extended.stx_btime.tv_sec));
    location->ModificationDate(status.st_mtime);
    location->LastAccessDate(status.st_atime);
    location->Uri(URI(FileUri(absolute.string())));
    return location;
}

}  // namespace

ProbeResult ProbeFile(const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);  // a FIFO must not block the open
    if (descriptor < 0)
        throw ProbeError(path, Reason("cannot open", errno));
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) {
        const int error = errno;
        ::close(descriptor);
        throw ProbeError(path, Reason("cannot read", error));
    }
    FileSource source(descriptor, status.st_size);
    if (S_ISDIR(status.st_mode))
        throw ProbeError(path, Reason("cannot read", EISDIR));
    if (!S_ISREG(status.st_mode))
        throw ProbeError(path, "cannot read: not a regular file");
    if (status.st_size == 0)
        throw ProbeError(path, kEmpty);
    OpenedMedia media(source, path, path);
    return Describe(media, std::filesystem::path(path).filename().string(), Locate(path, status));
}

ProbeResult ProbeBytes(std::string_view bytes, const std::string& name)
{
    if (bytes.empty())
        throw ProbeError(name, kEmpty);
    MemorySource source(bytes);
    OpenedMedia media(source, name, name);
    return Describe(media, name, nullptr);
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
