#include "web/WebEngineArguments.h"

#include <QCoreApplication>
#include <QTest>

// The command line that the application object gets.
class TestWebEngineArguments : public QObject
{
    Q_OBJECT

private slots:
    void noArguments();
    void userArgumentsComeFirst();
    void applicationSeesThem();
};

void TestWebEngineArguments::noArguments()
{
    char program[] = "orvane";
    char *argv[] = {program, nullptr};
    WebEngineArguments arguments(1, argv);
    QCOMPARE(arguments.count(), 4);
    QCOMPARE(arguments.vector()[0], program);
    QCOMPARE(arguments.vector()[1], "--webEngineArgs");
    QCOMPARE(arguments.vector()[2], "--disable-web-security");
    QCOMPARE(arguments.vector()[3], static_cast<char *>(nullptr));
}

void TestWebEngineArguments::userArgumentsComeFirst()
{
    char program[] = "orvane";
    char first[] = "--first=1";
    char second[] = "second";
    char *argv[] = {program, first, second, nullptr};
    WebEngineArguments arguments(3, argv);
    QCOMPARE(arguments.count(), 6);
    QCOMPARE(arguments.vector()[1], first);
    QCOMPARE(arguments.vector()[2], second);
    QCOMPARE(arguments.vector()[3], "--webEngineArgs");
    QCOMPARE(arguments.vector()[4], "--disable-web-security");
    QCOMPARE(arguments.vector()[5], static_cast<char *>(nullptr));
}

// The toolkit copes with the null entry and keeps everything else.
void TestWebEngineArguments::applicationSeesThem()
{
    char program[] = "orvane";
    char user[] = "user";
    char *argv[] = {program, user, nullptr};
    WebEngineArguments arguments(2, argv);
    const QCoreApplication application(arguments.count(), arguments.vector());
    const QStringList expected{QStringLiteral("orvane"), QStringLiteral("user"),
        QStringLiteral("--webEngineArgs"), QStringLiteral("--disable-web-security")};
    QCOMPARE(QCoreApplication::arguments().mid(0, 4), expected);
}

QTEST_APPLESS_MAIN(TestWebEngineArguments)
#include "tst_webenginearguments.moc"
