#pragma once

// The codec of each part of the model: Write puts the object's JSON value at the writer's place,
// Read builds the object from a value. Each source of this folder holds the codecs of one area,
// each class's members in one table of fields (FieldTable.h) in the order of the document.

#include "Reader.h"
#include "Writer.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets::Json::detail {

// Time values and timecode (TimeCodec.cpp).
void Write(Writer& w, const TimeBoundary& boundary);
TimeBoundary ReadTimeBoundary(Reader& r, value& v);
void Write(Writer& w, const TimeBounds& bounds);
TimeBounds ReadTimeBounds(Reader& r, value& v);
void Write(Writer& w, const TimeBoundsArray& array);
void Read(Reader& r, value& v, TimeBoundsArray& array);
void Write(Writer& w, const Timecode& timecode);
Timecode ReadTimecode(Reader& r, value& v);
void Write(Writer& w, const Rate& rate);
Rate ReadRate(Reader& r, value& v);
/// A table in full the first time, a JSON pointer to it afterwards.
void Write(Writer& w, const std::shared_ptr<TimeCodeTable>& table);
std::shared_ptr<TimeCodeTable> ReadTimeCodeTable(Reader& r, value& v);

// Metadata dictionaries (MetadataCodec.cpp) and the operator profiles (OperatorProfileCodec.cpp).
void Write(Writer& w, const MetadataProfileDictionary& dictionary);
void Read(Reader& r, value& v, MetadataProfileDictionary& dictionary);
void WriteMembers(Writer& w, const PelkOperatorMetadataProfile& profile);
void ReadMembers(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile);
void WriteMembers(Writer& w, const AnglesPelkOperatorMetadataProfile& profile);
void ReadMembers(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile);
/// An operator profile with its "kind" first, as a metadata dictionary holds it.
void WriteOperatorProfile(Writer& w, const MetadataProfile& profile);
std::shared_ptr<MetadataProfile> ReadOperatorProfile(Reader& r, value& v);

// Essences and locations (EssenceCodec.cpp, LocationCodec.cpp).
void Write(Writer& w, const Essence& essence);
std::unique_ptr<Essence> ReadEssence(Reader& r, value& v);
void Write(Writer& w, const Location& location);
std::unique_ptr<Location> ReadLocation(Reader& r, value& v);

// Streams and media resources (StreamCodec.cpp).
void Write(Writer& w, const Stream& stream);
void Read(Reader& r, value& v, Stream& stream);
void ReadMembers(Reader& r, Reader::Rest& rest, Stream& stream);
void Write(Writer& w, const MediaResource& resource);
void Read(Reader& r, value& v, MediaResource& resource);
void ReadMembers(Reader& r, Reader::Rest& rest, MediaResource& resource);

// Media assets (AssetCodec.cpp) and asset groups (GroupCodec.cpp).
void Write(Writer& w, const MediaAsset& asset);
void ReadMembers(Reader& r, Reader::Rest& rest, MediaAsset& asset);
/// The group's "kind" (its class) and then its members.
void WriteMembers(Writer& w, const MediaAssetGroup& group);
std::shared_ptr<MediaAssetGroup> ReadGroup(Reader& r, Reader::Rest& rest);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
