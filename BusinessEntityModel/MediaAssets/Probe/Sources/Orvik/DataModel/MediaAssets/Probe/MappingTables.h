#pragma once

// The probe's mapping tables, one per vocabulary of the model, each read top to bottom with the
// first matching row taken. What no row matches is left at unknown with an Unmapped warning that
// names what the file held.

#include "FFmpeg.h"
#include "Warnings.h"

#include <Orvik/DataModel/MediaAssets/AudioCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/BitRateMode.h>
#include <Orvik/DataModel/MediaAssets/ChromaSubSampling.h>
#include <Orvik/DataModel/MediaAssets/ColorSpace.h>
#include <Orvik/DataModel/MediaAssets/FieldOrdering.h>
#include <Orvik/DataModel/MediaAssets/ScanMode.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>
#include <Orvik/DataModel/MediaAssets/VideoCodingFormat.h>
#include <Orvik/DataModel/MediaAssets/WrapperFormat.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Probe {

/// What the container table looks at: the demuxer, and what tells its variants apart.
struct ContainerFacts {
    std::string_view demuxer;
    /// MXF: the operational pattern's name ("OP1a", "OP-Atom"), or its label when it is no
    /// pattern of that family; empty when the file names none.
    std::string pattern;
    /// QuickTime and ISO files: the major brand of the file type box; empty without one.
    std::string brand;
    /// WAVE: whether the file has a broadcast extension chunk.
    bool broadcastExtension = false;
    /// Matroska: the DocType of the EBML header ("webm", "matroska").
    std::string docType;
};

WrapperFormat MapWrapperFormat(const ContainerFacts& container, Warnings& warnings);

/// What the video table looks at.
struct VideoFacts {
    int stream = 0;
    AVCodecID codec = AV_CODEC_ID_NONE;
    int profile = FF_PROFILE_UNKNOWN;
    std::string fourCC;
    int bitDepth = 0;
    ChromaSubSampling chroma = ChromaSubSampling::unknown;
    int width = 0;
    int height = 0;
    /// Bits per second; 0 when the file does not say.
    int64_t bitRate = 0;
    bool inMxf = false;
    /// A single picture (an image file), not a movie.
    bool stillImage = false;
};

/// A video coding, and the bit rate mode that the coding itself fixes (unknown when it varies).
struct VideoCoding {
    VideoCodingFormat format;
    BitRateMode bitRateMode;
};

VideoCoding MapVideoCoding(const VideoFacts& video, Warnings& warnings);

/// An audio coding and the bit rate mode that the coding fixes.
struct AudioCoding {
    AudioCodingFormat format;
    BitRateMode bitRateMode;
};

AudioCoding MapAudioCoding(int stream, AVCodecID codec, Warnings& warnings);

/// From the pixel format's sampling of its chroma planes.
ChromaSubSampling MapChromaSubSampling(int stream, AVPixelFormat pixelFormat, Warnings& warnings);

/// From the colour matrix and range; an unspecified matrix is unknown without a warning.
/// `matrix` and `range` as the numbers the demuxer stored, which a file can set outside FFmpeg's
/// enumerations (QuickTime's colour atom is copied unchecked).
ColorSpace MapColorSpace(int stream, int matrix, int range, Warnings& warnings);

struct Scan {
    ScanMode mode;
    FieldOrdering dominantField;
};

/// From the field order that the stream declares, else from a coding that has no interlaced
/// pictures.
Scan MapScan(AVCodecID codec, AVFieldOrder order);

/// The standard of a timecode counted at `rate` frames per second, `drop` when its text says
/// drop-frame.
TimeCodeStandard MapTimeCodeStandard(const std::string& text, AVRational rate, bool drop, Warnings& warnings);

}  // namespace Orvik::DataModel::MediaAssets::Probe
