#pragma once

#include <QJsonValue>
#include <QString>

// The envelope around every answer of the service's HTTP API: {"code": 200, "msg": "...", "data": ...}.
// A plain value.
struct ResponseData
{
    // "code": the service's own result, 200 for success. 0 when it is missing, no number, not whole or beyond
    // 32 bits.
    int code = 0;
    // "msg": a text for the log or the user. Empty when it is missing or no string.
    QString msg;
    // "data": the answer proper, of any JSON type. Null when it is missing.
    QJsonValue data;

    // The answer proper as one line for the log: objects and arrays as JSON, anything else as it is.
    static QString logText(const QJsonValue &data);
    // Reads an envelope; what is not a JSON object gives the defaults above.
    static ResponseData fromJson(const QString &text);
};
