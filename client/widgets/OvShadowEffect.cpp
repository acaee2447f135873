#include "widgets/OvShadowEffect.h"

#include "widgets/Compositing.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QVBoxLayout>

namespace {

// Sizes in pixels and colours that make the shadow look as designed.
namespace Look {
constexpr int margin = 4;
constexpr int blurRadius = 8;
constexpr QRgb color = qRgba(0, 0, 0, 110);
} // namespace Look

} // namespace

OvShadowEffect::OvShadowEffect(QWidget *parent)
    : QWidget(parent,
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)
    , m_inner(new QWidget(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);

    auto *shadow = new QGraphicsDropShadowEffect(m_inner);
    shadow->setBlurRadius(Look::blurRadius);
    shadow->setOffset(0, 0);
    shadow->setColor(QColor::fromRgba(Look::color));
    m_inner->setGraphicsEffect(shadow);
    m_inner->setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::margin, Look::margin, Look::margin, Look::margin);
    layout->addWidget(m_inner);

    watchAncestors();
    follow();
}

OvShadowEffect::~OvShadowEffect() = default;

// A widget moves on the screen when its window does.
void OvShadowEffect::watchAncestors()
{
    QWidget *watched = parentWidget();
    while (watched) {
        watched->removeEventFilter(this);
        watched->installEventFilter(this);
        watched = watched->isWindow() ? nullptr : watched->parentWidget();
    }
}

void OvShadowEffect::follow()
{
    const QWidget *parent = parentWidget();
    resize(parent->size() + QSize(2 * Look::margin, 2 * Look::margin));
    move(parent->mapToGlobal(QPoint(0, 0)) - QPoint(Look::margin, Look::margin));
    layout()->activate();
    setMask(QRegion(rect()) - QRegion(QRect(QPoint(Look::margin, Look::margin), parent->size())));
    setVisible(parent->isVisible() && !parent->window()->isMinimized() && Compositing::isActive());
}

bool OvShadowEffect::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        watchAncestors();
        [[fallthrough]];
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        follow();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
