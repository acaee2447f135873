#include "WebTestSupport.h"

#include "web/StreamingData.h"

#include <QUrlQuery>

// The record of a device that the page streams by itself.
class TestStreamingData : public QObject
{
    Q_OBJECT

private slots:
    void readsThePagesObject();
    void convertsForTheChannel();
    void pageUrl();
};

void TestStreamingData::readsThePagesObject()
{
    const QJsonObject object
        = QJsonDocument::fromJson(R"({"deviceId":"VM1","serviceId":100001,"nodeType":"vm",
        "payMode":null,"uuid":["x"],"apiHost":"http://127.0.0.1:8180","aliasName":"Grüße 云","ttl":6143400})")
              .object();
    const web::StreamingData data = web::StreamingData::fromVariantMap(object.toVariantMap());
    QCOMPARE(data.deviceId, QStringLiteral("VM1"));
    QCOMPARE(data.serviceId, QStringLiteral("100001"));
    QCOMPARE(data.nodeType, QStringLiteral("vm"));
    QVERIFY(data.payMode.isEmpty());
    QVERIFY(data.uuid.isEmpty());
    QCOMPARE(data.apiHost, QStringLiteral("http://127.0.0.1:8180"));
    QCOMPARE(data.aliasName, QStringLiteral("Grüße 云"));
    QCOMPARE(data.ttl, QStringLiteral("6143400")); // without an exponent
}

// As the web channel does it for a slot's argument.
void TestStreamingData::convertsForTheChannel()
{
    web::registerStreamingData();
    QVariant argument = QVariantMap{{QStringLiteral("serviceId"), QStringLiteral("7")}};
    QVERIFY(argument.convert(qMetaTypeId<web::StreamingData>()));
    QCOMPARE(argument.value<web::StreamingData>().serviceId, QStringLiteral("7"));
}

void TestStreamingData::pageUrl()
{
    web::StreamingData data;
    data.deviceId = QStringLiteral("VM1");
    data.serviceId = QStringLiteral("100001");
    data.nodeType = QStringLiteral("vm");
    data.payMode = QStringLiteral("month");
    data.uuid = QStringLiteral("1-2");
    data.apiHost = QStringLiteral("http://127.0.0.1:8180/a");
    data.aliasName = QStringLiteral("A&B=C #1 云+");
    data.ttl = QStringLiteral("60");
    const QUrl url = data.pageUrl(QStringLiteral("qrc:/html/orvane/index.html#/deviceWin/"));
    QVERIFY(url.isValid());
    QCOMPARE(url.path(), QStringLiteral("/html/orvane/index.html"));
    QCOMPARE(url.toString(QUrl::FullyEncoded),
        QStringLiteral("qrc:/html/orvane/index.html#/deviceWin/?deviceId=VM1&serviceId=100001&nodeType=vm"
                       "&payMode=month&uuid=1-2&apiHost=http%3A%2F%2F127.0.0.1%3A8180%2Fa"
                       "&aliasName=A%26B%3DC%20%231%20%E4%BA%91%2B&ttl=60"));
}

QTEST_GUILESS_MAIN(TestStreamingData)
#include "tst_streamingdata.moc"
