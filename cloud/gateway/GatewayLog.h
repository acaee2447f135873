#pragma once

#include <QLoggingCategory>

namespace orvane::cloud {

// Log category "orvane.gateway"; any thread.
Q_DECLARE_LOGGING_CATEGORY(gatewayLog)

} // namespace orvane::cloud
