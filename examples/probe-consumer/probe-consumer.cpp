// Describes the media file named on the command line: the smallest use of the installed media
// probe, compiled without FFmpeg's headers.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Probe.h>

#include <iostream>

using namespace Orvik::DataModel::MediaAssets;

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: probe-consumer FILE\n";
        return 2;
    }
    try {
        const Probe::ProbeResult probed = Probe::ProbeFile(argv[1]);
        const Stream& stream = *probed.resource->Streams().front().Pointer();
        std::cout << "probe-consumer: " << probed.asset.Id().Value() << ", " << ToString(stream.Format()) << ", "
                  << stream.Essences().Size() << " essences, " << probed.asset.Tracks().Size() << " tracks\n";
    } catch (const Probe::ProbeError& error) {
        std::cerr << "probe-consumer: " << error.what() << '\n';
        return 2;
    }
    return 0;
}
