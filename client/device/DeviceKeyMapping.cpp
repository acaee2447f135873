#include "device/DeviceKeyMapping.h"

#include "keymap/KeyMapGuide.h"
#include "keymap/KeyboardMapEditor.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "keymap/SchemeImporter.h"
#include "keymap/ShareConfigDlg.h"
#include "stream/VideoView.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvToast.h"
#include "widgets/OvWindowBase.h"

#include <QDebug>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace {

constexpr int ToastSeconds = 3;
constexpr std::chrono::seconds ShownFor{2}; // keys that are not seen in play

// Of a question that was left without an answer; the dialog's own results are 0 and 1.
constexpr int Unanswered = 2;

} // namespace

DeviceKeyMapping::DeviceKeyMapping(VideoView *view, OvWindowBase *window)
    : QObject(window)
    , m_view(view)
    , m_window(window)
    , m_manager(new KeyboardMapMgr(window))
    , m_editor(new KeyboardMapEditor(m_manager, window))
    , m_importer(new SchemeImporter(m_manager, window))
{
    m_editor->hide();
    view->setTouchPointSource(m_manager);
    connect(
        m_manager, &KeyboardMapMgr::sigRecordingStatusChanged, view, &VideoView::onRecordingStatusChanged);
    connect(m_editor, &KeyboardMapEditor::sigOpacityValueChanged, this, &DeviceKeyMapping::sigOperation);
    connect(m_editor, &KeyboardMapEditor::sigSizeValueChanged, this, &DeviceKeyMapping::sigOperation);
}

// The tutorial is a window of its own.
DeviceKeyMapping::~DeviceKeyMapping()
{
    if (m_guide)
        m_guide->close();
}

// ---- Keys ----

template <typename Key>
OvAuxiliaryKey *DeviceKeyMapping::makeKey()
{
    auto *key = new Key(m_manager, m_view);
    // The base's signal, which the click key emits as well as its own.
    connect(key, &OvAuxiliaryKey::sigAuxiliaryKeyAction, m_view, &VideoView::onAuxiliaryKeyAction);
    connect(m_view, &VideoView::screenRotation, key, &OvAuxiliaryKey::onScreenRotation);
    connect(
        m_editor, &KeyboardMapEditor::sigOpacityValueChanged, key, &OvAuxiliaryKey::onAlphaChannelChanged);
    connect(m_editor, &KeyboardMapEditor::sigSizeValueChanged, key, &OvAuxiliaryKey::onSizeChanged);
    key->onScreenRotation(m_view->orientation());
    key->applySize(m_editor->keySize());
    key->applyAlpha(m_editor->opacity());
    m_manager->addAuxiliaryKey(key->type(), key);
    key->installEventFilter(this);
    m_window->installEventFilter(key);
    key->liftFinger(); // what is held now was not pressed for this key, so that its release means nothing
    key->show();
    return key;
}

OvAuxiliaryKey *DeviceKeyMapping::createKey(keymap::KeyType type)
{
    m_played = {};
    switch (type) {
    case keymap::ClickKey:
        return makeKey<OvAuxiliaryClick>();
    case keymap::WalkingKey:
        return makeKey<OvAuxiliaryWalking>();
    case keymap::CrosshairKey:
        return makeKey<OvAuxiliaryCrosshair>();
    }
    return nullptr;
}

void DeviceKeyMapping::addKey(keymap::KeyType type)
{
    if (!isEditing() || m_manager->hasPendingKey(type))
        return;
    createKey(type)->setFocus();
    emit sigOperation();
}

bool DeviceKeyMapping::eventFilter(QObject *watched, QEvent *event)
{
    // Asked for the type first: the question tells of its own end as well, when it is one no more.
    if (event->type() == QEvent::KeyPress && watched == m_question
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        m_question->done(Unanswered); // what is at stake is not given up by a key
        return true;
    }
    const bool isByUser = event->type() == QEvent::MouseButtonPress
        || event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress;
    if (isByUser && isEditing())
        emit sigOperation();
    return QObject::eventFilter(watched, event);
}

void DeviceKeyMapping::liftFingers()
{
    m_manager->liftFingers();
}

// ---- Editing ----

bool DeviceKeyMapping::isEditing() const
{
    return m_manager->isRecording();
}

bool DeviceKeyMapping::hasUnsavedEdits() const
{
    return isEditing() && m_manager->isModified();
}

void DeviceKeyMapping::beginEditing()
{
    followOrientation();
    setKeysShown(false);
    m_manager->setRecording(true);
    m_editor->show();
    m_manager->onRefreshMapConfig();
}

