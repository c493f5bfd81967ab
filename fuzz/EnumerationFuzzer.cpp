// Every enumeration's two-argument parser never throws, and a text it finds prints back as itself.

#include <Orvik/DataModel/MediaAssets.h>

#include "FuzzText.h"

using namespace Orvik::DataModel::MediaAssets;

namespace {

template <typename Parse>
void CheckRoundTrip(const std::string& text, Parse parse)
{
    bool failed = false;
    const auto value = parse(text, failed);
    if (!failed)
        Check(ToString(value) == text, "a found text prints back as itself");
}

}  // namespace

#define ROUND_TRIP(E) CheckRoundTrip(text, [](const std::string& t, bool& failed) { return To##E(t, failed); })

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text = Text(data, size);
    ROUND_TRIP(WrapperFormat);
    ROUND_TRIP(ResourceFormat);
    ROUND_TRIP(AudioCodingFormat);
    ROUND_TRIP(VideoCodingFormat);
    ROUND_TRIP(BitRateMode);
    ROUND_TRIP(ChromaSubSampling);
    ROUND_TRIP(ColorSpace);
    ROUND_TRIP(ScanMode);
    ROUND_TRIP(Boxing);
    ROUND_TRIP(FieldOrdering);
    ROUND_TRIP(FillAndKeyType);
    ROUND_TRIP(AnnotationType);
    ROUND_TRIP(ArchiveStatus);
    ROUND_TRIP(AssetType);
    ROUND_TRIP(TimecodePrimary);
    ROUND_TRIP(TimeCodeStandard);
    ROUND_TRIP(UserTimecodeType);
    bool failed = false;
    const Essence::Type type = Essence::ToType(text, failed);
    if (!failed)
        Check(Essence::ToString(type) == text, "a found essence type prints back as itself");
    return 0;
}
