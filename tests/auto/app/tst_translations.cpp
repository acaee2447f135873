#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Text
{
    QByteArray context;
    QByteArray source;
};

// The texts of a translation source, and whether each has its translation.
QVector<Text> textsOf(const QString &fileName, int *unfinished = nullptr)
{
    QVector<Text> texts;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QByteArray context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1String("source"))
            texts << Text{context, xml.readElementText().toUtf8()};
        else if (xml.name() == QLatin1String("translation") && unfinished
            && xml.attributes().hasAttribute(QLatin1String("type")))
            ++*unfinished;
    }
    return texts;
}

// What the program fills in (%1) or matches files with (*.png), in order.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%(?:\\d+|n)|\\*\\.\\w+"));
    QStringList found;
    auto match = pattern.globalMatch(text);
    while (match.hasNext())
        found << match.next().captured();
    found.sort();
    return found;
}

const QString sources = QStringLiteral(TRANSLATION_SOURCES);
const QString compiled = QStringLiteral(COMPILED_TRANSLATIONS);

} // namespace

// The compiled translations that the client is delivered with.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void sourcesHoldEveryText();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
};

// The code is searched anew: a text that was added without its translations shows up as unfinished.
void TestTranslations::sourcesHoldEveryText()
{
    const QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("en_US.ts"));
    QVERIFY(QFile::copy(sources + QStringLiteral("/en_US.ts"), copy));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(CLIENT_SOURCES));
    lupdate.start(QStringLiteral(LUPDATE),
        {QStringLiteral("-silent"), QStringLiteral("-no-obsolete"), QStringLiteral("-locations"),
            QStringLiteral("none"), QStringLiteral("-extensions"), QStringLiteral("cpp,h"),
            QStringLiteral("."), QStringLiteral("-ts"), copy});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    int unfinished = 0;
    const int inCode = textsOf(copy, &unfinished).size();
    QVERIFY(inCode > 0);
    QCOMPARE(unfinished, 0);
    QCOMPARE(textsOf(sources + QStringLiteral("/en_US.ts")).size(), inCode);
}

void TestTranslations::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"zh_CN", "zh_TW", "en_US", "ja_JP", "th_TH", "ko_KR", "pt_PT", "es_ES",
             "id_ID", "vi_VN", "tr_TR", "ar_SA", "it_IT", "pl_PL", "de_DE", "fr_FR", "ru_RU", "bn_BD"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(language + QStringLiteral(".qm"), compiled, QString(), QString()));
    const QVector<Text> texts = textsOf(sources + QStringLiteral("/en_US.ts"));
    QVERIFY(!texts.isEmpty());
    int asInEnglish = 0;
    for (const Text &text : texts) {
        const QString translation = translator.translate(text.context.constData(), text.source.constData());
        QVERIFY2(!translation.trimmed().isEmpty(), text.source.constData());
        QVERIFY2(placeholders(translation) == placeholders(QString::fromUtf8(text.source)),
            text.source.constData());
        asInEnglish += translation == QString::fromUtf8(text.source);
    }
    // A few words are the same in several languages, a whole text is not.
    if (language != QLatin1String("en_US"))
        QVERIFY2(asInEnglish * 5 < texts.size(), qPrintable(QString::number(asInEnglish)));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
