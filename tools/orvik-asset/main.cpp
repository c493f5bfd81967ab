// orvik-asset: looks at, checks and compares media asset documents from the command line.

#include "Commands.h"
#include "Interchange.h"
#include "Printable.h"

#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace Orvik::AssetTool;

constexpr char kFileHelp[] =
    "The JSON document of an asset or a group, or a media file (probed first); - reads standard input";

/// Colour only for a person at a terminal, and never when the NO_COLOR convention asks for none.
bool WantsColor(bool noColor)
{
    const char* noColorVariable = std::getenv("NO_COLOR");
    return !noColor && (noColorVariable == nullptr || *noColorVariable == '\0') && isatty(STDOUT_FILENO) == 1;
}

/// A progress bar only for a person watching the error stream.
bool WantsProgress() { return isatty(STDERR_FILENO) == 1; }

/// The one line that a usage error gets, pointing at the help of the command it concerns.
int UsageError(const CLI::App& app, const std::string& message, std::ostream& err)
{
    const auto commands = app.get_subcommands();
    const std::string help =
        commands.empty() ? "orvik-asset --help" : "orvik-asset " + commands.front()->get_name() + " --help";
    err << "orvik-asset: " << Printable(message) << " (see " << help << ")\n";
    return kTrouble;
}

}  // namespace

int main(int argc, char** argv)
{
    CLI::App app("Looks at, checks and compares media asset documents.", "orvik-asset");
    app.set_version_flag("--version", std::string("orvik-asset ") + ORVIK_ASSET_VERSION, "Print the version and exit");
    app.require_subcommand(1);
    app.footer("Exit status: 0 when done (valid, equal), 1 when validate finds a problem, diff a difference\n"
               "or probe --strict a value it cannot map, 2 on a usage error or input that cannot be read.");

    std::string kind = "asset";
    CLI::App* example = app.add_subcommand("example", "Write the built-in sample asset as JSON to standard output");
    example->add_option("--kind", kind, "The sample to write: asset or group")
        ->check(CLI::IsMember({"asset", "group"}))
        ->capture_default_str();

    std::string file;
    bool json = false;
    bool noColor = false;
    CLI::App* show = app.add_subcommand("show", "Print an asset or a group as an indented tree");
    show->add_option("FILE", file, kFileHelp)->required();
    show->add_flag("--json", json, "Print the canonical indented JSON instead");
    show->add_flag("--no-color", noColor, "Never colour the tree (it is coloured only on a terminal)");
    show->footer("Fields at their default (empty, 0, unknown, unset) are left out.");

    std::vector<std::string> files;
    CLI::App* validate =
        app.add_subcommand("validate", "Check documents: their JSON form, then the model's rules; one line per problem");
    validate->add_option("FILE", files, kFileHelp)->required();
    validate->footer("Each problem is written as FILE: JSON-POINTER: MESSAGE; nothing is written for a valid file.\n"
                     "The JSON pointer (/tracks/3/id) names the value in the file as written, where an editor or jq\n"
                     "finds it; what several places share (a stream, a timecode table) is checked where it is written.");

    std::vector<std::string> media;
    ProbeOptions probeOptions;
    CLI::App* probe = app.add_subcommand("probe", "Describe media files as asset documents, from their headers");
    probe->add_option("FILE", media, "A media file (MXF, QuickTime, MP4, WAVE, ...)")->required();
    probe->add_flag("--resource", probeOptions.resource, "Write the media resource's document instead of the asset's");
    probe->add_flag("--strict", probeOptions.strict,
                    "Exit with status 1 when a value could not be mapped and was left at unknown");
    probe->footer("One file gives its indented document; several files give one compact document per line, in the\n"
                  "order given, probed in parallel on every core. Warnings (what could not be mapped) go to\n"
                  "standard error as FILE: warning: MESSAGE; a file that cannot be read gets one line there, and\n"
                  "the other files are still probed.");

    std::string left;
    std::string right;
    CLI::App* diff = app.add_subcommand("diff", "Print the first difference between two documents of one kind");
    diff->add_option("A", left, kFileHelp)->required();
    diff->add_option("B", right, kFileHelp)->required();
    diff->footer("The difference is written as the field's path, then < and its value in A, > and its value in B.\n"
                 "The path is in the model's field names (tracks[3].name), not a JSON pointer: the objects are\n"
                 "compared, not their files, so a stream written once and referred to elsewhere is compared at\n"
                 "every place it is used.");

    std::string otio;
    CLI::App* exportCommand = app.add_subcommand("export", "Write an asset document in a form that editing systems read");
    exportCommand->add_option("FILE", file, "The JSON document of an asset; - reads standard input")->required();
    exportCommand
        ->add_option("--otio", otio, "Write an OpenTimelineIO timeline (.otio) to this file; - writes standard output")
        ->required();
    exportCommand->footer(
        "The timeline holds one track per asset track, each with one clip trimmed to the asset's in and\n"
        "out points, in whole frames; the asset's document rides in its metadata, so import gives it back.");

    std::string imported;
    CLI::App* importCommand =
        app.add_subcommand("import", "Write the asset of an OpenTimelineIO timeline (.otio) that export wrote");
    importCommand->add_option("FILE", imported, "The .otio file; - reads standard input")->required();
    importCommand->footer("The asset's document is written as indented JSON to standard output, with what an editor\n"
                          "changed taken from the timeline: its name, the in and out points, the markers as annotations.");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return app.exit(error);  // --help, --version
        // Without a command, the first word that is not an option was meant as one.
        if (app.get_subcommands().empty() && argc > 1 && argv[1][0] != '-')
            return UsageError(app, std::string("unknown command '") + argv[1] + "'", std::cerr);
        return UsageError(app, error.what(), std::cerr);
    }

    Streams streams{std::cin, std::cout, std::cerr};
    int status = kTrouble;
    try {
        if (*example)
            status = RunExample(kind == "group", streams);
        else if (*show)
            status = RunShow(file, json, WantsColor(noColor), streams);
        else if (*validate)
            status = RunValidate(files, streams);
        else if (*diff)
            status = RunDiff(left, right, streams);
        else if (*exportCommand)
            status = RunExportOtio(file, otio, streams);
        else if (*importCommand)
            status = RunImportOtio(imported, streams);
        else if (*probe) {
            probeOptions.progress = WantsProgress();
            status = RunProbe(media, probeOptions, streams);
        }
    } catch (const std::exception& error) {
        std::cout.flush();
        std::cerr << "orvik-asset: " << Printable(error.what()) << '\n';
        return kTrouble;
    }
    if (!std::cout.flush()) {
        std::cerr << "orvik-asset: cannot write to standard output: " << std::strerror(errno) << '\n';
        return kTrouble;
    }
    return status;
}
