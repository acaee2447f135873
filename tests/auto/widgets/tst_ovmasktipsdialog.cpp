#include "WidgetTestSupport.h"

#include "widgets/OvMaskTipsDialog.h"

#include <InputFocus.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace widgettest;

namespace {

// A window of 420 x 320 that counts what reaches it, with a dialog over its content of 400 x 300.
class Window : public QWidget
{
public:
    Window()
    {
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(300, 200, 420, 320);
        setStyleSheet(QStringLiteral("background: #FFFF00"));
        edit = new QLineEdit(this);
        dialog = new OvMaskTipsDialog(this);
        dialog->setStyleSheet(QStringLiteral("background: transparent"));
        dialog->setFixedSize(400, 300);
        dialog->move(10, 10);
        dialog->setText(QStringLiteral("Do you want to renew?"));
    }
    bool appear()
    {
        show();
        activateWindow();
        return waitForInputFocus(*this);
    }
    QPushButton *button(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    }
    QLabel *label(const char *name) const { return dialog->findChild<QLabel *>(QLatin1String(name)); }
    QWidget *box() const { return dialog->findChild<QWidget *>(QStringLiteral("box")); }

    QLineEdit *edit;
    QPointer<OvMaskTipsDialog> dialog;
    int presses = 0;
    int keys = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

} // namespace

// The question over a window.
class TestOvMaskTipsDialog : public QObject
{
    Q_OBJECT

private slots:
    void metaObject();
    void construction();
    void texts();
    void placeInTheWindow();
    void painting();
    void buttonLooks();
    void longMessageWraps();
    void narrowWindow();
    void roundedWindow();
    void answers_data();
    void answers();
    void signalsComeBeforeTheEnd();
    void deletesItself();
    void closedWithItsWindow();
    void endsWhenItsWindowIsHidden();
    void staysWhileItsWindowIsMinimized();
    void tellsNothingToAWindowThatIsDestroyed();
    void mouseDoesNotReachTheWindow();
    void keysDoNotReachTheWindow();
    void focusStays();
    void unprompted();
    void focusComesBack();
    void oneAboveTheOther();
    void growsWithTheWindow();
    void languageChange();
};

void TestOvMaskTipsDialog::metaObject()
{
    QCOMPARE(ownMethods(OvMaskTipsDialog::staticMetaObject, QMetaMethod::Signal),
        (QStringList{"sigCancelBtnClicked()", "sigConfirmBtnClicked()"}));
}

void TestOvMaskTipsDialog::construction()
{
    Window window;
    QVERIFY(window.dialog->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(window.dialog->windowModality(), Qt::WindowModal);
    QVERIFY(window.dialog->testAttribute(Qt::WA_DeleteOnClose));
    const auto *content = window.box()->layout();
    QCOMPARE(content->contentsMargins(), QMargins(16, 16, 16, 16));
    QCOMPARE(content->spacing(), 16);
    QCOMPARE(content->itemAt(0)->widget(), window.label("titleLabel"));
    QCOMPARE(content->itemAt(1)->widget(), window.label("messageLabel"));
}

void TestOvMaskTipsDialog::texts()
{
    Window window;
    const QLabel *title = window.label("titleLabel");
    const QLabel *message = window.label("messageLabel");
    QCOMPARE(title->text(), QStringLiteral("Hints"));
    QCOMPARE(window.dialog->title(), title->text());
    window.dialog->setTitle(QStringLiteral("Copied"));
    QCOMPARE(title->text(), QStringLiteral("Copied"));
    window.dialog->setTitle(QString());
    QCOMPARE(title->text(), QStringLiteral("Hints"));
    QCOMPARE(title->font().pixelSize(), 18);
    QCOMPARE(title->palette().color(QPalette::WindowText), QColor("#303133"));
    QCOMPARE(message->text(), QStringLiteral("Do you want to renew?"));
    QCOMPARE(window.dialog->text(), message->text());
    QCOMPARE(message->font().pixelSize(), 14);
    QCOMPARE(message->palette().color(QPalette::WindowText), QColor("#606266"));
    QCOMPARE(message->textFormat(), Qt::PlainText);
    QVERIFY(message->wordWrap());
    QCOMPARE(window.button("closeButton")->text(), QStringLiteral("Close"));
    QCOMPARE(window.button("confirmButton")->text(), QStringLiteral("Confirm"));
}

// Where the caller puts it, also while the window moves.
void TestOvMaskTipsDialog::placeInTheWindow()
{
    Window window;
    QVERIFY(window.appear());
    QVERIFY(!window.dialog->isVisible()); // before it is asked for
    window.dialog->open();
    QVERIFY(window.dialog->isVisible());
    QCOMPARE(window.dialog->mapTo(&window, QPoint(0, 0)), QPoint(10, 10));
    QCOMPARE(window.dialog->size(), QSize(400, 300));
    window.move(350, 230);
    QTRY_COMPARE(window.pos(), QPoint(350, 230));
    QCOMPARE(window.dialog->mapToGlobal(QPoint(0, 0)), QPoint(360, 240));
}

void TestOvMaskTipsDialog::painting()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    QImage image(400, 300, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    window.dialog->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    for (const QPoint &pos : {QPoint(200, 0), QPoint(0, 150), QPoint(399, 150), QPoint(200, 299)})
        QCOMPARE(image.pixelColor(pos), QColor(0, 0, 0, 127));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // round
    QCOMPARE(image.pixelColor(399, 299).alpha(), 0);
    QCOMPARE(image.pixelColor(1, 1).alpha(), 0); // with a radius of 8
    QVERIFY(image.pixelColor(2, 2).alpha() > 60);
    const QRect box = window.box()->geometry();
    QCOMPARE(image.pixelColor(box.left() + box.width() / 2, box.top() + 4), QColor(Qt::white));
    QCOMPARE(image.pixelColor(box.left() + 4, box.center().y()), QColor(Qt::white));
    QCOMPARE(image.pixelColor(box.topLeft()), QColor(0, 0, 0, 127)); // round, with a radius of 8
    QCOMPARE(image.pixelColor(box.topLeft() + QPoint(1, 1)), QColor(0, 0, 0, 127));
    QCOMPARE(image.pixelColor(box.topLeft() + QPoint(3, 3)), QColor(Qt::white));
    QVERIFY(qAbs(box.center().x() - 200) <= 1);
    QVERIFY(qAbs(box.center().y() - 150) <= 1);

    // Over the window, half of its yellow is left.
    const QColor covered = window.grab().toImage().pixelColor(12, 160);
    QVERIFY(qAbs(covered.red() - 128) <= 1);
    QVERIFY(qAbs(covered.green() - 128) <= 1);
    QCOMPARE(covered.blue(), 0);
}

void TestOvMaskTipsDialog::buttonLooks()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    const QImage close = window.button("closeButton")->grab().toImage();
    const int y = close.height() / 2;
    QCOMPARE(close.pixelColor(4, y), QColor(Qt::white));
    QCOMPARE(close.pixelColor(0, y), QColor("#E5E7ED"));
    QCOMPARE(window.button("closeButton")->palette().color(QPalette::ButtonText), QColor("#606266"));
    const QImage confirm = window.button("confirmButton")->grab().toImage();
    QCOMPARE(confirm.pixelColor(4, y), QColor("#FF9B7A"));
    QCOMPARE(window.button("confirmButton")->palette().color(QPalette::ButtonText), QColor(Qt::white));
}

void TestOvMaskTipsDialog::longMessageWraps()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    const int oneLine = window.label("messageLabel")->height();
    window.dialog->setText(
        QStringLiteral("The main control device will expire in some minutes. ").repeated(4));
    QTRY_VERIFY(window.label("messageLabel")->height() >= 3 * oneLine);
    const QLabel *message = window.label("messageLabel");
    QVERIFY(message->height() >= message->heightForWidth(message->width()));
    QVERIFY(window.dialog->rect().contains(window.box()->geometry()));
}

