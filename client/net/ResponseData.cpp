#include "net/ResponseData.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QVariant>

ResponseData ResponseData::fromJson(const QString &text)
{
    const QJsonObject envelope = QJsonDocument::fromJson(text.toUtf8()).object();
    ResponseData response;
    response.code = envelope.value(QLatin1String("code")).toInt();
    response.msg = envelope.value(QLatin1String("msg")).toString();
    const QJsonValue data = envelope.value(QLatin1String("data"));
    if (!data.isUndefined())
        response.data = data;
    return response;
}

QString ResponseData::logText(const QJsonValue &data)
{
    const QJsonDocument document = QJsonDocument::fromVariant(data.toVariant());
    return document.isNull() ? data.toVariant().toString()
                             : QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}
