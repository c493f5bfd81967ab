#include <Orvik/DataModel/MediaAssets/ChromaSubSampling.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<ChromaSubSampling>& GetConverter()
{
    static const StringAssociation<ChromaSubSampling> converter(
        {
            {ChromaSubSampling::unknown, "unknown"},
            {ChromaSubSampling::CS_444, "CS_444"},
            {ChromaSubSampling::CS_422, "CS_422"},
            {ChromaSubSampling::CS_421, "CS_421"},
            {ChromaSubSampling::CS_411, "CS_411"},
            {ChromaSubSampling::CS_420, "CS_420"},
            {ChromaSubSampling::CS_410, "CS_410"},
            {ChromaSubSampling::CS_311, "CS_311"},
        },
        ChromaSubSampling::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(ChromaSubSampling value) { return GetConverter().ToString(value); }
ChromaSubSampling ToChromaSubSampling(const std::string& text) { return GetConverter().ToEnum(text); }
ChromaSubSampling ToChromaSubSampling(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
