#pragma once

#include "DeviceWindowFixture.h"

#include "base/AppSettings.h"
#include "device/EditingMenu.h"
#include "device/MenuBar.h"
#include "device/MenuButton.h"
#include "device/StandbyTimer.h"
#include "device/StandbyWidget.h"
#include "keymap/KeyKindButton.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "keymap/SchemeBox.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvToast.h"

#include <QJsonArray>
#include <QPushButton>
#include <QTemporaryDir>

#include <QtTest/qtestspontaneevent.h>

// What the tests of a device window's key mapping share: a window with its video, and a service that has one
// scheme, "Arena", with the keys F, W/A/S/D and Q.
namespace devicetest {

// The scheme's keys in a view of 340 x 600: click keys are squares of 40 pixels, the walking key of 80. On
// the device of 720 x 1280 the middle of F is at (559, 930), that of the walking key at (190, 989).
const QByteArray ArenaKeys = R"([
    {"key": "F", "x": 244, "y": 416, "edit": true, "remark": "Fire", "editShow": ""},
    {"key": true, "x": 50, "y": 424, "edit": false, "remark": "", "editShow": ""},
    {"key": "Q", "x": 150, "y": 196, "edit": true, "remark": "", "editShow": "", "isLockKey": true,
     "mouseDpi": 2.5}])";

inline QByteArray listAnswer(const QJsonArray &schemes)
{
    return QJsonDocument(QJsonObject{{"code", 200}, {"msg", "success"}, {"data", schemes}}).toJson();
}

inline QJsonObject arenaScheme(const QString &mapId = QStringLiteral("ARENA"))
{
    return {{"map_id", mapId}, {"map_name", "Arena"}, {"config", QString::fromLatin1(ArenaKeys.toBase64())},
        {"screen_orientation", 2}, {"show_key", 1}, {"show_key_desc", 1}, {"key_transparency", 80},
        {"key_size", 30}};
}

// The same as the local copy has it.
inline QJsonObject arenaCopy()
{
    QJsonObject copy = arenaScheme();
    copy.remove("map_id");
    copy.remove("map_name");
    copy["config"] = QString::fromUtf8(ArenaKeys);
    copy["screen_orientation"] = false;
    copy["show_key"] = true;
    copy["show_key_desc"] = true;
    return copy;
}

class KeyMappingFixture : public Fixture
{
public:
    KeyMappingFixture()
    {
        qputenv("XDG_DATA_HOME", settings.path().toLocal8Bit());
        server.setAnswerFor("mapConfigList", listAnswer({arenaScheme()}));
        setServiceAnswer(R"({"code": 200, "msg": "success", "data": {}})");
    }

    // To a save, or a sharing code.
    void setServiceAnswer(const QByteArray &answer)
    {
        server.setAnswerFor("actionMapConfig", answer);
        server.setAnswerFor("shareMapConfig", answer);
    }
    void setLocalCopy(const QByteArray &text) const
    {
        AppSettings().setValue("keyboardmap_config", QString::fromUtf8(text));
    }
    QJsonObject localCopy() const
    {
        return QJsonDocument::fromJson(AppSettings().value("keyboardmap_config").toString().toUtf8())
            .object();
    }

    // Opens window and video with nothing saved before.
    bool openWindow()
    {
        setLocalCopy("");
        makeWindow();
        window->move(300, 200);
        return open();
    }
    // Opens the editor and waits for the list of schemes.
    bool edit() const
    {
        window->onKeyboardMapBtnClicked();
        return QTest::qWaitFor([this] { return box()->count() == 2; }) && waitForFinalSizes();
    }
    // The window manager answers later.
    bool waitForFinalSizes() const
    {
        QSize windowSize;
        QSize videoSize;
        return QTest::qWaitFor([&] {
            QTest::qWait(50);
            const bool areFinal = window->size() == windowSize && video()->size() == videoSize;
            windowSize = window->size();
            videoSize = video()->size();
            return areFinal;
        });
    }
    // Opens the editor with the scheme's keys over the video.
    bool editArena() const
    {
        if (!edit())
            return false;
        box()->setCurrentIndex(0);
        takeCalls();
        return manager()->keys().size() == 3;
    }
    // The same, changed by the user: "E" fires.
    bool changeArena() const
    {
        if (!editArena())
            return false;
        bind(manager()->lastClickKey(), Qt::Key_E);
        return manager()->isModified();
    }
    static void bind(OvAuxiliaryKey *key, int keyboardKey)
    {
        QKeyEvent press(QEvent::KeyPress, keyboardKey, Qt::NoModifier);
        QApplication::sendEvent(key, &press);
    }

    KeyboardMapMgr *manager() const { return child<KeyboardMapMgr>(); }
    KeyboardMapEditor *editor() const { return child<KeyboardMapEditor>(); }
    SchemeBox *box() const { return child<SchemeBox>(); }
    EditingMenu *menu() const { return child<EditingMenu>(); }
    QPushButton *button(const char *name) const { return child<QPushButton>(name); }
    OvMaskTipsDialog *question() const
    {
        for (OvMaskTipsDialog *dialog : window->findChildren<OvMaskTipsDialog *>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    void answer(const char *buttonText) const
    {
        for (QPushButton *candidate : question()->findChildren<QPushButton *>()) {
            if (candidate->text() == QLatin1String(buttonText))
                candidate->click();
        }
    }
    QString toast() const
    {
        const auto toasts = window->findChildren<OvToast *>();
        return toasts.isEmpty() ? QString() : toasts.last()->text();
    }
    void standBy() const
    {
        auto *timer = child<StandbyTimer>();
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
    }
    QStringList keyTexts() const
    {
        QStringList texts;
        for (const OvAuxiliaryKey *key : manager()->keys())
            texts << key->keyText();
        return texts;
    }
    // The bodies of the requests to a path that ends so.
    QList<QJsonObject> bodiesTo(const QByteArray &pathEnd) const
    {
        QList<QJsonObject> found;
        for (int i = 0; i < server.bodies.size(); ++i) {
            if (server.requestLines.at(i).split(' ').value(1).endsWith(pathEnd))
                found << server.bodies.at(i);
        }
        return found;
    }
    // As the window manager's own close button does it; whether the window took it.
    bool closeByWindowManager() const
    {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(window.get(), &event);
        return event.isAccepted();
    }

    QTemporaryDir settings;
};

inline QString touchCall(int action, const QList<QPoint> &points)
{
    QStringList xs;
    QStringList ys;
    QStringList pressures;
    for (const QPoint &point : points) {
        xs << QString::number(point.x());
        ys << QString::number(point.y());
        pressures << QStringLiteral("0");
    }
    const auto list = [](const QStringList &values) { return '[' + values.join(QStringLiteral(", ")) + ']'; };
    return QStringLiteral("SWDataSource::sendTouchEvent(%1, %2, %3, %4, %5)")
        .arg(action)
        .arg(points.size())
        .arg(list(xs), list(ys), list(pressures));
}

} // namespace devicetest
