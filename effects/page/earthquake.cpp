#include "effects/page/earthquake.h"

namespace orvane {

std::optional<Complaint> Check(const Earthquake& quake)
{
    return CheckNumbers(quake, 0);
}

} // namespace orvane
