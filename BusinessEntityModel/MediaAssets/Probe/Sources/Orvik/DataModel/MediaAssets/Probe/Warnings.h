#pragma once

#include <Orvik/DataModel/MediaAssets/Probe/ProbeWarning.h>

#include <string>
#include <utility>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Probe {

/// Where the mapping tables put what they could not map, in the order they met it.
class Warnings {
public:
    /// No row matched: the field stays unknown. `seen` names what the file held.
    void Unmapped(std::string seen) { list.push_back({ProbeWarning::Unmapped, std::move(seen)}); }
    /// A fact that the model cannot hold or that the file leaves open.
    void Omitted(std::string what) { list.push_back({ProbeWarning::Omitted, std::move(what)}); }

    std::vector<ProbeWarning> Take() { return std::move(list); }

private:
    std::vector<ProbeWarning> list;
};

}  // namespace Orvik::DataModel::MediaAssets::Probe
