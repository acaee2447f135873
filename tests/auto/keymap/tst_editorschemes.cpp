#include "EditorFixture.h"

#include <QSignalSpy>

using namespace keymaptest;

namespace {

const QByteArray OneKey = R"([{"key": "Q", "x": 100, "y": 200, "remark": "n"}])";

} // namespace

// The panel of the key-mapping editor: what becomes of the scheme that is being edited when the list is read
// again, when it is saved or not, and when the local copy is used.
class TestEditorSchemes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_fixture.reset(); }
    void refreshKeepsTheKeys();
    void refreshKeepsWhatIsNotSaved();
    void refreshWithoutTheSchemeClears();
    void newSchemeIsSelected();
    void newSchemeLeavesKeysAlone();
    void failedRefreshChangesNothing();
    void resetChangesNothingOnTheService();
    void saves_data();
    void saves();
    void failedSaveStaysModified();
    void localCopyWhileEditing();
    void localCopyInPlay_data();
    void localCopyInPlay();
    void savedCopyComesBack();
    void discardsToTheList();
    void discardsToTheLastSave();
    void discardsWithoutAScheme();

private:
    EditorFixture &f() { return *m_fixture; }

    std::unique_ptr<EditorFixture> m_fixture;
};

void TestEditorSchemes::init()
{
    m_fixture = std::make_unique<EditorFixture>();
    f().manager->setRecording(true);
}

void TestEditorSchemes::refreshKeepsTheKeys()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing")}));
    f().box()->setCurrentIndex(0);
    const QVector<OvAuxiliaryKey *> keys = f().manager->keys();
    keys.first()->placeAt(QPoint(10, 20));
    QVERIFY(f().fill({scheme("C", "New one"), scheme("A", "Renamed", OneKey)}));
    QCOMPARE(f().manager->keys(), keys);
    QCOMPARE(keys.first()->pos(), QPoint(10, 20));
    QCOMPARE(f().box()->currentIndex(), 1);
    QCOMPARE(f().box()->currentText(), QStringLiteral("Renamed"));
    QCOMPARE(f().manager->currentMapId(), QStringLiteral("A"));
    QVERIFY(f().areControlsEnabled());
    QCOMPARE(f().made, 3);
}

void TestEditorSchemes::refreshKeepsWhatIsNotSaved()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(15);
    QVERIFY(f().manager->isModified());
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    QVERIFY(f().manager->isModified());
    QCOMPARE(f().opacity()->value(), 15);
    QCOMPARE(f().manager->lastClickKey()->alpha(), 15);
}

void TestEditorSchemes::refreshWithoutTheSchemeClears()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing")}));
    f().box()->setCurrentIndex(0);
    f().manager->setModified(true);
    QVERIFY(f().fill({scheme("B", "Racing")}));
    QVERIFY(f().manager->keys().isEmpty());
    QCOMPARE(f().box()->currentIndex(), 1);
    QCOMPARE(f().manager->currentMapId(), QString());
    QVERIFY(!f().manager->isModified());
    QVERIFY(!f().areControlsEnabled());
}

void TestEditorSchemes::newSchemeIsSelected()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().manager->setCurrentMapId("N"); // as after its creation
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("N", "New", OneKey)}));
    QCOMPARE(f().box()->currentIndex(), 1);
    QVERIFY(f().areControlsEnabled());
    QCOMPARE(f().opacity()->value(), 80);
    QCOMPARE(f().manager->keys().size(), 1);
    QCOMPARE(f().manager->lastClickKey()->pos(), QPoint(100, 200));
}

// They may not have been saved yet.
void TestEditorSchemes::newSchemeLeavesKeysAlone()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(15);
    f().manager->setCurrentMapId("N");
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("N", "New")}));
    QCOMPARE(f().box()->currentIndex(), 1);
    QCOMPARE(f().manager->keys().size(), 3);
    QCOMPARE(f().opacity()->value(), 15);
    QVERIFY(f().manager->isModified());
}

