#pragma once

#include <QLoggingCategory>

namespace orvane::cloud {

// Log category "orvane.api"; any thread.
Q_DECLARE_LOGGING_CATEGORY(apiLog)

} // namespace orvane::cloud
