// One tile of a group: its session, its input, its texts, its layout and its menu.

#include "GroupTiles.h"

#include "group/TileText.h"
#include "stream/StreamController.h"

#include <InputFocus.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

#include <limits>
#include <memory>

using namespace grouptest;

namespace {

const QSize TileSize(171, 295);

QString plainText(const QLabel *label)
{
    QTextDocument document;
    document.setHtml(label->text());
    return document.toPlainText();
}

} // namespace

class tst_SubController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void metaObject();
    void connectsPausedUnlessLive();
    void connectsAsAThumbnailWhenLive();
    void livesAndPauses();
    void restartsInItsMode();
    void anotherDeviceTakesOver();
    void ignoresInputWithoutSession();
    void touchesBecomePixels_data();
    void touchesBecomePixels();
    void releaseHasNoPlace();
    void passesKeysAndText();
    void remainingTime_data();
    void remainingTime();
    void templates();
    void tellsThatItConnects();
    void namesAreNotMarkup();
    void longNamesAreCut();
    void laysItsPartsOut();
    void takesPicturesOfItsOwnSize();
    void menuComesWithThePointer();
    void menuComesWithTheKeyboard();
    void menuEntriesAskForTheirThing_data();
    void menuEntriesAskForTheirThing();

private:
    QLabel *label(const char *name) const { return m_tile->findChild<QLabel *>(QLatin1String(name)); }
    QWidget *menu() const
    {
        auto *entry = m_tile->findChild<QPushButton *>(QStringLiteral("restartButton"));
        return entry ? entry->parentWidget() : nullptr;
    }

    std::unique_ptr<QWidget> m_window;
    SubController *m_tile = nullptr;
};

void tst_SubController::init()
{
    Recorder::instance().reset();
    Recorder::instance().setRemoteSize(720, 1280);
    QCursor::setPos(0, 0);
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(200, 200, 400, 400);
    m_window->setFocusPolicy(Qt::StrongFocus);
    m_tile = new SubController(m_window.get());
    m_tile->move(40, 40);
    m_tile->onResizeSubController(TileSize);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(waitForInputFocus(*m_window));
    m_window->setFocus();
}

void tst_SubController::cleanup()
{
    m_window.reset();
}

// ---- Session ----

void tst_SubController::metaObject()
{
    QCOMPARE(ownMethods(SubController::staticMetaObject, QMetaMethod::Signal),
        (QStringList{QStringLiteral("setAsMainController()"), QStringLiteral("restartController()"),
            QStringLiteral("removeController(bool)"), QStringLiteral("openSingleController()")}));
    QCOMPARE(ownMethods(SubController::staticMetaObject, QMetaMethod::Slot),
        (QStringList{QStringLiteral("onSubControlTouchEvent(int,float,float)"),
            QStringLiteral("onInputEvent(QString)"), QStringLiteral("onFunctionBtnClicked(int)"),
            QStringLiteral("onResizeSubController(QSize)"), QStringLiteral("onKeyPressEvent(int)"),
            QStringLiteral("onKeyReleaseEvent(int)")}));
    const QMetaObject &meta = SubController::staticMetaObject;
    const QMetaMethod removal = meta.method(meta.indexOfSignal("removeController(bool)"));
    QCOMPARE(removal.parameterNames(), QByteArrayList{"slient"}); // the name that the page knows
}

void tst_SubController::connectsPausedUnlessLive()
{
    m_tile->setDevice(device(7));
    const QStringList calls = takeCalls();
    QVERIFY(calls.contains(
        QStringLiteral("SWDataSource::setLoginParams(\"10.1.2.3\", 8181, 17, \"s-7\", \"VM100007\", 0)")));
    QCOMPARE(calls.filter(QStringLiteral("screenCast")), (QStringList{castCall(3), castCall(0)}));
    QVERIFY(calls.filter(QStringLiteral("setVideoLevel(")).isEmpty());
    QVERIFY(calls.contains(QStringLiteral("SWPlayer::start()")));
}

void tst_SubController::connectsAsAThumbnailWhenLive()
{
    m_tile->setLive(true);
    QVERIFY(takeCalls().isEmpty()); // there is no session yet
    m_tile->setDevice(device(7));
    const QStringList calls = takeCalls();
    QCOMPARE(calls.filter(QStringLiteral("screenCast")), QStringList{castCall(3)});
    QCOMPARE(calls.filter(QStringLiteral("setVideoLevel(")),
        QStringList{QStringLiteral("SWDataSource::setVideoLevel(2, 0, 144, 218, 0, 256, 5)")});
}

