#pragma once

#include <stdexcept>
#include <string>

namespace Orvik::DataModel::MediaAssets::Probe {

/// A file, or bytes, that the probe cannot describe: missing, a directory, empty, not a media
/// format it reads, unreadable headers, or a format that names other files (a playlist, a concat
/// list), which the probe refuses to follow.
///
/// Source() is the file's path, or the name given with the bytes; Reason() says what went wrong
/// in the library's own words ("cannot open: No such file or directory"). The message is both,
/// joined by ": ".
class ProbeError : public std::runtime_error {
public:
    ProbeError(const std::string& source, const std::string& reason)
        : std::runtime_error(source + ": " + reason), source(source), reason(reason)
    {}

    const std::string& Source() const { return source; }
    const std::string& Reason() const { return reason; }

private:
    std::string source;
    std::string reason;
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
