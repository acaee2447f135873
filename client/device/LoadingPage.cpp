#include "device/LoadingPage.h"

#include <QEvent>
#include <QLabel>
#include <QMovie>
#include <QVBoxLayout>

namespace {

constexpr int TextPixels = 14;
constexpr int PictureExtent = 72; // device-independent pixels
constexpr int Spacing = 12; // between picture and text, pixels
constexpr QRgb Background = qRgb(0xF5, 0xF7, 0xFA);
constexpr QRgb TextColour = qRgb(0x60, 0x62, 0x66);

} // namespace

// A static library's resources are linked in only when they are asked for.
static void initDeviceResources()
{
    Q_INIT_RESOURCE(device);
}

LoadingPage::LoadingPage(QWidget *parent)
    : QWidget(parent)
{
    initDeviceResources();
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(Background));
    colours.setColor(QPalette::WindowText, QColor(TextColour));
    setPalette(colours);
    setAutoFillBackground(true);

    m_movie = new QMovie(QStringLiteral(":/gif/loading.gif"), QByteArray(), this);
    m_picture = new QLabel(this);
    m_picture->setObjectName(QStringLiteral("picture"));
    m_picture->setFixedSize(PictureExtent, PictureExtent);
    connect(m_movie, &QMovie::frameChanged, this, &LoadingPage::showFrame);
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("text"));
    QFont font = m_text->font();
    font.setPixelSize(TextPixels);
    m_text->setFont(font);
    setTexts();

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing);
    layout->addStretch();
    layout->addWidget(m_picture, 0, Qt::AlignHCenter);
    layout->addWidget(m_text, 0, Qt::AlignHCenter);
    layout->addStretch();
}

void LoadingPage::setTexts()
{
    m_text->setText(tr("Initialising"));
}

// In the screen's own pixels.
void LoadingPage::showFrame()
{
    const double ratio = devicePixelRatioF();
    QPixmap frame = m_movie->currentPixmap().scaled(
        m_picture->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    frame.setDevicePixelRatio(ratio);
    m_picture->setPixmap(frame);
}

void LoadingPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void LoadingPage::showEvent(QShowEvent *event)
{
    m_movie->start();
    QWidget::showEvent(event);
}

void LoadingPage::hideEvent(QHideEvent *event)
{
    m_movie->stop();
    QWidget::hideEvent(event);
}
