#include "widgets/OvComboBoxEditableItem.h"

#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

namespace {

// Sizes in pixels and colours that make the item look as designed.
namespace Look {
constexpr int horizontalMargin = 8;
constexpr int verticalMargin = 3;
constexpr int spacing = 6;
constexpr int fontPixelSize = 13;
} // namespace Look

QString editStyle()
{
    return QStringLiteral("QLineEdit { background: white; color: #303133; border: 1px solid #07CCFB;"
                          "border-radius: 3px; padding: 0 4px; selection-background-color: #07CCFB; }");
}

// A label that ends in an ellipsis where its text is too long.
class ElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(contentsRect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading),
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
    }
};

} // namespace

OvComboBoxEditableItem::OvComboBoxEditableItem(const QString &text, QWidget *parent)
    : QWidget(parent)
    , m_text(text)
    , m_label(new ElidedLabel(this))
    , m_edit(new QLineEdit(this))
{
    setAttribute(Qt::WA_InputMethodEnabled);
    QFont itemFont = font();
    itemFont.setPixelSize(Look::fontPixelSize);
    setFont(itemFont);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setMinimumWidth(0);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_edit->setStyleSheet(editStyle());
    m_edit->setFont(itemFont);
    m_edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_edit->installEventFilter(this);
    setFocusProxy(m_edit);
    m_edit->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(
        Look::horizontalMargin, Look::verticalMargin, Look::horizontalMargin, Look::verticalMargin);
    layout->setSpacing(Look::spacing);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_edit, 1);

    setTextColor(Qt::white);
    showLabel();
}

OvComboBoxEditableItem::~OvComboBoxEditableItem() = default;

void OvComboBoxEditableItem::setTextColor(const QColor &color)
{
    m_textColor = color;
    // The list's own style would overrule a palette.
    m_label->setStyleSheet(QStringLiteral("color: %1;").arg(color.name(QColor::HexArgb)));
    m_label->ensurePolished();
}

void OvComboBoxEditableItem::showLabel()
{
    m_label->setText(m_text);
    setFocusPolicy(Qt::NoFocus);
    m_edit->hide();
    m_label->show();
}

// Hiding the edit takes its focus, which ends editing as well: the state comes first.
void OvComboBoxEditableItem::onWritableStateChanged(bool isWritable)
{
    if (m_isWritable == isWritable)
        return;
    m_isWritable = isWritable;
    if (isWritable) {
        setFocusPolicy(Qt::ClickFocus);
        m_edit->setText(m_label->text());
        m_label->hide();
        m_edit->show();
        m_edit->setFocus();
        m_edit->selectAll();
        return;
    }
    m_text = m_edit->text();
    showLabel();
    emit sigItemTextChanged(m_text);
}

bool OvComboBoxEditableItem::editKeyPressed(int key)
{
    switch (key) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
        onWritableStateChanged(false);
        return true;
    case Qt::Key_Escape:
        m_isWritable = false;
        showLabel();
        return true;
    default:
        return false;
    }
}

// Keys are the edit's while there is one. The list would choose a row or close with some of them, and it
// looks at them already when they are offered as shortcuts.
bool OvComboBoxEditableItem::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_edit || !m_isWritable)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && editKeyPressed(static_cast<QKeyEvent *>(event)->key()))
        return true;
    // A menu of the edit takes the focus for a while.
    if (event->type() == QEvent::FocusOut
        && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
        onWritableStateChanged(false);
    return QWidget::eventFilter(watched, event);
}

void OvComboBoxEditableItem::inputMethodEvent(QInputMethodEvent *event)
{
    if (!m_isWritable) {
        event->ignore();
        return;
    }
    m_edit->setText(m_edit->text() + event->commitString());
    event->accept();
}

QVariant OvComboBoxEditableItem::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return m_isWritable ? m_edit->inputMethodQuery(query) : QWidget::inputMethodQuery(query);
}

// A click beside the edit does not choose the row that is being edited.
void OvComboBoxEditableItem::mousePressEvent(QMouseEvent *event)
{
    if (!m_isWritable)
        QWidget::mousePressEvent(event);
}

void OvComboBoxEditableItem::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_isWritable)
        QWidget::mouseReleaseEvent(event);
}

void OvComboBoxEditableItem::hideEvent(QHideEvent *event)
{
    onWritableStateChanged(false);
    QWidget::hideEvent(event);
}
