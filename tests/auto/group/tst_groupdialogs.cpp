#include "group/GroupDialogBox.h"
#include "group/RemoveDeviceDialog.h"
#include "group/SaveGroupDialog.h"
#include "widgets/OvWindowBase.h"

#include <InputFocus.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString LengthError
    = QStringLiteral("The name length should be greater than one character and less than 50 characters");

QStringList ownMethods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return names;
}

// A window of the group's size that counts the keys which reach it.
class Window : public OvWindowBase
{
public:
    Window()
    {
        setContentSize({1240, 700});
        updateWindowSize();
    }
    bool appear()
    {
        show();
        activateWindow();
        return waitForInputFocus(*this);
    }
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++keys; }
};

template <typename Widget>
Widget *child(const QWidget *parent, const char *name)
{
    return parent->findChild<Widget *>(QString::fromLatin1(name));
}

} // namespace

// The dialogs over the group's window.
class TestGroupDialogs : public QObject
{
    Q_OBJECT

private slots:
    void saveMetaObject();
    void saveLook();
    void saveNames_data();
    void saveNames();
    void saveErrorGoes();
    void saveIsUsedAgain();
    void saveByKeyboard();
    void saveTakesTheKeys();
    void removeLook();
    void removeAnswers_data();
    void removeAnswers();
    void removeEndsWithItsWindow();
};

void TestGroupDialogs::saveMetaObject()
{
    QCOMPARE(ownMethods(SaveGroupDialog::staticMetaObject, QMetaMethod::Signal),
        QStringList{QStringLiteral("saveGroup(QString)")});
    QCOMPARE(ownMethods(SaveGroupDialog::staticMetaObject, QMetaMethod::Slot),
        (QStringList{QStringLiteral("onCancelBtnClicked()"), QStringLiteral("onConfirmBtnClicked()")}));
}

void TestGroupDialogs::saveLook()
{
    Window window;
    SaveGroupDialog dialog(&window);
    dialog.coverParent();
    QVERIFY(window.appear());
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(10, 10, 1240, 700));
    auto *box = child<GroupDialogBox>(&dialog, "box");
    QCOMPARE(box->geometry(), QRect((1240 - 500) / 2, 26, 500, 246));
    QCOMPARE(box->layout()->contentsMargins(), QMargins(16, 30, 16, 16));
    const auto label = [&dialog](const char *name) { return child<QLabel>(&dialog, name); };
    QCOMPARE(label("titleLabel")->text(), QStringLiteral("Change the name"));
    QCOMPARE(label("titleLabel")->size(), QSize(430, 22));
    QCOMPARE(label("nameLabel")->text(), QStringLiteral("Group name"));
    QCOMPARE(label("nameLabel")->size(), QSize(430, 25));
    auto *edit = child<QLineEdit>(&dialog, "nameEdit");
    QCOMPARE(edit->size(), QSize(430, 34));
    QCOMPARE(edit->placeholderText(), QStringLiteral("Please enter group name"));
    QCOMPARE(label("hintLabel")->text(),
        QStringLiteral("This is a temporary group. Do you want to save this group?"));
    QCOMPARE(label("hintLabel")->size(), QSize(430, 28));
    QCOMPARE(label("errorLabel")->text(), QString());
    QCOMPARE(label("errorLabel")->palette().color(QPalette::WindowText), QColor(255, 153, 153));
    QCOMPARE(box->cancelButton()->text(), QStringLiteral("Cancel"));
    QCOMPARE(box->cancelButton()->size(), QSize(234, 50));
    QCOMPARE(box->confirmButton()->text(), QStringLiteral("Confirm"));
    QCOMPARE(box->confirmButton()->size(), QSize(234, 50));
    QVERIFY(box->confirmButton()->styleSheet().contains(QStringLiteral("color: rgba(255, 155, 122, 1)")));
    // Everything lies within the box and nothing over anything else.
    const QList<QWidget *> parts = {label("titleLabel"), label("nameLabel"), edit, label("hintLabel"),
        label("errorLabel"), box->cancelButton(), box->confirmButton()};
    for (int i = 0; i < parts.size(); ++i) {
        QVERIFY2(box->rect().contains(parts[i]->geometry()), qPrintable(parts[i]->objectName()));
        for (int j = 0; j < i; ++j)
            QVERIFY2(
                !parts[i]->geometry().intersects(parts[j]->geometry()), qPrintable(parts[i]->objectName()));
    }
    const QImage picture = dialog.grab().toImage();
    QCOMPARE(picture.pixelColor(620, 30), QColor(Qt::white));
}

void TestGroupDialogs::saveNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("taken");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("1 character") << QStringLiteral("x") << true;
    QTest::newRow("50 characters") << QString(50, QLatin1Char('x')) << true;
    QTest::newRow("51 characters") << QString(51, QLatin1Char('x')) << false;
    // A character outside the basic plane counts as two.
    QTest::newRow("25 pairs") << QString::fromUtf8("\xF0\x9F\x98\x80").repeated(25) << true;
    QTest::newRow("26 pairs") << QString::fromUtf8("\xF0\x9F\x98\x80").repeated(26) << false;
}

void TestGroupDialogs::saveNames()
{
    QFETCH(QString, name);
    QFETCH(bool, taken);
    Window window;
    SaveGroupDialog dialog(&window);
    QVERIFY(window.appear());
    dialog.show();
    QSignalSpy saved(&dialog, &SaveGroupDialog::saveGroup);
    child<QLineEdit>(&dialog, "nameEdit")->setText(name);
    QTest::mouseClick(child<QPushButton>(&dialog, "confirmButton"), Qt::LeftButton);
    QCOMPARE(saved.size(), taken ? 1 : 0);
    QCOMPARE(dialog.isVisible(), !taken);
    QCOMPARE(child<QLabel>(&dialog, "errorLabel")->text(), taken ? QString() : LengthError);
    if (taken)
        QCOMPARE(saved.first().first().toString(), name);
}

