#include "KeyMapFixture.h"

#include "base/AppPaths.h"
#include "base/AppSettings.h"

#include <TestHttpServer.h>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

const char ListAnswer[] = R"({"code": 200, "msg": "success", "data": [
    {"map_id": "17", "map_name": "Arena"}, {"map_id": "18", "map_name": "Race"}]})";

} // namespace

// The manager and the service: what is asked, what an answer changes, and what a failure leaves alone.
class TestKeyboardMapService : public KeyMapFixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { tearDown(); }

    void refresh();
    void malformedListChangesNothing();
    void selects();
    void create();
    void share();
    void actions();
    void rowsIdWins();
    void failures_data();
    void failures();
    void brokenConnections_data();
    void brokenConnections();
    void refusedNameIsTakenBack();
    void save();
    void saveOffline();

private:
    void ask(const QString &operation);
    void loadList();
    QJsonObject lastBody() const;
    QByteArray lastPath() const { return m_server.requests().last().path; }

    QTemporaryDir m_data;
    TestHttpServer m_server;
};

void TestKeyboardMapService::initTestCase()
{
    QVERIFY(m_data.isValid());
    qputenv("XDG_DATA_HOME", m_data.path().toUtf8());
    qputenv("ORVANE_API_BASE_URL", m_server.baseUrl().toUtf8());
}

void TestKeyboardMapService::init()
{
    setUp();
    QFile::remove(AppPaths::settingsFile());
    m_server.setAnswer(ListAnswer);
}

QJsonObject TestKeyboardMapService::lastBody() const
{
    return QJsonDocument::fromJson(m_server.requests().last().body).object();
}

