#include "group/TileText.h"

#include <QCoreApplication>

namespace group {

namespace {

QString twoLines(const char *format, const QString &first, const QString &second)
{
    return QString::fromLatin1(format).arg(first.toHtmlEscaped(), second.toHtmlEscaped());
}

} // namespace

QString remainingTime(const QDateTime &expireTime, const QDateTime &now)
{
    if (!expireTime.isValid())
        return {};
    constexpr qint64 Minute = 60;
    constexpr qint64 Hour = 60 * Minute;
    constexpr qint64 Day = 24 * Hour;
    const qint64 seconds = qMax<qint64>(0, now.secsTo(expireTime));
    //: Time left: days, hours, minutes, seconds.
    return QCoreApplication::translate("TileText", "%1d %2h %3min %4s")
        .arg(seconds / Day)
        .arg(seconds % Day / Hour)
        .arg(seconds % Hour / Minute)
        .arg(seconds % Minute);
}

QString darkText(const QString &first, const QString &second)
{
    return twoLines("<p><font color='#333333' style='font-size: 13px'>%1\n</font><br>"
                    "<font color='#999999' style='font-size: 12px'>%2</font></p>",
        first, second);
}

QString lightText(const QString &first, const QString &second)
{
    return twoLines("<p><font color='#FFFFFF' style='font-size: 14px'>%1\n</font><br>"
                    "<font color='#FFFFFF' style='font-size: 12px'>%2</font></p>",
        first, second);
}

} // namespace group