void TestGroupDialogs::saveErrorGoes()
{
    Window window;
    SaveGroupDialog dialog(&window);
    QVERIFY(window.appear());
    dialog.show();
    dialog.onConfirmBtnClicked();
    QCOMPARE(child<QLabel>(&dialog, "errorLabel")->text(), LengthError);
    child<QLineEdit>(&dialog, "nameEdit")->setText(QStringLiteral("Farm"));
    dialog.onConfirmBtnClicked();
    QCOMPARE(child<QLabel>(&dialog, "errorLabel")->text(), QString());
    dialog.show();
    child<QLineEdit>(&dialog, "nameEdit")->clear();
    dialog.onConfirmBtnClicked();
    dialog.onCancelBtnClicked();
    dialog.show();
    QCOMPARE(child<QLabel>(&dialog, "errorLabel")->text(), QString());
}

void TestGroupDialogs::saveIsUsedAgain()
{
    Window window;
    QPointer<SaveGroupDialog> dialog = new SaveGroupDialog(&window);
    QVERIFY(window.appear());
    dialog->show();
    child<QLineEdit>(dialog, "nameEdit")->setText(QStringLiteral("Farm"));
    QTest::mouseClick(child<QPushButton>(dialog, "cancelButton"), Qt::LeftButton);
    QVERIFY(!dialog->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog);
    dialog->show();
    QVERIFY(dialog->isVisible());
    QCOMPARE(child<QLineEdit>(dialog, "nameEdit")->selectedText(), QStringLiteral("Farm"));
}

void TestGroupDialogs::saveByKeyboard()
{
    Window window;
    SaveGroupDialog dialog(&window);
    QVERIFY(window.appear());
    dialog.show();
    auto *edit = child<QLineEdit>(&dialog, "nameEdit");
    QVERIFY(edit->hasFocus());
    QSignalSpy saved(&dialog, &SaveGroupDialog::saveGroup);
    QTest::keyClicks(edit, QStringLiteral("Farm"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first().first().toString(), QStringLiteral("Farm"));
    QVERIFY(!dialog.isVisible());

    dialog.show();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(child<QPushButton>(&dialog, "cancelButton")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(child<QPushButton>(&dialog, "confirmButton")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(edit->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(child<QPushButton>(&dialog, "confirmButton")->hasFocus());
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(saved.size(), 1);
}

void TestGroupDialogs::saveTakesTheKeys()
{
    Window window;
    SaveGroupDialog dialog(&window);
    QVERIFY(window.appear());
    dialog.show();
    QTest::keyClick(child<QPushButton>(&dialog, "cancelButton"), Qt::Key_X);
    QCOMPARE(window.keys, 0);
}

void TestGroupDialogs::removeLook()
{
    Window window;
    QVERIFY(window.appear());
    auto *dialog = new RemoveDeviceDialog(&window);
    dialog->open();
    QVERIFY(dialog->isModal());
    QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(dialog->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(dialog->geometry(), QRect(10, 10, 1240, 700));
    auto *box = child<GroupDialogBox>(dialog, "box");
    QCOMPARE(box->size(), QSize(500, 153));
    QCOMPARE(box->pos(), QPoint((1240 - 500) / 2, (700 - 153) / 2));
    const auto *question = child<QLabel>(dialog, "questionLabel");
    QCOMPARE(question->text(), QStringLiteral("Are you sure to remove the device from the group?"));
    QCOMPARE(question->palette().color(QPalette::WindowText), QColor(0x60, 0x62, 0x66));
    QCOMPARE(question->font().pixelSize(), 18);
    QCOMPARE(box->cancelButton()->text(), QStringLiteral("Cancel"));
    QCOMPARE(box->confirmButton()->text(), QStringLiteral("Confirm"));
    QCOMPARE(box->confirmButton()->size(), QSize(234, 50));
    QVERIFY(!question->geometry().intersects(box->confirmButton()->geometry()));
    QVERIFY(box->confirmButton()->hasFocus());
}

void TestGroupDialogs::removeAnswers_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("confirm") << QStringLiteral("confirmButton") << 0 << true;
    QTest::newRow("cancel") << QStringLiteral("cancelButton") << 0 << false;
    QTest::newRow("enter") << QString() << int(Qt::Key_Return) << true;
    QTest::newRow("escape") << QString() << int(Qt::Key_Escape) << false;
}

void TestGroupDialogs::removeAnswers()
{
    QFETCH(QString, button);
    QFETCH(int, key);
    QFETCH(bool, accepted);
    Window window;
    QVERIFY(window.appear());
    QPointer<RemoveDeviceDialog> dialog = new RemoveDeviceDialog(&window);
    QSignalSpy finished(dialog, &QDialog::finished);
    dialog->open();
    if (key != 0)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    else
        QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().toInt(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QTRY_VERIFY(!dialog);
}

void TestGroupDialogs::removeEndsWithItsWindow()
{
    Window window;
    QVERIFY(window.appear());
    auto *dialog = new RemoveDeviceDialog(&window);
    QSignalSpy rejected(dialog, &QDialog::rejected);
    dialog->open();
    window.close();
    QTRY_COMPARE(rejected.size(), 1);

    auto doomed = std::make_unique<Window>();
    QVERIFY(doomed->appear());
    (new RemoveDeviceDialog(doomed.get()))->open();
    doomed.reset(); // no crash
}

QTEST_MAIN(TestGroupDialogs)
#include "tst_groupdialogs.moc"
