#include <Orvik/TimePoints/Core/Duration.h>

#include <Orvik/TimePoints/Core/Formatters/DurationFormatter.h>

namespace Orvik::TimePoints {

std::string Duration::ToString(const DurationFormatter& formatter) const { return formatter.Format(*this); }

}  // namespace Orvik::TimePoints
