#include "web/StreamingData.h"

#include <cmath>

namespace web {

namespace {

struct Member
{
    const char *name;
    QString StreamingData::*field;
};

// In the order of the page's query items.
constexpr Member Members[] = {
    {"deviceId", &StreamingData::deviceId},
    {"serviceId", &StreamingData::serviceId},
    {"nodeType", &StreamingData::nodeType},
    {"payMode", &StreamingData::payMode},
    {"uuid", &StreamingData::uuid},
    {"apiHost", &StreamingData::apiHost},
    {"aliasName", &StreamingData::aliasName},
    {"ttl", &StreamingData::ttl},
};

constexpr double LargestWholeNumber = 9007199254740992.0; // that a JavaScript number holds exactly

// JavaScript has one type for all numbers; a whole one is written without exponent and fraction.
QString textOf(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return value.toString();
    if (value.userType() == QMetaType::Double) {
        const double number = value.toDouble();
        if (std::trunc(number) == number && std::abs(number) <= LargestWholeNumber)
            return QString::number(static_cast<qint64>(number));
        return value.toString();
    }
    const bool whole = value.userType() == QMetaType::Int || value.userType() == QMetaType::LongLong;
    return whole ? value.toString() : QString();
}

} // namespace

StreamingData StreamingData::fromVariantMap(const QVariantMap &object)
{
    StreamingData data;
    for (const Member &member : Members)
        data.*member.field = textOf(object.value(QLatin1String(member.name)));
    return data;
}

QUrl StreamingData::pageUrl(const QString &page) const
{
    QString query;
    for (const Member &member : Members) {
        if (!query.isEmpty())
            query += QLatin1Char('&');
        query += QLatin1String(member.name) + QLatin1Char('=')
            + QString::fromLatin1(QUrl::toPercentEncoding(this->*member.field));
    }
    return QUrl(page + QLatin1Char('?') + query, QUrl::StrictMode);
}

void registerStreamingData()
{
    static const bool registered = [] {
        qRegisterMetaType<StreamingData>("web::StreamingData");
        return QMetaType::registerConverter<QVariantMap, StreamingData>(&StreamingData::fromVariantMap);
    }();
    Q_UNUSED(registered)
}

} // namespace web
