#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "widgets/OvBubble.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

// A language in which every text has a mark.
class MarkedTexts : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QStringLiteral("«%1»").arg(QString::fromLatin1(text));
    }
    bool isEmpty() const override { return false; }
};

const QStringList Labels = {QStringLiteral("Home page"), QStringLiteral("Volume up"),
    QStringLiteral("Volume down"), QStringLiteral("Screen capture"), QStringLiteral("Screen Rotate"),
    QStringLiteral("Key editing"), QStringLiteral("Apply Key Binding with One Click")};

void enter(QWidget *widget)
{
    QEvent event(QEvent::Enter);
    QApplication::sendEvent(widget, &event);
}

void leave(QWidget *widget)
{
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(widget, &event);
}

} // namespace

class tst_MenuBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void shape();
    void order();
    void icons_data();
    void icons();
    void signalOrder();
    void clicks_data();
    void clicks();
    void buttonsTakeNoFocus();
    void bubbleAtTheLeft();
    void bubbleGoes();
    void bubbleIsReleasedWithItsButton();
    void languageChange();
    void disabledLooksSo();

private:
    MenuButton *button(int index) const { return m_bar->buttons().at(index); }

    std::unique_ptr<QWidget> m_window;
    MenuBar *m_bar = nullptr;
};

void tst_MenuBar::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->setWindowFlag(Qt::FramelessWindowHint); // placed once
    m_window->setGeometry(600, 200, 300, 500);
    m_bar = new MenuBar(m_window.get());
    m_bar->setGeometry(250, 0, 50, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QTRY_COMPARE(m_window->pos(), QPoint(600, 200));
}

void tst_MenuBar::shape()
{
    QCOMPARE(m_bar->minimumWidth(), 50);
    QCOMPARE(m_bar->maximumWidth(), 50);
    QCOMPARE(m_bar->layout()->spacing(), 0);
    QCOMPARE(m_bar->layout()->contentsMargins(), QMargins());
    QVERIFY(qobject_cast<QVBoxLayout *>(m_bar->layout()));
    for (int i = 0; i < m_bar->buttons().size(); ++i) {
        QCOMPARE(button(i)->size(), QSize(45, 45));
        QCOMPARE(button(i)->iconSize(), QSize(26, 26));
        QCOMPARE(button(i)->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(button(i)->y(), i * 45);
    }
}

void tst_MenuBar::order()
{
    QStringList labels;
    for (const MenuButton *each : m_bar->buttons())
        labels << each->label();
    QCOMPARE(labels, Labels);
    QCOMPARE(button(0)->accessibleName(), QStringLiteral("Home page"));
}

void tst_MenuBar::icons_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("path");
    QTest::newRow("home") << 0 << ":/icon/svg/emitHome.svg";
    QTest::newRow("volume up") << 1 << ":/icon/svg/volumeUp.svg";
    QTest::newRow("volume down") << 2 << ":/icon/svg/volumeDown.svg";
    QTest::newRow("capture") << 3 << ":/icon/svg/snapshot.svg";
    QTest::newRow("rotate") << 4 << ":icon/svg/switchScreen.svg";
    QTest::newRow("key editing") << 5 << ":icon/svg/key.svg";
    QTest::newRow("apply") << 6 << ":icon/svg/useLastConfig.svg";
}

void tst_MenuBar::icons()
{
    QFETCH(int, index);
    QFETCH(QString, path);
    QVERIFY(QFile::exists(path));
    const QImage expected = QIcon(path).pixmap(26, 26).toImage();
    QVERIFY(!expected.isNull());
    QCOMPARE(button(index)->icon().pixmap(26, 26).toImage(), expected);
    // It is what the button shows, in its middle.
    QImage shown(45, 45, QImage::Format_ARGB32_Premultiplied);
    shown.fill(QColor(68, 68, 68));
    QPainter(&shown).drawImage(10, 10, expected);
    const QImage grabbed = m_bar->grab(button(index)->geometry()).toImage();
    QCOMPARE(grabbed.convertToFormat(shown.format()), shown);
}

void tst_MenuBar::signalOrder()
{
    QStringList names;
    const QMetaObject &meta = MenuBar::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    QCOMPARE(names,
        (QStringList{"functionBtnClicked(int)", "screenCaptureBtnClicked()", "screenRotateBtnClicked()",
            "keyboardMapBtnClicked()", "applyKeyBindingBtnClicked()"}));
}

void tst_MenuBar::clicks_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("home") << 0 << QStringList("172");
    QTest::newRow("volume up") << 1 << QStringList("115");
    QTest::newRow("volume down") << 2 << QStringList("114");
    QTest::newRow("capture") << 3 << QStringList("capture");
    QTest::newRow("rotate") << 4 << QStringList("rotate");
    QTest::newRow("key editing") << 5 << QStringList("keys");
    QTest::newRow("apply") << 6 << QStringList("apply");
}