void tst_SubController::livesAndPauses()
{
    m_tile->setDevice(device(7));
    takeCalls();
    m_tile->setLive(false);
    QVERIFY(takeCalls().isEmpty());
    m_tile->setLive(true);
    QCOMPARE(takeCalls(), (QStringList{QStringLiteral("SWDataSource::setVideoLevel(3)"), castCall(1)}));
    m_tile->setLive(true);
    QVERIFY(takeCalls().isEmpty());
    m_tile->setLive(false);
    QCOMPARE(takeCalls(), QStringList{castCall(0)});
}

void tst_SubController::restartsInItsMode()
{
    m_tile->restartStream(); // there is no device yet
    QVERIFY(takeCalls().isEmpty());
    m_tile->setDevice(device(7));
    showDevicePicture(*m_tile, Qt::red);
    QTRY_VERIFY(label("infoLabel")->isHidden());
    takeCalls();
    m_tile->restartStream();
    const QStringList calls = takeCalls();
    QCOMPARE(calls.filter(QStringLiteral("setLoginParams")),
        QStringList{QStringLiteral(
            "SWDataSource::setLoginParams(\"10.1.2.3\", 8181, 17, \"s-7\", \"VM100007\", 0)")});
    QCOMPARE(
        calls.filter(QStringLiteral("screenCast")), (QStringList{castCall(0), castCall(3), castCall(0)}));
    QVERIFY(label("infoLabel")->isHidden()); // the last picture stays
    QCOMPARE(m_tile->grab().toImage().pixelColor(80, 100), QColor(Qt::red));
}

// What was shown of the first one must not be taken for the second.
void tst_SubController::anotherDeviceTakesOver()
{
    m_tile->setDevice(device(7));
    showDevicePicture(*m_tile, Qt::red);
    QTRY_VERIFY(label("infoLabel")->isHidden());
    takeCalls();
    m_tile->setDevice(device(8));
    QCOMPARE(m_tile->serviceId(), QStringLiteral("100008"));
    QCOMPARE(takeCalls().filter(QStringLiteral("setLoginParams")),
        QStringList{QStringLiteral(
            "SWDataSource::setLoginParams(\"10.1.2.3\", 8181, 17, \"s-8\", \"VM100008\", 0)")});
    QVERIFY(label("infoLabel")->isVisible());
    QVERIFY(plainText(label("captionLabel")).contains(QStringLiteral("Device 8")));
    QCOMPARE(m_tile->grab().toImage().pixelColor(5, 5), QColor(Qt::white));
    showDevicePicture(*m_tile, Qt::blue);
    QTRY_VERIFY(label("infoLabel")->isHidden());
    QCOMPARE(m_tile->grab().toImage().pixelColor(80, 100), QColor(Qt::blue));
}

// ---- Input ----

void tst_SubController::ignoresInputWithoutSession()
{
    m_tile->onSubControlTouchEvent(0, 0.5F, 0.5F);
    m_tile->onKeyPressEvent(1);
    m_tile->onKeyReleaseEvent(1);
    m_tile->onFunctionBtnClicked(172);
    m_tile->onInputEvent(QStringLiteral("text"));
    QVERIFY(takeCalls().isEmpty());
}

void tst_SubController::touchesBecomePixels_data()
{
    QTest::addColumn<QSize>("remote");
    QTest::addColumn<float>("x");
    QTest::addColumn<float>("y");
    QTest::addColumn<QPoint>("pixel");

    QTest::newRow("half") << QSize(720, 1280) << 0.5F << 0.25F << QPoint(360, 320);
    QTest::newRow("another resolution") << QSize(480, 848) << 0.5F << 0.25F << QPoint(240, 212);
    QTest::newRow("truncated") << QSize(720, 1280) << 0.4999F << 0.9999F << QPoint(359, 1279);
    // 1280 x 0.7 is 895.99998 in double and 896 in single precision.
    QTest::newRow("single precision") << QSize(720, 1280) << 0.7F << 0.7F << QPoint(504, 896);
    QTest::newRow("toward zero") << QSize(720, 1280) << -0.001F << -0.5F << QPoint(0, -640);
    QTest::newRow("beyond the edge") << QSize(720, 1280) << 1.5F << 1.0F << QPoint(1080, 1280);
    QTest::newRow("no number") << QSize(720, 1280) << std::numeric_limits<float>::quiet_NaN() << 1e30F
                               << QPoint(-1, -1);
}

void tst_SubController::touchesBecomePixels()
{
    QFETCH(QSize, remote);
    QFETCH(float, x);
    QFETCH(float, y);
    QFETCH(QPoint, pixel);
    Recorder::instance().setRemoteSize(remote.width(), remote.height());
    m_tile->setDevice(device(7));
    takeCalls();
    m_tile->onSubControlTouchEvent(0, x, y);
    m_tile->onSubControlTouchEvent(2, x, y);
    QCOMPARE(
        takeCalls(), (QStringList{touchCall(0, pixel.x(), pixel.y()), touchCall(2, pixel.x(), pixel.y())}));
}

