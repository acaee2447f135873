#include "update/ReleaseInfo.h"

#include <QDebug>
#include <QFile>

#include <yaml-cpp/yaml.h>

namespace {

QString textOf(const YAML::Node &description, const char *key)
{
    const YAML::Node value = description[key];
    if (value.IsDefined() && value.IsScalar())
        return QString::fromStdString(value.Scalar());
    qWarning().nospace() << "latest.yml has no " << key;
    return {};
}

} // namespace

ReleaseInfo ReleaseInfo::fromYaml(const QByteArray &yaml)
{
    try {
        const YAML::Node description = YAML::Load(yaml.toStdString());
        if (description.IsMap())
            return {textOf(description, "version"), textOf(description, "sha512")};
        qWarning() << "latest.yml is no description of a release";
    } catch (const YAML::Exception &error) {
        qWarning() << "latest.yml cannot be understood:" << error.what();
    }
    return {};
}

// Not by the library: it takes file names in the system's own encoding.
ReleaseInfo ReleaseInfo::fromFile(const QString &filePath)
{
    QFile file(filePath);
    if (file.open(QIODevice::ReadOnly))
        return fromYaml(file.readAll());
    qWarning().noquote() << "latest.yml cannot be read:" << filePath << "-->" << file.errorString();
    return {};
}
