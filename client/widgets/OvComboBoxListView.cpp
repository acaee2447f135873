#include "widgets/OvComboBoxListView.h"

#include "widgets/OvComboBoxEditableItem.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QScrollBar>

namespace {

QString listStyle()
{
    return QStringLiteral(
        "QListWidget { background: #303133; border: 1px solid #606266; outline: none; }"
        "QScrollBar:vertical { background: #303133; width: 8px; margin: 0; }"
        "QScrollBar::handle:vertical { background: #606266; border-radius: 4px; min-height: 24px; }"
        "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
        "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");
}

} // namespace

OvComboBoxListView::OvComboBoxListView(QWidget *parent)
    : QListWidget(parent)
{
    setAttribute(Qt::WA_InputMethodEnabled);
    setStyleSheet(listStyle());
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    verticalScrollBar()->installEventFilter(this);
}

OvComboBoxListView::~OvComboBoxListView() = default;

OvComboBoxEditableItem *OvComboBoxListView::editableItem(int row) const
{
    return qobject_cast<OvComboBoxEditableItem *>(itemWidget(item(row)));
}

OvComboBoxEditableItem *OvComboBoxListView::editedItem() const
{
    for (int row = 0; row < count(); ++row) {
        OvComboBoxEditableItem *candidate = editableItem(row);
        if (candidate && candidate->isWritable())
            return candidate;
    }
    return nullptr;
}

QRect OvComboBoxListView::visualRect(const QModelIndex &index) const
{
    QRect rect = QListWidget::visualRect(index);
    if (!rect.isValid())
        return rect;
    const int bar = verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0;
    return {0, rect.y(), qMax(0, viewport()->width() - bar), rect.height()}; // however long the text is
}

// The rows' widgets take their rows' new width, also when the base class puts its own layout off.
void OvComboBoxListView::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    updateEditorGeometries();
}

bool OvComboBoxListView::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QListWidget::eventFilter(watched, event);
    if (watched == verticalScrollBar() && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        updateEditorGeometries();
    return handled;
}

void OvComboBoxListView::inputMethodEvent(QInputMethodEvent *event)
{
    if (OvComboBoxEditableItem *edited = editedItem())
        QCoreApplication::sendEvent(edited, event);
    else
        event->ignore();
}

QVariant OvComboBoxListView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const OvComboBoxEditableItem *edited = editedItem();
    return edited ? edited->inputMethodQuery(query) : QListWidget::inputMethodQuery(query);
}
