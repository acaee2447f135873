#include "update/InstallerName.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

// How the service names its files.
namespace Contract {
const QLatin1String nameKey("file_name");
const QLatin1String prefix("Orvane_Setup");
const QLatin1String suffix(".exe");
} // namespace Contract

// Control characters are no part of any installer's name, and a null character would end it early.
bool isPlainFileName(const QString &name)
{
    const auto leadsElsewhere = [](QChar character) {
        return character == QLatin1Char('/') || character == QLatin1Char('\\')
            || character == QLatin1Char(':') || character.category() == QChar::Other_Control;
    };
    return !name.contains(QLatin1String("..")) && std::none_of(name.begin(), name.end(), leadsElsewhere);
}

} // namespace

QString installerNameIn(const QJsonArray &fileInfo)
{
    QString chosen;
    for (const QJsonValue &file : fileInfo) {
        const QString name = file.toObject().value(Contract::nameKey).toString();
        if (!name.startsWith(Contract::prefix) || !name.endsWith(Contract::suffix))
            continue;
        if (isPlainFileName(name))
            chosen = name;
        else
            qWarning() << "ignored a file of the release, its name is not just a file name:" << name;
    }
    return chosen;
}
