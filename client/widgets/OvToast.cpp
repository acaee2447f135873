#include "widgets/OvToast.h"

#include "widgets/Compositing.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTextBoundaryFinder>

#include <limits>

namespace {

// Sizes in pixels and colours that make the toast look as designed.
namespace Look {
constexpr int maximumTextWidth = 450;
constexpr int fontPixelSize = 14;
constexpr int horizontalPadding = 12; // both sides together
constexpr int verticalPadding = 8;
constexpr int distanceFromTop = 50; // of the parent
constexpr int cornerRadius = 4;
constexpr QRgb background = qRgba(48, 49, 51, 230);
} // namespace Look

// A piece of text that offers no line break, made breakable between any two of its characters.
QString withBreaks(const QString &piece)
{
    constexpr QChar zeroWidthSpace(0x200B);
    QString result;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, piece);
    int start = 0;
    for (int end = characters.toNextBoundary(); end > start; end = characters.toNextBoundary()) {
        result += piece.mid(start, end - start) + zeroWidthSpace;
        start = end;
    }
    return result;
}

// The text as it is, but for pieces too wide for a line, which are made breakable.
QString breakable(const QString &text, const QFontMetrics &metrics)
{
    QString result;
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, text);
    int start = 0;
    for (int end = lines.toNextBoundary(); end > start; end = lines.toNextBoundary()) {
        const QString piece = text.mid(start, end - start);
        result += metrics.horizontalAdvance(piece) > Look::maximumTextWidth ? withBreaks(piece) : piece;
        start = end;
    }
    return result;
}

QPropertyAnimation *createFade(QWidget *toast, const QString &name, qreal from, qreal to)
{
    auto *fade = new QPropertyAnimation(toast, "windowOpacity", toast);
    fade->setObjectName(name);
    fade->setDuration(static_cast<int>(OvToast::fadeTime.count()));
    fade->setStartValue(from);
    fade->setEndValue(to);
    return fade;
}

} // namespace

OvToast::OvToast(QWidget *parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_label(new QLabel(this))
    , m_fadeIn(createFade(this, QStringLiteral("fadeIn"), 0.0, 1.0))
    , m_fadeOut(createFade(this, QStringLiteral("fadeOut"), 1.0, 0.0))
    , m_stay(new QTimer(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowWithoutActivating);

    QFont font = m_label->font();
    font.setPixelSize(Look::fontPixelSize);
    m_label->setFont(font);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setMaximumWidth(Look::maximumTextWidth);
    QPalette palette = m_label->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    m_label->setPalette(palette);

    m_stay->setSingleShot(true);
    connect(m_fadeIn, &QPropertyAnimation::finished, m_stay, qOverload<>(&QTimer::start));
    connect(m_stay, &QTimer::timeout, this, &OvToast::fadeOut);
    connect(m_fadeOut, &QPropertyAnimation::finished, this, &QWidget::close);
}

OvToast::~OvToast() = default;

void OvToast::show(const QString &text, int seconds)
{
    m_fadeIn->stop();
    m_stay->stop();
    m_fadeOut->stop();
    setText(text);
    moveOverParent();
    constexpr int msPerSecond = 1000;
    m_stay->setInterval(qBound(0, seconds, std::numeric_limits<int>::max() / msPerSecond) * msPerSecond);
    setWindowOpacity(0.0);
    show();
    m_fadeIn->start();
}

void OvToast::fadeOut()
{
    m_fadeOut->start();
}

void OvToast::setText(const QString &text)
{
    m_text = text;
    const QFontMetrics metrics(m_label->font());
    const QString shown = breakable(text, metrics);
    const QRect textRect
        = metrics.boundingRect(QRect(0, 0, Look::maximumTextWidth, QWIDGETSIZE_MAX), Qt::TextWordWrap, shown);
    m_label->setText(shown);
    m_label->setGeometry(
        Look::horizontalPadding / 2, Look::verticalPadding / 2, textRect.width(), textRect.height());
    resize(textRect.width() + Look::horizontalPadding, textRect.height() + Look::verticalPadding);
}

void OvToast::moveOverParent()
{
    QRect over;
    if (const QWidget *parent = parentWidget())
        over = QRect(parent->isWindow() ? parent->pos() : parent->mapToGlobal(QPoint(0, 0)), parent->size());
    else
        over = QGuiApplication::primaryScreen()->availableGeometry();
    moveOnScreen({over.x() + (over.width() - width()) / 2, over.y() + Look::distanceFromTop});
}

// A window that hangs over the edge of the screen must not take its message along.
void OvToast::moveOnScreen(const QPoint &wanted)
{
    const QScreen *holder = QGuiApplication::screenAt(wanted + rect().center());
    const QRect screen = (holder ? holder : this->screen())->availableGeometry();
    move(qMax(screen.x(), qMin(wanted.x(), screen.x() + screen.width() - width())),
        qMax(screen.y(), qMin(wanted.y(), screen.y() + screen.height() - height())));
}

QPainterPath OvToast::shape() const
{
    QPainterPath path;
    path.addRoundedRect(rect(), Look::cornerRadius, Look::cornerRadius);
    return path;
}

void OvToast::showEvent(QShowEvent *event)
{
    Compositing::setShape(this, shape());
    QWidget::showEvent(event);
}

void OvToast::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (isVisible())
        Compositing::setShape(this, shape());
}

void OvToast::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Where the window is cut to its shape, there is nothing for a smooth edge to be mixed with.
    if (mask().isEmpty())
        painter.fillPath(shape(), QColor::fromRgba(Look::background));
    else
        painter.fillRect(rect(), QColor::fromRgba(Look::background));
}
