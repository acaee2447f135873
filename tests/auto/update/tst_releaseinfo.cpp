#include "update/ReleaseInfo.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestReleaseInfo : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
    void notUnderstood_data();
    void notUnderstood();
    void fileThatIsMissing();
};

void TestReleaseInfo::read_data()
{
    QTest::addColumn<QByteArray>("yaml");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("sha512");
    QTest::newRow("plain") << QByteArray("version: 1.3.0\nsha512: ab+/c==\n") << QStringLiteral("1.3.0")
                           << QStringLiteral("ab+/c==");
    QTest::newRow("quoted") << QByteArray("version: \"1.3.0\"\nsha512: 'ab+/c=='\n")
                            << QStringLiteral("1.3.0") << QStringLiteral("ab+/c==");
    QTest::newRow("number") << QByteArray("version: 1.3\nsha512: 12\n") << QStringLiteral("1.3")
                            << QStringLiteral("12");
    QTest::newRow("other keys") << QByteArray(
        "version: 1\nfiles:\n  - url: x\n    sha512: wrong\n    size: 5\n"
        "path: x\nsha512: right\nreleaseDate: '2026-11-21T09:30:00.000Z'\n")
                                << QStringLiteral("1") << QStringLiteral("right");
    QTest::newRow("Windows line ends")
        << QByteArray("version: 1\r\nsha512: x=\r\n") << QStringLiteral("1") << QStringLiteral("x=");
}

void TestReleaseInfo::read()
{
    QFETCH(QByteArray, yaml);
    const ReleaseInfo info = ReleaseInfo::fromYaml(yaml);
    QTEST(info.version, "version");
    QTEST(info.sha512, "sha512");
}

void TestReleaseInfo::notUnderstood_data()
{
    QTest::addColumn<QByteArray>("yaml");
    QTest::addColumn<QString>("line");
    const QString noDescription = QStringLiteral("^latest.yml is no description of a release$");
    const QString notUnderstood = QStringLiteral("^latest.yml cannot be understood: ");
    const QString noDigest = QStringLiteral("^latest.yml has no sha512$");
    QTest::newRow("empty") << QByteArray() << noDescription;
    QTest::newRow("text") << QByteArray("<html>not here</html>") << noDescription;
    QTest::newRow("list") << QByteArray("- a\n- b\n") << noDescription;
    QTest::newRow("broken") << QByteArray("version: [1\nsha512: }") << notUnderstood;
    QTest::newRow("tab") << QByteArray("version: 1\n\t- sha512: x") << notUnderstood;
    QTest::newRow("deep") << QByteArray(60000, '[') << notUnderstood;
    QTest::newRow("no anchor") << QByteArray("version: *a") << notUnderstood;
    QTest::newRow("binary") << QByteArray("\0\xff\xfe\x01", 4) << QString();
    QTest::newRow("no digest") << QByteArray("version: 1") << noDigest;
    QTest::newRow("digest is a list") << QByteArray("version: 1\nsha512: [a]") << noDigest;
    QTest::newRow("digest is nothing") << QByteArray("version: 1\nsha512:\n") << noDigest;
}

void TestReleaseInfo::notUnderstood()
{
    QFETCH(QByteArray, yaml);
    QFETCH(QString, line);
    if (!line.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(line));
    QCOMPARE(ReleaseInfo::fromYaml(yaml).sha512, QString());
}

void TestReleaseInfo::fileThatIsMissing()
{
    const QTemporaryDir dir;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^latest.yml cannot be read: ")));
    const ReleaseInfo info = ReleaseInfo::fromFile(dir.filePath(QStringLiteral("latest.yml")));
    QVERIFY(info.version.isEmpty() && info.sha512.isEmpty());
}

QTEST_GUILESS_MAIN(TestReleaseInfo)
#include "tst_releaseinfo.moc"
