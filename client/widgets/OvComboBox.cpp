#include "widgets/OvComboBox.h"

#include "widgets/OvComboBoxDelegate.h"
#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvComboBoxListView.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QPersistentModelIndex>

namespace {

QString comboBoxStyle()
{
    return QStringLiteral(
        "QComboBox { background: white; border: 1px solid #606266; border-radius: 4px; color: #606266;"
        "padding: 0 8px; min-height: 26px; combobox-popup: 0; }"
        "QComboBox:disabled { color: #C0C4CC; border-color: #C0C4CC; }"
        "QComboBox::drop-down { border: none; width: 24px; }"
        "QComboBox::down-arrow { image: url(:/icon/svg/arrowDown.svg); width: 16px; height: 16px; }");
}

} // namespace

OvComboBox::OvComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_view(new OvComboBoxListView(this))
{
    setStyleSheet(comboBoxStyle()); // says that the list scrolls by a bar
    setModel(m_view->model());
    setView(m_view);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setItemDelegate(new OvComboBoxDelegate(this));
    setAttribute(Qt::WA_InputMethodEnabled);
}

OvComboBox::~OvComboBox() = default;

void OvComboBox::addItem(const QString &text)
{
    auto *row = new QListWidgetItem(text, m_view);
    auto *widget = new OvComboBoxEditableItem(text);
    m_view->setItemWidget(row, widget);
    // The widget of a removed row lives on for a moment, but belongs to no row any more.
    connect(widget, &OvComboBoxEditableItem::sigItemTextChanged, this,
        [this, index = QPersistentModelIndex(model()->index(count() - 1, 0))](
            const QString &changed) { model()->setData(index, changed); });
}

OvComboBoxEditableItem *OvComboBox::editableItem(int row) const
{
    return m_view->editableItem(row);
}

void OvComboBox::inputMethodEvent(QInputMethodEvent *event)
{
    if (m_view->editedItem())
        QCoreApplication::sendEvent(m_view, event);
    else
        QComboBox::inputMethodEvent(event);
}

QVariant OvComboBox::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return m_view->editedItem() ? m_view->inputMethodQuery(query) : QComboBox::inputMethodQuery(query);
}
