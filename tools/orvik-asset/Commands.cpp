#include "Commands.h"

#include "Document.h"
#include "Input.h"
#include "Printable.h"
#include "Probing.h"
#include "TreePrinter.h"

#include <Orvik/DataModel/MediaAssets/Json.h>
#include <Orvik/DataModel/MediaAssets/Probe.h>
#include <SampleAssets.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

namespace Orvik::AssetTool {

using DataModel::MediaAssets::Json::JsonError;
using DataModel::MediaAssets::Probe::ProbeError;
using DataModel::MediaAssets::Probe::ProbeResult;

namespace {

/// An input that cannot be read as a document; the message names the input.
class UnreadableDocument : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// "file: pointer: what", or "file: what" when the pointer names the whole document.
std::string Located(const std::string& file, const std::string& pointer, const std::string& what)
{
    return InputName(file) + ": " + (pointer.empty() ? "" : pointer + ": ") + what;
}

/// The asset that the media file `file` (or, for "-", the media bytes `text`) describes; its
/// warnings go to the error stream. Throws ProbeError for media that cannot be described.
Document Probed(const std::string& file, const std::string& text, Streams& streams)
{
    const ProbeResult result = file == "-" ? DataModel::MediaAssets::Probe::ProbeBytes(text, InputName(file))
                                           : DataModel::MediaAssets::Probe::ProbeFile(file);
    WriteWarnings(InputName(file), result, streams.err);
    return Document(result.asset);
}

/// The document in `file`, or the asset that the media file in it describes. Throws InputError
/// for a file that cannot be read, ProbeError for media that cannot be described and
/// UnreadableDocument for a document that does not hold an asset or a group.
Document Load(const std::string& file, Streams& streams)
{
    if (file != "-" && IsMediaFile(file))
        return Probed(file, "", streams);
    const std::string text = ReadInput(file, streams.in);
    if (IsMediaText(text))
        return Probed(file, text, streams);
    try {
        return Document::Read(text);
    } catch (const JsonError& error) {
        // The message is already "pointer: what was expected" ("(root)" for the whole document).
        throw UnreadableDocument(InputName(file) + ": " + error.what());
    } catch (const DocumentError& error) {
        throw UnreadableDocument(Located(file, "", error.what()));
    }
}

/// "\r[=====     ] 12/40" on a terminal's error stream, redrawn in place.
void DrawProgress(std::ostream& err, size_t done, size_t total)
{
    constexpr size_t kWidth = 40;
    const size_t filled = total == 0 ? kWidth : done * kWidth / total;
    err << "\r[" << std::string(filled, '=') << std::string(kWidth - filled, ' ') << "] " << done << '/' << total
        << std::flush;
}

/// Clears the progress bar's line.
void ClearProgress(std::ostream& err) { err << "\r\x1b[K" << std::flush; }

}  // namespace

int RunExample(bool group, Streams& streams)
{
    const Document sample = group
        ? Document(std::make_shared<DataModel::MediaAssets::AnglesMediaAssetGroup>(Samples::MakeSampleGroup()))
        : Document(Samples::MakeSampleAsset());
    streams.out << sample.Json();
    return kSuccess;
}

int RunShow(const std::string& file, bool json, bool color, Streams& streams)
{
    const Document document = Load(file, streams);
    if (json)
        streams.out << document.Json();
    else
        PrintTree(streams.out, document.Tree(), color);
    return kSuccess;
}

int RunValidate(const std::vector<std::string>& files, Streams& streams)
{
    int status = kSuccess;
    const auto problem = [&](const std::string& line) {
        streams.out << Printable(line) << '\n';
        status = std::max(status, static_cast<int>(kFound));
    };
    const auto unreadable = [&](const std::exception& error) {
        streams.err << "orvik-asset: " << Printable(error.what()) << '\n';
        status = kTrouble;
    };
    for (const std::string& file : files) {
        try {
            const Document document = Load(file, streams);
            for (const Problem& found : document.Problems())
                problem(Located(file, found.path, found.message));
        } catch (const InputError& error) {
            unreadable(error);
        } catch (const ProbeError& error) {
            unreadable(error);
        } catch (const UnreadableDocument& error) {
            problem(error.what());
        }
    }
    return status;
}

int RunProbe(const std::vector<std::string>& files, const ProbeOptions& options, Streams& streams)
{
    const auto layout =
        files.size() == 1 ? DataModel::MediaAssets::Json::Layout::Indented : DataModel::MediaAssets::Json::Layout::Compact;
    const auto write = [&](const ProbeResult& result) {
        return options.resource ? DataModel::MediaAssets::Json::ToJson(*result.resource, layout)
                                : DataModel::MediaAssets::Json::ToJson(result.asset, layout);
    };
    const bool bar = options.progress && files.size() > 1;
    int status = kSuccess;
    const auto done = [&](size_t index, ProbeOutcome& outcome) {
        if (bar)
            ClearProgress(streams.err);
        if (!outcome.error.empty()) {
            streams.err << "orvik-asset: " << Printable(outcome.error) << '\n';
            status = kTrouble;
            return;
        }
        WriteWarnings(files[index], outcome.result, streams.err);
        streams.out << outcome.document << '\n';
        if (options.strict && outcome.result.HasUnmapped() && status == kSuccess)
            status = kFound;
    };
    const auto progress = [&](size_t finished) {
        if (bar)
            DrawProgress(streams.err, finished, files.size());
    };
    ProbeInParallel(files, write, done, progress);
    if (bar)
        ClearProgress(streams.err);
    return status;
}

int RunDiff(const std::string& left, const std::string& right, Streams& streams)
{
    const Document a = Load(left, streams);
    const Document b = Load(right, streams);
    if (a.IsGroup() != b.IsGroup())
        throw UnreadableDocument(InputName(left) + " holds a " + std::string(a.SchemaName()) + " and " + InputName(right)
                                 + " a " + std::string(b.SchemaName()) + ": only documents of one kind can be compared");
    const auto difference = a.FirstDifference(b);
    if (!difference) {
        streams.out << (a.IsGroup() ? "The groups are equal.\n" : "The assets are equal.\n");
        return kSuccess;
    }
    streams.out << Printable(difference->Path()) << '\n'
                << "< " << Printable(difference->Left()) << '\n'
                << "> " << Printable(difference->Right()) << '\n';
    return kFound;
}

}  // namespace Orvik::AssetTool
