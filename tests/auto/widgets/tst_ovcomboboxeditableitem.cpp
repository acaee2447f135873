#include "WidgetTestSupport.h"

#include "widgets/OvComboBoxEditableItem.h"

#include <InputFocus.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace widgettest;

// The row of a combo box that can be renamed.
class TestOvComboBoxEditableItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete m_window; }
    void metaObject();
    void construction();
    void textColor();
    void becomesWritable();
    void endsEditing();
    void keysEndEditing_data();
    void keysEndEditing();
    void escapeKeepsTheOldText();
    void losingFocusEndsEditing();
    void enterAndLosingFocusAreOneEnd();
    void menuDoesNotEndEditing();
    void hidingEndsEditing();
    void sameStateTwice();
    void composedText();
    void composedTextWhenNotWritable();
    void longTextIsNoWiderThanTheRow();

private:
    QWidget *m_window = nullptr;
    QLineEdit *m_other = nullptr; // takes the focus
    OvComboBoxEditableItem *m_item = nullptr;
    QLabel *m_label = nullptr;
    QLineEdit *m_edit = nullptr;
};

void TestOvComboBoxEditableItem::init()
{
    m_window = new QWidget;
    m_window->setGeometry(300, 200, 300, 120);
    auto *layout = new QVBoxLayout(m_window);
    m_other = new QLineEdit;
    m_item = new OvComboBoxEditableItem(QStringLiteral("Arena"));
    layout->addWidget(m_other);
    layout->addWidget(m_item);
    m_label = m_item->findChild<QLabel *>();
    m_edit = m_item->findChild<QLineEdit *>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(waitForInputFocus(*m_window));
}

void TestOvComboBoxEditableItem::metaObject()
{
    const QMetaObject &meta = OvComboBoxEditableItem::staticMetaObject;
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList{"sigItemTextChanged(QString)"});
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList{"onWritableStateChanged(bool)"});
}

void TestOvComboBoxEditableItem::construction()
{
    QCOMPARE(m_item->text(), QStringLiteral("Arena"));
    QCOMPARE(m_label->text(), QStringLiteral("Arena"));
    QVERIFY(m_label->isVisible());
    QVERIFY(!m_edit->isVisible());
    QVERIFY(!m_item->isWritable());
    QVERIFY(m_item->testAttribute(Qt::WA_InputMethodEnabled));
    QCOMPARE(m_label->textFormat(), Qt::PlainText);
}

void TestOvComboBoxEditableItem::textColor()
{
    QCOMPARE(m_item->textColor(), QColor(Qt::white));
    QCOMPARE(m_label->palette().color(QPalette::WindowText), QColor(Qt::white));
    m_item->setTextColor(QColor(1, 2, 3));
    QCOMPARE(m_item->textColor(), QColor(1, 2, 3));
    QCOMPARE(m_label->palette().color(QPalette::WindowText), QColor(1, 2, 3));
}

void TestOvComboBoxEditableItem::becomesWritable()
{
    m_item->onWritableStateChanged(true);
    QVERIFY(m_item->isWritable());
    QVERIFY(!m_label->isVisible());
    QVERIFY(m_edit->isVisible());
    QVERIFY(m_edit->hasFocus());
    QCOMPARE(m_edit->text(), QStringLiteral("Arena"));
    QCOMPARE(m_edit->selectedText(), QStringLiteral("Arena"));
}

void TestOvComboBoxEditableItem::endsEditing()
{
    m_item->onWritableStateChanged(true);
    m_edit->setText(QStringLiteral("Racing"));
    QStringList atSignal;
    connect(m_item, &OvComboBoxEditableItem::sigItemTextChanged, this,
        [&](const QString &text) { atSignal << text << m_item->text() << m_label->text(); });
    m_item->onWritableStateChanged(false);
    QCOMPARE(atSignal, (QStringList{"Racing", "Racing", "Racing"}));
    QVERIFY(!m_item->isWritable());
    QVERIFY(m_label->isVisible());
    QVERIFY(!m_edit->isVisible());
}

void TestOvComboBoxEditableItem::keysEndEditing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter on the keypad") << int(Qt::Key_Enter);
    QTest::newRow("Return") << int(Qt::Key_Return);
}

