#include "web/Context.h"

#include <QJsonArray>
#include <QTest>

// One call of the page, as the operations see it.
class TestContext : public QObject
{
    Q_OBJECT

private slots:
    void value_data();
    void value();
    void callback_data();
    void callback();
    void objectIsACopy();
};

void TestContext::value_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << "number" << QVariant(2.5);
    QTest::newRow("text") << "text" << QVariant(QStringLiteral("a \u8bbe"));
    QTest::newRow("boolean") << "boolean" << QVariant(true);
    QTest::newRow("array") << "array" << QVariant(QVariantList{1.0, QStringLiteral("two")});
    QTest::newRow("object") << "object" << QVariant(QVariantMap{{QStringLiteral("n"), 1.0}});
    QTest::newRow("null") << "null" << QVariant::fromValue(nullptr);
    QTest::newRow("empty text") << "empty" << QVariant(QString());
    QTest::newRow("missing") << "missing" << QVariant();
    QTest::newRow("other case") << "Number" << QVariant();
}

void TestContext::value()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const Context context(QJsonObject{{QStringLiteral("number"), 2.5},
        {QStringLiteral("text"), QStringLiteral("a \u8bbe")}, {QStringLiteral("boolean"), true},
        {QStringLiteral("array"), QJsonArray{1, QStringLiteral("two")}},
        {QStringLiteral("object"), QJsonObject{{QStringLiteral("n"), 1}}},
        {QStringLiteral("null"), QJsonValue::Null}, {QStringLiteral("empty"), QString()}});
    QCOMPARE(context.value(key).isValid(), value.isValid());
    QCOMPARE(context.value(key).userType(), value.userType());
    QCOMPARE(context.value(key), value);
}

void TestContext::callback_data()
{
    QTest::addColumn<QJsonValue>("member");
    QTest::addColumn<QString>("callback");
    QTest::newRow("text") << QJsonValue(QStringLiteral("window.got")) << "window.got";
    QTest::newRow("empty") << QJsonValue(QString()) << "";
    QTest::newRow("number") << QJsonValue(7) << "";
    QTest::newRow("boolean") << QJsonValue(true) << "";
    QTest::newRow("array") << QJsonValue(QJsonArray{QStringLiteral("got")}) << "";
    QTest::newRow("object") << QJsonValue(QJsonObject{}) << "";
    QTest::newRow("null") << QJsonValue() << "";
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << "";
}

void TestContext::callback()
{
    QFETCH(QJsonValue, member);
    const Context context(QJsonObject{{QStringLiteral("callback"), member}});
    QTEST(context.callback(), "callback");
}

void TestContext::objectIsACopy()
{
    const QJsonObject call{{QStringLiteral("jsApiName"), QStringLiteral("getAppInfo")},
        {QStringLiteral("callback"), QStringLiteral("got")}};
    const Context context(call);
    QJsonObject object = context.object();
    QCOMPARE(object, call);
    object.insert(QStringLiteral("code"), 0);
    QCOMPARE(context.object(), call);
    QCOMPARE(Context().object(), QJsonObject());
}

QTEST_GUILESS_MAIN(TestContext)
#include "tst_context.moc"
