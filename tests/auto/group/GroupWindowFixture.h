#pragma once

#include "TestHttpServer.h"

#include "group/GroupController.h"
#include "group/MainController.h"
#include "group/SubControlPage.h"
#include "group/SubController.h"
#include "stream/VideoView.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvToast.h"

#include <InputFocus.h>
#include <Recorder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QPointer>
#include <QTest>

// What the tests of the group's window share.
namespace grouptest {

const QByteArray BatchPath = "/apiv1/device/batchActionDevice";

inline group::GroupDevices devicesOf(const QStringList &ids)
{
    group::GroupDevices devices;
    for (const QString &id : ids) {
        group::GroupDevice device;
        device.serviceId = id;
        device.aliasName = QStringLiteral("Device ") + id;
        device.expireTime = QDateTime::currentDateTime().addDays(3).addSecs(1000);
        devices.insert(id, device);
    }
    return devices;
}

// What the service grants each of the devices: at the gateway 10.0.0.1:8181 as user 17.
inline QByteArray grantedAnswer(const QStringList &ids)
{
    QJsonObject data;
    for (const QString &id : ids) {
        const QJsonObject address{
            {QStringLiteral("controlIp"), QStringLiteral("10.0.0.1")}, {QStringLiteral("controlPort"), 8181}};
        const QJsonObject control{{QStringLiteral("controlInfoList"), QJsonArray{address}}};
        data.insert(id,
            QJsonObject{{QStringLiteral("instanceCode"), QStringLiteral("VM") + id},
                {QStringLiteral("userId"), 17}, {QStringLiteral("sessionId"), QStringLiteral("s-") + id},
                {QStringLiteral("controlList"), QJsonArray{control}}});
    }
    return QJsonDocument(
        QJsonObject{{QStringLiteral("code"), 200}, {QStringLiteral("msg"), QStringLiteral("success")},
            {QStringLiteral("data"), data}})
        .toJson(QJsonDocument::Compact);
}

inline QByteArray refusal(const QByteArray &message)
{
    return R"({"code": 409, "msg": ")" + message + R"(", "data": null})";
}

inline QStringList takeCalls()
{
    QStringList list;
    for (const std::string &call : Recorder::instance().takeCalls())
        list.append(QString::fromStdString(call));
    return list;
}

inline int countCalls(const QString &start)
{
    int count = 0;
    for (const std::string &call : Recorder::instance().calls())
        count += QString::fromStdString(call).startsWith(start) ? 1 : 0;
    return count;
}

// The devices to which sessions have been started since the calls were last taken, in that order.
inline QStringList startedDevices()
{
    QStringList devices;
    for (const std::string &call : Recorder::instance().calls()) {
        const QString text = QString::fromStdString(call);
        if (text.startsWith(QLatin1String("SWDataSource::setLoginParams(")))
            devices.append(text.section(QLatin1Char('"'), 5, 5));
    }
    return devices;
}

inline bool showsIcon(const QAbstractButton &button, const char *path)
{
    const auto imageOf = [&button](const QIcon &icon) { return icon.pixmap(button.iconSize()).toImage(); };
    const QImage expected = imageOf(QIcon(QString::fromLatin1(path)));
    return !expected.isNull() && imageOf(button.icon()) == expected;
}

// Both clicks as the window system gives them to a widget.
inline void doubleClick(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
    QTest::mouseDClick(widget, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton);
}

// Leaves a picture in the view as the SDK does.
inline void showDevicePicture(VideoView &view, const QColor &ground)
{
    QImage image(720, 1280, QImage::Format_ARGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 16; ++i) {
        painter.setBrush(QColor::fromHsv(i * 22, 170, 235));
        painter.drawRoundedRect(60 + i % 4 * 160, 200 + i / 4 * 220, 120, 120, 28, 28);
    }
    painter.end();
    showPicture(view, reinterpret_cast<const std::uint32_t *>(image.constBits()), 720, 1280);
}

// A group window at a service that grants every device.
class Fixture
{
public:
    // Once per program: the client takes the service's address once.
    Fixture() { qputenv("ORVANE_API_BASE_URL", server.baseUrl().toUtf8()); }
    ~Fixture() { endWindow(); }

    void makeWindow()
    {
        window = new GroupController;
        Recorder::instance().reset();
        Recorder::instance().setRemoteSize(720, 1280);
        server.setAnswer(R"({"code": 200, "msg": "success", "data": {}})");
        m_requestsBefore = server.requests().size();
    }

    void endWindow() const
    {
        delete window;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Shows the window with these devices and waits until they are granted; forgets the calls and requests.
    bool open(const QStringList &ids)
    {
        server.setAnswer(grantedAnswer(ids));
        window->setDevices(devicesOf(ids));
        window->show();
        window->activateWindow();
        if (!waitForInputFocus(*window)
            || !QTest::qWaitFor([this] { return !window->mainController()->serviceId().isEmpty(); }))
            return false;
        takeCalls();
        server.setAnswer(R"({"code": 200, "msg": "success", "data": {}})");
        m_requestsBefore = server.requests().size();
        return true;
    }

    // The requests since the window was made or opened.
    QVector<TestHttpServer::Request> requests() const { return server.requests().mid(m_requestsBefore); }
    QJsonObject body(int index) const { return QJsonDocument::fromJson(requests().at(index).body).object(); }

    SubController *tile(int index) const { return window->subControlPage()->controllerAt(index); }
    QString master() const { return window->mainController()->serviceId(); }
    QStringList tiles() const
    {
        QStringList ids;
        for (int i = 0; tile(i); ++i)
            ids.append(tile(i)->serviceId());
        return ids;
    }
    // The questions that are open, oldest first.
    QList<OvMaskTipsDialog *> questions() const
    {
        QList<OvMaskTipsDialog *> open;
        const auto dialogs = window->findChildren<OvMaskTipsDialog *>();
        for (OvMaskTipsDialog *dialog : dialogs) {
            if (dialog->isVisible())
                open.append(dialog);
        }
        return open;
    }
    QStringList toasts() const
    {
        QStringList texts;
        const auto toasts = window->findChildren<OvToast *>();
        for (const OvToast *toast : toasts) {
            if (toast->isVisible())
                texts.append(toast->text());
        }
        return texts;
    }
    template <typename Widget>
    Widget *child(const char *name = nullptr) const
    {
        return window->findChild<Widget *>(QString::fromLatin1(name));
    }

    TestHttpServer server;
    QPointer<GroupController> window;

private:
    int m_requestsBefore = 0;
};

} // namespace grouptest
