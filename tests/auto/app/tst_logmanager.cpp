#include "app/LogManager.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace {

// Names of what the test program does when it is started as a child, since an installed log stays installed.
const char childMessages[] = "--child-messages";
const char childFatal[] = "--child-fatal";
const char childFatalShort[] = "--child-fatal-short";
const char childFatalLong[] = "--child-fatal-long";

// Longer than what the file collects before it writes.
constexpr int longTextLength = 20'000;

const QDateTime noon(QDate(2024, 3, 7), QTime(12, 0, 0));

LogManager::Clock always(const QDateTime &time)
{
    return [time] { return time; };
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

bool createFile(const QString &path, const QDateTime &lastModified)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.setFileTime(lastModified, QFileDevice::FileModificationTime);
}

} // namespace

// The daily log file.
class TestLogManager : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void unknownTypes();
    void oldFiles_data();
    void oldFiles();
    void oldFilesByCalendarDay();
    void appends();
    void messageFromInsideTheLogDoesNotWaitForItself();
    void staysWithItsFileOverMidnight();
    void missingDirectory();
    void wholeLinesFromManyThreads();
    void installed();
    void installedWithoutDirectory();
    void fatalEndsTheProcess();
    void fatalEndsTheProcessByItself_data();
    void fatalEndsTheProcessByItself();

private:
    // Runs this program as a child whose data directory is dataDir; gives its standard error.
    static QByteArray runChild(const char *mode, const QString &dataHome, QProcess *process);
};

void TestLogManager::lines_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("tag");
    QTest::newRow("debug") << 0 << QByteArray(" [DEBUG]: ");
    QTest::newRow("warning") << 1 << QByteArray(" [WARNING]: ");
    QTest::newRow("critical") << 2 << QByteArray(" [CRITICAL]: ");
    QTest::newRow("info") << 4 << QByteArray(" [INFO]: ");
}

void TestLogManager::lines()
{
    QFETCH(int, type);
    QFETCH(QByteArray, tag);
    QTemporaryDir dir;
    LogManager log(dir.path(), always(QDateTime(QDate(2024, 3, 7), QTime(14, 25, 1, 123))));
    QCOMPARE(log.filePath(), dir.path() + "/2024-03-07.log");
    log.write(static_cast<QtMsgType>(type), QStringLiteral("the \u8bbe text"));
    // At once, while the log is open.
    QCOMPARE(contentOf(log.filePath()), "2024-03-07 14:25:01.123" + tag + "the \xe8\xae\xbe text\n");
    log.write(static_cast<QtMsgType>(type), QString());
    QVERIFY(contentOf(log.filePath()).endsWith("\n2024-03-07 14:25:01.123" + tag + "\n"));
}

void TestLogManager::unknownTypes()
{
    QTemporaryDir dir;
    LogManager log(dir.path(), always(noon));
    for (const int type : {-1, 5, 6, 1000})
        log.write(static_cast<QtMsgType>(type), QStringLiteral("never seen"));
    QCOMPARE(contentOf(log.filePath()), QByteArray());
}

void TestLogManager::oldFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("daysOld");
    QTest::addColumn<bool>("kept");
    QTest::newRow("8 days") << "2024-02-28.log" << 8 << false;
    QTest::newRow("a year") << "2023-03-07.log" << 366 << false;
    QTest::newRow("7 days") << "2024-02-29.log" << 7 << true;
    QTest::newRow("today") << "2024-03-06.log" << 0 << true;
    QTest::newRow("from the future") << "2024-04-07.log" << -31 << true;
    QTest::newRow("the name does not count") << "2020-01-01.log" << 1 << true;
    QTest::newRow("any log") << "swplay-2024-02-28.log" << 8 << false;
    QTest::newRow("other suffix") << "2024-02-28.txt" << 100 << true;
    QTest::newRow("longer suffix") << "2024-02-28.log.gz" << 100 << true;
    QTest::newRow("no suffix") << "log" << 100 << true;
}

void TestLogManager::oldFiles()
{
    QFETCH(QString, name);
    QFETCH(int, daysOld);
    QTemporaryDir dir;
    QVERIFY(createFile(dir.filePath(name), noon.addDays(-daysOld)));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("folder.log")));
    LogManager log(dir.path(), always(noon));
    QTEST(QFileInfo::exists(dir.filePath(name)), "kept");
    QVERIFY(QFileInfo::exists(dir.filePath(QStringLiteral("folder.log"))));
}

