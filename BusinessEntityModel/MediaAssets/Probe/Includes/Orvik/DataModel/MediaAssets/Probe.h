#pragma once

// The media probe: describes a media file (or the bytes of one) as a media asset, on FFmpeg's
// libraries, which none of these headers names.

#include <Orvik/DataModel/MediaAssets/Probe/MediaProbe.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeError.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeResult.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeWarning.h>
