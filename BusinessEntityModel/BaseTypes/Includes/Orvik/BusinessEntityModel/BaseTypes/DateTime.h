#pragma once

#include <ctime>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Seconds since 1970-01-01 00:00:00 UTC. Stored and compared only; never converted here.
using DateTime = std::time_t;

}  // namespace Orvik::BusinessEntityModel::BaseTypes
