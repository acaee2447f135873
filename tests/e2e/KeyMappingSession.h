#pragma once

#include "Service.h"
#include "Waiting.h"

#include "device/EditingMenu.h"
#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/SingleController.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "keymap/SchemeBox.h"
#include "net/HttpHelper.h"
#include "stream/VideoView.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvToast.h"

#include <InputFocus.h>

#include <QApplication>
#include <QJsonArray>
#include <QPushButton>

#include <memory>

namespace e2e {

// One user with a device window, who edits and plays: the real window at the real service. Requests are those
// of the user who has signed in last. Whatever does not come to pass throws StepFailed.
class KeyMappingSession
{
public:
    // Opens the window; its video is there when this returns.
    KeyMappingSession(Service &service, const QString &serviceId, const QString &pad)
        : m_service(service)
        , m_pad(pad)
        , m_window(std::make_unique<SingleController>(serviceId, QStringLiteral("Player ") + pad))
    {
        m_window->move(200, 100);
        m_window->show();
        m_window->applyDevice();
        waitUntil(QStringLiteral("the first picture"), [this] { return !view()->picture().isNull(); });
    }

    static void signIn(const Service &service, const char *account, const char *password)
    {
        const QJsonObject answer = service.call(QStringLiteral("POST"), QStringLiteral("/apiv1/user/login"),
            {{QStringLiteral("account"), QLatin1String(account)},
                {QStringLiteral("password"), QLatin1String(password)}});
        const QJsonObject user = answer.value(QLatin1String("data")).toObject();
        HttpHelper::setLoginParams(user.value(QLatin1String("access_token")).toString(),
            user.value(QLatin1String("login_id")).toString());
    }

    SingleController &window() const { return *m_window; }
    VideoView *view() const { return child<VideoView>(); }
    KeyboardMapMgr &manager() const { return *child<KeyboardMapMgr>(); }
    SchemeBox *box() const { return child<SchemeBox>(); }
    template <typename Widget>
    Widget *child(const char *name = nullptr) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }
    QString title() const { return m_window->windowTitle(); }

    // Opens the editor; the service's list has been read when it returns.
    void edit() const
    {
        bool isRead = false;
        const auto connection = QObject::connect(&manager(), &KeyboardMapMgr::sigRefreshConfigSuccess,
            m_window.get(), [&isRead] { isRead = true; });
        QTest::mouseClick(child<MenuBar>()->buttons().at(5), Qt::LeftButton);
        waitUntil(QStringLiteral("the list of schemes"), [&isRead] { return isRead; });
        QObject::disconnect(connection);
    }
    int rowOf(const QString &name) const
    {
        for (int row = 0; row < box()->count(); ++row) {
            if (box()->itemText(row) == name)
                return row;
        }
        return -1;
    }
    void choose(const QString &name) const
    {
        waitUntil(QStringLiteral("the scheme '%1'").arg(name), [&] { return rowOf(name) >= 0; });
        box()->setCurrentIndex(rowOf(name));
    }
    void press(const char *button) const { QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton); }
    // Chooses a scheme and leaves the editor, with the keyboard on the video.
    void play(const QString &scheme) const
    {
        edit();
        choose(scheme);
        press("exitButton");
        m_window->activateWindow();
        waitUntil(QStringLiteral("the video has the keyboard"), [this] { return view()->hasFocus(); });
        if (!waitForInputFocus(*m_window))
            throw StepFailed(QStringLiteral("the display does not give the window the keyboard"));
    }
    OvAuxiliaryKey *key(const QString &text) const
    {
        for (OvAuxiliaryKey *key : manager().keys()) {
            if (key->keyText() == text)
                return key;
        }
        throw StepFailed(QStringLiteral("there is no key '%1'").arg(text));
    }
    QString toast() const
    {
        const auto toasts = m_window->findChildren<OvToast *>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }

    // What Arena has seen of a control's fingers, oldest first, such as "3 down 560,930".
    QStringList touches(const QString &control) const
    {
        QStringList found;
        for (const QJsonValue &entry : log()) {
            const QJsonObject touch = entry.toObject();
            if (touch.value(QLatin1String("control")) == control)
                found << QStringLiteral("%1 %2 %3,%4")
                             .arg(touch.value(QLatin1String("finger")).toInt())
                             .arg(touch.value(QLatin1String("action")).toString())
                             .arg(touch.value(QLatin1String("x")).toInt())
                             .arg(touch.value(QLatin1String("y")).toInt());
        }
        return found;
    }
    QJsonArray log() const { return m_service.appState(m_pad).value(QLatin1String("touches")).toArray(); }
    const QString &pad() const { return m_pad; }

private:
    Service &m_service;
    QString m_pad;
    std::unique_ptr<SingleController> m_window;
};

} // namespace e2e
