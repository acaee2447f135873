#include "Resources.h"

#include "Waiting.h"

#include <QDir>
#include <QFile>
#include <QPixmapCache>

#include <utility>

#include <malloc.h>
#include <unistd.h>

namespace e2e {

Resources Resources::now()
{
    Resources resources;
    // What is kept for later, within fixed limits, is not held.
    QPixmapCache::clear();
    malloc_trim(0);
    resources.heapKb = static_cast<qint64>((mallinfo2().uordblks + mallinfo2().hblkhd) / 1024);
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        throw StepFailed(QStringLiteral("/proc/self/status cannot be read"));
    for (const QByteArray &line : status.readAll().split('\n')) {
        const QByteArray value = line.mid(line.indexOf(':') + 1).simplified().split(' ').first();
        if (line.startsWith("Threads:"))
            resources.threads = value.toInt();
        else if (line.startsWith("VmRSS:"))
            resources.residentKb = value.toLongLong();
    }
    const QDir files(QStringLiteral("/proc/self/fd"));
    const QStringList names = files.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        // The target of a socket is no path that Qt would follow.
        QByteArray target(256, '\0');
        const ssize_t length
            = ::readlink(QFile::encodeName(files.filePath(name)).constData(), target.data(), target.size());
        if (length < 0)
            continue; // the listing's own
        ++resources.files;
        resources.sockets += target.startsWith("socket:");
    }
    return resources;
}

Resources Resources::settled()
{
    constexpr int betweenLooksMs = 100;
    Resources resources = now();
    waitUntil(QStringLiteral("threads, files and sockets settle"), [&resources] {
        QTest::qWait(betweenLooksMs);
        const Resources before = std::exchange(resources, now());
        return resources.threads == before.threads && resources.files == before.files
            && resources.sockets == before.sockets;
    });
    return resources;
}

Resources Resources::backAt(const Resources &before)
{
    constexpr int limitMs = 45000;
    Resources resources;
    const auto isBack = [&] {
        resources = now();
        return resources.isBackAt(before);
    };
    (void)QTest::qWaitFor(isBack, limitMs); // the caller looks
    return resources;
}

bool Resources::isBackAt(const Resources &before) const
{
    return threads <= before.threads && files == before.files && sockets == before.sockets;
}

} // namespace e2e
