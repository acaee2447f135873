#include "update/InstallerStart.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

// A command in one string is taken apart at its blanks unless it is quoted, and would then be started as a
// program without arguments: that is what is done here, without the detour over the string. What was
// downloaded is no program yet where programs need a permission.
bool startInstaller(const QString &filePath)
{
    if (QFileInfo(filePath).isFile())
        QFile::setPermissions(filePath, QFile::permissions(filePath) | QFile::ExeOwner);
    const bool started = QProcess::startDetached(filePath, QStringList());
    if (started)
        qInfo().noquote() << "started the installer" << filePath;
    else
        qWarning().noquote() << "the installer did not start:" << filePath;
    return started;
}