void TestLogManager::oldFilesByCalendarDay()
{
    QTemporaryDir dir;
    const QDateTime now(QDate(2024, 3, 15), QTime(0, 1));
    QVERIFY(createFile(dir.filePath(QStringLiteral("a.log")), QDateTime(QDate(2024, 3, 7), QTime(23, 59))));
    QVERIFY(createFile(dir.filePath(QStringLiteral("b.log")), QDateTime(QDate(2024, 3, 8), QTime(0, 0))));
    LogManager log(dir.path(), always(now));
    QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("a.log"))));
    QVERIFY(QFileInfo::exists(dir.filePath(QStringLiteral("b.log"))));
}

// As after a crash in the middle of a message, about which the crash handler writes on the same thread.
void TestLogManager::messageFromInsideTheLogDoesNotWaitForItself()
{
    QTemporaryDir dir;
    LogManager *log = nullptr;
    bool nested = false;
    const auto clock = [&] {
        if (log && !nested) {
            nested = true;
            log->write(QtDebugMsg, QStringLiteral("inner"));
        }
        return noon;
    };
    LogManager manager(dir.path(), clock);
    log = &manager;
    manager.write(QtDebugMsg, QStringLiteral("outer"));
    manager.write(QtDebugMsg, QStringLiteral("next"));
    QVERIFY(nested);
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("2024-03-07.log"))),
        QByteArray("2024-03-07 12:00:00.000 [DEBUG]: outer\n"
                   "2024-03-07 12:00:00.000 [DEBUG]: next\n"));
}

void TestLogManager::appends()
{
    QTemporaryDir dir;
    LogManager(dir.path(), always(noon)).write(QtDebugMsg, QStringLiteral("first start"));
    LogManager(dir.path(), always(noon.addSecs(60))).write(QtDebugMsg, QStringLiteral("second start"));
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("2024-03-07.log"))),
        QByteArray("2024-03-07 12:00:00.000 [DEBUG]: first start\n"
                   "2024-03-07 12:01:00.000 [DEBUG]: second start\n"));
}

void TestLogManager::staysWithItsFileOverMidnight()
{
    QTemporaryDir dir;
    QDateTime now(QDate(2024, 3, 7), QTime(23, 59, 59));
    LogManager log(dir.path(), [&now] { return now; });
    now = now.addSecs(2);
    log.write(QtInfoMsg, QStringLiteral("next day"));
    QCOMPARE(contentOf(dir.filePath(QStringLiteral("2024-03-07.log"))),
        QByteArray("2024-03-08 00:00:01.000 [INFO]: next day\n"));
    QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("2024-03-08.log"))));
}

void TestLogManager::missingDirectory()
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("none"));
    LogManager log(missing, always(noon));
    log.write(QtCriticalMsg, QStringLiteral("lost"));
    QVERIFY(!QFileInfo::exists(missing));
}

void TestLogManager::wholeLinesFromManyThreads()
{
    constexpr int threadCount = 8;
    constexpr int linesPerThread = 500;
    QTemporaryDir dir;
    LogManager log(dir.path(), always(noon));
    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&log, &go, thread] {
            while (!go)
                std::this_thread::yield();
            for (int line = 0; line < linesPerThread; ++line)
                log.write(QtDebugMsg, QStringLiteral("%1-%2").arg(thread).arg(line).repeated(5));
        });
    }
    go = true;
    for (std::thread &thread : threads)
        thread.join();

    QStringList expected;
    for (int thread = 0; thread < threadCount; ++thread) {
        for (int line = 0; line < linesPerThread; ++line)
            expected << "2024-03-07 12:00:00.000 [DEBUG]: "
                    + QStringLiteral("%1-%2").arg(thread).arg(line).repeated(5);
    }
    QStringList lines = QString::fromUtf8(contentOf(log.filePath())).split('\n');
    QCOMPARE(lines.takeLast(), QString());
    std::sort(lines.begin(), lines.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(lines, expected);
}

QByteArray TestLogManager::runChild(const char *mode, const QString &dataHome, QProcess *process)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
    environment.insert(QStringLiteral("APPDATA"), dataHome);
    environment.remove(QStringLiteral("QT_LOGGING_RULES"));
    process->setProcessEnvironment(environment);
    process->start(QCoreApplication::applicationFilePath(), {QLatin1String(mode)});
    if (!process->waitForFinished())
        qWarning() << "the child did not end";
    return process->readAllStandardError();
}

