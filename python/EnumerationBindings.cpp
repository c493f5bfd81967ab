// The closed vocabularies of the model, each with its canonical texts.

#include "Bindings.h"
#include "EnumerationBinder.h"

#include <Orvik/DataModel/MediaAssets.h>

namespace Orvik::Python {

/// One enumeration of the namespace: its ToString and its To<Name> pair.
#define ORVIK_ENUMERATION(Name, doc)                                                                                        \
    BindEnumeration<MA::Name>(                                                                                              \
        module, #Name, doc, [](MA::Name value) { return MA::ToString(value); },                                             \
        [](const std::string& text, bool& failed) { return MA::To##Name(text, failed); })

void BindEnumerations(py::module_& module)
{
    ORVIK_ENUMERATION(AnnotationType, "The kind of an annotation.");
    ORVIK_ENUMERATION(ArchiveStatus, "The archive state of a clip.");
    ORVIK_ENUMERATION(AssetType, "The kind of a media asset.");
    ORVIK_ENUMERATION(AudioCodingFormat, "How an audio essence is coded.");
    ORVIK_ENUMERATION(BitRateMode, "Whether a coding keeps a constant (cbr) or a variable (vbr) bit rate.");
    ORVIK_ENUMERATION(Boxing, "How a picture is framed in its raster.");
    ORVIK_ENUMERATION(ChromaSubSampling, "The chroma subsampling of a picture.");
    ORVIK_ENUMERATION(ColorSpace, "The colour space of a picture.");
    ORVIK_ENUMERATION(FieldOrdering, "The dominant field of interlaced pictures.");
    ORVIK_ENUMERATION(FillAndKeyType, "The role of a clip in a fill-and-key pair.");
    ORVIK_ENUMERATION(ResourceFormat, "The general format of a media resource.");
    ORVIK_ENUMERATION(ScanMode, "How a picture is scanned.");
    ORVIK_ENUMERATION(TimecodePrimary, "Which timecode of a clip is the primary one.");
    ORVIK_ENUMERATION(UserTimecodeType, "Where the user timecode of a clip comes from.");
    ORVIK_ENUMERATION(VideoCodingFormat, "How a video essence is coded.");
    ORVIK_ENUMERATION(WrapperFormat, "How a stream is wrapped: its container format.");
    // The only table whose texts are not Python names ("smpte.pal.25").
    BindEnumeration<MA::TimeCodeStandard>(
        module, "TimeCodeStandard", "The standard of a timecode track; its texts are the standards in dotted lower case.",
        [](MA::TimeCodeStandard value) { return MA::ToString(value); },
        [](const std::string& text, bool& failed) { return MA::ToTimeCodeStandard(text, failed); },
        {"NotSet", "SmptePal25", "SmpteNtsc30Drop", "SmpteNtsc30NoDrop"});
}

}  // namespace Orvik::Python
