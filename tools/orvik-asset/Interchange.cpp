#include "Interchange.h"

#include "Document.h"
#include "Input.h"
#include "Printable.h"

#include <Orvik/DataModel/MediaAssets/Json.h>
#include <Orvik/DataModel/MediaAssets/Json/Otio.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace Orvik::AssetTool {

namespace {

using DataModel::MediaAssets::MediaAsset;
using DataModel::MediaAssets::Json::JsonError;

/// The one error line of a document that cannot be read: "orvik-asset: FILE: POINTER: WHAT".
int Unreadable(const std::string& file, const JsonError& error, Streams& streams)
{
    streams.err << "orvik-asset: "
                << Printable(InputName(file) + ": " + (error.Path().empty() ? "" : error.Path() + ": ") + error.Expected())
                << '\n';
    return kTrouble;
}

}  // namespace

int RunExportOtio(const std::string& file, const std::string& otio, Streams& streams)
{
    std::string document;
    try {
        document = DataModel::MediaAssets::Json::ToOtio(
            DataModel::MediaAssets::Json::FromJson<MediaAsset>(ReadInput(file, streams.in)));
    } catch (const JsonError& error) {
        return Unreadable(file, error, streams);
    }
    if (otio == "-") {
        streams.out << document;
        return kSuccess;
    }
    errno = 0;
    std::ofstream out(otio, std::ios::binary);
    if (out)
        out << document;
    if (!out.flush())
        throw std::runtime_error(otio + ": cannot write: " + std::strerror(errno));
    return kSuccess;
}

int RunImportOtio(const std::string& file, Streams& streams)
{
    try {
        streams.out << Document(DataModel::MediaAssets::Json::FromOtio(ReadInput(file, streams.in))).Json();
    } catch (const JsonError& error) {
        return Unreadable(file, error, streams);
    }
    return kSuccess;
}

}  // namespace Orvik::AssetTool
