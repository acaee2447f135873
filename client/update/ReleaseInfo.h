#pragma once

#include <QByteArray>
#include <QString>

// What a release's description ("latest.yml") says that the client needs. A plain value.
struct ReleaseInfo
{
    QString version; // for the log
    QString sha512; // of the installer, in standard Base64; empty if the description does not tell

    // Reads a description. What it does not say, or says in another form than a text, stays empty; one that
    // is no YAML is logged and says nothing.
    static ReleaseInfo fromYaml(const QByteArray &yaml);
    // The same for a file; one that cannot be read is logged.
    static ReleaseInfo fromFile(const QString &filePath);
};
