#include "keymap/KeyboardMapEditor.h"

#include "keymap/KeyKindButton.h"
#include "keymap/KeyMapControls.h"
#include "keymap/KeyboardMapMgr.h"
#include "keymap/OvAuxiliaryClick.h"
#include "keymap/OvAuxiliaryCrosshair.h"
#include "keymap/OvAuxiliaryWalking.h"
#include "keymap/SchemeBox.h"
#include "keymap/WrappingCheckBox.h"
#include "widgets/DpiScaling.h"
#include "widgets/FittedText.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvSlider.h"
#include "widgets/OvWindowBase.h"

#include <QClipboard>
#include <QDebug>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QJsonDocument>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int Margin = 12;
constexpr int TightMargin = 8; // above and below in a low panel
constexpr int Spacing = 12;
constexpr int TightSpacing = 4;
constexpr int LowPanel = 420; // a lower one is laid out tightly
constexpr int HeaderPixels = 14;
constexpr int HeaderButtonPixels = 12;
constexpr int SmallestTextPixels = 10;
constexpr int HeaderIcon = 18;
constexpr int HeaderButtonHeight = 26;
constexpr int HeaderButtonPadding = 5; // on each side
constexpr QSize Button(110, 40);
constexpr int ButtonMargin = 6; // of its text
constexpr QRgb Ground = qRgba(28, 28, 46, 255);
} // namespace Look

// Members of the requests.
namespace Member {
const QString mapId = QStringLiteral("map_id");
const QString mapName = QStringLiteral("map_name");
const QString opacity = QStringLiteral("key_transparency");
const QString size = QStringLiteral("key_size");
const QString showKeys = QStringLiteral("show_key");
const QString showKeyNotes = QStringLiteral("show_key_desc");
const QString orientation = QStringLiteral("screen_orientation");
} // namespace Member

QString headerButtonStyle()
{
    return QStringLiteral("QPushButton { border: none; border-radius: 4px; color: white; padding: 0 %1px;"
                          " background: transparent; }"
                          "QPushButton:hover { background: #3A3C55; }"
                          "QPushButton:pressed { background: #2C2D42; }")
        .arg(Look::HeaderButtonPadding);
}

QString resetButtonStyle()
{
    return QStringLiteral("QPushButton { border: 1px solid #07CCFB; border-radius: 4px; color: #07CCFB;"
                          " background: transparent; }"
                          "QPushButton:hover { background: #2C2D42; }"
                          "QPushButton:pressed { background: #3A3C55; }"
                          "QPushButton:disabled { border-color: #606266; color: #606266; }");
}

QString saveButtonStyle()
{
    return QStringLiteral(
        "QPushButton { border: none; border-radius: 4px; color: white; background: #07CCFB; }"
        "QPushButton:hover { background: #3AD7FC; }"
        "QPushButton:pressed { background: #06B4DE; }"
        "QPushButton:disabled { background: #2C2D42; color: #606266; }");
}

QPushButton *createButton(const QString &objectName, const QString &style)
{
    auto *button = new QPushButton;
    button->setObjectName(objectName);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard is the keys' that are being bound
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(style);
    return button;
}

QPushButton *createHeaderButton(const QString &objectName, const QString &iconPath)
{
    QPushButton *button = createButton(objectName, headerButtonStyle());
    button->setIcon(QIcon(iconPath));
    button->setIconSize({Look::HeaderIcon, Look::HeaderIcon});
    button->setFixedHeight(Look::HeaderButtonHeight);
    QFont font = button->font();
    font.setPixelSize(Look::HeaderButtonPixels);
    button->setFont(font);
    return button;
}

void setButtonText(QPushButton *button, const QString &text)
{
    const int room = button->width() - 2 * Look::ButtonMargin;
    button->setFont(
        FittedText::onOneLine(button->font(), text, room, Look::HeaderPixels, Look::SmallestTextPixels));
    button->setText(text);
}

} // namespace

KeyboardMapEditor::KeyboardMapEditor(KeyboardMapMgr *manager, QWidget *parent)
    : QWidget(parent)
    , m_manager(manager)
{
    setFixedWidth(scaled(panelWidth, this));
    createWidgets();
    createLayout();
    setTexts();
    connectWidgets();
    connectManager();
    m_schemeBox->addNoScheme(tr("Not using the scheme"));
    setEditControlsEnabled(false);
}

