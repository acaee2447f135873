#pragma once

#include <QDateTime>
#include <QString>

// What a tile writes over its device.
namespace group {

// The time from `now` to `expireTime`, as in "1d 2h 3min 4s"; zero when it is over, empty without a time.
QString remainingTime(const QDateTime &expireTime, const QDateTime &now);

// Two lines of plain text as rich text: for a white background, and in white for a picture.
QString darkText(const QString &first, const QString &second);
QString lightText(const QString &first, const QString &second);

} // namespace group