void TestOvMaskTipsDialog::narrowWindow()
{
    Window window;
    window.dialog->setFixedSize(240, 300);
    QVERIFY(window.appear());
    window.dialog->open();
    QCOMPARE(window.box()->width(), 240 - 2 * 16);
    QVERIFY(window.box()->rect().contains(window.button("confirmButton")->geometry()));
    QVERIFY(window.box()->rect().contains(window.button("closeButton")->geometry()));
}

// A window that the scale's rounding has made a pixel smaller is covered up to its edge and no further.
void TestOvMaskTipsDialog::roundedWindow()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->resize(window.size() - QSize(19, 19));
    window.dialog->open();
    QCOMPARE(window.dialog->size(), window.size() - QSize(20, 20));
}

void TestOvMaskTipsDialog::answers_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isConfirmed");
    QTest::newRow("Confirm") << "confirmButton" << true;
    QTest::newRow("Close") << "closeButton" << false;
    QTest::newRow("Return") << "return" << true;
    QTest::newRow("Return on Close") << "tab return" << false;
    QTest::newRow("Escape") << "escape" << false;
    QTest::newRow("close()") << "close" << false;
}

void TestOvMaskTipsDialog::answers()
{
    QFETCH(QString, answer);
    QFETCH(bool, isConfirmed);
    Window window;
    QVERIFY(window.appear());
    QSignalSpy cancelled(window.dialog, &OvMaskTipsDialog::sigCancelBtnClicked);
    QSignalSpy confirmed(window.dialog, &OvMaskTipsDialog::sigConfirmBtnClicked);
    QTimer::singleShot(0, window.dialog, [&window, answer] {
        QWidget *focus = QApplication::focusWidget();
        if (answer.startsWith("tab"))
            QTest::keyClick(focus, Qt::Key_Tab);
        if (answer.endsWith("return"))
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        else if (answer == "escape")
            QTest::keyClick(focus, Qt::Key_Escape);
        else if (answer == "close")
            window.dialog->close();
        else
            QTest::mouseClick(window.button(qPrintable(answer)), Qt::LeftButton);
    });
    const int result = window.dialog->exec();
    QCOMPARE(result != 0, isConfirmed);
    QCOMPARE(confirmed.count(), isConfirmed ? 1 : 0);
    QCOMPARE(cancelled.count(), isConfirmed ? 0 : 1);
    QVERIFY(!window.dialog); // after exec() it is gone
}

