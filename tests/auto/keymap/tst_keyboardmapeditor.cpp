#include "EditorFixture.h"

#include <QLabel>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTranslator>

using namespace keymaptest;

namespace {

QStringList ownMethods(QMetaMethod::MethodType type)
{
    const QMetaObject &meta = KeyboardMapEditor::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == type)
            methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return methods;
}

QJsonObject landscapeScheme(const QByteArray &keys)
{
    QJsonObject source = scheme("L", "Landscape", keys);
    source["screen_orientation"] = 1;
    return source;
}

const QByteArray OneKey = R"([{"key": "Q", "x": 100, "y": 200, "remark": "n"}])";

} // namespace

// The panel of the key-mapping editor: what it is made of, and how a scheme is applied. The rows' buttons and
// what becomes of an edited scheme have tests of their own.
class TestKeyboardMapEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_fixture.reset(); }
    void metaObject();
    void parts();
    void buttonsAsk();
    void slidersTellTheKeys();
    void checkBoxesTellTheManager();
    void headerButtons();
    void withoutSchemes();
    void fills();
    void selectingAppliesTheScheme();
    void notUsingRemovesAndDisables();
    void secondSelectionReplacesTheKeys();
    void turnedSchemes_data();
    void turnedSchemes();
    void sizesKeepTheirPlace_data();
    void sizesKeepTheirPlace();
    void applyingDoesNotModify();
    void brokenConfigStillSetsTheControls();
    void keysNobodyMakes();
    void languageChange();
    void withoutManager();

private:
    EditorFixture &f() { return *m_fixture; }

    std::unique_ptr<EditorFixture> m_fixture;
};

void TestKeyboardMapEditor::init()
{
    m_fixture = std::make_unique<EditorFixture>();
    f().manager->setRecording(true);
    QCOMPARE(f().view->size(), QSize(340, 600));
    QCOMPARE(f().editor->size(), QSize(300, 600));
}

void TestKeyboardMapEditor::metaObject()
{
    QCOMPARE(ownMethods(QMetaMethod::Signal),
        (QStringList{"sigAuxiliaryClickBtnClicked()", "sigAuxiliaryCrosshairClicked()",
            "sigAuxiliaryWalkingClicked()", "sigCreateAuxiliaryClickKey()",
            "sigCreateAuxiliaryCrosshairKey()", "sigCreateAuxiliaryWalkingKey()",
            "sigOpacityValueChanged(int)", "sigSizeValueChanged(int)", "sigSaveAndClose()"}));
    QCOMPARE(ownMethods(QMetaMethod::Slot),
        (QStringList{"onItemEditBtnClicked()", "onItemShareBtnClicked()", "onItemCopyBtnClicked()",
            "onItemDeleteBtnClicked()", "onRefreshConfigSuccess()", "onResetBtnClicked()",
            "onSaveBtnClicked()", "onComboBoxItemChanged(int)", "onItemTextChanged(QString)",
            "onUpdateComboBox()"}));
}

