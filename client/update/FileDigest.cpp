#include "update/FileDigest.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QFile>

#include <array>

namespace {
constexpr std::size_t chunkBytes = 4096;
} // namespace

QString sha512Of(const QString &filePath, const std::atomic_bool &cancelled)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning() << "_getFileHash file open error.";
        qWarning().noquote() << filePath << "-->" << file.errorString();
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha512);
    std::array<char, chunkBytes> chunk{};
    for (qint64 rest = file.size(); rest > 0;) {
        const qint64 bytes = file.read(chunk.data(), qMin<qint64>(rest, chunk.size()));
        if (bytes <= 0) {
            qWarning().noquote() << "the installer could not be read:" << filePath << "-->"
                                 << file.errorString();
            return {};
        }
        if (cancelled)
            return {};
        hash.addData(chunk.data(), static_cast<int>(bytes));
        rest -= bytes;
    }
    return QString::fromLatin1(hash.result().toBase64());
}
