#include "keymap/GuidePages.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

constexpr int MostPages = 50;
const char PicturePrefix[] = "data:image/svg+xml;base64,";

QByteArray pictureOf(const QString &dataUrl)
{
    const QByteArray url = dataUrl.toLatin1();
    if (!url.startsWith(PicturePrefix))
        return {};
    const auto decoded = QByteArray::fromBase64Encoding(
        url.mid(static_cast<int>(sizeof PicturePrefix) - 1), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? decoded.decoded : QByteArray();
}

} // namespace

GuidePages GuidePages::fromJson(const QJsonValue &data)
{
    GuidePages guide;
    const QJsonObject object = data.toObject();
    guide.title = object.value(QLatin1String("title")).toString();
    const QJsonArray pages = object.value(QLatin1String("pages")).toArray();
    for (const QJsonValue &entry : pages) {
        const QJsonObject page = entry.toObject();
        const QString title = page.value(QLatin1String("title")).toString();
        const QString text = page.value(QLatin1String("text")).toString();
        if ((title.isEmpty() && text.isEmpty()) || guide.pages.size() >= MostPages)
            continue;
        guide.pages.append({title, text, pictureOf(page.value(QLatin1String("picture")).toString())});
    }
    return guide;
}