void TestKeyboardMapService::loadList()
{
    QSignalSpy refreshed(m_manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    m_server.setAnswer(ListAnswer);
    m_manager->onRefreshMapConfig();
    QVERIFY(refreshed.wait());
}

void TestKeyboardMapService::ask(const QString &operation)
{
    if (operation == "refresh")
        m_manager->onRefreshMapConfig();
    else if (operation == "create")
        m_manager->onCreateMapConfig();
    else if (operation == "shared")
        m_manager->onShareMapConfig();
    else
        m_manager->onActionMapConfig(operation, {});
}

void TestKeyboardMapService::refresh()
{
    auto *key = make<OvAuxiliaryClick>("Q");
    key->move(0, 0);
    loadList();
    QCOMPARE(m_server.requests().last().method, QByteArray("GET"));
    QCOMPARE(lastPath(), QByteArray("/apiv1/keyboard_map/mapConfigList"));
    QCOMPARE(m_manager->mapConfigs().size(), 2);
    QCOMPARE(m_manager->mapConfigAt(1).value("map_name").toString(), QString("Race"));
    QCOMPARE(m_manager->mapConfigAt(2), QJsonObject());
    QCOMPARE(m_manager->mapConfigAt(-1), QJsonObject());
    QCOMPARE(key->pos(), QPoint(155, 285)); // back on its spot
    QCOMPARE(toastText(), QString());
}

void TestKeyboardMapService::malformedListChangesNothing()
{
    loadList();
    QSignalSpy refreshed(m_manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    m_server.setAnswer(R"({"code": 200, "data": {"a": 1}})");
    QTest::ignoreMessage(QtWarningMsg, "the list of key-map schemes is no array");
    m_manager->onRefreshMapConfig();
    const int asked = m_server.requests().size();
    QTRY_COMPARE(m_server.requests().size(), asked + 1);
    m_server.setAnswer(ListAnswer);
    loadList(); // answered after the other
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(m_manager->mapConfigs().size(), 2);
}

void TestKeyboardMapService::selects()
{
    loadList();
    make<OvAuxiliaryClick>("Q");
    m_manager->setModified(true);
    m_manager->onComboBoxItemChanged(1);
    QCOMPARE(m_manager->currentMapId(), QString("18"));
    QVERIFY(!m_manager->isModified());
    QCOMPARE(m_manager->keys().size(), 1);
    m_manager->onComboBoxItemChanged(2); // "Not using the scheme"
    QCOMPARE(m_manager->currentMapId(), QString());
    QCOMPARE(m_manager->keys().size(), 0);
    m_manager->onActionMapConfig("delete", {});
    QTRY_COMPARE(lastPath(), QByteArray("/apiv1/keyboard_map/actionMapConfig"));
    QCOMPARE(lastBody().value("map_id"), QJsonValue(""));
}

void TestKeyboardMapService::create()
{
    m_server.setAnswer(R"({"code": 200, "data": {"map_id": "19"}})");
    const int asked = m_server.requests().size();
    QTest::ignoreMessage(QtWarningMsg, "the list of key-map schemes is no array"); // the next answer
    m_manager->onCreateMapConfig();
    QTRY_COMPARE(m_server.requests().size(), asked + 2);
    QCOMPARE(m_manager->currentMapId(), QString("19"));
    QCOMPARE(m_server.requests().at(asked).path, QByteArray("/apiv1/keyboard_map/createMapConfig"));
    QCOMPARE(m_server.requests().at(asked).body.simplified(), QByteArray("{ }"));
    QCOMPARE(lastPath(), QByteArray("/apiv1/keyboard_map/mapConfigList"));
    QCOMPARE(toastText(), QString("Operated successfully"));
    loadList(); // answered after the other
}

void TestKeyboardMapService::share()
{
    m_manager->setCurrentMapId("17");
    QSignalSpy refreshed(m_manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    const int asked = m_server.requests().size();
    m_manager->onShareMapConfig();
    QVERIFY(refreshed.wait());
    const TestHttpServer::Request &request = m_server.requests().at(asked);
    QCOMPARE(request.method, QByteArray("POST"));
    QCOMPARE(request.path, QByteArray("/apiv1/keyboard_map/shareMapConfig"));
    QCOMPARE(QJsonDocument::fromJson(request.body).object(), (QJsonObject{{"map_id", "17"}}));
    QCOMPARE(toastText(), QString("Operated successfully"));
}

// The list is asked for again half a second later.
void TestKeyboardMapService::actions()
{
    m_manager->setCurrentMapId("17");
    QSignalSpy refreshed(m_manager, &KeyboardMapMgr::sigRefreshConfigSuccess);
    QElapsedTimer elapsed;
    elapsed.start();
    const int asked = m_server.requests().size();
    m_manager->onActionMapConfig("copy", {});
    QVERIFY(refreshed.wait());
    QVERIFY(elapsed.elapsed() >= 475); // a coarse timer of 500
    QCOMPARE(m_server.requests().size(), asked + 2);
    QCOMPARE(QJsonDocument::fromJson(m_server.requests().at(asked).body).object(),
        (QJsonObject{{"map_id", "17"}, {"action_type", "copy"}}));
    QCOMPARE(toastText(), QString("Operated successfully"));
}

void TestKeyboardMapService::rowsIdWins()
{
    m_manager->setCurrentMapId("17");
    m_manager->onActionMapConfig("update", {{"map_id", "18"}, {"map_name", "New"}});
    QTRY_COMPARE(lastPath(), QByteArray("/apiv1/keyboard_map/actionMapConfig"));
    QCOMPARE(lastBody(), (QJsonObject{{"map_id", "18"}, {"action_type", "update"}, {"map_name", "New"}}));
    QCOMPARE(m_manager->currentMapId(), QString("17"));
}

void TestKeyboardMapService::failures_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *operation : {"refresh", "create", "update", "copy", "delete", "shared"})
        QTest::newRow(operation) << QString(operation);
}

void TestKeyboardMapService::failures()
{
    QFETCH(QString, operation);
    loadList();
    m_manager->setCurrentMapId("17");
    m_manager->setModified(true);
    make<OvAuxiliaryClick>("Q");
    m_server.setAnswer(R"({"code": 403, "msg": "Not yours", "data": {"map_id": "66"}})");
    QTest::ignoreMessage(
        QtWarningMsg, qPrintable(operation + " map config request error!\nresponse msg --> Not yours"));
    ask(operation);
    QTRY_COMPARE(toastText(), QString("Not yours"));
    QCOMPARE(m_manager->mapConfigs().size(), 2);
    QCOMPARE(m_manager->currentMapId(), QString("17"));
    QVERIFY(m_manager->isModified());
    QCOMPARE(m_manager->keys().size(), 1);
}

void TestKeyboardMapService::brokenConnections_data()
{
    failures_data();
}

void TestKeyboardMapService::brokenConnections()
{
    QFETCH(QString, operation);
    loadList();
    m_manager->setCurrentMapId("17");
    m_server.setAnswer("{}", 500);
    QTest::ignoreMessage(QtWarningMsg,
        QRegularExpression('^' + operation + " map config request failed!\nresponse data --> .+"));
    ask(operation);
    QTRY_VERIFY(!toastText().isEmpty());
    QCOMPARE(m_manager->mapConfigs().size(), 2);
    QCOMPARE(m_manager->currentMapId(), QString("17"));
}

void TestKeyboardMapService::refusedNameIsTakenBack()
{
    QSignalSpy shownAgain(m_manager, &KeyboardMapMgr::sigUpdateComboBox);
    m_server.setAnswer(R"({"code": 400, "msg": "Too long"})");
    QTest::ignoreMessage(QtWarningMsg, "update map config request error!\nresponse msg --> Too long");
    m_manager->onActionMapConfig("update", {{"map_id", "18"}, {"map_name", "New"}});
    QVERIFY(shownAgain.wait());
    QTest::ignoreMessage(QtWarningMsg, "copy map config request error!\nresponse msg --> Too long");
    m_manager->onActionMapConfig("copy", {{"map_id", "18"}});
    QTRY_COMPARE(m_window->findChildren<OvToast *>().size(), 2);
    QCOMPARE(shownAgain.size(), 1);
}

void TestKeyboardMapService::save()
{
    make<OvAuxiliaryWalking>()->placeAt({3, 4});
    m_manager->setCurrentMapId("17");
    QVariantMap scheme{{"key_transparency", 50}, {"key_size", 30}, {"show_key", true},
        {"show_key_desc", false}, {"screen_orientation", false}};
    const int asked = m_server.requests().size();
    m_manager->saveCurrentScheme(scheme);
    const QString config
        = "[\n    {\n        \"edit\": false,\n        \"editShow\": \"\",\n        \"key\": "
          "true,\n        \"remark\": \"\",\n        \"x\": 3,\n        \"y\": 4\n    }\n]\n";
    QCOMPARE(scheme.value("config").toString(), config);
    QTRY_COMPARE(m_server.requests().size(), asked + 1);
    QCOMPARE(lastPath(), QByteArray("/apiv1/keyboard_map/actionMapConfig"));
    const QJsonObject sent{{"key_transparency", 50}, {"key_size", 30}, {"show_key", true},
        {"show_key_desc", false}, {"screen_orientation", false}, {"config", config}};
    QJsonObject body = sent;
    body.insert("map_id", "17");
    body.insert("action_type", "update");
    QCOMPARE(lastBody(), body);
    QCOMPARE(QJsonDocument::fromJson(m_manager->currentConfigJson().toUtf8()).object(), sent);
    const QString copy = AppSettings().value("keyboardmap_config").toString();
    QCOMPARE(copy, m_manager->currentConfigJson());
    QFile file(AppPaths::dataDir() + "/config/config.ini");
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(file.readAll().startsWith("[config]\nkeyboardmap_config="));
}

void TestKeyboardMapService::saveOffline()
{
    make<OvAuxiliaryClick>("Q");
    m_manager->setModified(true);
    m_server.setAnswer("", 503);
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression("^update map config request failed!\nresponse data --> .+"));
    QVariantMap scheme{{"key_size", 30}};
    m_manager->saveCurrentScheme(scheme);
    QTRY_VERIFY(!toastText().isEmpty());
    QVERIFY(m_manager->isModified());
    QCOMPARE(m_manager->keys().size(), 1);
    QVERIFY(AppSettings().value("keyboardmap_config").toString().contains("\\\"Q\\\""));
}

QTEST_MAIN(TestKeyboardMapService)
#include "tst_keyboardmapservice.moc"
