#include "keymap/ShareConfigDlg.h"

#include "widgets/Compositing.h"
#include "widgets/DpiScaling.h"
#include "widgets/FittedText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr int CornerRadius = 4;
constexpr QMargins Margins(48, 40, 48, 32);
constexpr int Spacing = 16;
constexpr QSize Title(300, 30);
constexpr int TitlePixels = 20;
constexpr QSize CodeEdit(203, 32);
constexpr QSize Button(76, 32);
constexpr int ButtonMargin = 4; // of its text
constexpr int ButtonSpacing = 10;
constexpr int TextPixels = 14;
constexpr int SmallestTextPixels = 9;
constexpr QRgb TitleColour = qRgb(0x30, 0x31, 0x33);
constexpr QRgb PromptColour = qRgb(0x60, 0x62, 0x66);
constexpr QRgb EdgeColour = qRgb(0xDC, 0xDF, 0xE6); // sets the panel off from a white ground
} // namespace Look

QString codeEditStyle()
{
    return QStringLiteral(
        "QLineEdit { border: 1px solid #DCDFE6; border-radius: 4px; padding: 0 8px; background: white;"
        " color: #303133; selection-background-color: #07CCFB; }"
        "QLineEdit:focus { border-color: #FF9B7A; }"
        "QLineEdit:disabled { color: #909399; background: #F5F7FA; }");
}

QString closeButtonStyle()
{
    return QStringLiteral("QPushButton { background: #DBDBDB; color: #303133; }"
                          "QPushButton:hover { background: #E6E6E6; }"
                          "QPushButton:pressed { background: #C8C8C8; }"
                          "QPushButton:focus { border-color: #909399; }");
}

QString confirmButtonStyle()
{
    return QStringLiteral("QPushButton { background: #07CCFB; color: white; }"
                          "QPushButton:hover { background: #3AD7FC; }"
                          "QPushButton:pressed { background: #06B4DE; }"
                          "QPushButton:focus { border-color: #0591B3; }"
                          "QPushButton:disabled { background: #A0E8FA; }");
}

QLabel *createLabel(QWidget *parent, const QString &objectName, int pixels, QRgb colour)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(scaled(pixels, parent));
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(colour));
    label->setPalette(palette);
    return label;
}

QSize scaledSize(const QSize &size, const QWidget *widget)
{
    return {scaled(size.width(), widget), scaled(size.height(), widget)};
}

} // namespace

ShareConfigDlg::ShareConfigDlg(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_titleLabel(createLabel(this, QStringLiteral("titleLabel"), Look::TitlePixels, Look::TitleColour))
    , m_hintLabel(createLabel(this, QStringLiteral("hintLabel"), Look::TextPixels, qRgb(255, 255, 255)))
    , m_promptLabel(createLabel(this, QStringLiteral("promptLabel"), Look::TextPixels, Look::PromptColour))
    , m_codeEdit(new QLineEdit(this))
    , m_closeButton(createButton(QStringLiteral("closeButton"), closeButtonStyle()))
    , m_confirmButton(createButton(QStringLiteral("confirmButton"), confirmButtonStyle()))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    m_titleLabel->setFixedSize(scaledSize(Look::Title, this));
    m_hintLabel->setStyleSheet(QStringLiteral(
        "QLabel { background: #8E8E97; color: white; border-radius: 2px; padding: 1px 6px; }"));
    m_promptLabel->setWordWrap(true);
    m_codeEdit->setObjectName(QStringLiteral("codeEdit"));
    QFont editFont = m_codeEdit->font();
    editFont.setPixelSize(scaled(Look::TextPixels, this));
    m_codeEdit->setFont(editFont);
    m_codeEdit->setStyleSheet(codeEditStyle());
    m_codeEdit->setFixedSize(scaledSize(Look::CodeEdit, this));
    m_confirmButton->setDefault(true);
    createLayout();
    setTexts();
    connect(m_closeButton, &QPushButton::clicked, this, &ShareConfigDlg::reject);
    connect(m_confirmButton, &QPushButton::clicked, this, &ShareConfigDlg::sigConfirmBtnClicked);
}

