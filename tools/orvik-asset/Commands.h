#pragma once

// The commands of orvik-asset, apart from the parsing of their command line.

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace Orvik::AssetTool {

/// The exit status of the tool, which scripts read as its answer, as diff(1) does.
enum ExitStatus : int {
    kSuccess = 0,  // done; valid; equal
    kFound = 1,    // a file has problems; the documents differ
    kTrouble = 2,  // a usage error, or input that cannot be read as a document
};

/// Where a command reads "-" from and writes its answer and its error lines to.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

/// Writes the sample asset, or with `group` the sample group, as indented JSON.
int RunExample(bool group, Streams& streams);

/// Writes the document in `file` (or the asset that a media file describes) as a tree (painted with `color`), or with `json`
/// as its canonical indented JSON.
int RunShow(const std::string& file, bool json, bool color, Streams& streams);

/// Checks each file, first that it reads as a document, then the model's rules, and writes one
/// line per problem: "file: pointer: message". Nothing is written for a valid file. A file that
/// cannot be opened is an error line on `err`; the other files are still checked.
int RunValidate(const std::vector<std::string>& files, Streams& streams);

/// What `orvik-asset probe` writes and how it answers.
struct ProbeOptions {
    bool resource = false;  // the media resource's document instead of the asset's
    bool strict = false;    // exit status 1 when a mapping fell back to unknown
    bool progress = false;  // a progress bar on the error stream, for a person at a terminal
};

/// Describes each media file as an asset (or a resource) document: one file as indented JSON,
/// several as one compact document per line in the order given, probed in parallel. Warnings go
/// to `err` as "orvik-asset: FILE: warning: ...", a file that cannot be read as one line
/// "orvik-asset: FILE: reason" (the other files are still probed).
int RunProbe(const std::vector<std::string>& files, const ProbeOptions& options, Streams& streams);

/// Writes the first difference between the documents in `left` and `right`, or that they are
/// equal.
int RunDiff(const std::string& left, const std::string& right, Streams& streams);

}  // namespace Orvik::AssetTool