void TestKeyboardMapEditor::parts()
{
    QCOMPARE(f().part<QLabel>("headerLabel")->text(), QStringLiteral("Key Preset"));
    QCOMPARE(f().part("addButton")->toolTip(), QStringLiteral("Add scheme"));
    QCOMPARE(f().part("refreshButton")->toolTip(), QStringLiteral("Refresh"));
    QCOMPARE(f().part<QLabel>("kindsLabel")->text(), QStringLiteral("Please Select Auxiliary Key"));
    QCOMPARE(f().part("clickButton")->text(), QStringLiteral("Click"));
    QCOMPARE(f().part("walkingButton")->text(), QStringLiteral("keyboard walking"));
    QCOMPARE(f().part("crosshairButton")->text(), QStringLiteral("crosshair"));
    QCOMPARE(f().part<QLabel>("promptsLabel")->text(), QStringLiteral("Key prompts"));
    QCOMPARE(f().part<QLabel>("opacityLabel")->text(), QStringLiteral("Button transparency"));
    QCOMPARE(f().part<QLabel>("sizeLabel")->text(), QStringLiteral("Key size"));
    QCOMPARE(f().showKeys()->text(), QStringLiteral("Show buttons when entering the game"));
    QCOMPARE(f().showNotes()->text(), QStringLiteral("Show notes when entering the game"));
    QCOMPARE(f().part("resetButton")->text(), QStringLiteral("Reset"));
    QCOMPARE(f().part("saveButton")->text(), QStringLiteral("Save"));
    QCOMPARE(f().opacity()->minimum(), 0);
    QCOMPARE(f().opacity()->maximum(), 100);
    QCOMPARE(f().opacity()->pageStep(), 10);
    QCOMPARE(f().opacity()->value(), 0);
    QCOMPARE(f().size()->minimum(), 20);
    QCOMPARE(f().size()->maximum(), 40);
    QCOMPARE(f().size()->singleStep(), 1);
    QCOMPARE(f().size()->value(), 20);
    QCOMPARE(f().part("resetButton")->size(), QSize(110, 40));
    QCOMPARE(f().part("saveButton")->size(), QSize(110, 40));
    QCOMPARE(f().editor->grab().toImage().pixelColor(2, 300), QColor(28, 28, 46));

    int bottom = -1; // from top to bottom
    const QWidgetList order{f().part<QLabel>("headerLabel"), f().box(), f().part<QLabel>("kindsLabel"),
        f().part("clickButton"), f().part<QLabel>("promptsLabel"), f().opacity(), f().size(), f().showKeys(),
        f().showNotes(), f().part("saveButton")};
    for (const QWidget *widget : order) {
        const int top = widget->mapTo(f().editor, QPoint(0, 0)).y();
        QVERIFY2(top > bottom, qPrintable(widget->objectName()));
        bottom = top + widget->height() - 1;
    }
    QVERIFY(bottom < f().editor->height());
}

void TestKeyboardMapEditor::buttonsAsk()
{
    QVERIFY(f().fill({scheme("A", "Arena")}));
    f().box()->setCurrentIndex(0);
    QSignalSpy click(f().editor, &KeyboardMapEditor::sigAuxiliaryClickBtnClicked);
    QSignalSpy walking(f().editor, &KeyboardMapEditor::sigAuxiliaryWalkingClicked);
    QSignalSpy crosshair(f().editor, &KeyboardMapEditor::sigAuxiliaryCrosshairClicked);
    QTest::mouseClick(f().part("clickButton"), Qt::LeftButton);
    QCOMPARE(click.count(), 1);
    QTest::mouseClick(f().part("walkingButton"), Qt::LeftButton);
    QCOMPARE(walking.count(), 1);
    QTest::mouseClick(f().part("crosshairButton"), Qt::LeftButton);
    QCOMPARE(crosshair.count(), 1);
    QCOMPARE(click.count() + walking.count(), 2);
    QCOMPARE(f().made, 0); // these only ask
}

void TestKeyboardMapEditor::slidersTellTheKeys()
{
    QVERIFY(f().fill({scheme("A", "Arena", OneKey)}));
    f().box()->setCurrentIndex(0);
    QSignalSpy opacity(f().editor, &KeyboardMapEditor::sigOpacityValueChanged);
    QSignalSpy size(f().editor, &KeyboardMapEditor::sigSizeValueChanged);
    f().opacity()->setValue(35);
    f().size()->setValue(40);
    QCOMPARE(opacity.takeFirst().first().toInt(), 35);
    QCOMPARE(size.takeFirst().first().toInt(), 40);
    QCOMPARE(f().manager->lastClickKey()->alpha(), 35);
    QCOMPARE(f().manager->lastClickKey()->size(), QSize(50, 50));
    QVERIFY(f().manager->isModified());
    QCOMPARE(f().editor->opacity(), 35);
    QCOMPARE(f().editor->keySize(), 40);
}

