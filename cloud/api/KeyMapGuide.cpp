#include "api/KeyMapGuide.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <stdexcept>

// A static library's resources are linked in only when they are asked for; the macro does not work inside a
// namespace.
static void linkGuide()
{
    Q_INIT_RESOURCE(keymapguide);
}

namespace orvane::cloud {

namespace {

const QString folder = QStringLiteral(":/keymapguide/");

QByteArray contents(const QString &name)
{
    QFile file(folder + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the tutorial has no file " + name.toStdString());
    return file.readAll();
}

QString dataUrl(const QString &pictureName)
{
    return QStringLiteral("data:image/svg+xml;base64,")
        + QString::fromLatin1(contents(pictureName).toBase64());
}

} // namespace

QJsonObject keyMapGuide()
{
    linkGuide();
    QJsonObject guide = QJsonDocument::fromJson(contents(QStringLiteral("guide.json"))).object();
    QJsonArray pages;
    for (const QJsonValue entry : guide.value(QLatin1String("pages")).toArray()) {
        QJsonObject page = entry.toObject();
        const QString picture = page.value(QLatin1String("picture")).toString();
        page.insert(QStringLiteral("picture"), dataUrl(picture));
        pages.append(page);
    }
    if (pages.isEmpty())
        throw std::runtime_error("the tutorial has no pages");
    guide.insert(QStringLiteral("pages"), pages);
    return guide;
}

} // namespace orvane::cloud