void TestEditorSchemes::failedRefreshChangesNothing()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(15);
    f().server().setAnswer(R"({"code": 500, "msg": "The service is busy"})");
    f().manager->onRefreshMapConfig();
    QTRY_VERIFY(f().window.findChild<OvToast *>());
    QCOMPARE(f().window.findChild<OvToast *>()->text(), QStringLiteral("The service is busy"));
    QCOMPARE(f().box()->count(), 2);
    QCOMPARE(f().box()->currentIndex(), 0);
    QCOMPARE(f().manager->keys().size(), 3);
    QVERIFY(f().manager->isModified());
    QVERIFY(f().areControlsEnabled());
}

void TestEditorSchemes::resetChangesNothingOnTheService()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    const int requests = f().server().requests().size();
    QTest::mouseClick(f().part("resetButton"), Qt::LeftButton);
    QVERIFY(f().manager->keys().isEmpty());
    QVERIFY(f().view->findChildren<OvAuxiliaryKey *>().isEmpty());
    QVERIFY(f().areControlsEnabled());
    QCOMPARE(f().manager->currentMapId(), QStringLiteral("A"));
    f().server().setAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    QTest::mouseClick(f().part("saveButton"), Qt::LeftButton);
    QTRY_COMPARE(f().server().requests().size(), requests + 1); // the first since
    QCOMPARE(f().bodies("/actionMapConfig").last().value("config"), QJsonValue("[\n]\n"));
}

void TestEditorSchemes::saves_data()
{
    QTest::addColumn<ScreenOrientation>("orientation");
    QTest::addColumn<bool>("isLandscape");
    QTest::newRow("portrait") << ScreenOrientation::Portrait << false;
    QTest::newRow("landscape") << ScreenOrientation::Landscape << true;
}

void TestEditorSchemes::saves()
{
    QFETCH(ScreenOrientation, orientation);
    QFETCH(bool, isLandscape);
    QVERIFY(f().fill({scheme("A", "Arena", OneKey)}));
    f().editor->setOrientation(orientation);
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(45);
    f().size()->setValue(38);
    f().showNotes()->setChecked(false);
    f().server().setAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    QSignalSpy closing(f().editor, &KeyboardMapEditor::sigSaveAndClose);
    const int before = f().bodies("/actionMapConfig").size();
    QTest::mouseClick(f().part("saveButton"), Qt::LeftButton);
    QTRY_COMPARE(f().bodies("/actionMapConfig").size(), before + 1);
    QCOMPARE(closing.count(), 1);
    QVERIFY(!f().manager->isModified());
    const QJsonObject body = f().bodies("/actionMapConfig").last();
    const QJsonObject expected{{"map_id", "A"}, {"action_type", "update"}, {"key_transparency", 45},
        {"key_size", 38}, {"show_key", true}, {"show_key_desc", false}, {"screen_orientation", isLandscape},
        {"config", f().manager->keysToJson()}};
    QCOMPARE(body, expected);
}

