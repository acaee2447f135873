// What the group's window looks like. With ORVANE_PICTURES set to a folder, a picture of each state is left
// there; the names carry QT_SCALE_FACTOR.

#include "GroupWindowFixture.h"

#include "app/TranslateManager.h"
#include "group/FunctionBar.h"
#include "group/FunctionButton.h"
#include "group/GroupDialogBox.h"
#include "group/SaveGroupDialog.h"

#include <QDir>
#include <QFontMetrics>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

using namespace grouptest;

class TestGroupPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void windows_data();
    void windows();
    void secondPage();
    void landscape();
    void tileMenu();
    void dialogs();
    void textsFit();

private:
    void checkTexts(const QString &language) const;
    // A window with a master and so many tiles, each with a picture.
    bool openWith(int tiles);
    void save(const QString &name) const;

    std::unique_ptr<Fixture> m_fixture;
};

void TestGroupPictures::initTestCase()
{
    m_fixture = std::make_unique<Fixture>();
    TranslateManager::instance()->setTranslationDir(QStringLiteral(COMPILED_TRANSLATIONS));
}

void TestGroupPictures::init()
{
    m_fixture->makeWindow();
}

void TestGroupPictures::cleanup()
{
    m_fixture->endWindow();
}

void TestGroupPictures::cleanupTestCase()
{
    TranslateManager::instance()->onLanguegeChanged(QStringLiteral("hi_IN")); // the source texts
}

void TestGroupPictures::save(const QString &name) const
{
    const QString folder = qEnvironmentVariable("ORVANE_PICTURES");
    if (folder.isEmpty())
        return;
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    QVERIFY(m_fixture->window->grab().save(
        QDir(folder).filePath(QStringLiteral("group-%1@%2.png").arg(name, scale))));
}

bool TestGroupPictures::openWith(int tiles)
{
    QStringList ids;
    for (int i = 0; i <= tiles; ++i)
        ids.append(QString::number(100'001 + i));
    m_fixture->window->setGroupName(QStringLiteral("Temporary grouping"));
    if (!m_fixture->open(ids))
        return false;
    showDevicePicture(*m_fixture->window->mainController()->videoView(), QColor(0xE8, 0xF1, 0xFF));
    for (int i = 0; i < tiles; ++i)
        showDevicePicture(*m_fixture->tile(i)->videoView(), QColor::fromHsv(i * 37 % 360, 40, 250));
    QCoreApplication::processEvents();
    return true;
}

void TestGroupPictures::windows_data()
{
    QTest::addColumn<int>("tiles");
    for (const int tiles : {0, 1, 4, 12, 49})
        QTest::newRow(QByteArray::number(tiles).constData()) << tiles;
}

// Nothing of a panel lies outside it or under another.
void TestGroupPictures::windows()
{
    QFETCH(int, tiles);
    QVERIFY(openWith(tiles));
    save(QString::number(tiles));
    const QWidget *master = m_fixture->window->mainController();
    for (const QWidget *part : {static_cast<QWidget *>(m_fixture->child<FunctionBar>()),
             static_cast<QWidget *>(m_fixture->window->mainController()->videoView())})
        QVERIFY(master->rect().contains(QRect(part->mapTo(master, QPoint(0, 0)), part->size())));
    if (tiles > 0)
        QVERIFY(m_fixture->tile(0)->isVisible());
}

void TestGroupPictures::secondPage()
{
    QVERIFY(openWith(52));
    m_fixture->window->subControlPage()->onNextPageBtnClicked();
    QCOMPARE(m_fixture->window->subControlPage()->currentPage(), 2);
    QTRY_COMPARE(m_fixture->tile(49)->geometry().topLeft(), QPoint(15, 24)); // where the first page begins
    save(QStringLiteral("second-page"));
    QVERIFY(!m_fixture->tile(48)->isVisible());
    QVERIFY(m_fixture->tile(51)->isVisible());
}

void TestGroupPictures::landscape()
{
    QVERIFY(openWith(4));
    VideoView *view = m_fixture->window->mainController()->videoView();
    view->onScreenRotation(1);
    QTRY_COMPARE(view->size(), QSize(347, 197));
    save(QStringLiteral("landscape"));
}

void TestGroupPictures::tileMenu()
{
    QVERIFY(openWith(4));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(m_fixture->tile(1), &enter);
    save(QStringLiteral("menu"));
}

void TestGroupPictures::dialogs()
{
    QVERIFY(openWith(4));
    m_fixture->window->onSaveGroupBtnClicked();
    save(QStringLiteral("save"));
    auto *dialog = m_fixture->window->findChild<SaveGroupDialog *>();
    dialog->onConfirmBtnClicked();
    save(QStringLiteral("save-refused"));
    dialog->onCancelBtnClicked();
    emit m_fixture->tile(0)->removeController(false);
    save(QStringLiteral("remove"));
    const auto boxes = m_fixture->window->findChildren<GroupDialogBox *>();
    for (GroupDialogBox *box : boxes) {
        if (box->isVisible())
            QTest::keyClick(box, Qt::Key_Escape);
    }
    m_fixture->window->onDeviceExpireNotice(QStringLiteral("100001"), QStringLiteral("Aurora"), 30);
    save(QStringLiteral("notice"));
    m_fixture->questions().first()->reject();
    m_fixture->window->onDeviceExpired(QStringLiteral("100001"), QStringLiteral("Aurora"));
    save(QStringLiteral("expired"));
}

// In every language that has texts of its own.
void TestGroupPictures::textsFit()
{
    QVERIFY(openWith(2));
    m_fixture->window->onSaveGroupBtnClicked();
    auto *dialog = m_fixture->window->findChild<SaveGroupDialog *>();
    const QString english = QStringLiteral("Group name");
    for (const char *code : {"en", "cn", "cht", "jp", "th", "ko", "pt", "es", "ind", "vi", "tr", "ar", "it",
             "pl", "de", "fr", "ru", "bn"}) {
        const QString language = QLatin1String(code);
        TranslateManager::instance()->onLanguegeChanged(language);
        dialog->onConfirmBtnClicked(); // the refusal in that language
        QCoreApplication::processEvents();
        const auto labels = dialog->findChildren<QLabel *>();
        const bool isEnglish = std::any_of(
            labels.cbegin(), labels.cend(), [&](const QLabel *label) { return label->text() == english; });
        QCOMPARE(isEnglish, language == QLatin1String("en"));
        checkTexts(language);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestGroupPictures::checkTexts(const QString &language) const
{
    save(QStringLiteral("texts-") + language);
    const auto *bar = m_fixture->child<FunctionBar>();
    for (const FunctionButton *button : bar->buttons()) {
        QVERIFY2(bar->rect().contains(button->geometry()), qPrintable(button->text()));
        QVERIFY(button->textPixels() == 0 || button->width() >= button->widthFor(button->textPixels()));
    }
    const auto *tool = m_fixture->child<QToolButton>("saveGroupButton");
    QVERIFY2(QFontMetrics(tool->font()).horizontalAdvance(tool->text()) <= tool->width(),
        qPrintable(tool->text()));
    const auto *dialog = m_fixture->window->findChild<SaveGroupDialog *>();
    const auto labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QRect needed
            = QFontMetrics(label->font())
                  .boundingRect(QRect(0, 0, label->width(), 0), Qt::TextWordWrap, label->text());
        QVERIFY2(needed.height() <= label->height() && needed.width() <= label->width(),
            qPrintable(label->text()));
    }
}

QTEST_MAIN(TestGroupPictures)
#include "tst_grouppictures.moc"
