#include "EditorFixture.h"

#include "keymap/KeyMapGuide.h"

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QSvgWidget>

using namespace keymaptest;

namespace {

const QByteArray Drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="480" height="270">)"
                           R"(<rect width="480" height="270" fill="#00FF00"/></svg>)";

QJsonObject page(const QString &title, const QString &text, const QByteArray &drawing = Drawing)
{
    return {{"title", title}, {"text", text},
        {"picture", QStringLiteral("data:image/svg+xml;base64,") + QString::fromLatin1(drawing.toBase64())}};
}

QByteArray answer(const QJsonValue &data, int code = 200)
{
    return QJsonDocument(QJsonObject{{"code", code}, {"msg", "m"}, {"data", data}}).toJson();
}

QByteArray threePages()
{
    return answer(QJsonObject{{"title", "Key mapping"},
        {"pages",
            QJsonArray{page("One", "First\nSecond"), page("Two", "<b>plain</b>", "no drawing"),
                QJsonObject{{"text", "Three"}}}}});
}

} // namespace

// The tutorial window, and how it reads what the service sends.
class TestKeyMapGuide : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void leafs();
    void keys();
    void unreadable_data();
    void unreadable();
    void triesAgain();
    void oddPages();
    void closedWhileLoading();

private:
    template <typename Widget = QPushButton>
    Widget *part(const char *name)
    {
        return m_guide->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::unique_ptr<EditorFixture> m_fixture;
    QPointer<KeyMapGuide> m_guide;
};

void TestKeyMapGuide::init()
{
    m_fixture = std::make_unique<EditorFixture>();
    m_guide = new KeyMapGuide;
    m_guide->show();
}

void TestKeyMapGuide::cleanup()
{
    delete m_guide;
    m_fixture.reset();
}

void TestKeyMapGuide::leafs()
{
    m_fixture->server().setAnswer(threePages());
    m_guide->load();
    QTRY_COMPARE(m_guide->currentPage(), 0);
    QVERIFY(m_fixture->server().requests().last().path.endsWith("/apiv1/keyboard_map/guide"));
    QCOMPARE(m_guide->pageCount(), 3);
    QCOMPARE(m_guide->titleBar()->title(), QStringLiteral("Key mapping"));
    QCOMPARE(part<QLabel>("pageTitle")->text(), QStringLiteral("One"));
    QCOMPARE(part<QLabel>("pageText")->text(), QStringLiteral("First\nSecond"));
    QCOMPARE(part<QLabel>("pageNumber")->text(), QStringLiteral("1 / 3"));
    QVERIFY(part<QSvgWidget>("picture")->isVisible());
    QCOMPARE(part<QSvgWidget>("picture")->size(), QSize(480, 270));
    QCOMPARE(part<QSvgWidget>("picture")->grab().toImage().pixelColor(240, 135), QColor(0, 255, 0));
    QVERIFY(!part("previousButton")->isEnabled());

    QTest::mouseClick(part("nextButton"), Qt::LeftButton);
    QCOMPARE(part<QLabel>("pageTitle")->text(), QStringLiteral("Two"));
    QCOMPARE(part<QLabel>("pageText")->textFormat(), Qt::PlainText);
    QVERIFY(part<QSvgWidget>("picture")->isHidden());
    QTest::mouseClick(part("previousButton"), Qt::LeftButton);
    QCOMPARE(m_guide->currentPage(), 0);
    QVERIFY(part<QSvgWidget>("picture")->isVisible());
    QTest::mouseClick(part("nextButton"), Qt::LeftButton);
    QCOMPARE(part("nextButton")->text(), QStringLiteral("Next"));
    QTest::mouseClick(part("nextButton"), Qt::LeftButton);
    QVERIFY(part<QLabel>("pageTitle")->isHidden());
    QCOMPARE(part("nextButton")->text(), QStringLiteral("Done"));
    QTest::mouseClick(part("nextButton"), Qt::LeftButton);
    QTRY_VERIFY(!m_guide);
}