void TestEditorSchemes::failedSaveStaysModified()
{
    QVERIFY(f().fill({scheme("A", "Arena", OneKey)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(45);
    f().server().setAnswer(R"({"code": 500, "msg": "The service is busy"})");
    QTest::mouseClick(f().part("saveButton"), Qt::LeftButton);
    QTRY_VERIFY(f().window.findChild<OvToast *>());
    QVERIFY(f().manager->isModified());
    QCOMPARE(f().manager->keys().size(), 1);
    QCOMPARE(f().opacity()->value(), 45);
    QCOMPARE(object(f().manager->currentConfigJson().toUtf8()).value("key_transparency").toInt(), 45);
}

void TestEditorSchemes::localCopyWhileEditing()
{
    f().editor->applySchemeObject(
        {{"config", QString::fromUtf8(ThreeKeys)}, {"key_transparency", 66}, {"key_size", 30},
            {"show_key", true}, {"show_key_desc", false}, {"screen_orientation", false}},
        false);
    QCOMPARE(f().manager->keys().size(), 3);
    QCOMPARE(f().manager->lastClickKey()->pos(), QPoint(244, 416));
    QCOMPARE(f().opacity()->value(), 66);
    QVERIFY(f().manager->showKeys() && !f().manager->showKeyNotes());
    QVERIFY(!f().manager->isComboBoxUpdating());
    f().editor->applySchemeObject({}, false);
    QVERIFY(f().manager->keys().isEmpty());
}

void TestEditorSchemes::localCopyInPlay_data()
{
    QTest::addColumn<bool>("oneClick");
    QTest::addColumn<bool>("schemeLies");
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QPoint>("place"); // of a key of 40 x 40 at (100, 200)
    QTest::newRow("editor-size") << true << false << QSize(340, 600) << QPoint(100, 200);
    QTest::newRow("twice") << true << false << QSize(680, 1200) << QPoint(220, 420);
    QTest::newRow("again") << false << false << QSize(680, 1200) << QPoint(220, 420);
    QTest::newRow("turned") << true << true << QSize(340, 600) << QPoint(100, 100);
}

// The window has any size then: a key stays on its spot of the picture.
void TestEditorSchemes::localCopyInPlay()
{
    QFETCH(bool, oneClick);
    QFETCH(bool, schemeLies);
    QFETCH(QSize, view);
    f().manager->setRecording(false);
    f().resizeView(view);
    f().editor->applySchemeObject({{"config", QString::fromUtf8(OneKey)}, {"key_size", 30},
                                      {"screen_orientation", schemeLies}, {"show_key", true}},
        oneClick);
    QVERIFY(f().manager->lastClickKey());
    QTEST(f().manager->lastClickKey()->pos(), "place");
    QVERIFY(!f().manager->isComboBoxUpdating());
    f().view->resize(340, 600);
    const QPoint inEditor = schemeLies ? QPoint(100, 100) : QPoint(100, 200);
    QCOMPARE(f().manager->lastClickKey()->pos(), inEditor);
}

// The local copy of a save gives the same keys and the same look.
void TestEditorSchemes::savedCopyComesBack()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    f().showNotes()->setChecked(false);
    f().opacity()->setValue(45);
    const QString keys = f().manager->keysToJson();
    QTest::mouseClick(f().part("saveButton"), Qt::LeftButton);
    f().manager->clearKeys();
    f().opacity()->setValue(1);
    f().showKeys()->setChecked(false);
    f().editor->applySchemeObject(object(f().manager->currentConfigJson().toUtf8()), true);
    QCOMPARE(f().manager->keysToJson(), keys);
    QCOMPARE(f().opacity()->value(), 45);
    QVERIFY(f().showKeys()->isChecked() && !f().showNotes()->isChecked());
}

void TestEditorSchemes::discardsToTheList()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("L", "Landscape", OneKey)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(15);
    delete f().manager->lastClickKey();
    QVERIFY(f().manager->isModified());
    f().editor->discardChanges();
    QCOMPARE(f().manager->keys().size(), 3);
    QCOMPARE(f().manager->lastClickKey()->pos(), QPoint(244, 416));
    QCOMPARE(f().opacity()->value(), 80);
    QVERIFY(!f().manager->isModified());
    QCOMPARE(f().manager->currentMapId(), QStringLiteral("A"));
}

// The list may not have it yet, or never get it.
void TestEditorSchemes::discardsToTheLastSave()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing", OneKey)}));
    f().box()->setCurrentIndex(0);
    f().opacity()->setValue(15);
    f().server().hold();
    f().editor->onSaveBtnClicked();
    QCOMPARE(f().manager->savedMapId(), QStringLiteral("A"));
    f().opacity()->setValue(99);
    f().editor->discardChanges();
    QCOMPARE(f().opacity()->value(), 15);
    QCOMPARE(f().manager->keys().size(), 3);
    // That of another scheme is nothing to go back to.
    f().box()->setCurrentIndex(1);
    f().opacity()->setValue(33);
    f().editor->discardChanges();
    QCOMPARE(f().opacity()->value(), 80);
    QCOMPARE(f().manager->keys().size(), 1);
    f().server().release();
}

void TestEditorSchemes::discardsWithoutAScheme()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().manager->setModified(true);
    f().editor->discardChanges();
    QVERIFY(f().manager->keys().isEmpty() && !f().manager->isModified());
    KeyboardMapEditor withoutManager(nullptr);
    withoutManager.discardChanges();
}

QTEST_MAIN(TestEditorSchemes)
#include "tst_editorschemes.moc"
