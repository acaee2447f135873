// What the key-mapping editor and its dialogs look like. With ORVANE_PICTURES set to a folder, a picture of
// each state is left there; the names carry QT_SCALE_FACTOR.

#include "EditorFixture.h"

#include "keymap/KeyMapGuide.h"
#include "keymap/ShareConfigDlg.h"
#include "widgets/OvMaskTipsDialog.h"

#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QTranslator>

using namespace keymaptest;

namespace {

// Texts as long as they become in languages that need much room.
class LongTexts : public QTranslator
{
public:
    explicit LongTexts(const QString &language)
        : m_texts(language == "de" ? german()
                : language == "ru" ? russian()
                : language == "th" ? thai()
                                   : Texts())
    { }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return m_texts.value(QString::fromLatin1(source));
    }
    bool isEmpty() const override { return false; }

private:
    using Texts = QHash<QString, QString>;
    static Texts german()
    {
        return {{"Key Preset", "Tastenvorlage"}, {"Add scheme", "Schema hinzufügen"},
            {"Refresh", "Aktualisieren"}, {"Not using the scheme", "Kein Schema verwenden"},
            {"Please Select Auxiliary Key", "Bitte Hilfstaste auswählen"}, {"Click", "Klick"},
            {"keyboard walking", "Gehen per Tastatur"}, {"crosshair", "Fadenkreuz"},
            {"Key prompts", "Tastenhinweise"}, {"Button transparency", "Tastentransparenz"},
            {"Key size", "Tastengröße"},
            {"Show buttons when entering the game", "Tasten beim Start des Spiels anzeigen"},
            {"Show notes when entering the game", "Notizen beim Start des Spiels anzeigen"},
            {"Reset", "Zurücksetzen"}, {"Save", "Speichern"},
            {"Upload keyboard layout", "Tastaturbelegung hochladen"}, {"Hints", "Hinweise"},
            {"Enter your scheme sharing code", "Geben Sie den Freigabecode des Schemas ein"},
            {"Close", "Schließen"}, {"Confirm", "Bestätigen"}};
    }
    static Texts russian()
    {
        return {{"Key Preset", "Предустановка клавиш"}, {"Add scheme", "Добавить схему"},
            {"Refresh", "Обновить"}, {"Not using the scheme", "Не использовать схему"},
            {"Please Select Auxiliary Key", "Выберите вспомогательную клавишу"}, {"Click", "Нажатие"},
            {"keyboard walking", "Ходьба с клавиатуры"}, {"crosshair", "Перекрестие"},
            {"Key prompts", "Подсказки клавиш"}, {"Button transparency", "Прозрачность кнопок"},
            {"Key size", "Размер клавиш"},
            {"Show buttons when entering the game", "Показывать кнопки при входе в игру"},
            {"Show notes when entering the game", "Показывать заметки при входе в игру"},
            {"Reset", "Сбросить"}, {"Save", "Сохранить"},
            {"Upload keyboard layout", "Загрузить раскладку клавиатуры"}, {"Hints", "Подсказки"},
            {"Enter your scheme sharing code", "Введите код общего доступа к вашей схеме"},
            {"Close", "Закрыть"}, {"Confirm", "Подтвердить"}};
    }
    static Texts thai()
    {
        return {{"Key Preset", "ชุดปุ่มที่ตั้งไว้"}, {"Add scheme", "เพิ่มรูปแบบ"}, {"Refresh", "รีเฟรช"},
            {"Not using the scheme", "ไม่ใช้รูปแบบ"}, {"Please Select Auxiliary Key", "โปรดเลือกปุ่มเสริม"},
            {"Click", "คลิก"}, {"keyboard walking", "เดินด้วยแป้นพิมพ์"}, {"crosshair", "เป้าเล็ง"},
            {"Key prompts", "คำแนะนำปุ่ม"}, {"Button transparency", "ความโปร่งใสของปุ่ม"}, {"Key size", "ขนาดปุ่ม"},
            {"Show buttons when entering the game", "แสดงปุ่มเมื่อเข้าสู่เกม"},
            {"Show notes when entering the game", "แสดงหมายเหตุเมื่อเข้าสู่เกม"}, {"Reset", "รีเซ็ต"},
            {"Save", "บันทึก"}, {"Upload keyboard layout", "อัปโหลดรูปแบบแป้นพิมพ์"}, {"Hints", "คำแนะนำ"},
            {"Enter your scheme sharing code", "ป้อนรหัสแชร์รูปแบบของคุณ"}, {"Close", "ปิด"}, {"Confirm", "ยืนยัน"}};
    }

