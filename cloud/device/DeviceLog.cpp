#include "device/DeviceLog.h"

namespace orvane::cloud {

Q_LOGGING_CATEGORY(deviceLog, "orvane.device")

} // namespace orvane::cloud
