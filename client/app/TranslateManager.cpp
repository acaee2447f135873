#include "app/TranslateManager.h"

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

namespace {

// The front end's language codes and the translation files. The row for Hindi is as the front end has it: a
// full locale name, and no file.
const QHash<QString, QString> &translationFiles()
{
    static const QHash<QString, QString> files{
        {QStringLiteral("cn"), QStringLiteral("zh_CN.qm")},
        {QStringLiteral("cht"), QStringLiteral("zh_TW.qm")},
        {QStringLiteral("en"), QStringLiteral("en_US.qm")},
        {QStringLiteral("jp"), QStringLiteral("ja_JP.qm")},
        {QStringLiteral("th"), QStringLiteral("th_TH.qm")},
        {QStringLiteral("ko"), QStringLiteral("ko_KR.qm")},
        {QStringLiteral("pt"), QStringLiteral("pt_PT.qm")},
        {QStringLiteral("es"), QStringLiteral("es_ES.qm")},
        {QStringLiteral("ind"), QStringLiteral("id_ID.qm")},
        {QStringLiteral("vi"), QStringLiteral("vi_VN.qm")},
        {QStringLiteral("tr"), QStringLiteral("tr_TR.qm")},
        {QStringLiteral("hi_IN"), QString()},
        {QStringLiteral("ar"), QStringLiteral("ar_SA.qm")},
        {QStringLiteral("it"), QStringLiteral("it_IT.qm")},
        {QStringLiteral("pl"), QStringLiteral("pl_PL.qm")},
        {QStringLiteral("de"), QStringLiteral("de_DE.qm")},
        {QStringLiteral("fr"), QStringLiteral("fr_FR.qm")},
        {QStringLiteral("ru"), QStringLiteral("ru_RU.qm")},
        {QStringLiteral("bn"), QStringLiteral("bn_BD.qm")},
    };
    return files;
}

} // namespace

TranslateManager::TranslateManager() = default;
TranslateManager::~TranslateManager() = default;

TranslateManager *TranslateManager::instance()
{
    static auto *const manager = new TranslateManager;
    return manager;
}

void TranslateManager::setTranslationDir(const QString &dir)
{
    m_translationDir = dir;
}

QString TranslateManager::translationDir() const
{
    if (!m_translationDir.isEmpty())
        return m_translationDir;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/res/translations/orvane");
}

void TranslateManager::onLanguegeChanged(const QString &locale)
{
    const QString fileName = translationFiles().value(locale);
    if (!m_translator)
        m_translator = new QTranslator(this);
    // Exactly that file: empty, not null, or the toolkit would try shortened names and its own suffix as
    // well.
    const QString none = QLatin1String("");
    if (m_translator->load(fileName, translationDir(), none, none))
        QCoreApplication::installTranslator(m_translator);
}