    Texts m_texts;
};

// Something to look at behind the keys.
void showPicture(VideoView *view)
{
    QPalette palette = view->palette();
    palette.setColor(QPalette::Window, QColor(0x5A, 0x7D, 0x9A));
    view->setPalette(palette);
}

} // namespace

class TestEditorPictures : public QObject
{
    Q_OBJECT

private slots:
    void panel_data();
    void panel();
    void list();
    void sharingCode();
    void shareDialog_data();
    void shareDialog();
    void guide();

private:
    static void save(QWidget *widget, const QString &name, bool ofScreen = false);
};

void TestEditorPictures::save(QWidget *widget, const QString &name, bool ofScreen)
{
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (folder.isEmpty())
        return;
    const QRect area = widget->frameGeometry();
    const QPixmap picture = ofScreen
        ? widget->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        : widget->grab();
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    QVERIFY(picture.save(QDir(folder).filePath(QStringLiteral("%1@%2.png").arg(name, scale))));
}

void TestEditorPictures::panel_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isLandscape");
    QTest::addColumn<bool>("isEnabled");
    for (const char *language : {"en", "de", "ru", "th"}) {
        QTest::addRow("portrait-%s", language) << QString::fromLatin1(language) << false << true;
        QTest::addRow("landscape-%s", language) << QString::fromLatin1(language) << true << true;
    }
    QTest::newRow("portrait-disabled") << "en" << false << false;
    QTest::newRow("landscape-disabled") << "en" << true << false;
}

// Every text is whole and within its widget, and every widget within the panel or within what scrolls.
void TestEditorPictures::panel()
{
    QFETCH(QString, language);
    QFETCH(bool, isLandscape);
    QFETCH(bool, isEnabled);
    LongTexts texts(language);
    QCoreApplication::installTranslator(&texts);
    EditorFixture f;
    f.manager->setRecording(true);
    showPicture(f.view);
    if (isLandscape) {
        f.view->setOrientation(ScreenOrientation::Landscape);
        f.window.setFixedContentSize(QSize(900, 380));
        QCOMPARE(f.editor->size(), QSize(300, 340));
    }
    QVERIFY(f.fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing")}));
    if (isEnabled)
        f.box()->setCurrentIndex(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(&f.window, QStringLiteral("panel-") + QString::fromLatin1(QTest::currentDataTag()));

    auto *controls = f.editor->findChild<KeyMapControls *>();
    for (const QLabel *label : controls->findChildren<QLabel *>()) {
        if (label->parent() == controls->widget())
            QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
    }
    for (const WrappingCheckBox *box : {f.showKeys(), f.showNotes()})
        QVERIFY2(box->height() >= box->heightForWidth(box->width()), qPrintable(box->text()));
    QVERIFY(controls->widget()->width() <= controls->viewport()->width());
    if (!isLandscape || language == "en")
        QVERIFY(!controls->verticalScrollBar()->isVisible());
    for (const char *name : {"headerLabel", "addButton", "refreshButton", "resetButton", "saveButton"}) {
        const auto *widget = f.part<QWidget>(name);
        QVERIFY2(f.editor->rect().contains(widget->geometry()), name);
        QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), name);
    }
    for (const char *name : {"resetButton", "saveButton"})
        QVERIFY(QFontMetrics(f.part(name)->font()).horizontalAdvance(f.part(name)->text()) <= 110);
    QCoreApplication::removeTranslator(&texts);
}