void TestKeyboardMapEditor::checkBoxesTellTheManager()
{
    QVERIFY(f().fill({scheme("A", "Arena", OneKey)}));
    f().box()->setCurrentIndex(0);
    QVERIFY(f().manager->showKeys() && f().manager->showKeyNotes());
    QTest::mouseClick(f().showKeys(), Qt::LeftButton, {}, QPoint(f().showKeys()->width() - 5, 5));
    QVERIFY(!f().manager->showKeys() && f().manager->showKeyNotes());
    QTest::mouseClick(f().showNotes(), Qt::LeftButton);
    QVERIFY(!f().manager->showKeyNotes());
    QTest::mouseClick(f().showKeys(), Qt::LeftButton);
    QVERIFY(f().manager->showKeys());
}

void TestKeyboardMapEditor::headerButtons()
{
    QSignalSpy requests(&f().server(), &TestHttpServer::requestReceived);
    QTest::mouseClick(f().part("refreshButton"), Qt::LeftButton);
    QTRY_COMPARE(requests.count(), 1);
    QVERIFY(f().server().requests().last().path.endsWith("/mapConfigList"));
    QTest::mouseClick(f().part("addButton"), Qt::LeftButton);
    QTRY_COMPARE(requests.count(), 2);
    QVERIFY(f().server().requests().last().path.endsWith("/createMapConfig"));
}

// Before the first answer, and with an empty list.
void TestKeyboardMapEditor::withoutSchemes()
{
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(f().box()->count(), 1);
        QCOMPARE(f().box()->itemText(0), QStringLiteral("Not using the scheme"));
        QCOMPARE(f().box()->mapIdAt(0), QString());
        QVERIFY(!f().areControlsEnabled());
        QVERIFY(f().part("addButton")->isEnabled() && f().part("refreshButton")->isEnabled());
        for (const char *name : {"clickButton", "walkingButton", "crosshairButton"})
            QCOMPARE(f().part(name)->cursor().shape(), Qt::ForbiddenCursor);
        QVERIFY(f().fill({}));
    }
}

void TestKeyboardMapEditor::fills()
{
    QVERIFY(f().fill({scheme("A", "Arena"), scheme("B", "Ünï \U0001F3AE"), 17, QJsonObject{{"map_id", 42}}}));
    QCOMPARE(f().box()->count(), 5);
    QCOMPARE(f().box()->itemText(0), QStringLiteral("Arena"));
    QCOMPARE(f().box()->mapIdAt(0), QStringLiteral("A"));
    QCOMPARE(f().box()->itemText(1), QStringLiteral("Ünï \U0001F3AE"));
    QCOMPARE(f().box()->mapIdAt(1), QStringLiteral("B"));
    QCOMPARE(f().box()->mapIdAt(2), QString());
    QCOMPARE(f().box()->mapIdAt(3), QStringLiteral("42"));
    QCOMPARE(f().box()->itemText(4), QStringLiteral("Not using the scheme"));
    QCOMPARE(f().box()->mapIdAt(4), QString());
    QCOMPARE(f().box()->currentIndex(), 4); // none is in use
    QVERIFY(!f().areControlsEnabled());
    QVERIFY(!f().manager->isComboBoxUpdating());
    QCOMPARE(f().made, 0);
}

void TestKeyboardMapEditor::selectingAppliesTheScheme()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing")}));
    f().box()->setCurrentIndex(0);
    QCOMPARE(f().manager->currentMapId(), QStringLiteral("A"));
    QVERIFY(f().areControlsEnabled());
    for (const char *name : {"clickButton", "walkingButton", "crosshairButton"})
        QCOMPARE(f().part(name)->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(f().opacity()->value(), 80);
    QCOMPARE(f().size()->value(), 30);
    QVERIFY(f().showKeys()->isChecked() && f().showNotes()->isChecked());
    QCOMPARE(f().manager->keys().size(), 3);

    const OvAuxiliaryClick *click = f().manager->lastClickKey();
    QCOMPARE(click->keyText(), QStringLiteral("F"));
    QCOMPARE(click->note(), QStringLiteral("Fire"));
    QCOMPARE(click->pos(), QPoint(244, 416));
    QCOMPARE(click->size(), QSize(40, 40)); // 30 + 10
    QCOMPARE(click->alpha(), 80);
    const OvAuxiliaryWalking *walking = f().manager->walkingKey();
    QCOMPARE(walking->pos(), QPoint(50, 424));
    QCOMPARE(walking->size(), QSize(80, 80));
    QCOMPARE(walking->note(), QStringLiteral("Walk"));
    const OvAuxiliaryCrosshair *crosshair = f().manager->crosshairKey();
    QCOMPARE(crosshair->keyText(), QStringLiteral("Q"));
    QCOMPARE(crosshair->pos(), QPoint(150, 196));
    QCOMPARE(crosshair->sensitivity(), 2.5);
    // What is saved again is what was read.
    QCOMPARE(QJsonDocument::fromJson(f().manager->keysToJson().toUtf8()), QJsonDocument::fromJson(ThreeKeys));
}

