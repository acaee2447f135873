#pragma once

#include <QLoggingCategory>

namespace orvane::cloud {

// Log category "orvane.device"; any thread.
Q_DECLARE_LOGGING_CATEGORY(deviceLog)

} // namespace orvane::cloud
