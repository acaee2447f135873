#pragma once

#include "stream/StreamingData.h"

#include <QJsonValue>
#include <QString>

// Reads the connection out of the `data` of the service's answer to "device_apply" (docs/api.md) for the
// device of `serviceId`. What is missing or of the wrong type stays at StreamingData's defaults, except that
// texts are empty.
stream::StreamingData streamingDataOf(const QJsonValue &data, const QString &serviceId);
