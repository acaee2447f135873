#pragma once

#include <TestHttpServer.h>

#include "keymap/KeyKindButton.h"
#include "keymap/KeyMapControls.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "keymap/SchemeBox.h"
#include "keymap/WrappingCheckBox.h"
#include "stream/VideoView.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvComboBoxListView.h"
#include "widgets/OvSlider.h"
#include "widgets/OvTitleBarBase.h"
#include "widgets/OvToast.h"
#include "widgets/OvWindowBase.h"

#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>

#include <memory>

// What the tests of the key-mapping editor share: a window with a video view and the panel beside it, wired
// as a device window wires them, and a service.
namespace keymaptest {

// A text as JSON, for objects and arrays with their members in any order.
inline QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

// A scheme as the service lists it.
inline QJsonObject scheme(const QString &mapId, const QString &name, const QByteArray &keys = "[]")
{
    return {{"map_id", mapId}, {"map_name", name}, {"config", QString::fromLatin1(keys.toBase64())},
        {"screen_orientation", 2}, {"show_key", 1}, {"show_key_desc", 1}, {"key_transparency", 80},
        {"key_size", 30}};
}

inline QByteArray listAnswer(const QJsonArray &schemes)
{
    return QJsonDocument(QJsonObject{{"code", 200}, {"msg", "success"}, {"data", schemes}}).toJson();
}

// A click key, the walking key and the crosshair.
const QByteArray ThreeKeys = R"([
    {"key": "F", "x": 244, "y": 416, "edit": true, "remark": "Fire", "editShow": ""},
    {"key": true, "x": 50, "y": 424, "edit": false, "remark": "Walk", "editShow": ""},
    {"key": "Q", "x": 150, "y": 196, "edit": true, "remark": "", "editShow": "", "isLockKey": true,
     "mouseDpi": 2.5}])";

class EditorFixture
{
public:
    EditorFixture()
    {
        QStandardPaths::setTestModeEnabled(true);
        // Chosen once per process: every fixture of a test uses one server.
        qputenv("ORVANE_API_BASE_URL", server().baseUrl().toUtf8());
        server().setAnswer("{}");
        window.setFixedContentSize(QSize(640, 640));
        row = new QHBoxLayout;
        row->setSpacing(0);
        view = new VideoView;
        manager = new KeyboardMapMgr(&window);
        editor = new KeyboardMapEditor(manager, &window);
        row->addWidget(view, 1);
        row->addWidget(editor);
        window.mainLayout()->addLayout(row, 1);
        window.move(200, 100);
        connectEditor();
        window.show();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }

    static TestHttpServer &server()
    {
        static TestHttpServer shared;
        return shared;
    }
    // Gives the view a size that the window's layout leaves alone.
    void resizeView(const QSize &size)
    {
        row->removeWidget(view);
        view->resize(size);
    }
    SchemeBox *box() const { return editor->findChild<SchemeBox *>(); }
    template <typename Widget = QPushButton>
    Widget *part(const char *name) const
    {
        return editor->findChild<Widget *>(QString::fromLatin1(name));
    }
    OvSlider *opacity() const { return part<OvSlider>("opacitySlider"); }
    OvSlider *size() const { return part<OvSlider>("sizeSlider"); }
    WrappingCheckBox *showKeys() const { return part<WrappingCheckBox>("showKeysBox"); }
    WrappingCheckBox *showNotes() const { return part<WrappingCheckBox>("showNotesBox"); }
    // Has the service list these schemes, and waits until the panel shows them.
    bool fill(const QJsonArray &schemes)
    {
        server().setAnswer(listAnswer(schemes));
        bool filled = false;
        const auto connection = QObject::connect(
            manager, &KeyboardMapMgr::sigRefreshConfigSuccess, editor, [&filled] { filled = true; });
        manager->onRefreshMapConfig();
        const bool ok = QTest::qWaitFor([&filled] { return filled; });
        QObject::disconnect(connection);
        return ok;
    }
    QPushButton *rowButton(int row, const char *toolTip) const
    {
        const OvComboBoxEditableItem *item = box()->editableItem(row);
        for (QPushButton *button : item ? item->findChildren<QPushButton *>() : QList<QPushButton *>()) {
            if (button->toolTip() == QLatin1String(toolTip))
                return button;
        }
        return nullptr;
    }
    // The requests to an endpoint that have come; the newest is the last.
    QList<QJsonObject> bodies(const char *endpoint) const
    {
        QList<QJsonObject> found;
        for (const TestHttpServer::Request &request : server().requests()) {
            if (request.path.endsWith(endpoint))
                found.append(object(request.body));
        }
        return found;
    }
    bool areControlsEnabled() const
    {
        const QWidgetList parts{part<KeyKindButton>("clickButton"), part<KeyKindButton>("walkingButton"),
            part<KeyKindButton>("crosshairButton"), opacity(), size(), showKeys(), showNotes(),
            part("resetButton"), part("saveButton")};
        int enabled = 0;
        for (const QWidget *widget : parts)
            enabled += widget->isEnabled() ? 1 : 0;
        if (enabled != 0 && enabled != parts.size())
            qFatal("%d of %d controls are enabled", enabled, parts.size());
        return enabled != 0;
    }

    OvWindowBase window;
    QHBoxLayout *row = nullptr; // view and panel
    VideoView *view = nullptr;
    KeyboardMapMgr *manager = nullptr;
    KeyboardMapEditor *editor = nullptr;
    int made = 0; // keys that the panel has asked for

private:
    template <typename Key>
    void make()
    {
        ++made;
        auto *key = new Key(manager, view);
        key->onScreenRotation(view->orientation());
        manager->addAuxiliaryKey(key->type(), key);
        QObject::connect(
            editor, &KeyboardMapEditor::sigOpacityValueChanged, key, &OvAuxiliaryKey::onAlphaChannelChanged);
        QObject::connect(
            editor, &KeyboardMapEditor::sigSizeValueChanged, key, &OvAuxiliaryKey::onSizeChanged);
        window.installEventFilter(key);
        key->show();
    }
    void connectEditor()
    {
        QObject::connect(editor, &KeyboardMapEditor::sigCreateAuxiliaryClickKey, view,
            [this] { make<OvAuxiliaryClick>(); });
        QObject::connect(editor, &KeyboardMapEditor::sigCreateAuxiliaryWalkingKey, view,
            [this] { make<OvAuxiliaryWalking>(); });
        QObject::connect(editor, &KeyboardMapEditor::sigCreateAuxiliaryCrosshairKey, view,
            [this] { make<OvAuxiliaryCrosshair>(); });
    }
};

} // namespace keymaptest
