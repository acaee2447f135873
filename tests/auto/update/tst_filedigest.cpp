#include "update/FileDigest.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestFileDigest : public QObject
{
    Q_OBJECT

private slots:
    void knownDigest();
    void sameAsOpenssl_data();
    void sameAsOpenssl();
    void fileThatCannotBeOpened();
    void cancelled();

private:
    QString create(const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(QStringLiteral("Orvane Setup 1.exe"));
        QFile file(path);
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? path : QString();
    }

    QTemporaryDir m_dir;
    std::atomic_bool m_cancelled{false};
};

// FIPS 180-2, the example "abc".
void TestFileDigest::knownDigest()
{
    QCOMPARE(sha512Of(create("abc"), m_cancelled),
        QStringLiteral(
            "3a81oZNherrMQXNJriBBMRLm+k6JqX6iCp7u5ktV05ohkpkqJ0/BqDa6PCOj/uu9RU1EI2Q86A4qmslPpUyknw=="));
}

void TestFileDigest::sameAsOpenssl_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 1, 4095, 4096, 4097, 8192, 1000003})
        QTest::addRow("%d", bytes) << bytes;
}

void TestFileDigest::sameAsOpenssl()
{
    QFETCH(int, bytes);
    QByteArray content(bytes, Qt::Uninitialized);
    for (int i = 0; i < bytes; ++i)
        content[i] = static_cast<char>(i * 31 + i / 256);
    const QString path = create(content);
    QProcess shell;
    shell.start(QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("openssl dgst -sha512 -binary \"$0\" | base64 -w0"), path});
    QVERIFY(shell.waitForFinished());
    const QString expected = QString::fromLatin1(shell.readAllStandardOutput());
    QCOMPARE(expected.size(), 88);
    QCOMPARE(sha512Of(path, m_cancelled), expected);
}

void TestFileDigest::fileThatCannotBeOpened()
{
    for (const QString &path : {m_dir.path(), m_dir.filePath(QStringLiteral("missing.exe"))}) {
        QTest::ignoreMessage(QtWarningMsg, "_getFileHash file open error.");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path)));
        QCOMPARE(sha512Of(path, m_cancelled), QString());
    }
}

void TestFileDigest::cancelled()
{
    const std::atomic_bool yes{true};
    QCOMPARE(sha512Of(create("abc"), yes), QString());
}

QTEST_GUILESS_MAIN(TestFileDigest)
#include "tst_filedigest.moc"
