#pragma once

// The base types and time values that the model uses, brought into Orvik::DataModel::MediaAssets
// so that model code and callers can name them unqualified there.

#include <Orvik/BusinessEntityModel/BaseTypes/Array.h>
#include <Orvik/BusinessEntityModel/BaseTypes/DateTime.h>
#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfileDictionary.h>
#include <Orvik/BusinessEntityModel/BaseTypes/PersistentObject.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorBase.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorSharedPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorWeakPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Uri.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Utf8String.h>
#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/TimeBoundary.h>
#include <Orvik/TimePoints/Core/TimeBounds.h>
#include <Orvik/TimePoints/Core/TimeCode.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

namespace Orvik::DataModel::MediaAssets {

using BusinessEntityModel::BaseTypes::Array;
using BusinessEntityModel::BaseTypes::DateTime;
using BusinessEntityModel::BaseTypes::FullyQualifiedName;
using BusinessEntityModel::BaseTypes::Identifier;
using BusinessEntityModel::BaseTypes::MetadataProfile;
using BusinessEntityModel::BaseTypes::MetadataProfileDictionary;
using BusinessEntityModel::BaseTypes::PersistentObject;
using BusinessEntityModel::BaseTypes::SharedReference;
using BusinessEntityModel::BaseTypes::SortedVector;
using BusinessEntityModel::BaseTypes::SortedVectorBase;
using BusinessEntityModel::BaseTypes::SortedVectorSharedPointer;
using BusinessEntityModel::BaseTypes::SortedVectorWeakPointer;
using BusinessEntityModel::BaseTypes::URI;
using BusinessEntityModel::BaseTypes::Utf8String;
using TimePoints::Duration;
using TimePoints::TimeBoundary;
using TimePoints::TimeBounds;
using TimePoints::TimePoint;

/// The metadata of assets, annotations and groups, and the technical metadata of resources,
/// streams and essences: both are a MetadataProfileDictionary.
using EditorialMetadata = MetadataProfileDictionary;
using TechnicalMetadata = MetadataProfileDictionary;

/// The timecode type of the operator metadata.
using Timecode = TimePoints::TimeCode;

}  // namespace Orvik::DataModel::MediaAssets