KeyboardMapEditor::~KeyboardMapEditor() = default;

// ---- What it is made of ----

void KeyboardMapEditor::createWidgets()
{
    m_headerLabel = new QLabel;
    m_headerLabel->setObjectName(QStringLiteral("headerLabel"));
    QFont font = m_headerLabel->font();
    font.setPixelSize(Look::HeaderPixels);
    font.setBold(true);
    m_headerLabel->setFont(font);
    m_headerLabel->setStyleSheet(QStringLiteral("color: white;"));
    m_addButton = createHeaderButton(QStringLiteral("addButton"), QStringLiteral(":/icon/svg/addConfig.svg"));
    m_refreshButton = createHeaderButton(
        QStringLiteral("refreshButton"), QStringLiteral(":/icon/svg/refreshConfigList.svg"));
    m_schemeBox = new SchemeBox;
    m_controls = new KeyMapControls;
    m_resetButton = createButton(QStringLiteral("resetButton"), resetButtonStyle());
    m_saveButton = createButton(QStringLiteral("saveButton"), saveButtonStyle());
    for (QPushButton *button : {m_resetButton, m_saveButton})
        button->setFixedSize(scaled(Look::Button.width(), this), scaled(Look::Button.height(), this));
}

void KeyboardMapEditor::createLayout()
{
    auto *header = new QHBoxLayout;
    header->setSpacing(0);
    header->addWidget(m_headerLabel, 1);
    header->addWidget(m_addButton);
    header->addWidget(m_refreshButton);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_resetButton);
    buttons->addStretch();
    buttons->addWidget(m_saveButton);
    buttons->addStretch();
    m_frame = new QVBoxLayout(this);
    m_frame->addLayout(header);
    m_frame->addWidget(m_schemeBox);
    m_frame->addWidget(m_controls, 1);
    m_frame->addLayout(buttons);
}

void KeyboardMapEditor::connectWidgets()
{
    connect(m_controls->clickButton(), &QPushButton::clicked, this,
        &KeyboardMapEditor::sigAuxiliaryClickBtnClicked);
    connect(m_controls->walkingButton(), &QPushButton::clicked, this,
        &KeyboardMapEditor::sigAuxiliaryWalkingClicked);
    connect(m_controls->crosshairButton(), &QPushButton::clicked, this,
        &KeyboardMapEditor::sigAuxiliaryCrosshairClicked);
    connect(m_controls->opacitySlider(), &QSlider::valueChanged, this,
        &KeyboardMapEditor::sigOpacityValueChanged);
    connect(m_controls->sizeSlider(), &QSlider::valueChanged, this, &KeyboardMapEditor::sigSizeValueChanged);
    connect(m_resetButton, &QPushButton::clicked, this, &KeyboardMapEditor::onResetBtnClicked);
    connect(m_saveButton, &QPushButton::clicked, this, &KeyboardMapEditor::onSaveBtnClicked);
}

// The manager hears of a new row before the editor does.
void KeyboardMapEditor::connectManager()
{
    if (m_manager) {
        connect(m_addButton, &QPushButton::clicked, m_manager, &KeyboardMapMgr::onCreateMapConfig);
        connect(m_refreshButton, &QPushButton::clicked, m_manager, &KeyboardMapMgr::onRefreshMapConfig);
        connect(m_manager, &KeyboardMapMgr::sigRefreshConfigSuccess, this,
            &KeyboardMapEditor::onRefreshConfigSuccess);
        connect(m_manager, &KeyboardMapMgr::sigUpdateComboBox, this, &KeyboardMapEditor::onUpdateComboBox);
        connect(m_schemeBox, qOverload<int>(&QComboBox::currentIndexChanged), m_manager,
            &KeyboardMapMgr::onComboBoxItemChanged);
        connect(m_controls->showKeysBox(), &QCheckBox::stateChanged, m_manager,
            &KeyboardMapMgr::onShowBtnCheckBoxStateChanged);
        connect(m_controls->showNotesBox(), &QCheckBox::stateChanged, m_manager,
            &KeyboardMapMgr::onShowNoteCheckBoxStateChanged);
    }
    connect(m_schemeBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
        &KeyboardMapEditor::onComboBoxItemChanged);
}