void DeviceKeyMapping::endEditing()
{
    m_editor->hide();
    m_manager->setRecording(false);
    restorePlayed();
}

void DeviceKeyMapping::followOrientation()
{
    m_editor->setOrientation(m_view->orientation());
}

// The list of schemes took the keys away, since they belong to none of it, and the user chose no other.
void DeviceKeyMapping::restorePlayed()
{
    if (!m_manager->currentMapId().isEmpty())
        m_played = {};
    if (m_played.isEmpty() || !m_manager->keys().isEmpty())
        return;
    const QJsonObject played = m_played;
    m_editor->applySchemeObject(played, true);
    m_played = played;
}

void DeviceKeyMapping::askToSave()
{
    if (m_question)
        return;
    const QRect body = m_window->rect().marginsRemoved(m_window->mainLayout()->contentsMargins());
    m_question = new OvMaskTipsDialog(m_window);
    m_question->setFixedSize(body.size());
    m_question->move(body.topLeft());
    m_question->setText(
        tr("The current layout is not saved yet. Do you want to save the current keyboard layout"));
    m_question->installEventFilter(this);
    connect(m_question, &OvMaskTipsDialog::sigConfirmBtnClicked, this, &DeviceKeyMapping::sigSaveWanted);
    connect(m_question, &OvMaskTipsDialog::sigCancelBtnClicked, this, &DeviceKeyMapping::onDeclined);
    connect(m_question, &QDialog::finished, this, [this](int result) {
        m_question.clear();
        if (result == Unanswered)
            emit sigStayWanted();
    });
    m_question->open();
}

// A window that has gone took the question along; nobody has answered it.
void DeviceKeyMapping::onDeclined()
{
    if (m_window->isVisible())
        emit sigDiscardWanted();
}

void DeviceKeyMapping::save()
{
    m_editor->onSaveBtnClicked();
}

void DeviceKeyMapping::discardChanges()
{
    m_editor->discardChanges();
}

void DeviceKeyMapping::abandon()
{
    if (m_question)
        m_question->disconnect(this);
    if (m_guide)
        m_guide->close();
    if (!hasUnsavedEdits())
        return;
    qWarning() << "a key layout was not saved when its window was closed; it is kept as the local copy";
    QVariantMap scheme = m_editor->scheme();
    m_manager->keepLocalCopy(scheme);
}

// ---- The local copy ----

// A local copy that is not the last save of this window may be of another scheme than the current one, which
// must not be saved with these keys.
void DeviceKeyMapping::applyLocalCopy()
{
    const QString text = KeyboardMapMgr::localCopy();
    qDebug().noquote().nospace() << "onApplyKeyBindingBtnClicked ---> " << text;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject()) {
        if (!text.isEmpty())
            qWarning() << "the local copy of the key mapping is no JSON object";
        (new OvToast(m_window))->show(tr("There is no saved key layout yet"), ToastSeconds);
        return;
    }
    const bool isOwnSave = text == m_manager->currentConfigJson();
    m_manager->setCurrentMapId(isOwnSave ? m_manager->savedMapId() : QString());
    m_manager->setModified(false);
    m_editor->applySchemeObject(document.object(), true);
    m_played = document.object();
    showKeysForAMoment();
}

void DeviceKeyMapping::showKeysForAMoment()
{
    if (m_manager->showKeys() || isEditing())
        return;
    setKeysShown(true);
    QTimer::singleShot(ShownFor, this, [this] { setKeysShown(false); });
}

void DeviceKeyMapping::setKeysShown(bool shown)
{
    const QVector<OvAuxiliaryKey *> keys = m_manager->keys();
    for (OvAuxiliaryKey *key : keys)
        key->setNoteFlag(shown);
}

// ---- Windows ----

void DeviceKeyMapping::openGuide()
{
    if (!m_guide) {
        m_guide = new KeyMapGuide;
        m_guide->load();
    }
    m_guide->show();
    m_guide->raise();
    m_guide->activateWindow();
}

void DeviceKeyMapping::openShareDialog(const QWidget *opener)
{
    if (m_shareDialog)
        return;
    m_shareDialog = new ShareConfigDlg(m_window);
    connect(m_shareDialog, &ShareConfigDlg::sigConfirmBtnClicked, this, &DeviceKeyMapping::sigShareConfirmed);
    m_shareDialog->openAt(opener);
}

void DeviceKeyMapping::importShared()
{
    if (m_shareDialog)
        m_importer->importFrom(m_shareDialog);
}