ShareConfigDlg::~ShareConfigDlg() = default;

QPushButton *ShareConfigDlg::createButton(const QString &objectName, const QString &style)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFixedSize(scaledSize(Look::Button, this));
    button->setCursor(Qt::PointingHandCursor);
    button->setAutoDefault(false);
    button->setStyleSheet(
        QStringLiteral("QPushButton { border: 1px solid transparent; border-radius: 4px; }") + style);
    return button;
}

void ShareConfigDlg::createLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(scaled(Look::ButtonSpacing, this));
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    buttons->addWidget(m_confirmButton);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(scaled(Look::Margins.left(), this), scaled(Look::Margins.top(), this),
        scaled(Look::Margins.right(), this), scaled(Look::Margins.bottom(), this));
    layout->setSpacing(scaled(Look::Spacing, this));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_hintLabel, 0, Qt::AlignLeft);
    layout->addWidget(m_promptLabel);
    layout->addWidget(m_codeEdit);
    layout->addLayout(buttons);
}

void ShareConfigDlg::setTexts()
{
    const QString title = tr("Upload keyboard layout");
    setWindowTitle(title);
    m_titleLabel->setFont(FittedText::onOneLine(m_titleLabel->font(), title, m_titleLabel->width(),
        scaled(Look::TitlePixels, this), scaled(Look::SmallestTextPixels, this)));
    m_titleLabel->setText(title);
    m_hintLabel->setText(tr("Hints"));
    m_promptLabel->setText(tr("Enter your scheme sharing code"));
    m_codeEdit->setAccessibleName(m_promptLabel->text());
    m_closeButton->setText(tr("Close"));
    m_confirmButton->setText(tr("Confirm"));
    for (QPushButton *button : {m_closeButton, m_confirmButton}) {
        const int room = button->width() - 2 * scaled(Look::ButtonMargin, this);
        button->setFont(FittedText::onOneLine(button->font(), button->text(), room,
            scaled(Look::TextPixels, this), scaled(Look::SmallestTextPixels, this)));
    }
}

QString ShareConfigDlg::code() const
{
    return m_codeEdit->text();
}

// The keyboard goes back to the code, which is what has to be changed after a refusal.
void ShareConfigDlg::setBusy(bool busy)
{
    m_codeEdit->setDisabled(busy);
    m_confirmButton->setDisabled(busy);
    if (!busy)
        m_codeEdit->setFocus();
}

void ShareConfigDlg::openAt(const QWidget *opener)
{
    layout()->activate();
    const QRect area = opener->screen()->availableGeometry();
    const QPoint wanted = opener->mapToGlobal(QPoint(0, 0));
    open();
    // A dialog centres itself when it is shown.
    move(qMax(area.x(), qMin(wanted.x(), area.x() + area.width() - width())),
        qMax(area.y(), qMin(wanted.y(), area.y() + area.height() - height())));
}

void ShareConfigDlg::reject()
{
    emit sigCancelBtnClicked();
    QDialog::reject();
}

void ShareConfigDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QDialog::changeEvent(event);
}

QPainterPath ShareConfigDlg::shape() const
{
    const double radius = scaled(Look::CornerRadius, this);
    QPainterPath path;
    path.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    return path;
}

void ShareConfigDlg::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor::fromRgb(Look::EdgeColour));
    painter.setBrush(Qt::white);
    if (mask().isEmpty())
        painter.drawPath(shape());
    else // cut to its shape: nothing for a smooth edge to be mixed with
        painter.fillRect(rect(), Qt::white);
}

void ShareConfigDlg::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (isVisible())
        Compositing::setShape(this, shape());
}

void ShareConfigDlg::showEvent(QShowEvent *event)
{
    Compositing::setShape(this, shape());
    m_codeEdit->setFocus();
    QDialog::showEvent(event);
}