void KeyboardMapEditor::setTexts()
{
    m_headerLabel->setText(tr("Key Preset"));
    m_addButton->setToolTip(tr("Add scheme"));
    m_refreshButton->setToolTip(tr("Refresh"));
    setButtonText(m_resetButton, tr("Reset"));
    setButtonText(m_saveButton, tr("Save"));
    for (QPushButton *button : {m_addButton, m_refreshButton})
        button->setAccessibleName(button->toolTip());
    showHeaderTexts();
}

void KeyboardMapEditor::setEditControlsEnabled(bool enabled)
{
    m_controls->setEditable(enabled);
    m_resetButton->setEnabled(enabled);
    m_saveButton->setEnabled(enabled);
}

// Where the texts of the two buttons have no room beside the header, they are in the tool tips alone.
void KeyboardMapEditor::showHeaderTexts()
{
    const QFontMetrics metrics(m_addButton->font());
    int needed = QFontMetrics(m_headerLabel->font()).horizontalAdvance(m_headerLabel->text());
    for (const QPushButton *button : {m_addButton, m_refreshButton})
        needed += metrics.horizontalAdvance(button->toolTip()) + Look::HeaderIcon
            + 4 * Look::HeaderButtonPadding;
    const bool fits = needed <= width() - 2 * Look::Margin;
    for (QPushButton *button : {m_addButton, m_refreshButton})
        button->setText(fits ? button->toolTip() : QString());
}

int KeyboardMapEditor::opacity() const
{
    return m_controls->opacitySlider()->value();
}

int KeyboardMapEditor::keySize() const
{
    return m_controls->sizeSlider()->value();
}

void KeyboardMapEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        if (m_manager)
            onUpdateComboBox(); // the rows' texts
    }
    QWidget::changeEvent(event);
}

void KeyboardMapEditor::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor::fromRgba(Look::Ground));
}

void KeyboardMapEditor::resizeEvent(QResizeEvent *event)
{
    const bool isLow = height() < Look::LowPanel;
    const int vertical = isLow ? Look::TightMargin : Look::Margin;
    m_frame->setContentsMargins(Look::Margin, vertical, Look::Margin, vertical);
    m_frame->setSpacing(isLow ? Look::TightSpacing : Look::Spacing);
    m_controls->setSpacing(isLow ? Look::TightSpacing : Look::Spacing);
    showHeaderTexts();
    QWidget::resizeEvent(event);
}

// ---- The schemes ----

// What is not saved yet stays, and so does a name that is being typed.
void KeyboardMapEditor::onRefreshConfigSuccess()
{
    if (!m_manager)
        return;
    const bool wasModified = m_manager->isModified();
    const bool wasOpen = m_schemeBox->isOpen();
    const SchemeBox::Renaming renaming = m_schemeBox->renaming();
    m_isFilling = true;
    m_manager->setComboBoxUpdating(true);
    fillRows();
    selectCurrentScheme();
    m_manager->setComboBoxUpdating(false);
    m_isFilling = false;
    m_manager->setModified(wasModified && !m_manager->currentMapId().isEmpty());
    if (wasOpen)
        m_schemeBox->showPopup(); // as large as the new rows need it
    m_schemeBox->resume(renaming);
}

void KeyboardMapEditor::onUpdateComboBox()
{
    onRefreshConfigSuccess();
}

void KeyboardMapEditor::fillRows()
{
    m_schemeBox->clear();
    const QJsonArray schemes = m_manager->mapConfigs();
    for (const QJsonValue &entry : schemes) {
        const QJsonObject scheme = entry.toObject();
        const SchemeBox::Row row = m_schemeBox->addScheme(
            scheme.value(Member::mapId).toVariant().toString(), scheme.value(Member::mapName).toString());
        connect(row.editButton, &QPushButton::clicked, this, &KeyboardMapEditor::onItemEditBtnClicked);
        connect(row.shareButton, &QPushButton::clicked, this, &KeyboardMapEditor::onItemShareBtnClicked);
        connect(row.copyButton, &QPushButton::clicked, this, &KeyboardMapEditor::onItemCopyBtnClicked);
        connect(row.deleteButton, &QPushButton::clicked, this, &KeyboardMapEditor::onItemDeleteBtnClicked);
        connect(row.item, &OvComboBoxEditableItem::sigItemTextChanged, this,
            &KeyboardMapEditor::onItemTextChanged);
    }
    m_schemeBox->addNoScheme(tr("Not using the scheme"));
}

