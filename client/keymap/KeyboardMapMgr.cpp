#include "keymap/KeyboardMapMgr.h"

#include "base/AppSettings.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "net/HttpHelper.h"
#include "widgets/OvToast.h"

#include <QDebug>
#include <QJsonDocument>
#include <QTimer>

#include <chrono>

namespace {

constexpr int SuccessCode = 200;
constexpr int ToastSeconds = 3;

// How long the service may take to carry out an action before the list is asked for again.
constexpr std::chrono::milliseconds RefreshDelay{500};

constexpr double NoFinger = -1.0;

// Members of requests and schemes.
const QLatin1String MapId("map_id");
const QLatin1String MapName("map_name");
const QLatin1String ActionType("action_type");
const QLatin1String Config("config");

// Of the settings file.
const QLatin1String LocalCopy("keyboardmap_config");

QString endpoint(const char *name)
{
    return HttpHelper::apiBaseUrl() + QStringLiteral("/apiv1/keyboard_map/") + QLatin1String(name);
}

// Of a device's screen: a finger that is far off it must not become a number that is none.
int pixelOf(double place)
{
    constexpr double FarAway = 1e6;
    return static_cast<int>(qBound(-FarAway, place, FarAway));
}

// Services write identifiers as texts or as numbers.
QString idOf(const QJsonObject &scheme)
{
    return scheme.value(MapId).toVariant().toString();
}

QString jsonText(const QVariantMap &scheme)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(scheme)).toJson());
}

QJsonObject toJson(const OvAuxiliaryKey &key)
{
    const bool isWalking = key.type() == keymap::WalkingKey;
    return {
        {QStringLiteral("key"), isWalking ? QJsonValue(true) : QJsonValue(key.keyText())},
        {QStringLiteral("x"), key.x()},
        {QStringLiteral("y"), key.y()},
        {QStringLiteral("edit"), !isWalking},
        {QStringLiteral("remark"), key.note()},
        {QStringLiteral("editShow"), QString()},
    };
}

} // namespace

KeyboardMapMgr::KeyboardMapMgr(QWidget *parent)
    : TouchPointSource(parent)
{ }

KeyboardMapMgr::~KeyboardMapMgr() = default;

// ---- State ----

void KeyboardMapMgr::setRecording(bool isRecording)
{
    m_isRecording = isRecording;
    emit sigRecordingStatusChanged(isRecording);
}

void KeyboardMapMgr::setComboBoxUpdating(bool isUpdating)
{
    m_isComboBoxUpdating = isUpdating;
    emit sigComboBoxUpdate(isUpdating);
}

void KeyboardMapMgr::setShowKeys(bool areShown)
{
    m_showKeys = areShown;
    const QVector<OvAuxiliaryKey *> all = keys();
    for (OvAuxiliaryKey *key : all)
        key->onShownChanged();
}

void KeyboardMapMgr::setShowKeyNotes(bool areShown)
{
    m_showKeyNotes = areShown;
    const QVector<OvAuxiliaryKey *> all = keys();
    for (OvAuxiliaryKey *key : all)
        key->onShownChanged();
}

void KeyboardMapMgr::onShowBtnCheckBoxStateChanged(int state)
{
    setShowKeys(state != Qt::Unchecked);
}

void KeyboardMapMgr::onShowNoteCheckBoxStateChanged(int state)
{
    setShowKeyNotes(state != Qt::Unchecked);
}

// ---- Keys ----

void KeyboardMapMgr::addAuxiliaryKey(int type, OvAuxiliaryKey *key)
{
    if (auto *click = qobject_cast<OvAuxiliaryClick *>(key); click && type == keymap::ClickKey)
        m_clickKeys.append(click);
    else if (auto *walking = qobject_cast<OvAuxiliaryWalking *>(key); walking && type == keymap::WalkingKey)
        m_walkingKey = walking;
    else if (auto *crosshair = qobject_cast<OvAuxiliaryCrosshair *>(key);
             crosshair && type == keymap::CrosshairKey)
        m_crosshairKey = crosshair;
    else {
        qWarning() << "an auxiliary key is not of the type that it is added as:" << type;
        return;
    }
    connect(key, &OvAuxiliaryKey::sigDeleteBtnCicked, this, &KeyboardMapMgr::onKeyDeleteBtnClicked);
    connect(this, &KeyboardMapMgr::sigRecordingStatusChanged, key, &OvAuxiliaryKey::onRecordingStatusChanged);
    connect(this, &KeyboardMapMgr::sigComboBoxUpdate, key, &OvAuxiliaryKey::onComboBoxUpdate);
    key->onComboBoxUpdate(m_isComboBoxUpdating);
    if (m_isRecording)
        key->onRecordingStatusChanged(true);
    key->onShownChanged();
}

