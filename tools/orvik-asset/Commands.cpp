#include "Commands.h"

#include "Document.h"
#include "Input.h"
#include "Printable.h"
#include "TreePrinter.h"

#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <SampleAssets.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace Orvik::AssetTool {

using DataModel::MediaAssets::Json::JsonError;

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

/// What a JsonError says was expected: its message without the pointer that it starts with.
std::string Expected(const JsonError& error)
{
    const std::string message = error.what();
    const std::string prefix = error.Path() + ": ";
    return message.compare(0, prefix.size(), prefix) == 0 ? message.substr(prefix.size()) : message;
}

/// The document in `file`. Throws InputError for a file that cannot be read and
/// UnreadableDocument for one that does not hold an asset or a group.
Document Load(const std::string& file, Streams& streams)
{
    const std::string text = ReadInput(file, streams.in);
    try {
        return Document::Read(text);
    } catch (const JsonError& error) {
        throw UnreadableDocument(Located(file, error.Path(), Expected(error)));
    } catch (const DocumentError& error) {
        throw UnreadableDocument(Located(file, "", error.what()));
    }
}

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
    for (const std::string& file : files) {
        try {
            const Document document = Document::Read(ReadInput(file, streams.in));
            for (const Problem& found : document.Problems())
                problem(Located(file, found.path, found.message));
        } catch (const InputError& error) {
            streams.err << "orvik-asset: " << Printable(error.what()) << '\n';
            status = kTrouble;
        } catch (const JsonError& error) {
            problem(Located(file, error.Path(), Expected(error)));
        } catch (const DocumentError& error) {
            problem(Located(file, "", error.what()));
        }
    }
    return status;
}

int RunDiff(const std::string& left, const std::string& right, Streams& streams)
{
    const Document a = Load(left, streams);
    const Document b = Load(right, streams);
    if (a.IsGroup() != b.IsGroup())
        throw UnreadableDocument(InputName(left) + " holds a " + a.SchemaName() + " and " + InputName(right) + " a "
                                 + b.SchemaName() + ": only documents of one kind can be compared");
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
