#include "WidgetTestSupport.h"

#include "widgets/OvComboBox.h"
#include "widgets/OvComboBoxDelegate.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvComboBoxListView.h"

#include <InputFocus.h>

#include <QApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace widgettest;

namespace {

void compose(QObject *receiver, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(receiver, &event);
}

} // namespace

// The combo box with rows that can be renamed, and its list.
class TestOvComboBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { delete m_window; }
    void construction();
    void looks();
    void rowLooks();
    void addsRows();
    void rowsFillTheList();
    void rowsAreNarrowedByTheScrollBar();
    void listStaysOnTheScreen();
    void rowIsChosenByClick();
    void renaming();
    void renamingTheCurrentRow();
    void renamingEndsByAClickElsewhere();
    void renamingEndsByAClickOnAnotherRow();
    void enterLeavesTheListOpen_data();
    void enterLeavesTheListOpen();
    void clickBesideTheEditChoosesNothing();
    void composedTextOfTheList();
    void composedTextOfTheBox();
    void composedTextWithoutEditing();
    void clearWhileRenaming();
    void removeRowWhileRenaming();
    void delegatePaintsTheGround();
    void delegatePaintsPlainRows();

private:
    OvComboBoxEditableItem *openAndRename(int row);

    QWidget *m_window = nullptr;
    OvComboBox *m_box = nullptr;
};

void TestOvComboBox::initTestCase()
{
    QApplication::setDoubleClickInterval(0); // that long an opened list takes no click
    m_window = new QWidget;
    m_window->setGeometry(300, 200, 400, 300);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(waitForInputFocus(*m_window));
}

void TestOvComboBox::init()
{
    m_box = new OvComboBox(m_window);
    m_box->setGeometry(20, 20, 200, 32);
    for (const char *name : {"Arena", "Racing", "Not using the scheme"})
        m_box->addItem(QString::fromLatin1(name));
    m_box->show();
}

void TestOvComboBox::cleanup()
{
    m_box->hidePopup();
    delete m_box;
}

OvComboBoxEditableItem *TestOvComboBox::openAndRename(int row)
{
    m_box->showPopup();
    OvComboBoxEditableItem *item = m_box->editableItem(row);
    item->onWritableStateChanged(true);
    return item;
}

void TestOvComboBox::construction()
{
    QCOMPARE(m_box->view(), m_box->listView());
    QCOMPARE(m_box->model(), m_box->listView()->model());
    QVERIFY(qobject_cast<OvComboBoxDelegate *>(m_box->itemDelegate()));
    QCOMPARE(m_box->listView()->itemDelegate(), m_box->itemDelegate());
    QVERIFY(m_box->testAttribute(Qt::WA_InputMethodEnabled));
    QVERIFY(m_box->listView()->testAttribute(Qt::WA_InputMethodEnabled));
    QVERIFY(!m_box->isEditable());
}

void TestOvComboBox::looks()
{
    const QImage image = m_box->grab().toImage();
    QCOMPARE(image.pixelColor(100, 4), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 0), QColor("#606266"));
    QCOMPARE(image.pixelColor(0, 16), QColor("#606266"));
    QCOMPARE(m_box->palette().color(QPalette::Text), QColor("#606266"));
    int darkest = 255;
    for (int x = 6; x < 60; ++x) {
        for (int y = 6; y < 26; ++y)
            darkest = qMin(darkest, qGray(image.pixel(x, y)));
    }
    QVERIFY(qAbs(darkest - qGray(qRgb(0x60, 0x62, 0x66))) < 40); // the text
}

// White on dark, and an ellipsis where there is more.
void TestOvComboBox::rowLooks()
{
    m_box->addItem(QStringLiteral("MMMMM").repeated(30));
    m_box->showPopup();
    const QImage image = m_box->listView()->viewport()->grab().toImage();
    const auto brightest = [&image](const QRect &rect) {
        int value = 0;
        for (int x = rect.left(); x <= rect.right(); ++x) {
            for (int y = rect.top(); y <= rect.bottom(); ++y)
                value = qMax(value, qGray(image.pixel(x, y)));
        }
        return value;
    };
    QVERIFY(brightest(QRect(0, 0, 100, 32)) > 240);
    const int right = m_box->editableItem(3)->geometry().right() - 8;
    QVERIFY(brightest(QRect(right - 12, 3 * 32 + 4, 12, 12)) < 100); // above the dots
    QVERIFY(brightest(QRect(right - 12, 3 * 32 + 16, 12, 12)) > 150);
}

