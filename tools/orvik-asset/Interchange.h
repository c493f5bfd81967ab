#pragma once

// The commands that carry an asset to and from OpenTimelineIO, for editing systems.

#include "Commands.h"

#include <string>

namespace Orvik::AssetTool {

/// Reads the asset document in `file` ("-": standard input) and writes it as an indented
/// OpenTimelineIO timeline to `otio` ("-": standard output).
int RunExportOtio(const std::string& file, const std::string& otio, Streams& streams);

/// Reads the OpenTimelineIO timeline in `file` ("-": standard input), written by export and maybe
/// changed by an editor since, and writes its asset as the canonical indented JSON document.
int RunImportOtio(const std::string& file, Streams& streams);

}  // namespace Orvik::AssetTool