void TestOvComboBoxEditableItem::keysEndEditing()
{
    QFETCH(int, key);
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    m_item->onWritableStateChanged(true);
    QTest::keyClicks(m_edit, QStringLiteral("Racing"));
    QTest::keyClick(m_edit, static_cast<Qt::Key>(key));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("Racing"));
    QVERIFY(!m_item->isWritable());
    QVERIFY(m_label->isVisible());
}

void TestOvComboBoxEditableItem::escapeKeepsTheOldText()
{
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    m_item->onWritableStateChanged(true);
    QTest::keyClicks(m_edit, QStringLiteral("Racing"));
    QTest::keyClick(m_edit, Qt::Key_Escape);
    m_other->setFocus();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_item->text(), QStringLiteral("Arena"));
    QCOMPARE(m_label->text(), QStringLiteral("Arena"));
    QVERIFY(m_label->isVisible());
    QVERIFY(!m_edit->isVisible());
    m_item->onWritableStateChanged(true);
    QCOMPARE(m_edit->text(), QStringLiteral("Arena"));
}

void TestOvComboBoxEditableItem::losingFocusEndsEditing()
{
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    m_item->onWritableStateChanged(true);
    QTest::keyClicks(m_edit, QStringLiteral("Racing"));
    QTest::mouseClick(m_other, Qt::LeftButton);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("Racing"));
    QVERIFY(m_label->isVisible());
}

void TestOvComboBoxEditableItem::enterAndLosingFocusAreOneEnd()
{
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    // Whoever hears of the end may take the focus.
    connect(m_item, &OvComboBoxEditableItem::sigItemTextChanged, m_other, [this] { m_other->setFocus(); });
    m_item->onWritableStateChanged(true);
    QTest::keyClick(m_edit, Qt::Key_Enter);
    m_other->setFocus();
    m_item->onWritableStateChanged(false);
    QCOMPARE(changed.count(), 1);
}

void TestOvComboBoxEditableItem::menuDoesNotEndEditing()
{
    m_item->onWritableStateChanged(true);
    QFocusEvent event(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(m_edit, &event);
    QVERIFY(m_item->isWritable());
    QVERIFY(m_edit->isVisible());
}

void TestOvComboBoxEditableItem::hidingEndsEditing()
{
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    m_item->onWritableStateChanged(true);
    m_edit->setText(QStringLiteral("Racing"));
    m_window->hide();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_item->text(), QStringLiteral("Racing"));
    m_window->show();
    QVERIFY(m_label->isVisible());
    QVERIFY(!m_edit->isVisible());
}

void TestOvComboBoxEditableItem::sameStateTwice()
{
    QSignalSpy changed(m_item, &OvComboBoxEditableItem::sigItemTextChanged);
    m_item->onWritableStateChanged(false);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_item->text(), QStringLiteral("Arena"));
    m_item->onWritableStateChanged(true);
    m_edit->setText(QStringLiteral("Racing"));
    m_item->onWritableStateChanged(true);
    QCOMPARE(m_edit->text(), QStringLiteral("Racing"));
}

void TestOvComboBoxEditableItem::composedText()
{
    m_item->onWritableStateChanged(true);
    m_edit->setCursorPosition(0);
    for (const char *text : {"\xe4\xbd\xa0", "\xe5\xa5\xbd"}) {
        QInputMethodEvent event;
        event.setCommitString(QString::fromUtf8(text));
        QCoreApplication::sendEvent(m_item, &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(m_edit->text(), QStringLiteral("Arena\u4f60\u597d"));
}

void TestOvComboBoxEditableItem::composedTextWhenNotWritable()
{
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("\u4f60"));
    QCoreApplication::sendEvent(m_item, &event);
    QCOMPARE(m_label->text(), QStringLiteral("Arena"));
    m_item->onWritableStateChanged(true);
    QCOMPARE(m_edit->text(), QStringLiteral("Arena"));
}

void TestOvComboBoxEditableItem::longTextIsNoWiderThanTheRow()
{
    OvComboBoxEditableItem item(QStringLiteral("a long name ").repeated(20));
    QVERIFY(item.minimumSizeHint().width() < 200);
}

QTEST_MAIN(TestOvComboBoxEditableItem)
#include "tst_ovcomboboxeditableitem.moc"
