#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// The text of a location: the same type as a qualified name, stored and compared as bytes.
using URI = FullyQualifiedName;

}  // namespace Orvik::BusinessEntityModel::BaseTypes
