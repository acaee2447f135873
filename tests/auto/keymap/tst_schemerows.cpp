#include "EditorFixture.h"

#include "widgets/OvMaskTipsDialog.h"

#include <InputFocus.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalSpy>

using namespace keymaptest;

namespace {

const QByteArray Done = R"({"code": 200, "msg": "success", "data": {}})";

} // namespace

// What the buttons in the rows of the schemes do.
class TestSchemeRows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_fixture.reset(); }
    void buttons();
    void copyAndDelete_data();
    void copyAndDelete();
    void share();
    void shareWithoutCode();
    void rename();
    void renameToTheSame();
    void refusedRenameShowsTheOldName();
    void refreshWhileTyping();
    void actionsRefreshTheList();

private:
    EditorFixture &f() { return *m_fixture; }
    QLineEdit *typing(int row) { return f().box()->editableItem(row)->findChild<QLineEdit *>(); }
    int requests() { return f().bodies("/actionMapConfig").size(); }

    std::unique_ptr<EditorFixture> m_fixture;
};

void TestSchemeRows::init()
{
    m_fixture = std::make_unique<EditorFixture>();
    f().manager->setRecording(true);
    f().window.activateWindow();
    QVERIFY(waitForInputFocus(f().window));
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing"), scheme("", "Nameless")}));
    f().box()->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(f().box()->listView()->window()));
    f().server().setAnswer(Done);
}

void TestSchemeRows::buttons()
{
    for (const char *name : {"Rename", "Share", "Create a copy", "Delete"}) {
        const QPushButton *button = f().rowButton(1, name);
        QVERIFY2(button, name);
        QCOMPARE(button->size(), QSize(18, 18));
        QCOMPARE(button->iconSize(), QSize(18, 18));
        QVERIFY(!button->icon().isNull());
        QVERIFY(f().box()->editableItem(1)->rect().contains(button->geometry()));
        QVERIFY(!f().rowButton(3, name)); // nothing to do with no scheme
    }
}

void TestSchemeRows::copyAndDelete_data()
{
    QTest::addColumn<QByteArray>("toolTip");
    QTest::addColumn<QString>("action");
    QTest::newRow("copy") << QByteArray("Create a copy") << QStringLiteral("copy");
    QTest::newRow("delete") << QByteArray("Delete") << QStringLiteral("delete");
}

// The row's scheme, not the one in use.
void TestSchemeRows::copyAndDelete()
{
    QFETCH(QByteArray, toolTip);
    QFETCH(QString, action);
    f().manager->setCurrentMapId("A");
    const int before = requests();
    QTest::mouseClick(f().rowButton(1, toolTip), Qt::LeftButton);
    QTRY_COMPARE(requests(), before + 1);
    QCOMPARE(f().bodies("/actionMapConfig").last(), (QJsonObject{{"map_id", "B"}, {"action_type", action}}));
    QVERIFY(!f().box()->isOpen());
}

