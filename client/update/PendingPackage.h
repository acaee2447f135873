#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QObject>
#include <QString>

#include <atomic>

// The installer in the "pending" folder: checks one that is there, or takes the bytes of a new one as they
// are downloaded and puts it into its place. All of that may take long, so it happens on a worker thread: the
// object lives there, and what the GUI thread asks for is done in the order in which it asks.
//
// Created and owned by OvUpdateDialog, which moves it to its thread.
class PendingPackage : public QObject
{
    Q_OBJECT

public:
    // `pendingDir`: where the installer is, or will be; `fileName`: its name there.
    PendingPackage(const QString &pendingDir, const QString &fileName);
    ~PendingPackage() override;

    QString filePath() const { return m_filePath; }

    // ---- GUI thread

    // Is the installer there, with this digest? Answers with sigChecked. If not, every installer in the
    // folder and what broken-off downloads have left are gone by then.
    void check(const QString &sha512);
    // Takes the next bytes; says with sigTaken when they do not take memory any more.
    void append(const QByteArray &bytes);
    // All bytes have been given: makes them the installer and answers with sigCompleted.
    void complete();
    // Gives up what takes long. May be called by any thread.
    void cancel();

signals:
    void sigChecked(bool verified);
    // So many bytes have been written, or dropped after a failure.
    void sigTaken(qint64 bytes);
    // The installer is in its place, or (logged) could not be put there.
    void sigCompleted();
    // The bytes cannot be written (logged); nothing more will be, and there will be no sigCompleted.
    void sigFailed(const QString &error);

private:
    // ---- Worker thread
    void checkFile();
    void clear();
    void write(const QByteArray &bytes);
    void fail();
    void moveIntoPlace();

    const QString m_pendingDir;
    const QString m_filePath;
    std::atomic_bool m_cancelled{false};

    // Worker thread.
    QString m_sha512;
    QFile m_part;
    QCryptographicHash m_hash{QCryptographicHash::Sha512}; // of what has been written
    bool m_failed = false;
};