void TestLogManager::installed()
{
    QTemporaryDir home;
    QDir logDir(home.filePath(QStringLiteral("tst_logmanager/log")));
    QVERIFY(logDir.mkpath(QStringLiteral(".")));
    const QDateTime before = QDateTime::currentDateTime();
    QProcess process;
    const QByteArray standardError = runChild(childMessages, home.path(), &process);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(standardError, QByteArray("before\n")); // and nothing after the installation

    const QStringList files = logDir.entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    const QDate fileDate = QDate::fromString(files.constFirst().left(10), QStringLiteral("yyyy-MM-dd"));
    QVERIFY(fileDate >= before.date() && fileDate <= QDate::currentDate());
    QCOMPARE(files.constFirst(), fileDate.toString(QStringLiteral("yyyy-MM-dd")) + ".log");
    QStringList tails;
    const QStringList lines = QString::fromUtf8(contentOf(logDir.filePath(files.constFirst()))).split('\n');
    for (const QString &line : lines) {
        const QDateTime time
            = QDateTime::fromString(line.left(23), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
        QVERIFY(line.isEmpty() || (time >= before && time <= QDateTime::currentDateTime()));
        tails << line.mid(23);
    }
    QCOMPARE(tails,
        (QStringList{" [DEBUG]: a debug message", " [INFO]: an info message", " [WARNING]: a warning",
            " [CRITICAL]: a critical message", " [DEBUG]: the same log", ""}));
}

void TestLogManager::installedWithoutDirectory()
{
    QTemporaryDir home;
    QProcess process;
    QCOMPARE(runChild(childMessages, home.path(), &process), QByteArray("before\n"));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QDir(home.path()).isEmpty());
}

void TestLogManager::fatalEndsTheProcess()
{
    QTemporaryDir home;
    QDir logDir(home.filePath(QStringLiteral("tst_logmanager/log")));
    QVERIFY(logDir.mkpath(QStringLiteral(".")));
    QProcess process;
    runChild(childFatal, home.path(), &process);
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QStringList files = logDir.entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    const QByteArray content = contentOf(logDir.filePath(files.constFirst()));
    QVERIFY(content.contains(" [WARNING]: before the end\n"));
    QVERIFY(!content.contains("after the end"));
}

void TestLogManager::fatalEndsTheProcessByItself_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("tail"); // of the file, after the time
    // What is not yet with the system is lost: nothing is flushed any more.
    QTest::newRow("short") << QByteArray(childFatalShort) << QByteArray();
    QTest::newRow("long") << QByteArray(childFatalLong)
                          << " [FATAL]: " + QByteArray(longTextLength, 'x') + '\n';
}

// The log itself ends the process, not only the toolkit after it.
void TestLogManager::fatalEndsTheProcessByItself()
{
    QFETCH(QByteArray, mode);
    QTemporaryDir home;
    QDir logDir(home.filePath(QStringLiteral("tst_logmanager/log")));
    QVERIFY(logDir.mkpath(QStringLiteral(".")));
    QProcess process;
    runChild(mode.constData(), home.path(), &process);
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QStringList files = logDir.entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QTEST(contentOf(logDir.filePath(files.constFirst())).mid(23), "tail");
}

static int writeFatally(const QString &text)
{
    LogManager *log = LogManager::instance();
    log->write(QtFatalMsg, text);
    log->write(QtInfoMsg, QStringLiteral("after the end"));
    return 0;
}

static int runAsChild(bool fatally)
{
    qDebug("before");
    LogManager *log = LogManager::instance();
    if (fatally) {
        qWarning("before the end");
        qFatal("the end");
        qWarning("after the end");
    }
    qDebug("a debug message");
    qInfo("an info message");
    qWarning("a warning");
    qCritical("a critical message");
    qDebug() << (LogManager::instance() == log ? "the same log" : "another log");
    return 0;
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && std::strcmp(argv[1], childMessages) == 0)
        return runAsChild(false);
    if (argc == 2 && std::strcmp(argv[1], childFatal) == 0)
        return runAsChild(true);
    if (argc == 2 && std::strcmp(argv[1], childFatalShort) == 0)
        return writeFatally(QStringLiteral("x"));
    if (argc == 2 && std::strcmp(argv[1], childFatalLong) == 0)
        return writeFatally(QString(longTextLength, QLatin1Char('x')));
    TestLogManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logmanager.moc"
