#include "net/ResponseData.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

// Reading the envelope of the service's answers.
class TestResponseData : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void fromJson_data();
    void fromJson();
    void logText();
};

void TestResponseData::defaults()
{
    const ResponseData response;
    QCOMPARE(response.code, 0);
    QVERIFY(response.msg.isEmpty());
    QVERIFY(response.data.isNull());
}

void TestResponseData::fromJson_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("msg");
    QTest::addColumn<QJsonValue>("data");
    const QJsonValue null(QJsonValue::Null);

    QTest::newRow("all three") << R"({"code": 200, "msg": "ok", "data": {"a": [1]}})" << 200 << "ok"
                               << QJsonValue(QJsonObject{{"a", QJsonArray{1}}});
    QTest::newRow("only the code") << R"({"code": 200})" << 200 << "" << null;
    QTest::newRow("msg is a number") << R"({"code": 200, "msg": 5})" << 200 << "" << null;
    QTest::newRow("msg is null") << R"({"msg": null})" << 0 << "" << null;
    QTest::newRow("msg beyond ASCII")
        << QStringLiteral("{\"msg\": \"\u8bbe\u5907\"}") << 0 << QStringLiteral("\u8bbe\u5907") << null;
    QTest::newRow("data is a string") << R"({"data": "x"})" << 0 << "" << QJsonValue("x");
    QTest::newRow("data is an array") << R"({"data": []})" << 0 << "" << QJsonValue(QJsonArray());
    QTest::newRow("data is false") << R"({"data": false})" << 0 << "" << QJsonValue(false);
    QTest::newRow("data is a number") << R"({"data": 1.5})" << 0 << "" << QJsonValue(1.5);
    QTest::newRow("data is null") << R"({"data": null})" << 0 << "" << null;
    QTest::newRow("code is negative") << R"({"code": -1})" << -1 << "" << null;
    QTest::newRow("code is a whole double") << R"({"code": 200.0})" << 200 << "" << null;
    QTest::newRow("code has an exponent") << R"({"code": 2e2})" << 200 << "" << null;
    QTest::newRow("code has a fraction") << R"({"code": 200.5})" << 0 << "" << null;
    QTest::newRow("code is a string") << R"({"code": "200"})" << 0 << "" << null;
    QTest::newRow("code is null") << R"({"code": null})" << 0 << "" << null;
    QTest::newRow("largest code") << R"({"code": 2147483647})" << 2147483647 << "" << null;
    QTest::newRow("code beyond 32 bits") << R"({"code": 2147483648})" << 0 << "" << null;
    QTest::newRow("code beyond 64 bits") << R"({"code": 1e300})" << 0 << "" << null;
    QTest::newRow("an array") << R"([{"code": 200}])" << 0 << "" << null;
    QTest::newRow("a page") << "<html>code 200</html>" << 0 << "" << null;
    QTest::newRow("nothing") << "" << 0 << "" << null;
    QTest::newRow("cut off") << R"({"code": 200, "msg": "o)" << 0 << "" << null;
}

void TestResponseData::fromJson()
{
    QFETCH(QString, text);
    const ResponseData response = ResponseData::fromJson(text);
    QTEST(response.code, "code");
    QTEST(response.msg, "msg");
    QTEST(response.data, "data");
}

void TestResponseData::logText()
{
    QCOMPARE(
        ResponseData::logText(QJsonObject{{"a", QJsonArray{1, "x"}}}), QStringLiteral(R"({"a":[1,"x"]})"));
    QCOMPARE(ResponseData::logText(QJsonArray{1, 2}), QStringLiteral("[1,2]"));
    QCOMPARE(ResponseData::logText("gone"), QStringLiteral("gone"));
    QCOMPARE(ResponseData::logText(QJsonValue::Null), QString());
}

QTEST_GUILESS_MAIN(TestResponseData)
#include "tst_responsedata.moc"