bool KeyboardMapMgr::hasPendingKey(int type) const
{
    switch (type) {
    case keymap::ClickKey: {
        const OvAuxiliaryClick *last = lastClickKey();
        return last && !last->isBound();
    }
    case keymap::WalkingKey:
        return !m_walkingKey.isNull();
    case keymap::CrosshairKey:
        return !m_crosshairKey.isNull();
    default:
        return false;
    }
}

OvAuxiliaryClick *KeyboardMapMgr::lastClickKey() const
{
    for (int i = m_clickKeys.size() - 1; i >= 0; --i) {
        if (m_clickKeys.at(i))
            return m_clickKeys.at(i);
    }
    return nullptr;
}

OvAuxiliaryWalking *KeyboardMapMgr::walkingKey() const
{
    return m_walkingKey;
}

OvAuxiliaryCrosshair *KeyboardMapMgr::crosshairKey() const
{
    return m_crosshairKey;
}

QVector<OvAuxiliaryKey *> KeyboardMapMgr::keys() const
{
    QVector<OvAuxiliaryKey *> all;
    for (const QPointer<OvAuxiliaryClick> &key : m_clickKeys) {
        if (key)
            all.append(key);
    }
    if (m_walkingKey)
        all.append(m_walkingKey);
    if (m_crosshairKey)
        all.append(m_crosshairKey);
    return all;
}

bool KeyboardMapMgr::isKeyBindingInUse(const QString &keyText)
{
    bool isInUse = m_crosshairKey && m_crosshairKey->keyText() == keyText;
    isInUse = isInUse || keyText == QLatin1String("W") || keyText == QLatin1String("A")
        || keyText == QLatin1String("S") || keyText == QLatin1String("D");
    for (const QPointer<OvAuxiliaryClick> &key : qAsConst(m_clickKeys))
        isInUse = isInUse || (key && key->keyText() == keyText);
    if (isInUse)
        showToast(tr("This Key Binding is Already in Use"));
    return isInUse;
}

// Also a key that is in no list any more goes.
void KeyboardMapMgr::onKeyDeleteBtnClicked()
{
    auto *key = qobject_cast<OvAuxiliaryKey *>(sender());
    if (!key)
        return;
    if (auto *click = qobject_cast<OvAuxiliaryClick *>(key))
        m_clickKeys.removeAll(click);
    key->liftFinger();
    key->hide();
    key->deleteLater();
}

void KeyboardMapMgr::relayoutKeys()
{
    const QVector<OvAuxiliaryKey *> all = keys();
    for (OvAuxiliaryKey *key : all)
        key->relayout();
}

void KeyboardMapMgr::clearKeys()
{
    liftFingers();
    const QVector<OvAuxiliaryKey *> all = keys();
    m_clickKeys.clear();
    qDeleteAll(all);
}

// ---- Fingers ----

void KeyboardMapMgr::liftFingers()
{
    const QVector<OvAuxiliaryKey *> all = keys();
    for (OvAuxiliaryKey *key : all)
        key->liftFinger();
}

void KeyboardMapMgr::appendTouchPoints(QVector<int> &xs, QVector<int> &ys, const QSize &remote)
{
    collectTouchPoints(xs, ys, remote);
}

void KeyboardMapMgr::collectTouchPoints(QVector<int> &xs, QVector<int> &ys, QSize deviceSize)
{
    const auto append = [&](OvAuxiliaryKey *key) {
        if (!key)
            return;
        const QPointF point = key->touchPoint(deviceSize);
        if (qFuzzyCompare(point.x(), NoFinger) && qFuzzyCompare(point.y(), NoFinger))
            return;
        xs.append(pixelOf(point.x()));
        ys.append(pixelOf(point.y()));
    };
    for (const QPointer<OvAuxiliaryClick> &key : qAsConst(m_clickKeys))
        append(key);
    append(m_crosshairKey);
    append(m_walkingKey);
}

// ---- Schemes ----

