#include "app/CrashDumpFile.h"
#include "app/CrashHandler.h"
#include "base/AppPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include <array>
#include <cwchar>
#include <string>

#ifdef Q_OS_WIN
#include "app/CrashDumpWriter.h"

#include <windows.h>
#else
#include <csignal>
#endif

// Names and places of crash dumps.
class TestCrashHandler : public QObject
{
    Q_OBJECT

private slots:
    void stamp_data();
    void stamp();
    void stampIsBounded();
    void path();
    void pathIsBounded();
    void dumpDirIsCreated();
    void installOnlyOnWindows();
};

void TestCrashHandler::stamp_data()
{
    QTest::addColumn<QVector<int>>("time");
    QTest::addColumn<QString>("stamp");
    QTest::newRow("afternoon") << QVector<int>{2024, 3, 7, 14, 25, 1} << "20240307-142501";
    QTest::newRow("new year") << QVector<int>{2025, 1, 1, 0, 0, 0} << "20250101-000000";
    QTest::newRow("last second") << QVector<int>{1999, 12, 31, 23, 59, 59} << "19991231-235959";
    QTest::newRow("early year") << QVector<int>{7, 1, 2, 3, 4, 5} << "00070102-030405";
}

void TestCrashHandler::stamp()
{
    QFETCH(QVector<int>, time);
    std::array<wchar_t, 64> buffer{};
    QVERIFY(CrashDumpFile::formatStamp(
        {time[0], time[1], time[2], time[3], time[4], time[5]}, buffer.data(), buffer.size()));
    QTEST(QString::fromWCharArray(buffer.data()), "stamp");
}

void TestCrashHandler::stampIsBounded()
{
    const CrashDumpFile::Time time{2024, 3, 7, 14, 25, 1};
    const std::size_t needed = std::wcslen(L"20240307-142501") + 1;
    std::array<wchar_t, 64> buffer;
    for (std::size_t size = 0; size < needed + 2; ++size) {
        buffer.fill(L'#');
        QCOMPARE(CrashDumpFile::formatStamp(time, buffer.data(), size), size >= needed);
        if (size > 0 && size < needed)
            QCOMPARE(buffer[0], L'\0');
        QCOMPARE(buffer[size], L'#'); // nothing beyond the end is touched
    }
}

void TestCrashHandler::path()
{
    std::array<wchar_t, 64> buffer{};
    QVERIFY(
        CrashDumpFile::formatPath(L"C:/Users/\u8bbe/dump", L"20240307-142501", buffer.data(), buffer.size()));
    QCOMPARE(QString::fromWCharArray(buffer.data()),
        QStringLiteral("C:/Users/\u8bbe/dump/dump-20240307-142501.dmp"));
}

void TestCrashHandler::pathIsBounded()
{
    const std::wstring dir(300, L'd');
    const std::size_t needed = dir.size() + std::wcslen(L"/dump-s.dmp") + 1;
    std::array<wchar_t, 400> buffer;
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, needed - 1, needed, needed + 1}) {
        buffer.fill(L'#');
        QCOMPARE(CrashDumpFile::formatPath(dir.c_str(), L"s", buffer.data(), size), size >= needed);
        if (size > 0 && size < needed)
            QCOMPARE(buffer[0], L'\0');
        QCOMPARE(buffer[size], L'#');
    }
}

void TestCrashHandler::dumpDirIsCreated()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(QDir(AppPaths::dataDir()).removeRecursively());
    // Only the last folder is made.
    QCOMPARE(createCrashDumpDir(), AppPaths::dumpDir());
    QVERIFY(!QFileInfo::exists(AppPaths::dataDir()));
    QVERIFY(QDir().mkpath(AppPaths::dataDir()));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(createCrashDumpDir(), AppPaths::dataDir() + "/dump");
        QVERIFY(QFileInfo(AppPaths::dumpDir()).isDir());
    }
    QVERIFY(QDir(AppPaths::dataDir()).removeRecursively());
}

// Elsewhere the system's own handling of crashes stays as it is.
void TestCrashHandler::installOnlyOnWindows()
{
#ifdef Q_OS_WIN
    installCrashHandler();
    QCOMPARE(SetUnhandledExceptionFilter(nullptr), &writeCrashDump);
#else
    struct sigaction before = {};
    struct sigaction after = {};
    QCOMPARE(sigaction(SIGSEGV, nullptr, &before), 0);
    installCrashHandler();
    QCOMPARE(sigaction(SIGSEGV, nullptr, &after), 0);
    QVERIFY(before.sa_handler == after.sa_handler);
#endif
}

QTEST_GUILESS_MAIN(TestCrashHandler)
#include "tst_crashhandler.moc"