void tst_SubController::releaseHasNoPlace()
{
    m_tile->setDevice(device(7));
    takeCalls();
    m_tile->onSubControlTouchEvent(1, 0.5F, 0.5F);
    QCOMPARE(takeCalls(), QStringList{touchCall(1, -1, -1)});
}

void tst_SubController::passesKeysAndText()
{
    m_tile->setDevice(device(7));
    takeCalls();
    m_tile->onFunctionBtnClicked(172);
    m_tile->onKeyPressEvent(30);
    m_tile->onKeyReleaseEvent(30);
    m_tile->onInputEvent(QStringLiteral("hello"));
    QCOMPARE(takeCalls(),
        (QStringList{keyCall(3, 172), keyCall(1, 30), keyCall(2, 30), textCall(QStringLiteral("hello"))}));
}

// ---- Texts ----

void tst_SubController::remainingTime_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("all parts") << qint64(93784) << QStringLiteral("1d 2h 3min 4s");
    QTest::newRow("one second") << qint64(1) << QStringLiteral("0d 0h 0min 1s");
    QTest::newRow("a day less a second") << qint64(86399) << QStringLiteral("0d 23h 59min 59s");
    QTest::newRow("a year") << qint64(365 * 86400) << QStringLiteral("365d 0h 0min 0s");
    QTest::newRow("over") << qint64(0) << QStringLiteral("0d 0h 0min 0s");
    QTest::newRow("long over") << qint64(-5000) << QStringLiteral("0d 0h 0min 0s");
}

void tst_SubController::remainingTime()
{
    QFETCH(qint64, seconds);
    QFETCH(QString, text);
    const QDateTime now(QDate(2026, 3, 1), QTime(12, 0));
    QCOMPARE(group::remainingTime(now.addSecs(seconds), now), text);
    QCOMPARE(group::remainingTime(QDateTime(), now), QString());

    group::GroupDevice expiring = device(7);
    expiring.expireTime = now.addSecs(seconds);
    m_tile->setDevice(expiring);
    m_tile->showRemainingTime(now);
    QCOMPARE(plainText(label("infoLabel")).simplified(),
        QStringLiteral("Connecting Remaining time: %1").arg(text));
    QVERIFY(plainText(label("captionLabel")).contains(text));
}

void tst_SubController::templates()
{
    QCOMPARE(group::darkText(QStringLiteral("a"), QStringLiteral("b")),
        QStringLiteral("<p><font color='#333333' style='font-size: 13px'>a\n</font><br>"
                       "<font color='#999999' style='font-size: 12px'>b</font></p>"));
    QCOMPARE(group::lightText(QStringLiteral("%2"), QStringLiteral("<b>")),
        QStringLiteral("<p><font color='#FFFFFF' style='font-size: 14px'>%2\n</font><br>"
                       "<font color='#FFFFFF' style='font-size: 12px'>&lt;b&gt;</font></p>"));
}

void tst_SubController::tellsThatItConnects()
{
    m_tile->setDevice(device(7));
    QVERIFY(label("infoLabel")->isVisible());
    QVERIFY(plainText(label("infoLabel")).startsWith(QStringLiteral("Connecting")));
    QCOMPARE(m_tile->grab().toImage().pixelColor(5, 5), QColor(Qt::white));
    showDevicePicture(*m_tile, Qt::green);
    QTRY_VERIFY(!label("infoLabel")->isVisible());
    QCOMPARE(m_tile->grab().toImage().pixelColor(5, 5), QColor(Qt::green));
}

void tst_SubController::namesAreNotMarkup()
{
    group::GroupDevice marked = device(7);
    marked.aliasName = QStringLiteral("<b>1 & 2</b>");
    m_tile->setDevice(marked);
    QVERIFY(plainText(label("captionLabel")).startsWith(QStringLiteral("<b>1 & 2</b>")));
}

void tst_SubController::longNamesAreCut()
{
    group::GroupDevice named = device(7);
    named.aliasName = QString(200, QLatin1Char('W'));
    m_tile->setDevice(named);
    const QString shown = plainText(label("captionLabel"));
    QVERIFY(shown.startsWith(QStringLiteral("WWW")));
    QVERIFY(shown.contains(QChar(0x2026)));
    QCOMPARE(m_tile->size(), TileSize);
}

// ---- Layout ----

