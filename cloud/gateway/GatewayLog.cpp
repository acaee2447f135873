#include "gateway/GatewayLog.h"

namespace orvane::cloud {

Q_LOGGING_CATEGORY(gatewayLog, "orvane.gateway")

} // namespace orvane::cloud
