#include "api/ApiLog.h"

namespace orvane::cloud {

Q_LOGGING_CATEGORY(apiLog, "orvane.api")

} // namespace orvane::cloud