// A scheme that has just become the current one, such as a new one, is laid over a video without keys. Keys
// that are there stay: they may not have been saved yet.
void KeyboardMapEditor::selectCurrentScheme()
{
    const QString mapId = m_manager->currentMapId();
    const int row = m_schemeBox->rowOf(mapId);
    if (row < 0) {
        m_manager->clearKeys();
        m_schemeBox->setCurrentIndex(m_schemeBox->count() - 1);
        m_manager->setCurrentMapId(QString());
        m_shownMapId.clear();
        setEditControlsEnabled(false);
        return;
    }
    m_manager->relayoutKeys();
    m_schemeBox->setCurrentIndex(row);
    setEditControlsEnabled(true);
    if (mapId != m_shownMapId && m_manager->keys().isEmpty())
        apply(KeyMapScheme::fromList(m_manager->mapConfigAt(row)), false);
    m_shownMapId = mapId;
}

void KeyboardMapEditor::onComboBoxItemChanged(int index)
{
    if (index < 0 || !m_manager || m_isFilling)
        return;
    setEditControlsEnabled(index < m_manager->mapConfigs().size());
    m_shownMapId = m_schemeBox->mapIdAt(index);
    apply(KeyMapScheme::fromList(m_manager->mapConfigAt(index)), false);
}

void KeyboardMapEditor::applySchemeObject(const QJsonObject &scheme, bool oneClick)
{
    if (!m_manager)
        return;
    m_manager->setComboBoxUpdating(oneClick);
    apply(KeyMapScheme::fromLocalCopy(scheme), !m_manager->isRecording());
    if (m_manager)
        m_manager->setComboBoxUpdating(false);
}

// The last save may be newer than the list, or one that the service never got.
void KeyboardMapEditor::discardChanges()
{
    if (!m_manager)
        return;
    const QString mapId = m_manager->currentMapId();
    m_manager->setModified(false);
    if (!mapId.isEmpty() && mapId == m_manager->savedMapId()) {
        applySchemeObject(QJsonDocument::fromJson(m_manager->currentConfigJson().toUtf8()).object(), false);
        return;
    }
    const int row = m_schemeBox->rowOf(mapId);
    if (row < 0)
        m_manager->clearKeys();
    else
        apply(KeyMapScheme::fromList(m_manager->mapConfigAt(row)), false);
}

void KeyboardMapEditor::apply(const KeyMapScheme &scheme, bool toReference)
{
    m_manager->clearKeys();
    applySettings(scheme);
    for (const KeyMapScheme::Key &key : scheme.keys)
        applyKey(scheme, key, toReference);
}

void KeyboardMapEditor::applySettings(const KeyMapScheme &scheme)
{
    m_controls->opacitySlider()->setValue(scheme.opacity);
    m_controls->sizeSlider()->setValue(scheme.size);
    m_controls->showKeysBox()->setChecked(scheme.showKeys);
    m_manager->setShowKeys(scheme.showKeys);
    m_controls->showNotesBox()->setChecked(scheme.showKeyNotes);
    m_manager->setShowKeyNotes(scheme.showKeyNotes);
}

// Null if nobody made one.
OvAuxiliaryKey *KeyboardMapEditor::createKey(keymap::KeyType type)
{
    const auto newest = [this, type]() -> OvAuxiliaryKey * {
        if (!m_manager || type == keymap::ClickKey)
            return m_manager ? m_manager->lastClickKey() : nullptr;
        if (type == keymap::WalkingKey)
            return m_manager->walkingKey();
        return m_manager->crosshairKey();
    };
    const OvAuxiliaryKey *former = newest();
    switch (type) {
    case keymap::ClickKey:
        emit sigCreateAuxiliaryClickKey();
        break;
    case keymap::WalkingKey:
        emit sigCreateAuxiliaryWalkingKey();
        break;
    case keymap::CrosshairKey:
        emit sigCreateAuxiliaryCrosshairKey();
        break;
    }
    OvAuxiliaryKey *made = newest();
    return made != former ? made : nullptr;
}

