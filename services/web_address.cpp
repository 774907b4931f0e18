#include "services/web_address.h"

namespace orvane {

Text WithScheme(TextView address)
{
    return StartsWithIgnoringCase(address, u"www.") ? Join({u"http://", address}) : Text(address);
}

} // namespace orvane