void tst_SubController::laysItsPartsOut()
{
    m_tile->setDevice(device(7));
    const QSize size(200, 340);
    m_tile->onResizeSubController(size);
    QCOMPARE(m_tile->size(), size);
    QCOMPARE(m_tile->videoView()->geometry(), QRect(QPoint(0, 0), size));
    QCOMPARE(label("infoLabel")->width(), 200);
    const QRect caption = label("captionLabel")->geometry();
    QCOMPARE(caption.left(), 0);
    QCOMPARE(caption.width(), 200);
    QCOMPARE(caption.bottom(), 339);
    QVERIFY(caption.height() > 20 && caption.height() < 80);
}

void tst_SubController::takesPicturesOfItsOwnSize()
{
    m_tile->setDevice(device(7));
    const QString format = QStringLiteral("VideoDisplayWinBase::setDstFormat(-1, %1, %2, 0)");
    const double ratio = m_tile->devicePixelRatioF();
    const QSize pixels = TileSize * ratio;
    QCOMPARE(takeCalls().filter(QStringLiteral("setDstFormat")).last(),
        format.arg(pixels.width()).arg(pixels.height()));
    m_tile->onResizeSubController({200, 340});
    const QSize larger = QSize(200, 340) * ratio;
    QCOMPARE(takeCalls(), QStringList{format.arg(larger.width()).arg(larger.height())});
}

// ---- Menu ----

void tst_SubController::menuComesWithThePointer()
{
    m_tile->setDevice(device(7));
    QVERIFY(!menu()); // most tiles never need one
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_tile, &enter);
    QVERIFY(menu() && menu()->isVisible());
    QCOMPARE(menu()->geometry(), m_tile->rect());
    QStringList texts;
    const QList<QPushButton *> entries = menu()->findChildren<QPushButton *>();
    for (const QPushButton *entry : entries)
        texts.append(entry->text());
    QCOMPARE(texts,
        (QStringList{QStringLiteral("Set as master"), QStringLiteral("Restart"), QStringLiteral("Remove"),
            QStringLiteral("Single control")}));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_tile, &leave);
    QVERIFY(!menu()->isVisible());

    // It darkens the picture by a fifth.
    showDevicePicture(*m_tile, QColor(200, 100, 50));
    QTRY_VERIFY(label("infoLabel")->isHidden());
    QApplication::sendEvent(m_tile, &enter);
    const QColor dimmed = m_tile->grab().toImage().pixelColor(2, 2);
    QVERIFY(qAbs(dimmed.red() - 160) <= 2 && qAbs(dimmed.green() - 80) <= 2 && qAbs(dimmed.blue() - 40) <= 2);
}

void tst_SubController::menuComesWithTheKeyboard()
{
    m_tile->setDevice(device(7));
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QTRY_VERIFY(m_tile->hasFocus());
    QVERIFY(menu() && menu()->isVisible());
    QSignalSpy restarts(m_tile, &SubController::restartController);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("setAsMainButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("restartButton"));
    QVERIFY(menu()->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(restarts.count(), 1);
    m_window->setFocus();
    QVERIFY(!menu()->isVisible());
}

void tst_SubController::menuEntriesAskForTheirThing_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("asked");
    QTest::newRow("master") << QStringLiteral("setAsMainButton") << QStringList{QStringLiteral("main")};
    QTest::newRow("restart") << QStringLiteral("restartButton") << QStringList{QStringLiteral("restart")};
    QTest::newRow("remove") << QStringLiteral("removeButton")
                            << QStringList{QStringLiteral("remove, asking")};
    QTest::newRow("single") << QStringLiteral("singleControlButton") << QStringList{QStringLiteral("single")};
}

void tst_SubController::menuEntriesAskForTheirThing()
{
    QFETCH(QString, entry);
    QFETCH(QStringList, asked);
    m_tile->setDevice(device(7));
    QStringList got;
    connect(m_tile, &SubController::setAsMainController, this, [&] { got.append(QStringLiteral("main")); });
    connect(m_tile, &SubController::restartController, this, [&] { got.append(QStringLiteral("restart")); });
    connect(m_tile, &SubController::removeController, this, [&](bool slient) {
        got.append(slient ? QStringLiteral("remove") : QStringLiteral("remove, asking"));
    });
    connect(
        m_tile, &SubController::openSingleController, this, [&] { got.append(QStringLiteral("single")); });
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_tile, &enter);
    QTest::mouseClick(m_tile->findChild<QPushButton *>(entry), Qt::LeftButton);
    QCOMPARE(got, asked);
    QCOMPARE(QApplication::focusWidget(), m_window.get()); // a click leaves the keyboard where it is
}

QTEST_MAIN(tst_SubController)
#include "tst_subcontroller.moc"
