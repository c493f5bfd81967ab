#include <Orvik/DataModel/MediaAssets/MediaResource.h>

#include "CloneTargetOrKeepId.h"
#include "EqualityVisitor.h"

#include <utility>

namespace Orvik::DataModel::MediaAssets {

MediaResource::MediaResource() : MediaResource(Identifier::Empty()) {}

MediaResource::MediaResource(const MediaResourceId& id) : id(id), metadata(std::make_shared<MetadataProfileDictionary>()) {}

bool MediaResource::operator==(const MediaResource& other) const { return detail::EqualInOrder(*this, other); }

MediaResource MediaResource::Clone() const
{
    MediaResource copy;
    copy.id = id;
    copy.name = name;
    copy.generalFormat = generalFormat;
    copy.timebounds = timebounds;
    copy.creationDate = creationDate;
    copy.modificationDate = modificationDate;
    copy.metadata->DeepCopy(*metadata);
    copy.streams.reserve(streams.size());
    for (const auto& stream : streams)
        copy.streams.push_back(detail::CloneTargetOrKeepId(stream));
    return copy;
}

void MediaResource::Adopt(std::unique_ptr<Stream>&& stream) { streams.emplace_back(std::move(stream)); }

void MediaResource::Add(const MediaResourceId& streamId) { streams.emplace_back(streamId); }

}  // namespace Orvik::DataModel::MediaAssets