void TestOvComboBox::addsRows()
{
    QCOMPARE(m_box->count(), 3);
    QCOMPARE(m_box->itemText(1), QStringLiteral("Racing"));
    for (int row = 0; row < 3; ++row) {
        const auto *item = m_box->editableItem(row);
        QVERIFY(item);
        QCOMPARE(item, m_box->listView()->editableItem(row));
        QCOMPARE(item->text(), m_box->itemText(row));
        QCOMPARE(item->findChild<QLabel *>()->text(), m_box->itemText(row));
    }
    QVERIFY(!m_box->editableItem(3));
    QVERIFY(!m_box->editableItem(-1));
    QCOMPARE(m_box->currentIndex(), 0);
    QCOMPARE(m_box->currentText(), QStringLiteral("Arena"));
}

void TestOvComboBox::rowsFillTheList()
{
    m_box->showPopup();
    const auto *list = m_box->listView();
    QVERIFY(!list->verticalScrollBar()->isVisible());
    QCOMPARE(list->visualRect(list->model()->index(0, 0)).width(), list->viewport()->width());
    QTRY_COMPARE(m_box->editableItem(0)->width(), list->viewport()->width());
    QCOMPARE(m_box->editableItem(0)->height(), 32);
    m_box->hidePopup();
    m_box->addItem(QStringLiteral("a long name ").repeated(30));
    m_box->showPopup();
    QTRY_COMPARE(m_box->editableItem(3)->width(), list->viewport()->width());
}

void TestOvComboBox::rowsAreNarrowedByTheScrollBar()
{
    for (int row = 0; row < 30; ++row)
        m_box->addItem(QString::number(row));
    m_box->showPopup();
    const auto *list = m_box->listView();
    QTRY_VERIFY(list->verticalScrollBar()->isVisible());
    const int bar = list->verticalScrollBar()->width();
    QVERIFY(bar > 0);
    const QRect row = list->visualRect(list->model()->index(0, 0));
    QCOMPARE(row.left(), 0);
    QCOMPARE(row.width(), list->viewport()->width() - bar);
    QTRY_COMPARE(m_box->editableItem(0)->width(), row.width());
}

void TestOvComboBox::listStaysOnTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    m_window->move(screen.right() - 150, screen.bottom() - 80);
    QTRY_VERIFY(m_window->geometry().right() > screen.right());
    m_box->showPopup();
    QVERIFY(screen.contains(m_box->listView()->window()->geometry()));
    m_window->move(300, 200);
}

void TestOvComboBox::rowIsChosenByClick()
{
    m_box->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(m_box->listView()->window()));
    const QPoint pos = m_box->editableItem(1)->rect().center();
    QCoreApplication::processEvents();
    QTest::mouseMove(m_box->editableItem(1), pos);
    QTest::mouseClick(m_box->editableItem(1), Qt::LeftButton, Qt::NoModifier, pos);
    QTRY_COMPARE(m_box->currentIndex(), 1);
    QVERIFY(!m_box->listView()->isVisible());
}

void TestOvComboBox::renaming()
{
    OvComboBoxEditableItem *item = openAndRename(1);
    QCOMPARE(m_box->listView()->editedItem(), item);
    item->findChild<QLineEdit *>()->setText(QStringLiteral("Rally"));
    QSignalSpy changed(item, &OvComboBoxEditableItem::sigItemTextChanged);
    item->onWritableStateChanged(false);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_box->itemText(1), QStringLiteral("Rally"));
    QCOMPARE(m_box->currentText(), QStringLiteral("Arena"));
    QVERIFY(!m_box->listView()->editedItem());
}

// The closed box shows the new text at once.
void TestOvComboBox::renamingTheCurrentRow()
{
    OvComboBoxEditableItem *item = openAndRename(0);
    item->findChild<QLineEdit *>()->setText(QStringLiteral("Colosseum"));
    item->onWritableStateChanged(false);
    QCOMPARE(m_box->currentText(), QStringLiteral("Colosseum"));
}

// Which closes the list.
void TestOvComboBox::renamingEndsByAClickElsewhere()
{
    const QPointer<OvComboBoxEditableItem> item = openAndRename(1);
    QSignalSpy changed(item, &OvComboBoxEditableItem::sigItemTextChanged);
    QTest::keyClicks(QApplication::activePopupWidget()->focusWidget(), QStringLiteral("Rally"));
    m_box->hidePopup();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("Rally"));
    QVERIFY(!item->isWritable());
    m_box->showPopup();
    QCOMPARE(changed.count(), 1);
    QVERIFY(item->findChild<QLabel *>()->isVisible());
}

