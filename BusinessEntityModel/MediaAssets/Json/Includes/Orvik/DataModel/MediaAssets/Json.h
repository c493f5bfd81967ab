#pragma once

// The JSON form of the model: ToJson, FromJson, FromAnyJson, SchemaName, the metadata profile
// codecs, JSON pointers and the library's one exception type; and the OpenTimelineIO form built on
// it, ToOtio and FromOtio.

#include <Orvik/DataModel/MediaAssets/Json/AnyDocument.h>
#include <Orvik/DataModel/MediaAssets/Json/FromJson.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonPointer.h>
#include <Orvik/DataModel/MediaAssets/Json/Layout.h>
#include <Orvik/DataModel/MediaAssets/Json/MetadataProfileCodec.h>
#include <Orvik/DataModel/MediaAssets/Json/Otio.h>
#include <Orvik/DataModel/MediaAssets/Json/RawMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Json/SchemaName.h>
#include <Orvik/DataModel/MediaAssets/Json/ToJson.h>
