#pragma once

// FFmpeg's C headers, for this library's sources alone (no public header names an FFmpeg type).

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/pixdesc.h>
}