void TestKeyboardMapEditor::notUsingRemovesAndDisables()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    QCOMPARE(f().manager->keys().size(), 3);
    f().box()->setCurrentIndex(1);
    QVERIFY(f().manager->keys().isEmpty());
    QVERIFY(f().view->findChildren<OvAuxiliaryKey *>().isEmpty());
    QCOMPARE(f().manager->currentMapId(), QString());
    QVERIFY(!f().areControlsEnabled());
    for (const char *name : {"clickButton", "walkingButton", "crosshairButton"})
        QCOMPARE(f().part(name)->cursor().shape(), Qt::ForbiddenCursor);
}

void TestKeyboardMapEditor::secondSelectionReplacesTheKeys()
{
    QJsonObject second = scheme("B", "Racing", OneKey);
    second["key_transparency"] = 100;
    second["key_size"] = 20;
    second["show_key"] = 0;
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), second}));
    f().box()->setCurrentIndex(0);
    f().box()->setCurrentIndex(1);
    QCOMPARE(f().manager->keys().size(), 1);
    QCOMPARE(f().view->findChildren<OvAuxiliaryKey *>().size(), 1);
    QCOMPARE(f().manager->lastClickKey()->alpha(), 100);
    QCOMPARE(f().manager->lastClickKey()->size(), QSize(30, 30));
    QVERIFY(!f().showKeys()->isChecked() && !f().manager->showKeys());
    QVERIFY(f().manager->showKeyNotes());
}

void TestKeyboardMapEditor::turnedSchemes_data()
{
    QTest::addColumn<bool>("schemeLies");
    QTest::addColumn<bool>("viewLies");
    QTest::addColumn<QPoint>("place"); // of a key of 40 x 40
    QTest::newRow("portrait") << false << false << QPoint(100, 200);
    QTest::newRow("landscape") << true << true << QPoint(100, 200);
    QTest::newRow("portrait-in-landscape") << false << true << QPoint(200, 340 - 100 - 40);
    QTest::newRow("landscape-in-portrait") << true << false << QPoint(340 - 200 - 40, 100);
}

// By the short side of the view that belongs to the editor, whatever the view's size is now.
void TestKeyboardMapEditor::turnedSchemes()
{
    QFETCH(bool, schemeLies);
    QFETCH(bool, viewLies);
    QFETCH(QPoint, place);
    if (viewLies)
        f().view->setOrientation(ScreenOrientation::Landscape);
    f().resizeView(QSize(510, 700));
    QVERIFY(f().fill({schemeLies ? landscapeScheme(OneKey) : scheme("P", "Portrait", OneKey)}));
    f().box()->setCurrentIndex(0);
    QCOMPARE(f().view->size(), QSize(510, 700));
    QVERIFY(f().manager->lastClickKey());
    QCOMPARE(f().manager->lastClickKey()->pos(), place);
    f().manager->relayoutKeys(); // it is the key's own place
    QCOMPARE(f().manager->lastClickKey()->pos(), place);
}

void TestKeyboardMapEditor::sizesKeepTheirPlace_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {20, 27, 30, 33, 40})
        QTest::addRow("%d", size) << size;
}

