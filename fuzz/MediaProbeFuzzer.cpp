// ProbeBytes on arbitrary bytes either throws ProbeError naming the bytes' name, or returns an
// asset that holds the returned resource, whose one stream carries an essence for every track
// channel of the asset. Anything else that escapes (another exception, a crash inside FFmpeg
// or the probe) stops the run. FFmpeg's own code is not instrumented: the sanitizers see its
// allocations and the probe's reads of what it returns, not its reads of its own buffers.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Probe.h>

#include "FuzzText.h"

extern "C" {
#include <libavutil/mem.h>
}

#include <cstddef>
#include <string>
#include <string_view>

using namespace Orvik::DataModel::MediaAssets;

namespace {

/// The name given with the bytes: without an extension, so the bytes alone choose the format.
const std::string kName = "fuzz-input";

void CheckDescribed(const Probe::ProbeResult& result)
{
    Check(result.resource != nullptr, "the result holds its resource");
    Check(result.asset.MediaResources().Size() == 1, "the asset holds one resource");
    Check(result.asset.MediaResources()[0].Pointer() == result.resource, "the asset's resource is the result's");
    Check(result.resource->Streams().size() == 1, "the resource holds one stream");
    const Stream& stream = *result.resource->Streams()[0];
    Check(stream.Locations().Size() == 0, "bytes in memory have no location");
    for (const auto& track : result.asset.Tracks())
        for (const auto& channel : track->Channels()) {
            Check(channel->Stream().Pointer().get() == &stream, "every track channel holds the resource's stream");
            Check(channel->EssenceNr() >= 0 && channel->EssenceNr() < stream.Essences().Size(),
                  "every track channel names an essence of the stream");
        }
    for (const Probe::ProbeWarning& warning : result.warnings)
        Check(!warning.message.empty(), "every warning says what it is about");
}

}  // namespace

/// FFmpeg allocates what a file's headers declare: a RIFF INFO tag of 1.7 GB is zeroed into
/// memory from an input of 200 bytes, past libFuzzer's limit of 2 GB. Each of FFmpeg's
/// allocations is capped far above what these inputs need, so that such a size fails inside
/// FFmpeg and reaches the probe as the ENOMEM that it reports as a ProbeError.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    av_max_alloc(size_t{256} << 20);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        CheckDescribed(Probe::ProbeBytes(bytes, kName));
    } catch (const Probe::ProbeError& error) {
        Check(error.Source() == kName, "a probe error names the bytes' name");
    }
    return 0;
}
