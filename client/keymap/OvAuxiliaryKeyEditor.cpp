#include "keymap/OvAuxiliaryKeyEditor.h"

#include "keymap/OvAuxiliaryCrosshair.h"
#include "widgets/DpiScaling.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int Margin = 5;
constexpr int Spacing = 10;
constexpr int ButtonSide = 20;
constexpr int IconSide = 16;
constexpr int FieldWidth = 100;
constexpr int FieldHeight = 20;
constexpr QRgb Background = qRgb(255, 255, 255);
constexpr QRgb Accent = qRgb(0x07, 0xCC, 0xFB);
} // namespace Look

constexpr double SensitivityStep = 0.1;
constexpr int SensitivityDecimals = 1;

QString popupStyle()
{
    return QStringLiteral("QLabel { color: #606266; font-size: 12px; }"
                          "QLineEdit, QDoubleSpinBox { color: #606266; font-size: 12px; background: white;"
                          " border: 1px solid #DCDFE6; border-radius: 2px; padding: 0 3px; }"
                          "QLineEdit:focus, QDoubleSpinBox:focus { border-color: #07CCFB; }"
                          "QPushButton { border: none; border-radius: 4px; background: transparent; }"
                          "QPushButton:hover { background: #E6F9FE; }"
                          "QPushButton:pressed { background: #CDF3FE; }");
}

} // namespace

OvAuxiliaryKeyEditor::OvAuxiliaryKeyEditor(OvAuxiliaryKey *key, bool hasSensitivity)
    : QWidget(key, Qt::Tool | Qt::FramelessWindowHint)
    , m_key(key)
    , m_noteLabel(new QLabel(this))
    , m_noteEdit(new QLineEdit(this))
    , m_closeButton(
          createButton(QStringLiteral("closeButton"), QStringLiteral(":/icon/svg/auxiliarykey_close")))
    , m_confirmButton(
          createButton(QStringLiteral("confirmButton"), QStringLiteral(":/icon/svg/auxiliarykey_confirm")))
{
    setStyleSheet(popupStyle());
    m_noteEdit->setObjectName(QStringLiteral("noteEdit"));
    m_noteEdit->setFixedSize(scaled(Look::FieldWidth, this), scaled(Look::FieldHeight, this));

    auto *layout = new QVBoxLayout(this);
    const int margin = scaled(Look::Margin, this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(scaled(Look::Spacing, this));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    buttons->addWidget(m_confirmButton);
    layout->addLayout(buttons);
    layout->addWidget(m_noteLabel);
    layout->addWidget(m_noteEdit);
    if (hasSensitivity)
        createSensitivity(layout);
    setTexts();
    connect(m_closeButton, &QPushButton::clicked, this, &OvAuxiliaryKeyEditor::onCancelBtnClicked);
    connect(m_confirmButton, &QPushButton::clicked, this, &OvAuxiliaryKeyEditor::onConfirmBtnClicked);
}

OvAuxiliaryKeyEditor::~OvAuxiliaryKeyEditor() = default;

QPushButton *OvAuxiliaryKeyEditor::createButton(const QString &objectName, const QString &icon)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFixedSize(scaled(Look::ButtonSide, this), scaled(Look::ButtonSide, this));
    button->setIcon(QIcon(icon));
    button->setIconSize(QSize(scaled(Look::IconSide, this), scaled(Look::IconSide, this)));
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

void OvAuxiliaryKeyEditor::createSensitivity(QVBoxLayout *layout)
{
    m_sensitivityLabel = new QLabel(this);
    m_sensitivitySpin = new QDoubleSpinBox(this);
    m_sensitivitySpin->setObjectName(QStringLiteral("sensitivitySpin"));
    m_sensitivitySpin->setRange(
        OvAuxiliaryCrosshair::minimumSensitivity, OvAuxiliaryCrosshair::maximumSensitivity);
    m_sensitivitySpin->setSingleStep(SensitivityStep);
    m_sensitivitySpin->setDecimals(SensitivityDecimals);
    m_sensitivitySpin->setValue(OvAuxiliaryCrosshair::defaultSensitivity);
    m_sensitivitySpin->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_sensitivitySpin->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    m_sensitivitySpin->setFixedSize(scaled(Look::FieldWidth, this), scaled(Look::FieldHeight, this));
    layout->addWidget(m_sensitivityLabel);
    layout->addWidget(m_sensitivitySpin);
}

void OvAuxiliaryKeyEditor::setTexts()
{
    m_noteLabel->setText(tr("Add Button Notes"));
    if (m_sensitivityLabel)
        m_sensitivityLabel->setText(tr("Mouse Sensitivity"));
}

void OvAuxiliaryKeyEditor::setNoteText(const QString &text)
{
    m_noteEdit->setText(text);
}

void OvAuxiliaryKeyEditor::setSensitivity(double sensitivity)
{
    if (m_sensitivitySpin)
        m_sensitivitySpin->setValue(sensitivity);
}

void OvAuxiliaryKeyEditor::moveTo(const QPoint &point)
{
    QPoint place = point;
    const QScreen *screen = QGuiApplication::screenAt(point);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (screen) {
        const QRect room = screen->availableGeometry();
        const QSize needed = sizeHint();
        place.setX(qMax(room.left(), qMin(place.x(), room.right() + 1 - needed.width())));
        place.setY(qMax(room.top(), qMin(place.y(), room.bottom() + 1 - needed.height())));
    }
    move(place);
}

void OvAuxiliaryKeyEditor::onCancelBtnClicked()
{
    m_key->syncNoteEditor();
    hide();
}

void OvAuxiliaryKeyEditor::onConfirmBtnClicked()
{
    m_key->setNote(m_noteEdit->text());
    auto *crosshair = qobject_cast<OvAuxiliaryCrosshair *>(m_key);
    if (crosshair && m_sensitivitySpin) {
        m_sensitivitySpin->interpretText(); // what is typed counts without leaving the field
        crosshair->setSensitivity(m_sensitivitySpin->value());
    }
    hide();
}

void OvAuxiliaryKeyEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        onCancelBtnClicked();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        onConfirmBtnClicked();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void OvAuxiliaryKeyEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void OvAuxiliaryKeyEditor::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_noteEdit->setFocus();
}

void OvAuxiliaryKeyEditor::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QColor(Look::Accent));
    painter.setBrush(QColor(Look::Background));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
