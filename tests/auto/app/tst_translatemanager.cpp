#include "QmFile.h"

#include "app/TranslateManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

QString shownText()
{
    return QCoreApplication::translate("Dialog", "Confirm");
}

} // namespace

// Which translation is loaded for which language code.
class TestTranslateManager : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void initTestCase();
    void metaObject();
    void defaultDirectory();
    void knownCodes_data();
    void knownCodes();
    void noTranslation_data();
    void noTranslation();
    void missingFile();
    void exactlyTheNamedFile();
    void oneTranslator();

private:
    QTemporaryDir m_dir;
    int m_languageChanges = 0;
};

bool TestTranslateManager::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
        ++m_languageChanges;
    return QObject::eventFilter(watched, event);
}

// Every file says its own name.
void TestTranslateManager::initTestCase()
{
    const QStringList files{"zh_CN.qm", "zh_TW.qm", "en_US.qm", "ja_JP.qm", "th_TH.qm", "ko_KR.qm",
        "pt_PT.qm", "es_ES.qm", "id_ID.qm", "vi_VN.qm", "tr_TR.qm", "ar_SA.qm", "it_IT.qm", "pl_PL.qm",
        "de_DE.qm", "fr_FR.qm", "ru_RU.qm", "bn_BD.qm", "hi_IN.qm"};
    for (const QString &file : files)
        QVERIFY(QmFile::write(m_dir.filePath(file), "Dialog", "Confirm", file));
    QCoreApplication::instance()->installEventFilter(this);
}

void TestTranslateManager::metaObject()
{
    const QMetaObject &meta = TranslateManager::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("onLanguegeChanged(QString)"));
    QCOMPARE(TranslateManager::instance(), TranslateManager::instance());
    QCOMPARE(TranslateManager::instance()->parent(), nullptr);
    QVERIFY(TranslateManager::instance()->findChildren<QTranslator *>().isEmpty());
}

void TestTranslateManager::defaultDirectory()
{
    auto *manager = TranslateManager::instance();
    QCOMPARE(manager->translationDir(), QCoreApplication::applicationDirPath() + "/res/translations/orvane");
    manager->setTranslationDir(m_dir.path());
    QCOMPARE(manager->translationDir(), m_dir.path());
}

void TestTranslateManager::knownCodes_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("cn") << "zh_CN.qm";
    QTest::newRow("cht") << "zh_TW.qm";
    QTest::newRow("en") << "en_US.qm";
    QTest::newRow("jp") << "ja_JP.qm";
    QTest::newRow("th") << "th_TH.qm";
    QTest::newRow("ko") << "ko_KR.qm";
    QTest::newRow("pt") << "pt_PT.qm";
    QTest::newRow("es") << "es_ES.qm";
    QTest::newRow("ind") << "id_ID.qm";
    QTest::newRow("vi") << "vi_VN.qm";
    QTest::newRow("tr") << "tr_TR.qm";
    QTest::newRow("ar") << "ar_SA.qm";
    QTest::newRow("it") << "it_IT.qm";
    QTest::newRow("pl") << "pl_PL.qm";
    QTest::newRow("de") << "de_DE.qm";
    QTest::newRow("fr") << "fr_FR.qm";
    QTest::newRow("ru") << "ru_RU.qm";
    QTest::newRow("bn") << "bn_BD.qm";
}

void TestTranslateManager::knownCodes()
{
    m_languageChanges = 0;
    TranslateManager::instance()->onLanguegeChanged(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(shownText(), "file");
    QVERIFY(m_languageChanges > 0);
}

void TestTranslateManager::noTranslation_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("Hindi") << "hi_IN";
    QTest::newRow("short code of Hindi") << "hi";
    QTest::newRow("full locale name") << "zh_CN";
    QTest::newRow("upper case") << "EN";
    QTest::newRow("unknown") << "xx";
    QTest::newRow("path") << "../zh_CN";
    QTest::newRow("empty") << "";
}

void TestTranslateManager::noTranslation()
{
    QFETCH(QString, code);
    auto *manager = TranslateManager::instance();
    manager->onLanguegeChanged(QStringLiteral("cn"));
    QCOMPARE(shownText(), QStringLiteral("zh_CN.qm"));
    manager->onLanguegeChanged(code);
    QCOMPARE(shownText(), QStringLiteral("Confirm"));
}

void TestTranslateManager::missingFile()
{
    auto *manager = TranslateManager::instance();
    manager->onLanguegeChanged(QStringLiteral("cn"));
    QTemporaryDir empty;
    manager->setTranslationDir(empty.path());
    manager->onLanguegeChanged(QStringLiteral("ko"));
    QCOMPARE(shownText(), QStringLiteral("Confirm"));
    manager->setTranslationDir(m_dir.path());
    manager->onLanguegeChanged(QStringLiteral("ko"));
    QCOMPARE(shownText(), QStringLiteral("ko_KR.qm"));
}

// No shortened names and no second suffix.
void TestTranslateManager::exactlyTheNamedFile()
{
    QTemporaryDir other;
    for (const char *file : {"zh.qm", "zh", "zh_CN", "zh_CN.qm.qm", ".qm"})
        QVERIFY(QmFile::write(other.filePath(QLatin1String(file)), "Dialog", "Confirm", QLatin1String(file)));
    auto *manager = TranslateManager::instance();
    manager->setTranslationDir(other.path());
    for (const char *code : {"cn", "hi_IN", "xx"}) {
        manager->onLanguegeChanged(QLatin1String(code));
        QCOMPARE(shownText(), QStringLiteral("Confirm"));
    }
    manager->setTranslationDir(m_dir.path());
}

void TestTranslateManager::oneTranslator()
{
    auto *manager = TranslateManager::instance();
    manager->onLanguegeChanged(QStringLiteral("de"));
    const auto translators = manager->findChildren<QTranslator *>();
    QCOMPARE(translators.size(), 1);
    QVERIFY(QmFile::write(
        m_dir.filePath(QStringLiteral("de_DE.qm")), "Dialog", "Confirm", QStringLiteral("again")));
    m_languageChanges = 0;
    manager->onLanguegeChanged(QStringLiteral("de"));
    QCOMPARE(shownText(), QStringLiteral("again"));
    QVERIFY(m_languageChanges > 0);
    QCOMPARE(manager->findChildren<QTranslator *>(), translators);
}

QTEST_GUILESS_MAIN(TestTranslateManager)
#include "tst_translatemanager.moc"
