#include "keymap/OvKeyNoteBubble.h"

#include "widgets/DpiScaling.h"

#include <QFontMetrics>
#include <QLabel>

namespace {

constexpr int BubbleWidth = 85; // device-independent pixels, as the next
constexpr int Border = 1;
constexpr int HeightBesidesText = 10; // pixels
constexpr int TextPixels = 12;

} // namespace

OvKeyNoteBubble::OvKeyNoteBubble(QWidget *videoView)
    : QWidget(videoView)
    , m_label(new QLabel(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setFixedWidth(scaled(BubbleWidth, this));
    m_label->setStyleSheet(QStringLiteral(
        "background-color: white; border: 1px solid #606266; border-radius: 4px; color: #606266;"));
    QFont font = m_label->font();
    font.setPixelSize(scaled(TextPixels, this));
    m_label->setFont(font);
    hide();
}

OvKeyNoteBubble::~OvKeyNoteBubble() = default;

void OvKeyNoteBubble::setText(const QString &text)
{
    m_label->setText(text);
    const QRect room(0, 0, m_label->width() - 2 * Border, QWIDGETSIZE_MAX);
    const int textHeight
        = QFontMetrics(m_label->font()).boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text).height();
    m_label->setFixedHeight(textHeight + HeightBesidesText);
    resize(m_label->size());
}

QString OvKeyNoteBubble::text() const
{
    return m_label->text();
}

void OvKeyNoteBubble::placeUnder(const QRect &key)
{
    move(key.x() + key.width() / 2 - width() / 2, key.y() + key.height());
}
