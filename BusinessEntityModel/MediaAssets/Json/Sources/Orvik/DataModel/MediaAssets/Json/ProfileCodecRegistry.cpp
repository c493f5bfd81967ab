#include "ProfileCodecRegistry.h"

#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>

#include <map>
#include <mutex>
#include <shared_mutex>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

constexpr char kNullCodec[] = "Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: null codec";
constexpr char kBuiltInName[] =
    "Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: the operator profiles' codec is built in";

struct Registry {
    std::shared_mutex mutex;
    std::map<std::string, std::shared_ptr<const MetadataProfileCodec>, std::less<>> codecs;
};

Registry& GetRegistry()
{
    static Registry registry;
    return registry;
}

}  // namespace

void RegisterMetadataProfileCodec(const FullyQualifiedName& name, std::shared_ptr<const MetadataProfileCodec> codec)
{
    if (!codec)
        throw std::invalid_argument(kNullCodec);
    if (detail::IsOperatorProfileName(name.Value()))
        throw std::invalid_argument(kBuiltInName);
    Registry& registry = GetRegistry();
    const std::unique_lock lock(registry.mutex);
    registry.codecs.insert_or_assign(name.Value(), std::move(codec));
}

bool UnregisterMetadataProfileCodec(const FullyQualifiedName& name)
{
    Registry& registry = GetRegistry();
    const std::unique_lock lock(registry.mutex);
    return registry.codecs.erase(name.Value()) != 0;
}

namespace detail {

std::shared_ptr<const MetadataProfileCodec> FindCodec(const std::string& name)
{
    Registry& registry = GetRegistry();
    const std::shared_lock lock(registry.mutex);
    const auto found = registry.codecs.find(name);
    return found == registry.codecs.end() ? nullptr : found->second;
}

bool IsOperatorProfileName(const std::string& name)
{
    return name == PelkOperatorMetadataProfile::StaticFullyQualifiedName().Value();
}

}  // namespace detail

}  // namespace Orvik::DataModel::MediaAssets::Json