void TestSchemeRows::share()
{
    QGuiApplication::clipboard()->setText("before");
    const int before = f().server().requests().size();
    QTest::mouseClick(f().rowButton(1, "Share"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("B"));
    QVERIFY(!f().box()->isOpen());
    QPointer<OvMaskTipsDialog> dialog = f().window.findChild<OvMaskTipsDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(dialog->title(), QStringLiteral("The sharing code has copied successfully"));
    QCOMPARE(dialog->text(),
        QStringLiteral("The sharing code is B, and can be sent to your friend to be uploaded for use"));
    QCOMPARE(dialog->geometry(), QRect(10, 10, 640, 640));
    dialog->close();
    QTRY_VERIFY(!dialog);
    QCOMPARE(f().server().requests().size(), before);
}

void TestSchemeRows::shareWithoutCode()
{
    QGuiApplication::clipboard()->setText("before");
    QTest::mouseClick(f().rowButton(2, "Share"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    QVERIFY(!f().window.findChild<OvMaskTipsDialog *>());
}

void TestSchemeRows::rename()
{
    f().manager->setCurrentMapId("A");
    const int before = requests();
    QTest::mouseClick(f().rowButton(1, "Rename"), Qt::LeftButton);
    QVERIFY(f().box()->editableItem(1)->isWritable());
    QCOMPARE(typing(1)->text(), QStringLiteral("Racing"));
    typing(1)->selectAll();
    QTest::keyClicks(typing(1), "Fast");
    QCOMPARE(requests(), before);
    QTest::keyClick(typing(1), Qt::Key_Return);
    QTRY_COMPARE(requests(), before + 1);
    QCOMPARE(f().bodies("/actionMapConfig").last(),
        (QJsonObject{{"map_id", "B"}, {"action_type", "update"}, {"map_name", "Fast"}}));
    // The button ends what it has begun.
    QTest::mouseClick(f().rowButton(0, "Rename"), Qt::LeftButton);
    typing(0)->setText("Slow");
    QTest::mouseClick(f().rowButton(0, "Rename"), Qt::LeftButton);
    QTRY_COMPARE(requests(), before + 2);
    QCOMPARE(f().bodies("/actionMapConfig").last().value("map_name"), QJsonValue("Slow"));
}

void TestSchemeRows::renameToTheSame()
{
    QSignalSpy changed(f().box()->editableItem(1), &OvComboBoxEditableItem::sigItemTextChanged);
    const int before = f().server().requests().size();
    QTest::mouseClick(f().rowButton(1, "Rename"), Qt::LeftButton);
    QTest::keyClick(typing(1), Qt::Key_Return);
    QCOMPARE(changed.count(), 1);
    f().manager->onRefreshMapConfig();
    QTRY_COMPARE(f().server().requests().size(), before + 1); // the first since
    QVERIFY(f().server().requests().last().path.endsWith("/mapConfigList"));
}

void TestSchemeRows::refusedRenameShowsTheOldName()
{
    f().server().setAnswer(R"({"code": 400, "msg": "The name is too long"})");
    QTest::mouseClick(f().rowButton(1, "Rename"), Qt::LeftButton);
    typing(1)->setText("Something");
    QTest::keyClick(typing(1), Qt::Key_Return);
    QCOMPARE(f().box()->itemText(1), QStringLiteral("Something"));
    QTRY_COMPARE(f().box()->itemText(1), QStringLiteral("Racing"));
    QCOMPARE(f().window.findChild<OvToast *>()->text(), QStringLiteral("The name is too long"));
}

// The list comes again while a name is being typed: it is neither sent nor lost.
void TestSchemeRows::refreshWhileTyping()
{
    QTest::mouseClick(f().rowButton(1, "Rename"), Qt::LeftButton);
    typing(1)->setText("Half");
    const int before = requests();
    QVERIFY(f().fill({scheme("C", "Other"), scheme("A", "Arena"), scheme("B", "Racing")}));
    QCOMPARE(requests(), before);
    QVERIFY(f().box()->isOpen());
    QVERIFY(!f().box()->editableItem(1)->isWritable());
    QVERIFY(f().box()->editableItem(2)->isWritable());
    QCOMPARE(typing(2)->text(), QStringLiteral("Half"));
    f().server().setAnswer(Done);
    QTest::keyClick(typing(2), Qt::Key_Return);
    QTRY_COMPARE(requests(), before + 1);
    QCOMPARE(f().bodies("/actionMapConfig").last().value("map_name"), QJsonValue("Half"));
    QCOMPARE(f().bodies("/actionMapConfig").last().value("map_id"), QJsonValue("B"));
}

void TestSchemeRows::actionsRefreshTheList()
{
    QSignalSpy refreshed(f().manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    f().server().setAnswer(listAnswer({scheme("A", "Arena")}));
    QTest::mouseClick(f().rowButton(1, "Delete"), Qt::LeftButton);
    QTRY_COMPARE(refreshed.count(), 1);
    QCOMPARE(f().box()->count(), 2);
}

QTEST_MAIN(TestSchemeRows)
#include "tst_schemerows.moc"