// The size comes first: a position is that of the key's corner, and where a turned view puts it depends on
// the key's extent.
void KeyboardMapEditor::applyKey(const KeyMapScheme &scheme, const KeyMapScheme::Key &saved, bool toReference)
{
    OvAuxiliaryKey *key = createKey(saved.type);
    if (!key) {
        qWarning() << "a key of a key-mapping scheme was not made, its kind is" << saved.type;
        return;
    }
    key->onComboBoxUpdate(m_manager->isComboBoxUpdating());
    key->onRecordingStatusChanged(m_manager->isRecording());
    key->applySize(scheme.size);
    key->applyAlpha(scheme.opacity);
    placeKey(key, scheme, saved, toReference);
    key->setKeyText(saved.text);
    key->setNote(saved.note);
    auto *crosshair = qobject_cast<OvAuxiliaryCrosshair *>(key);
    if (crosshair && saved.sensitivity)
        crosshair->setSensitivity(*saved.sensitivity);
}

void KeyboardMapEditor::placeKey(
    OvAuxiliaryKey *key, const KeyMapScheme &scheme, const KeyMapScheme::Key &saved, bool toReference)
{
    const QPoint position = scheme.placed(
        saved.position, key->screenOrientation(), key->size(), scaled(KeyMapScheme::viewShortSide, this));
    if (toReference)
        key->setPositionInReference(position.x(), position.y());
    else
        key->placeAt(position);
}

// ---- What the user does ----

void KeyboardMapEditor::onResetBtnClicked()
{
    if (m_manager)
        m_manager->clearKeys();
}

void KeyboardMapEditor::onSaveBtnClicked()
{
    if (!m_manager)
        return;
    QVariantMap saved = scheme();
    m_manager->saveCurrentScheme(saved);
    emit sigSaveAndClose();
}

QVariantMap KeyboardMapEditor::scheme() const
{
    return {{Member::opacity, opacity()}, {Member::size, keySize()},
        {Member::showKeys, m_controls->showKeysBox()->isChecked()},
        {Member::showKeyNotes, m_controls->showNotesBox()->isChecked()},
        {Member::orientation, m_orientation != ScreenOrientation::Portrait}};
}

void KeyboardMapEditor::actOnScheme(const QString &action, const QVariantMap &scheme)
{
    if (m_manager)
        m_manager->onActionMapConfig(action, scheme);
}

// The button ends what it has begun as well.
void KeyboardMapEditor::onItemEditBtnClicked()
{
    if (OvComboBoxEditableItem *row = SchemeBox::rowWidgetOf(sender()))
        row->onWritableStateChanged(!row->isWritable());
}

// A name that is the scheme's already needs no request.
void KeyboardMapEditor::onItemTextChanged(QString text)
{
    const OvComboBoxEditableItem *row = SchemeBox::rowWidgetOf(sender());
    if (!row || m_isFilling || !m_manager)
        return;
    const QString mapId = SchemeBox::mapIdOf(row);
    const int index = m_schemeBox->rowOf(mapId);
    if (m_manager->mapConfigAt(index).value(Member::mapName).toString() == text && index >= 0)
        return;
    actOnScheme(QStringLiteral("update"), {{Member::mapId, mapId}, {Member::mapName, text}});
}

void KeyboardMapEditor::onItemShareBtnClicked()
{
    const QString mapId = SchemeBox::mapIdOf(SchemeBox::rowWidgetOf(sender()));
    if (mapId.isEmpty())
        return;
    m_schemeBox->hidePopup();
    QGuiApplication::clipboard()->setText(mapId);
    showSharingCode(mapId);
}

void KeyboardMapEditor::onItemCopyBtnClicked()
{
    const QString mapId = SchemeBox::mapIdOf(SchemeBox::rowWidgetOf(sender()));
    m_schemeBox->hidePopup();
    actOnScheme(QStringLiteral("copy"), {{Member::mapId, mapId}});
}

void KeyboardMapEditor::onItemDeleteBtnClicked()
{
    const QString mapId = SchemeBox::mapIdOf(SchemeBox::rowWidgetOf(sender()));
    m_schemeBox->hidePopup();
    actOnScheme(QStringLiteral("delete"), {{Member::mapId, mapId}});
}

void KeyboardMapEditor::showSharingCode(const QString &code)
{
    QWidget *covered = window();
    QRect area = covered->rect();
    if (const auto *base = qobject_cast<OvWindowBase *>(covered))
        area = area.marginsRemoved(base->mainLayout()->contentsMargins());
    auto *dialog = new OvMaskTipsDialog(covered);
    dialog->setFixedSize(area.size());
    dialog->move(area.topLeft());
    dialog->setTitle(tr("The sharing code has copied successfully"));
    dialog->setText(
        tr("The sharing code is %1, and can be sent to your friend to be uploaded for use").arg(code));
    dialog->open();
}
