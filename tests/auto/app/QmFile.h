#pragma once

#include <QDataStream>
#include <QFile>
#include <QString>

// Writes compiled translation files with one message.
namespace QmFile {

inline quint32 hashOf(const QByteArray &text)
{
    quint32 hash = 0;
    for (const char character : text) {
        hash = (hash << 4) + static_cast<uchar>(character);
        const quint32 high = hash & 0xf0000000;
        hash ^= high >> 24;
        hash &= ~high;
    }
    return hash == 0 ? 1 : hash;
}

// False if the file could not be written.
inline bool write(
    const QString &path, const QByteArray &context, const QByteArray &sourceText, const QString &translation)
{
    QByteArray messages;
    QDataStream messageStream(&messages, QIODevice::WriteOnly);
    messageStream << quint8(3) << translation; // translation
    messageStream << quint8(6) << sourceText; // source text
    messageStream << quint8(7) << context; // context
    messageStream << quint8(1); // end

    QByteArray hashes;
    QDataStream(&hashes, QIODevice::WriteOnly) << hashOf(sourceText) << quint32(0); // offset of the message

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"));
    QDataStream stream(&file);
    stream << quint8(0x42) << hashes << quint8(0x69) << messages;
    return stream.status() == QDataStream::Ok;
}

} // namespace QmFile
