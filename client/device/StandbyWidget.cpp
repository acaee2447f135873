#include "device/StandbyWidget.h"

#include "widgets/DpiScaling.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

// Sizes in device-independent pixels and colours.
namespace Look {
constexpr QSize Button(135, 32);
constexpr int ButtonTextPixels = 14;
constexpr int SmallestButtonTextPixels = 10; // for a text that is too wide otherwise
constexpr int ButtonTextMargin = 6;
constexpr int NotePixels = 13;
constexpr int Spacing = 8;
constexpr int SideMargin = 12; // of the texts
constexpr QRgb Scrim = qRgba(0, 0, 0, 200);

struct Shape
{
    int pictureExtent;
    int upperSpacer;
    int lowerSpacer;
};
constexpr Shape Landscape = {93, 20, 32};
constexpr Shape Portrait = {70, 120, 160}; // the smaller picture leaves room for texts that wrap
} // namespace Look

QString buttonStyle(const QString &background, const QString &pressedBackground)
{
    return QStringLiteral(
        "QPushButton { border: 1px solid white; border-radius: 4px; color: white; outline: none;"
        " background: %1; }"
        "QPushButton:pressed { background: %2; }")
        .arg(background, pressedBackground);
}

QLabel *createText(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(Look::SideMargin, 0, Look::SideMargin, 0);
    QFont font = label->font();
    font.setPixelSize(Look::NotePixels);
    label->setFont(font);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, Qt::white);
    label->setPalette(colours);
    return label;
}

QPushButton *createButton(const QString &objectName, const QString &styleSheet, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setFixedSize(Look::Button);
    button->setCursor(Qt::PointingHandCursor);
    button->setAutoDefault(true); // the Enter key presses it
    button->setStyleSheet(styleSheet);
    return button;
}

// A text that does not fit into the button becomes smaller, not cut.
void setButtonText(QPushButton *button, const QString &text)
{
    QFont font = button->font();
    const int room = Look::Button.width() - 2 * Look::ButtonTextMargin;
    int pixels = Look::ButtonTextPixels;
    font.setPixelSize(pixels);
    while (pixels > Look::SmallestButtonTextPixels && QFontMetrics(font).horizontalAdvance(text) > room)
        font.setPixelSize(--pixels);
    button->setFont(font);
    button->setText(text);
}

} // namespace

StandbyWidget::StandbyWidget(QWidget *parent)
    : QWidget(parent)
    , m_picture(new QLabel(this))
    , m_titleText(createText(this))
    , m_leavingText(createText(this))
    , m_resumeButton(createButton(QStringLiteral("resumeButton"),
          buttonStyle(QStringLiteral("qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 rgba(247, 70, 70, 1),"
                                     " stop:1 rgba(255, 154, 122, 1))"),
              QStringLiteral("#D84A44")),
          this))
    , m_exitButton(createButton(QStringLiteral("exitButton"),
          buttonStyle(QStringLiteral("black"), QStringLiteral("#303133")), this))
    , m_buttonLayout(new QBoxLayout(QBoxLayout::TopToBottom))
    , m_upperSpacer(new QSpacerItem(0, 0))
    , m_lowerSpacer(new QSpacerItem(0, 0))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setCursor(Qt::ArrowCursor);
    m_picture->setObjectName(QStringLiteral("picture"));
    m_picture->setAlignment(Qt::AlignCenter);
    m_titleText->setObjectName(QStringLiteral("titleText"));
    m_titleText->setTextFormat(Qt::RichText);
    m_leavingText->setObjectName(QStringLiteral("leavingText"));
    m_leavingText->setTextFormat(Qt::PlainText);
    createLayout();
    setTexts();
    updateLayout();
    connect(m_resumeButton, &QPushButton::clicked, this, &StandbyWidget::sigResumeBtnClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &StandbyWidget::sigExitBtnClicked);
}

StandbyWidget::~StandbyWidget() = default;

// The stretches take what a large video leaves; the spacers give way where the texts need their room.
void StandbyWidget::createLayout()
{
    m_buttonLayout->setSpacing(Look::Spacing);
    m_buttonLayout->addStretch();
    m_buttonLayout->addWidget(m_resumeButton, 0, Qt::AlignCenter);
    m_buttonLayout->addWidget(m_exitButton, 0, Qt::AlignCenter);
    m_buttonLayout->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::Spacing);
    layout->addStretch(1);
    layout->addSpacerItem(m_upperSpacer);
    layout->addWidget(m_picture, 0, Qt::AlignHCenter);
    layout->addWidget(m_titleText);
    layout->addLayout(m_buttonLayout);
    layout->addWidget(m_leavingText);
    layout->addSpacerItem(m_lowerSpacer);
    layout->addStretch(1);
}

void StandbyWidget::setTexts()
{
    const QString title = tr("Not operating for a long time, has entered standby mode");
    const QString note
        = tr("(standby mode can reduce traffic consumption, and applications within the device "
             "will continue to run)");
    // The text engine takes the weight from an element of its own.
    m_titleText->setText(
        QStringLiteral("<p><font color='#FFFFFF' style='font-size: 16px' bold=true>%1</font>"
                       "<br style='line-height: 3px'>"
                       "<font color='#FFFFFF' style='font-size: 13px'>%2</font></p>")
            .arg(QStringLiteral("<b>%1</b>").arg(title.toHtmlEscaped()), note.toHtmlEscaped()));
    setButtonText(m_resumeButton, tr("Resume use"));
    setButtonText(m_exitButton, tr("Exit device"));
    m_leavingText->setText(
        tr("(After exiting the device, the application within the device will continue to run)"));
}

void StandbyWidget::updateLayout()
{
    const bool isPortrait = m_orientation == ScreenOrientation::Portrait;
    const Look::Shape shape = isPortrait ? Look::Portrait : Look::Landscape;
    setPictureExtent(shape.pictureExtent);
    m_upperSpacer->changeSize(0, scaled(shape.upperSpacer, this), QSizePolicy::Minimum, QSizePolicy::Maximum);
    m_lowerSpacer->changeSize(0, scaled(shape.lowerSpacer, this), QSizePolicy::Minimum, QSizePolicy::Maximum);
    m_buttonLayout->setDirection(isPortrait ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_titleText->setFixedWidth(width());
    m_leavingText->setFixedWidth(width());
    layout()->invalidate();
    layout()->activate();
}

void StandbyWidget::setPictureExtent(int extent)
{
    const double ratio = devicePixelRatioF();
    QPixmap picture(QStringLiteral(":/icon/image/standby.png"));
    m_picture->setFixedSize(extent, extent);
    if (picture.isNull())
        return;
    picture = picture.scaled(m_picture->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    m_picture->setPixmap(picture);
}

void StandbyWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void StandbyWidget::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), QColor::fromRgba(Look::Scrim));
}

// The keyboard is at the first choice at once.
void StandbyWidget::showEvent(QShowEvent *event)
{
    m_resumeButton->setFocus();
    QWidget::showEvent(event);
}

// Nothing below is meant while the page is shown.
void StandbyWidget::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void StandbyWidget::wheelEvent(QWheelEvent *event)
{
    event->accept();
}