void TestOvMaskTipsDialog::signalsComeBeforeTheEnd()
{
    for (const char *name : {"closeButton", "confirmButton"}) {
        Window window;
        QVERIFY(window.appear());
        window.dialog->open();
        QStringList order;
        connect(window.dialog, &OvMaskTipsDialog::sigCancelBtnClicked, this, [&order] { order << "cancel"; });
        connect(
            window.dialog, &OvMaskTipsDialog::sigConfirmBtnClicked, this, [&order] { order << "confirm"; });
        connect(window.dialog, &QDialog::finished, this, [&order] { order << "finished"; });
        QTest::mouseClick(window.button(name), Qt::LeftButton);
        QCOMPARE(order, (QStringList{qstrcmp(name, "closeButton") == 0 ? "cancel" : "confirm", "finished"}));
    }
}

void TestOvMaskTipsDialog::deletesItself()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    QTest::mouseClick(window.button("confirmButton"), Qt::LeftButton);
    QTRY_VERIFY(!window.dialog);
}

void TestOvMaskTipsDialog::closedWithItsWindow()
{
    auto *window = new Window;
    QVERIFY(window->appear());
    const QPointer<OvMaskTipsDialog> dialog = window->dialog;
    QTimer::singleShot(0, this, [window] { delete window; });
    QCOMPARE(dialog->exec(), 0);
    QVERIFY(!dialog);
}

// Whoever waits for the answer gets one.
void TestOvMaskTipsDialog::endsWhenItsWindowIsHidden()
{
    Window window;
    QVERIFY(window.appear());
    QSignalSpy cancelled(window.dialog, &OvMaskTipsDialog::sigCancelBtnClicked);
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(3000, window.dialog, [&window] { window.dialog->done(7); }); // it would wait for ever
    QCOMPARE(window.dialog->exec(), 0);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(!window.dialog);
}

void TestOvMaskTipsDialog::staysWhileItsWindowIsMinimized()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    window.showMinimized();
    QTRY_VERIFY(window.isMinimized());
    window.showNormal();
    QVERIFY(waitForInputFocus(window));
    QVERIFY(window.dialog && window.dialog->isVisible());
}

void TestOvMaskTipsDialog::tellsNothingToAWindowThatIsDestroyed()
{
    auto window = std::make_unique<Window>();
    QVERIFY(window->appear());
    window->dialog->open();
    QSignalSpy cancelled(window->dialog, &OvMaskTipsDialog::sigCancelBtnClicked);
    window.reset();
    QCoreApplication::processEvents();
    QCOMPARE(cancelled.count(), 0);
}