void TestOvComboBox::renamingEndsByAClickOnAnotherRow()
{
    OvComboBoxEditableItem *item = openAndRename(1);
    QVERIFY(QTest::qWaitForWindowExposed(m_box->listView()->window()));
    QSignalSpy changed(item, &OvComboBoxEditableItem::sigItemTextChanged);
    item->findChild<QLineEdit *>()->setText(QStringLiteral("Rally"));
    QTest::mousePress(m_box->editableItem(0), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_box->itemText(1), QStringLiteral("Rally"));
    QTest::mouseRelease(m_box->editableItem(0), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QCOMPARE(changed.count(), 1);
}

void TestOvComboBox::enterLeavesTheListOpen_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestOvComboBox::enterLeavesTheListOpen()
{
    QFETCH(int, key);
    OvComboBoxEditableItem *item = openAndRename(1);
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), static_cast<Qt::Key>(key));
    QVERIFY(!item->isWritable());
    QVERIFY(m_box->listView()->isVisible());
    QCOMPARE(m_box->currentIndex(), 0);
}

void TestOvComboBox::clickBesideTheEditChoosesNothing()
{
    OvComboBoxEditableItem *item = openAndRename(1);
    QVERIFY(QTest::qWaitForWindowExposed(m_box->listView()->window()));
    QSignalSpy pressed(m_box->listView(), &QAbstractItemView::pressed);
    QTest::mousePress(item, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mouseRelease(item, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QCOMPARE(pressed.count(), 0);
    QVERIFY(m_box->listView()->isVisible());
    QVERIFY(item->isWritable());
}

void TestOvComboBox::composedTextOfTheList()
{
    OvComboBoxEditableItem *item = openAndRename(2);
    compose(m_box->listView(), QStringLiteral("\u4f60\u597d"));
    QCOMPARE(item->findChild<QLineEdit *>()->text(), QStringLiteral("Not using the scheme\u4f60\u597d"));
    QCOMPARE(m_box->listView()->inputMethodQuery(Qt::ImSurroundingText).toString(),
        QStringLiteral("Not using the scheme\u4f60\u597d"));
}

// While the list is open, the window system still sends what is composed to the box.
void TestOvComboBox::composedTextOfTheBox()
{
    OvComboBoxEditableItem *item = openAndRename(0);
    compose(m_box, QStringLiteral("\u4f60"));
    QCOMPARE(item->findChild<QLineEdit *>()->text(), QStringLiteral("Arena\u4f60"));
    QCOMPARE(m_box->inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("Arena\u4f60"));
}

void TestOvComboBox::composedTextWithoutEditing()
{
    m_box->showPopup();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("\u4f60"));
    QCoreApplication::sendEvent(m_box->listView(), &event);
    QVERIFY(!event.isAccepted());
    compose(m_box, QStringLiteral("\u4f60"));
    for (int row = 0; row < m_box->count(); ++row) {
        QVERIFY(!m_box->editableItem(row)->isWritable());
        QVERIFY(!m_box->editableItem(row)->text().contains(QChar(0x4f60)));
    }
}

// As a refreshed list does.
void TestOvComboBox::clearWhileRenaming()
{
    const QPointer<OvComboBoxEditableItem> item = openAndRename(1);
    m_box->clear();
    m_box->addItem(QStringLiteral("New"));
    QTRY_VERIFY(!item);
    QCOMPARE(m_box->count(), 1);
    QCOMPARE(m_box->itemText(0), QStringLiteral("New"));
}

// What the removed row is renamed to in passing belongs to no other row.
void TestOvComboBox::removeRowWhileRenaming()
{
    const QPointer<OvComboBoxEditableItem> item = openAndRename(1);
    item->findChild<QLineEdit *>()->setText(QStringLiteral("gone"));
    m_box->removeItem(1);
    QTRY_VERIFY(!item);
    QCOMPARE(m_box->itemText(0), QStringLiteral("Arena"));
    QCOMPARE(m_box->itemText(1), QStringLiteral("Not using the scheme"));
}

void TestOvComboBox::delegatePaintsTheGround()
{
    m_box->showPopup();
    auto *list = m_box->listView();
    list->setCurrentRow(1);
    const QImage image = list->viewport()->grab().toImage();
    const QRect first = list->visualRect(list->model()->index(0, 0));
    const QRect second = list->visualRect(list->model()->index(1, 0));
    QCOMPARE(image.pixelColor(first.right() - 3, first.top() + 3), QColor(48, 49, 51));
    QCOMPARE(image.pixelColor(second.right() - 3, second.top() + 3), QColor(72, 74, 78));
}

// A row without a widget shows its text by itself; one with a widget does not show it twice.
void TestOvComboBox::delegatePaintsPlainRows()
{
    const auto brightest = [this](int row) {
        QImage image(200, 32, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.widget = m_box->listView();
        m_box->itemDelegate()->paint(&painter, option, m_box->model()->index(row, 0));
        int value = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y)
                value = qMax(value, qGray(image.pixel(x, y)));
        }
        return value;
    };
    new QListWidgetItem(QStringLiteral("plain"), m_box->listView());
    QVERIFY(brightest(3) > 200);
    QVERIFY(brightest(1) < 100);
}

QTEST_MAIN(TestOvComboBox)
#include "tst_ovcombobox.moc"
