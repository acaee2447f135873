#include "device/DeviceApplyAnswer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class tst_DeviceApplyAnswer : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldHasItsPlace();
    void missing_data();
    void missing();
    void ports_data();
    void ports();
};

// Decoys stand where a field could be taken from by mistake.
void tst_DeviceApplyAnswer::everyFieldHasItsPlace()
{
    const QByteArray json = R"({
        "padCode": "VM100001", "sessionId": "decoy", "userId": 99, "controlIp": "decoy", "controlPort": 1,
        "resultInfo": {
            "userId": 17, "sessionId": "s-42", "padCode": "decoy", "controlIp": "decoy", "controlPort": 2,
            "controlList": [
                {"controlIp": "decoy", "controlInfoList": [
                    {"controlIp": "10.1.2.3", "controlPort": 8181}, {"controlIp": "decoy", "controlPort": 3}]},
                {"controlInfoList": [{"controlIp": "decoy", "controlPort": 4}]}]}})";
    const auto data = streamingDataOf(QJsonDocument::fromJson(json).object(), "100001");
    QCOMPARE(data.controlIp, QStringLiteral("10.1.2.3"));
    QCOMPARE(data.controlPort, quint16(8181));
    QCOMPARE(data.userId, 17);
    QCOMPARE(data.sessionId, QStringLiteral("s-42"));
    QCOMPARE(data.padCode, QStringLiteral("VM100001"));
    QCOMPARE(data.serviceId, QStringLiteral("100001"));
}

void tst_DeviceApplyAnswer::missing_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("null") << QByteArray(R"({"padCode": null, "resultInfo": null})");
    QTest::newRow("empty lists") << QByteArray(R"({"resultInfo": {"controlList": []}})");
    QTest::newRow("empty inner list")
        << QByteArray(R"({"resultInfo": {"controlList": [{"controlInfoList": []}]}})");
    QTest::newRow("wrong types") << QByteArray(
        R"({"padCode": 3, "resultInfo": {"userId": "17", "sessionId": 4, "controlList": {"0": 1}}})");
    QTest::newRow("list of numbers") << QByteArray(R"({"resultInfo": {"controlList": [1, 2]}})");
    QTest::newRow("broken numbers") << QByteArray(R"({"resultInfo": {"userId": 1.5,
        "controlList": [{"controlInfoList": [{"controlPort": "8181", "controlIp": []}]}]}})");
}

void tst_DeviceApplyAnswer::missing()
{
    QFETCH(QByteArray, json);
    for (const QJsonValue &value : {QJsonValue(QJsonDocument::fromJson(json).object()), QJsonValue()}) {
        const auto data = streamingDataOf(value, "100001");
        QCOMPARE(data.controlIp, QString());
        QCOMPARE(data.controlPort, quint16(0));
        QCOMPARE(data.userId, -1);
        QCOMPARE(data.sessionId, QString());
        QCOMPARE(data.padCode, QString());
        QCOMPARE(data.serviceId, QStringLiteral("100001"));
    }
}

void tst_DeviceApplyAnswer::ports_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<quint16>("expected");
    QTest::newRow("highest") << 65535 << quint16(65535);
    QTest::newRow("too high") << 65536 << quint16(0);
    QTest::newRow("negative") << -1 << quint16(0);
}

void tst_DeviceApplyAnswer::ports()
{
    QFETCH(int, port);
    QFETCH(quint16, expected);
    if (expected == 0)
        QTest::ignoreMessage(
            QtWarningMsg, qPrintable(QStringLiteral("the service names no valid port: %1").arg(port)));
    const QByteArray json
        = QStringLiteral(R"({"resultInfo": {"controlList": [{"controlInfoList": [{"controlPort": %1}]}]}})")
              .arg(port)
              .toUtf8();
    QCOMPARE(streamingDataOf(QJsonDocument::fromJson(json).object(), "1").controlPort, expected);
}

QTEST_APPLESS_MAIN(tst_DeviceApplyAnswer)

#include "tst_deviceapplyanswer.moc"
