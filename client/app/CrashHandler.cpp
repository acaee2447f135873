#include "app/CrashHandler.h"

#include "base/AppPaths.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include "app/CrashDumpWriter.h"

#include <QDebug>
#endif

QString createCrashDumpDir()
{
    const QFileInfo dumpDir(AppPaths::dumpDir());
    dumpDir.dir().mkdir(dumpDir.fileName());
    return dumpDir.filePath();
}

#ifdef Q_OS_WIN

namespace {

void logLine(const std::wstring &line)
{
    qDebug().noquote() << QString::fromStdWString(line);
}

std::wstring createWideCrashDumpDir()
{
    return createCrashDumpDir().toStdWString();
}

} // namespace

void installCrashHandler()
{
    installCrashDumpWriter({&logLine, &createWideCrashDumpDir});
}

#else

void installCrashHandler()
{ }

#endif