// However often a scheme is applied and saved, its keys do not wander.
void TestKeyboardMapEditor::sizesKeepTheirPlace()
{
    QFETCH(int, size);
    for (int place = 0; place < 290; place += 17) {
        const QByteArray keys
            = QJsonDocument(QJsonArray{QJsonObject{{"key", "Q"}, {"x", place}, {"y", place + 5}}}).toJson();
        QJsonObject source = scheme("A", "Arena", keys);
        source["key_size"] = size;
        QVERIFY(f().fill({source}));
        f().box()->setCurrentIndex(1);
        f().box()->setCurrentIndex(0);
        QCOMPARE(f().manager->lastClickKey()->pos(), QPoint(place, place + 5));
        f().manager->relayoutKeys();
        QCOMPARE(f().manager->lastClickKey()->pos(), QPoint(place, place + 5));
    }
}

void TestKeyboardMapEditor::applyingDoesNotModify()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing", OneKey)}));
    f().box()->setCurrentIndex(0);
    QVERIFY(!f().manager->isModified());
    f().manager->setModified(true);
    f().box()->setCurrentIndex(1);
    QVERIFY(!f().manager->isModified());
}

void TestKeyboardMapEditor::brokenConfigStillSetsTheControls()
{
    for (const QJsonValue &config : {QJsonValue("no Base64!"), QJsonValue("e30="), QJsonValue(17)}) {
        QJsonObject source = scheme("A", "Arena");
        source["config"] = config;
        source["show_key"] = 0;
        QVERIFY(f().fill({source}));
        f().box()->setCurrentIndex(1);
        f().opacity()->setValue(3);
        f().size()->setValue(21);
        f().box()->setCurrentIndex(0);
        QVERIFY(f().manager->keys().isEmpty());
        QCOMPARE(f().opacity()->value(), 80);
        QCOMPARE(f().size()->value(), 30);
        QVERIFY(!f().showKeys()->isChecked() && f().showNotes()->isChecked());
        QVERIFY(f().areControlsEnabled());
    }
}

// A panel without a window that makes the keys.
void TestKeyboardMapEditor::keysNobodyMakes()
{
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    QVERIFY(disconnect(f().editor, nullptr, f().view, nullptr));
    f().box()->setCurrentIndex(0);
    QVERIFY(f().manager->keys().isEmpty());
    QCOMPARE(f().opacity()->value(), 80);
}

void TestKeyboardMapEditor::languageChange()
{
    class Shouting : public QTranslator
    {
    public:
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return QString::fromLatin1(source).toUpper();
        }
        bool isEmpty() const override { return false; }
    } shouting;
    QVERIFY(f().fill({scheme("A", "Arena", ThreeKeys)}));
    f().box()->setCurrentIndex(0);
    QCoreApplication::installTranslator(&shouting);
    QTRY_COMPARE(f().part("saveButton")->text(), QStringLiteral("SAVE"));
    QCOMPARE(f().part<QLabel>("headerLabel")->text(), QStringLiteral("KEY PRESET"));
    QCOMPARE(f().showKeys()->text(), QStringLiteral("SHOW BUTTONS WHEN ENTERING THE GAME"));
    QCOMPARE(f().box()->itemText(1), QStringLiteral("NOT USING THE SCHEME"));
    QVERIFY(f().rowButton(0, "RENAME"));
    QCOMPARE(f().box()->currentIndex(), 0);
    QCOMPARE(f().manager->keys().size(), 3);
    QCoreApplication::removeTranslator(&shouting);
    QTRY_COMPARE(f().part("saveButton")->text(), QStringLiteral("Save"));
}

// As before its end, and after.
void TestKeyboardMapEditor::withoutManager()
{
    QVERIFY(f().fill({scheme("A", "Arena", OneKey)}));
    f().box()->setCurrentIndex(0);
    delete f().manager;
    for (const char *name :
        {"saveButton", "resetButton", "addButton", "refreshButton", "clickButton", "walkingButton"})
        QTest::mouseClick(f().part(name), Qt::LeftButton);
    f().box()->setCurrentIndex(1);
    f().editor->applySchemeObject({{"config", QString::fromUtf8(OneKey)}}, true);
    f().editor->onRefreshConfigSuccess();
    KeyboardMapEditor alone(nullptr);
    QVERIFY(alone.findChild<SchemeBox *>());
}

QTEST_MAIN(TestKeyboardMapEditor)
#include "tst_keyboardmapeditor.moc"