QString KeyboardMapMgr::keysToJson() const
{
    QJsonArray array;
    const QVector<OvAuxiliaryKey *> all = keys();
    for (const OvAuxiliaryKey *key : all) {
        QJsonObject object = toJson(*key);
        if (const auto *crosshair = qobject_cast<const OvAuxiliaryCrosshair *>(key)) {
            object.insert(QStringLiteral("isLockKey"), true);
            object.insert(QStringLiteral("mouseDpi"), crosshair->sensitivity());
        }
        array.append(object);
    }
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

void KeyboardMapMgr::saveCurrentScheme(QVariantMap &scheme)
{
    scheme.insert(Config, keysToJson());
    onActionMapConfig(QStringLiteral("update"), scheme);
    m_currentConfigJson = jsonText(scheme);
    m_savedMapId = m_currentMapId;
    AppSettings().setValue(LocalCopy, m_currentConfigJson);
}

void KeyboardMapMgr::keepLocalCopy(QVariantMap &scheme) const
{
    scheme.insert(Config, keysToJson());
    AppSettings().setValue(LocalCopy, jsonText(scheme));
}

QString KeyboardMapMgr::localCopy()
{
    return AppSettings().value(LocalCopy).toString();
}

QJsonObject KeyboardMapMgr::mapConfigAt(int index) const
{
    if (index < 0 || index >= m_mapConfigs.size())
        return {};
    return m_mapConfigs.at(index).toObject();
}

void KeyboardMapMgr::onComboBoxItemChanged(int index)
{
    m_isModified = false;
    if (m_isComboBoxUpdating)
        return;
    if (index >= 0 && index < m_mapConfigs.size()) {
        m_currentMapId = idOf(mapConfigAt(index));
        return;
    }
    clearKeys();
    m_currentMapId.clear();
}

// ---- The service ----

HttpHelper *KeyboardMapMgr::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return m_httpHelper;
}

void KeyboardMapMgr::onRefreshMapConfig()
{
    const Operation refresh{QStringLiteral("refresh"),
        [this](const ResponseData &response) { takeMapConfigs(response.data); }, {}};
    httpHelper()->get(
        endpoint("mapConfigList"),
        [this, refresh](const ResponseData &response) { onAnswer(refresh, response); },
        [this, refresh](const QString &error) { onTransportFailure(refresh, error); });
}

void KeyboardMapMgr::takeMapConfigs(const QJsonValue &data)
{
    if (!data.isArray()) {
        qWarning() << "the list of key-map schemes is no array";
        return;
    }
    m_mapConfigs = data.toArray();
    relayoutKeys();
    emit sigRefreshConfigSuccess();
}

void KeyboardMapMgr::onCreateMapConfig()
{
    post("createMapConfig", {},
        {QStringLiteral("create"),
            [this](const ResponseData &response) {
                m_currentMapId = idOf(response.data.toObject());
                onRefreshMapConfig();
                showToast(tr("Operated successfully"));
            },
            {}});
}

// A new name is shown before the service has it.
void KeyboardMapMgr::onActionMapConfig(QString type, const QVariantMap &mapConfig)
{
    QJsonObject body{{MapId, m_currentMapId}, {ActionType, type}};
    for (auto entry = mapConfig.cbegin(); entry != mapConfig.cend(); ++entry)
        body.insert(entry.key(), QJsonValue::fromVariant(entry.value()));
    const bool isRenaming = mapConfig.contains(MapName);
    const bool isSaving = mapConfig.contains(Config);
    if (isSaving)
        m_isModified = false; // what is changed from now on is not in what is sent
    post("actionMapConfig", body,
        {type,
            [this, isSaving](const ResponseData &) {
                QTimer::singleShot(RefreshDelay, this, &KeyboardMapMgr::onRefreshMapConfig);
                showToast(tr("Operated successfully"));
                if (isSaving)
                    emit sigSaved(true);
            },
            [this, isRenaming, isSaving] {
                m_isModified = m_isModified || isSaving;
                if (isRenaming)
                    emit sigUpdateComboBox();
                if (isSaving)
                    emit sigSaved(false);
            }});
}

void KeyboardMapMgr::onShareMapConfig()
{
    post("shareMapConfig", {{MapId, m_currentMapId}},
        {QStringLiteral("shared"),
            [this](const ResponseData &) {
                onRefreshMapConfig();
                showToast(tr("Operated successfully"));
            },
            {}});
}

void KeyboardMapMgr::post(const char *path, const QJsonObject &body, const Operation &operation)
{
    httpHelper()->post(
        endpoint(path), QString::fromUtf8(QJsonDocument(body).toJson()),
        [this, operation](const ResponseData &response) { onAnswer(operation, response); },
        [this, operation](const QString &error) { onTransportFailure(operation, error); });
}

void KeyboardMapMgr::onAnswer(const Operation &operation, const ResponseData &response)
{
    if (response.code == SuccessCode) {
        operation.onSuccess(response);
        return;
    }
    qWarning().noquote().nospace() << operation.name << " map config request error!"
                                   << "\nresponse msg --> " << response.msg;
    showToast(response.msg);
    if (operation.onFailure)
        operation.onFailure();
}

void KeyboardMapMgr::onTransportFailure(const Operation &operation, const QString &error)
{
    qWarning().noquote().nospace() << operation.name << " map config request failed!"
                                   << "\nresponse data --> " << error;
    showToast(error);
    if (operation.onFailure)
        operation.onFailure();
}

void KeyboardMapMgr::showToast(const QString &text)
{
    if (!text.isEmpty())
        (new OvToast(qobject_cast<QWidget *>(parent())))->show(text, ToastSeconds);
}
