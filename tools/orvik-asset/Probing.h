#pragma once

#include <Orvik/DataModel/MediaAssets/Probe/ProbeResult.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace Orvik::AssetTool {

/// Whether `file` holds a media file rather than a document: its first byte that is not white
/// space is not the "{" that every document starts with. Throws InputError for a file that
/// cannot be opened.
bool IsMediaFile(const std::string& file);

/// The same test on text already read (standard input).
bool IsMediaText(const std::string& text);

/// Writes each warning of `result` to `err` as "orvik-asset: FILE: warning: MESSAGE".
void WriteWarnings(const std::string& file, const DataModel::MediaAssets::Probe::ProbeResult& result, std::ostream& err);

/// What probing one file of many gave: the text to write, or the reason it could not be read.
struct ProbeOutcome {
    std::string document;  // empty when the file could not be read
    std::string error;     // "FILE: reason"
    DataModel::MediaAssets::Probe::ProbeResult result;
};

/// Probes every file on as many threads as the machine has cores, turning each result into its
/// text with `write`, and hands the outcomes to `done` in the order of `files`, each as soon as it
/// and every file before it are probed; `progress` is called after each file with the number of
/// files done.
void ProbeInParallel(const std::vector<std::string>& files,
                     const std::function<std::string(const DataModel::MediaAssets::Probe::ProbeResult&)>& write,
                     const std::function<void(size_t index, ProbeOutcome&)>& done,
                     const std::function<void(size_t finished)>& progress);

}  // namespace Orvik::AssetTool