void TestEditorPictures::list()
{
    EditorFixture f;
    f.manager->setRecording(true);
    showPicture(f.view);
    QVERIFY(f.fill({scheme("A", "Arena", ThreeKeys), scheme("B", "Racing with friends"),
        scheme("C", "A scheme whose name is too long for the row"), scheme("D", "Four")}));
    f.box()->setCurrentIndex(0);
    f.box()->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(f.box()->listView()->window()));
    QTest::mouseClick(f.rowButton(1, "Rename"), Qt::LeftButton);
    QVERIFY(f.box()->editableItem(1)->isWritable());
    // The display is behind.
    const QPoint edit = f.box()->editableItem(1)->mapToGlobal(QPoint(16, 16));
    const auto shown = [&f, edit] {
        const QPixmap pixel = f.window.screen()->grabWindow(0, edit.x(), edit.y(), 1, 1);
        return pixel.toImage().pixelColor(0, 0).lightness() > 100;
    };
    QTRY_VERIFY(shown());
    save(&f.window, QStringLiteral("list"), true);
    for (int row = 0; row < 4; ++row)
        QVERIFY(f.box()->editableItem(row)->rect().contains(f.rowButton(row, "Delete")->geometry()));
}

void TestEditorPictures::sharingCode()
{
    EditorFixture f;
    showPicture(f.view);
    QVERIFY(f.fill({scheme("K7Q2M9XD4T", "Arena", ThreeKeys)}));
    f.box()->setCurrentIndex(0);
    f.rowButton(0, "Share")->click();
    auto *dialog = f.window.findChild<OvMaskTipsDialog *>();
    QVERIFY(dialog);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(&f.window, QStringLiteral("sharing-code"));
    dialog->close();
}

void TestEditorPictures::shareDialog_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "ru", "th"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestEditorPictures::shareDialog()
{
    QFETCH(QString, language);
    LongTexts texts(language);
    QCoreApplication::installTranslator(&texts);
    EditorFixture f;
    auto *dialog = new ShareConfigDlg(&f.window);
    dialog->openAt(f.editor);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    save(dialog, QStringLiteral("share-") + language);
    for (const char *name : {"titleLabel", "hintLabel", "promptLabel"}) {
        const auto *label = dialog->findChild<QLabel *>(QString::fromLatin1(name));
        QVERIFY2(dialog->rect().contains(label->geometry()), name);
        QVERIFY2(label->wordWrap() ? label->height() >= label->heightForWidth(label->width())
                                   : label->width() >= label->sizeHint().width(),
            name);
    }
    dialog->close();
    QCoreApplication::removeTranslator(&texts);
}

void TestEditorPictures::guide()
{
    EditorFixture f;
    const QByteArray drawing = R"(<svg xmlns="http://www.w3.org/2000/svg" width="480" height="270">)"
                               R"(<rect width="480" height="270" rx="8" fill="#2C2D42"/>)"
                               R"(<circle cx="240" cy="135" r="70" fill="#07CCFB"/></svg>)";
    const QJsonObject page{{"title", "Play with keyboard and mouse"},
        {"text",
            "A game on the device waits for fingers. Key mapping puts keys over its picture: whatever you do "
            "with keyboard and mouse, the device feels as fingers at those places.\nChoose a scheme in the "
            "list at the top of the panel. \"Add scheme\" begins an empty one."},
        {"picture", "data:image/svg+xml;base64," + QString::fromLatin1(drawing.toBase64())}};
    f.server().setAnswer(
        QJsonDocument(QJsonObject{{"code", 200},
                          {"data", QJsonObject{{"title", "Key mapping"}, {"pages", QJsonArray{page, page}}}}})
            .toJson());
    KeyMapGuide guide;
    guide.setAttribute(Qt::WA_DeleteOnClose, false);
    guide.show();
    QVERIFY(QTest::qWaitForWindowExposed(&guide));
    guide.load();
    save(&guide, QStringLiteral("guide-loading"));
    QTRY_COMPARE(guide.currentPage(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    save(&guide, QStringLiteral("guide"));
    const auto *text = guide.findChild<QLabel *>(QStringLiteral("pageText"));
    QVERIFY(text->height() >= text->heightForWidth(text->width()));
}

int main(int argc, char **argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    TestEditorPictures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_editorpictures.moc"
