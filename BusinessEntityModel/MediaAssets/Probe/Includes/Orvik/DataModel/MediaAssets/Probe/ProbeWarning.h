#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets::Probe {

/// Something of a media file that the probe could not put into the model. The probe never prints
/// it: it comes back beside the asset, for the caller to show or to count.
struct ProbeWarning {
    enum Kind : int32_t {
        /// A value that no row of a mapping table matches: the field is left at unknown, and the
        /// message names what was seen (the codec and its profile, the operational pattern).
        Unmapped,
        /// A fact of the file that the model cannot hold or that the file does not give (a
        /// timecode that is not a timecode text of the model, a duration the file leaves open).
        Omitted,
    };

    Kind kind;
    std::string message;

    bool operator==(const ProbeWarning& other) const { return kind == other.kind && message == other.message; }
    bool operator!=(const ProbeWarning& other) const { return !(*this == other); }
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
