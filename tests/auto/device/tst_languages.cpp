#include "app/TranslateManager.h"
#include "device/LoadingPage.h"
#include "device/SingleController.h"

#include <QDir>
#include <QLabel>
#include <QTest>

// An open device window in the languages that the client is delivered in. With ORVANE_PICTURES set to a
// folder, a picture of each is left there.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void init() { TranslateManager::instance()->setTranslationDir(QStringLiteral(COMPILED_TRANSLATIONS)); }
    void cleanupTestCase() { TranslateManager::instance()->onLanguegeChanged(QStringLiteral("hi_IN")); }
    void openWindowChangesItsLanguage_data();
    void openWindowChangesItsLanguage();
};

void TestLanguages::openWindowChangesItsLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("en") << QStringLiteral("Initialising");
    QTest::newRow("de") << QStringLiteral("Wird initialisiert");
    QTest::newRow("ar") << QStringLiteral("جارٍ التهيئة");
    QTest::newRow("th") << QStringLiteral("กำลังเริ่มต้น");
    QTest::newRow("bn") << QStringLiteral("চালু করা হচ্ছে");
    QTest::newRow("cn") << QStringLiteral("正在初始化");
    QTest::newRow("hi_IN") << QStringLiteral("Initialising"); // the source texts
}

void TestLanguages::openWindowChangesItsLanguage()
{
    QFETCH(QString, text);
    SingleController window(QStringLiteral("1"), QStringLiteral("Aurora"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *page = window.findChild<LoadingPage *>();
    QVERIFY(page);
    const auto shown = [page, text] {
        for (const QLabel *label : page->findChildren<QLabel *>()) {
            if (label->text() == text)
                return label;
        }
        return static_cast<const QLabel *>(nullptr);
    };
    TranslateManager::instance()->onLanguegeChanged(QLatin1String(QTest::currentDataTag()));
    QTRY_VERIFY(shown());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // Whole, and inside the page.
    QVERIFY(shown()->width() >= shown()->sizeHint().width());
    QVERIFY(shown()->height() >= shown()->sizeHint().height());
    QVERIFY(page->rect().contains(shown()->geometry()));
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(window.grab().save(
            QDir(folder).filePath(QStringLiteral("%1.png").arg(QLatin1String(QTest::currentDataTag())))));
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