void TestKeyMapGuide::keys()
{
    m_fixture->server().setAnswer(threePages());
    m_guide->load();
    QTRY_COMPARE(m_guide->currentPage(), 0);
    QTest::keyClick(m_guide, Qt::Key_Left);
    QCOMPARE(m_guide->currentPage(), 0);
    for (const int expected : {1, 2, 2}) {
        QTest::keyClick(m_guide, Qt::Key_Right);
        QCOMPARE(m_guide->currentPage(), expected);
    }
    QTest::keyClick(m_guide, Qt::Key_Left);
    QCOMPARE(m_guide->currentPage(), 1);
    QTest::keyClick(m_guide, Qt::Key_Escape);
    QTRY_VERIFY(!m_guide);
}

void TestKeyMapGuide::unreadable_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    QTest::newRow("refused") << answer(QJsonValue(), 500) << 200;
    QTest::newRow("no-pages") << answer(QJsonObject{{"title", "T"}, {"pages", QJsonArray{}}}) << 200;
    QTest::newRow("pages-number") << answer(QJsonObject{{"pages", 17}}) << 200;
    QTest::newRow("empty-pages") << answer(QJsonObject{{"pages", QJsonArray{17, QJsonObject{}}}}) << 200;
    QTest::newRow("data-array") << answer(QJsonArray{1}) << 200;
    QTest::newRow("no-json") << QByteArray("nonsense") << 200;
    QTest::newRow("status") << QByteArray("{}") << 502;
}

void TestKeyMapGuide::unreadable()
{
    QFETCH(QByteArray, body);
    QFETCH(int, status);
    m_fixture->server().setAnswer(body, status);
    m_guide->load();
    QVERIFY(part("retryButton")->isHidden());
    QCOMPARE(part<QLabel>("message")->text(), QStringLiteral("Loading the tutorial"));
    QTRY_VERIFY(part("retryButton")->isVisible());
    QCOMPARE(part<QLabel>("message")->text(), QStringLiteral("The tutorial could not be loaded."));
    QCOMPARE(m_guide->pageCount(), 0);
    QCOMPARE(m_guide->currentPage(), -1);
}

void TestKeyMapGuide::triesAgain()
{
    m_fixture->server().setAnswer("{}", 502);
    m_guide->load();
    QTRY_VERIFY(part("retryButton")->isVisible());
    m_fixture->server().setAnswer(threePages());
    QTest::mouseClick(part("retryButton"), Qt::LeftButton);
    QTRY_COMPARE(m_guide->currentPage(), 0);
}

void TestKeyMapGuide::oddPages()
{
    QJsonArray pages{page("P", "T")};
    for (int i = 0; i < 200; ++i)
        pages.append(page("More", "T"));
    QCOMPARE(GuidePages::fromJson(QJsonObject{{"pages", pages}}).pages.size(), 50);
    QCOMPARE(GuidePages::fromJson(QJsonObject{{"pages", pages}}).pages.first().picture, Drawing);
    for (const char *picture : {"", "data:image/svg+xml;base64,!!", "https://example.com/a.svg", "data:x"}) {
        const QJsonObject odd{{"title", "P"}, {"picture", QString::fromLatin1(picture)}};
        const GuidePages read = GuidePages::fromJson(QJsonObject{{"pages", QJsonArray{odd}}});
        QCOMPARE(read.pages.size(), 1);
        QVERIFY(read.pages.first().picture.isEmpty());
    }
}

void TestKeyMapGuide::closedWhileLoading()
{
    m_fixture->server().hold();
    QSignalSpy received(&m_fixture->server(), &TestHttpServer::requestReceived);
    m_guide->load();
    m_guide->load(); // once is enough
    QTRY_COMPARE(received.count(), 1);
    m_guide->close();
    QTRY_VERIFY(!m_guide);
    m_fixture->server().release();
    m_fixture->manager->onRefreshMapConfig();
    QTRY_COMPARE(received.count(), 2);
}

QTEST_MAIN(TestKeyMapGuide)
#include "tst_keymapguide.moc"