// One signal for each click, and no other.
void tst_MenuBar::clicks()
{
    QFETCH(int, index);
    QFETCH(QStringList, expected);
    QSignalSpy keys(m_bar, &MenuBar::functionBtnClicked);
    QSignalSpy capture(m_bar, &MenuBar::screenCaptureBtnClicked);
    QSignalSpy rotate(m_bar, &MenuBar::screenRotateBtnClicked);
    QSignalSpy keyboardMap(m_bar, &MenuBar::keyboardMapBtnClicked);
    QSignalSpy apply(m_bar, &MenuBar::applyKeyBindingBtnClicked);
    const auto seen = [&] {
        QStringList all;
        for (const auto &key : qAsConst(keys))
            all << key.first().toString();
        const auto add = [&all](const QSignalSpy &spy, const QString &name) {
            for (int i = 0; i < spy.size(); ++i)
                all << name;
        };
        add(capture, QStringLiteral("capture"));
        add(rotate, QStringLiteral("rotate"));
        add(keyboardMap, QStringLiteral("keys"));
        add(apply, QStringLiteral("apply"));
        return all;
    };
    QTest::mousePress(button(index), Qt::LeftButton);
    QCOMPARE(seen(), QStringList());
    QTest::mouseRelease(button(index), Qt::LeftButton);
    QCOMPARE(seen(), expected);
}

void tst_MenuBar::buttonsTakeNoFocus()
{
    for (MenuButton *each : m_bar->buttons()) {
        QCOMPARE(each->focusPolicy(), Qt::NoFocus);
        QTest::mouseClick(each, Qt::LeftButton);
        QVERIFY(!each->hasFocus());
    }
}

void tst_MenuBar::bubbleAtTheLeft()
{
    for (MenuButton *each : m_bar->buttons()) {
        OvBubble *bubble = each->bubble();
        QVERIFY(!bubble->isVisible());
        enter(each);
        QVERIFY(bubble->isVisible());
        const QPoint corner = each->mapToGlobal(QPoint(0, 0));
        QCOMPARE(bubble->x() + bubble->width(), corner.x());
        QVERIFY(qAbs(bubble->geometry().center().y() - (corner.y() + 22)) <= 1);
        QCOMPARE(bubble->color(), QColor(48, 49, 51));
        const auto *text = qobject_cast<QLabel *>(bubble->contentWidget());
        QVERIFY(text);
        QCOMPARE(text->text(), each->label());
        QCOMPARE(text->palette().color(QPalette::WindowText), QColor(Qt::white));
        QVERIFY(text->width() >= text->sizeHint().width());
        leave(each);
        QVERIFY(!bubble->isVisible());
    }
}

// Not only with the pointer: a click may turn the window away from under it.
void tst_MenuBar::bubbleGoes()
{
    enter(button(0));
    QTest::mouseClick(button(0), Qt::LeftButton);
    QVERIFY(!button(0)->bubble()->isVisible());
    enter(button(1));
    m_window->hide();
    QVERIFY(!button(1)->bubble()->isVisible());
    m_window->show();
    enter(button(2));
    m_bar->setEnabled(false);
    QVERIFY(!button(2)->bubble()->isVisible());
    enter(button(2));
    QVERIFY(!button(2)->bubble()->isVisible());
}

void tst_MenuBar::bubbleIsReleasedWithItsButton()
{
    auto button = std::make_unique<MenuButton>(QStringLiteral(":/icon/svg/emitHome.svg"));
    const QPointer<OvBubble> bubble = button->bubble();
    button.reset();
    QVERIFY(bubble.isNull());
}

// Also in a bubble that is shown, which stays where it belongs.
void tst_MenuBar::languageChange()
{
    enter(button(6));
    MarkedTexts marked;
    QCoreApplication::installTranslator(&marked);
    QTRY_COMPARE(button(0)->label(), QStringLiteral("«Home page»"));
    for (int i = 0; i < Labels.size(); ++i)
        QCOMPARE(button(i)->label(), QStringLiteral("«%1»").arg(Labels[i]));
    const OvBubble *bubble = button(6)->bubble();
    QVERIFY(bubble->isVisible());
    QCOMPARE(bubble->x() + bubble->width(), button(6)->mapToGlobal(QPoint(0, 0)).x());
    QVERIFY(bubble->contentWidget()->width() >= bubble->contentWidget()->sizeHint().width());
    QCoreApplication::removeTranslator(&marked);
}

void tst_MenuBar::disabledLooksSo()
{
    const QImage enabled = m_bar->grab(button(0)->geometry()).toImage();
    m_bar->setEnabled(false);
    QVERIFY(m_bar->grab(button(0)->geometry()).toImage() != enabled);
}

QTEST_MAIN(tst_MenuBar)

#include "tst_menubar.moc"
