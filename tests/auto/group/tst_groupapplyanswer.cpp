#include "group/GroupApplyAnswer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

group::GroupDevices twoDevices()
{
    group::GroupDevice a;
    a.serviceId = QStringLiteral("a");
    a.aliasName = QStringLiteral("Aurora");
    group::GroupDevice b;
    b.serviceId = QStringLiteral("b");
    b.aliasName = QStringLiteral("Borealis");
    return {{a.serviceId, a}, {b.serviceId, b}};
}

} // namespace

// What a group's devices get of the service's answer.
class TestGroupApplyAnswer : public QObject
{
    Q_OBJECT

private slots:
    void connections();
    void missingEntry();
    void missingRecord();
    void wrongTypes_data();
    void wrongTypes();
    void streamingData();
};

// The first of each list counts, and the order is that of the ids.
void TestGroupApplyAnswer::connections()
{
    const QJsonValue data = json(R"({
        "a": {"instanceCode": "VMa", "userId": 17, "sessionId": "s-a", "controlList": [
            {"controlInfoList": [{"controlIp": "10.0.0.1", "controlPort": 8181},
                                 {"controlIp": "10.0.0.2", "controlPort": 8182}]},
            {"controlInfoList": [{"controlIp": "10.0.0.3", "controlPort": 8183}]}]},
        "b": {"instanceCode": "VMb", "userId": 18, "sessionId": "s-b", "controlList": [
            {"controlInfoList": [{"controlIp": "gateway.local", "controlPort": 9000}]}]}})");
    const QList<group::GroupDevice> devices
        = group::connectedDevices({QStringLiteral("b"), QStringLiteral("a")}, twoDevices(), data);
    QCOMPARE(devices.size(), 2);
    QCOMPARE(devices[0].serviceId, QStringLiteral("b"));
    QCOMPARE(devices[0].aliasName, QStringLiteral("Borealis"));
    QCOMPARE(devices[0].instanceCode, QStringLiteral("VMb"));
    QCOMPARE(devices[0].userId, 18);
    QCOMPARE(devices[0].sessionId, QStringLiteral("s-b"));
    QCOMPARE(devices[0].controlIp, QStringLiteral("gateway.local"));
    QCOMPARE(devices[0].controlPort, quint16(9000));
    QCOMPARE(devices[1].serviceId, QStringLiteral("a"));
    QCOMPARE(devices[1].instanceCode, QStringLiteral("VMa"));
    QCOMPARE(devices[1].controlIp, QStringLiteral("10.0.0.1"));
    QCOMPARE(devices[1].controlPort, quint16(8181));
}

void TestGroupApplyAnswer::missingEntry()
{
    QTest::ignoreMessage(QtWarningMsg, "the service grants no session with the device b");
    const QList<group::GroupDevice> devices
        = group::connectedDevices({QStringLiteral("b")}, twoDevices(), json(R"({"a": {"userId": 1}})"));
    QCOMPARE(devices.size(), 1);
    QCOMPARE(devices[0].aliasName, QStringLiteral("Borealis"));
    QCOMPARE(devices[0].instanceCode, QString());
    QCOMPARE(devices[0].userId, -1);
    QCOMPARE(devices[0].sessionId, QString());
    QCOMPARE(devices[0].controlIp, QString());
    QCOMPARE(devices[0].controlPort, quint16(0));
}

void TestGroupApplyAnswer::missingRecord()
{
    const QList<group::GroupDevice> devices = group::connectedDevices(
        {QStringLiteral("z")}, twoDevices(), json(R"({"z": {"instanceCode": "VMz", "userId": 3}})"));
    QCOMPARE(devices.size(), 1);
    QCOMPARE(devices[0].serviceId, QStringLiteral("z"));
    QCOMPARE(devices[0].aliasName, QString());
    QVERIFY(!devices[0].expireTime.isValid());
    QCOMPARE(devices[0].screenSize, QSize(720, 1280));
    QCOMPARE(devices[0].instanceCode, QStringLiteral("VMz"));
    QCOMPARE(devices[0].userId, 3);
}

void TestGroupApplyAnswer::wrongTypes_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::newRow("no object") << QByteArray("7");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("list is an object") << QByteArray(R"({"controlList": {"controlInfoList": []}})");
    QTest::newRow("empty lists") << QByteArray(R"({"controlList": []})");
    QTest::newRow("types") << QByteArray(
        R"({"userId": "x", "controlList": [{"controlInfoList": [{"controlIp": 1, "controlPort": "2"}]}]})");
    QTest::newRow("port") << QByteArray(
        R"({"controlList": [{"controlInfoList": [{"controlPort": 65536}]}]})");
}

void TestGroupApplyAnswer::wrongTypes()
{
    QFETCH(QByteArray, entry);
    const QList<group::GroupDevice> devices
        = group::connectedDevices({QStringLiteral("a")}, twoDevices(), json(R"({"a": )" + entry + "}"));
    QCOMPARE(devices.size(), 1);
    QCOMPARE(devices[0].userId, -1);
    QCOMPARE(devices[0].controlIp, QString());
    QCOMPARE(devices[0].controlPort, quint16(0));
}

void TestGroupApplyAnswer::streamingData()
{
    group::GroupDevice device;
    device.serviceId = QStringLiteral("a");
    device.instanceCode = QStringLiteral("VMa");
    device.userId = 17;
    device.sessionId = QStringLiteral("s-a");
    device.controlIp = QStringLiteral("10.0.0.1");
    device.controlPort = 8181;
    const stream::StreamingData data = group::streamingDataOf(device);
    QCOMPARE(data.serviceId, QStringLiteral("a"));
    QCOMPARE(data.padCode, QStringLiteral("VMa"));
    QCOMPARE(data.userId, 17);
    QCOMPARE(data.sessionId, QStringLiteral("s-a"));
    QCOMPARE(data.controlIp, QStringLiteral("10.0.0.1"));
    QCOMPARE(data.controlPort, quint16(8181));
}

QTEST_MAIN(TestGroupApplyAnswer)
#include "tst_groupapplyanswer.moc"