void TestOvMaskTipsDialog::mouseDoesNotReachTheWindow()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    QTest::mouseClick(window.dialog, Qt::LeftButton, Qt::NoModifier, QPoint(5, 150));
    QTest::mouseClick(window.box(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(window.presses, 0);
    QCOMPARE(window.childAt(window.edit->geometry().center() + QPoint(10, 10)), window.dialog.data());
}

void TestOvMaskTipsDialog::keysDoNotReachTheWindow()
{
    Window window;
    QVERIFY(window.appear());
    QShortcut shortcut(Qt::Key_F11, &window);
    QSignalSpy activated(&shortcut, &QShortcut::activated);
    window.dialog->open();
    QWidget *focus = QApplication::focusWidget();
    QVERIFY(focus && window.dialog->isAncestorOf(focus));
    QTest::keyClick(focus, Qt::Key_A);
    QTest::keyClick(focus, Qt::Key_F11);
    QCOMPARE(window.keys, 0);
    QCOMPARE(activated.count(), 0);
    QVERIFY(window.dialog && window.dialog->isVisible());
    window.dialog->close();
    QTest::keyClick(&window, Qt::Key_F11);
    QCOMPARE(activated.count(), 1);
}

void TestOvMaskTipsDialog::focusStays()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    QTRY_COMPARE(QApplication::focusWidget(), window.button("confirmButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.button("closeButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.button("confirmButton"));
    window.edit->setFocus(); // a covered widget reaches for it
    QCOMPARE(QApplication::focusWidget(), window.button("confirmButton"));
}

// Keys that were meant for what is covered are lost; the Tab key goes to the answers.
void TestOvMaskTipsDialog::unprompted()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->setUnprompted();
    window.dialog->open();
    QTRY_COMPARE(QApplication::focusWidget(), window.dialog.data());
    QVERIFY(!window.button("confirmButton")->isDefault());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(window.keys, 0);
    QVERIFY(window.dialog && window.dialog->isVisible());
    window.edit->setFocus();
    QCOMPARE(QApplication::focusWidget(), window.dialog.data());
    QTest::mouseDClick(window.button("confirmButton"), Qt::LeftButton);
    QTest::mouseRelease(window.button("confirmButton"), Qt::LeftButton);
    QVERIFY(window.dialog && window.dialog->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), window.button("closeButton"));
    QSignalSpy cancelled(window.dialog, &OvMaskTipsDialog::sigCancelBtnClicked);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(cancelled.count(), 1);
    QVERIFY(!window.dialog || !window.dialog->isVisible());
}

// To whatever had it, so that typing goes on where it was.
void TestOvMaskTipsDialog::focusComesBack()
{
    Window window;
    QLineEdit second(&window);
    second.move(200, 0);
    QVERIFY(window.appear());
    second.setFocus();
    window.dialog->open();
    QVERIFY(!second.hasFocus());
    QTest::mouseClick(window.button("closeButton"), Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), &second);
}

void TestOvMaskTipsDialog::oneAboveTheOther()
{
    Window window;
    QVERIFY(window.appear());
    window.edit->setFocus();
    window.dialog->open();
    const QPointer<OvMaskTipsDialog> upper = new OvMaskTipsDialog(&window);
    upper->setFixedSize(400, 300);
    upper->move(10, 10);
    upper->open();
    QCOMPARE(window.childAt(200, 30), upper.data());
    QVERIFY(upper->isAncestorOf(QApplication::focusWidget()));
    upper->close();
    QVERIFY(window.dialog->isAncestorOf(QApplication::focusWidget()));
    window.dialog->close();
    QCOMPARE(QApplication::focusWidget(), window.edit);
}

void TestOvMaskTipsDialog::growsWithTheWindow()
{
    Window window;
    QVERIFY(window.appear());
    window.dialog->open();
    window.resize(520, 370);
    QTRY_COMPARE(window.dialog->size(), QSize(500, 350));
    QCOMPARE(window.dialog->pos(), QPoint(10, 10));
    window.resize(420, 320);
    QTRY_COMPARE(window.dialog->size(), QSize(400, 300));
}

void TestOvMaskTipsDialog::languageChange()
{
    Window window;
    window.label("titleLabel")->clear();
    window.button("closeButton")->setText({});
    window.button("confirmButton")->setText({});
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(window.dialog, &event);
    QCOMPARE(window.label("titleLabel")->text(), QStringLiteral("Hints"));
    QCOMPARE(window.button("closeButton")->text(), QStringLiteral("Close"));
    QCOMPARE(window.button("confirmButton")->text(), QStringLiteral("Confirm"));
    QCOMPARE(window.dialog->text(), QStringLiteral("Do you want to renew?"));
}

QTEST_MAIN(TestOvMaskTipsDialog)
#include "tst_ovmasktipsdialog.moc"
