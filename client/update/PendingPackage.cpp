#include "update/PendingPackage.h"

#include "update/FileDigest.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {

// Names in the folder.
namespace Contract {
const char partPrefix[] = "/temp_";
const char partSuffix[] = ".part";
const char installers[] = "*.exe";
const char parts[] = "temp_*.part";
} // namespace Contract

} // namespace

PendingPackage::PendingPackage(const QString &pendingDir, const QString &fileName)
    : m_pendingDir(pendingDir)
    , m_filePath(pendingDir + QLatin1Char('/') + fileName)
    , m_part(
          pendingDir + QLatin1String(Contract::partPrefix) + fileName + QLatin1String(Contract::partSuffix))
{ }

PendingPackage::~PendingPackage() = default;

void PendingPackage::cancel()
{
    m_cancelled = true;
}

void PendingPackage::check(const QString &sha512)
{
    QMetaObject::invokeMethod(
        this,
        [this, sha512] {
            m_sha512 = sha512;
            checkFile();
        },
        Qt::QueuedConnection);
}

// An empty digest stands for no file, so it matches none.
void PendingPackage::checkFile()
{
    if (QFileInfo::exists(m_filePath)) {
        const QString found = sha512Of(m_filePath, m_cancelled);
        if (m_cancelled)
            return;
        if (!found.isEmpty() && found == m_sha512) {
            emit sigChecked(true);
            return;
        }
        qInfo().noquote() << "the installer that is there is not the release's:" << m_filePath;
    }
    clear();
    emit sigChecked(false);
}

// The bytes of a new download are appended, so nothing of an old one may be left; that of another version
// would stay for ever.
void PendingPackage::clear()
{
    QDir folder(m_pendingDir);
    const QStringList names = folder.entryList(
        {QLatin1String(Contract::installers), QLatin1String(Contract::parts)}, QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (!folder.remove(name))
            qWarning().noquote() << "could not be deleted:" << folder.filePath(name);
    }
    if (m_part.exists())
        qWarning().noquote() << "in the way of the download:" << m_part.fileName();
}

void PendingPackage::append(const QByteArray &bytes)
{
    QMetaObject::invokeMethod(
        this,
        [this, bytes] {
            write(bytes);
            emit sigTaken(bytes.size());
        },
        Qt::QueuedConnection);
}

// Unbuffered: what has been written survives the end of this process.
void PendingPackage::write(const QByteArray &bytes)
{
    if (m_failed || m_cancelled)
        return;
    if (!m_part.isOpen() && !m_part.open(QIODevice::Append | QIODevice::Unbuffered))
        return fail();
    if (m_part.write(bytes) != bytes.size())
        return fail();
    m_hash.addData(bytes);
}

void PendingPackage::fail()
{
    m_failed = true;
    qWarning().noquote() << "the download could not be written:" << m_part.fileName() << "-->"
                         << m_part.errorString();
    emit sigFailed(m_part.errorString());
    m_part.close();
}

void PendingPackage::complete()
{
    QMetaObject::invokeMethod(this, &PendingPackage::moveIntoPlace, Qt::QueuedConnection);
}

// The check of the digest belongs to the next start of an update: what has come without an error is offered.
void PendingPackage::moveIntoPlace()
{
    if (m_failed || m_cancelled)
        return;
    const qint64 bytes = m_part.size();
    m_part.close();
    if (QString::fromLatin1(m_hash.result().toBase64()) != m_sha512)
        qWarning().noquote() << "the downloaded installer differs from the digest in latest.yml:"
                             << m_filePath;
    if (QFile::rename(m_part.fileName(), m_filePath)) {
        qInfo().noquote() << "downloaded" << bytes << "bytes:" << m_filePath;
    } else {
        qWarning().noquote() << QStringLiteral("文件权限异常");
        qWarning().noquote() << "could not rename" << m_part.fileName() << "to" << m_filePath;
    }
    emit sigCompleted();
}
