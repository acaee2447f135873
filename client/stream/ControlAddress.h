#pragma once

#include <QJsonValue>
#include <QString>
#include <QtGlobal>

namespace stream {

// Where a granted session finds the streaming gateway. Plain value.
struct ControlAddress
{
    QString ip; // host name or IP address
    quint16 port = 0; // TCP
};

// Reads the address out of what the service grants (docs/api.md): the first of "controlInfoList" of the first
// of "controlList". What is missing or of the wrong type stays at the defaults; a port that is none is
// logged.
ControlAddress controlAddressOf(const QJsonValue &granted);

} // namespace stream
