#pragma once

#include <QListWidget>

class OvComboBoxEditableItem;

// The list that an OvComboBox pops up: each row's widget is an OvComboBoxEditableItem. Composed text that
// reaches the list goes to the row that is being edited.
//
// GUI thread; owned by its combo box.
class OvComboBoxListView : public QListWidget
{
    Q_OBJECT

public:
    explicit OvComboBoxListView(QWidget *parent = nullptr);
    ~OvComboBoxListView() override;

    // The widget of a row; null where there is none.
    OvComboBoxEditableItem *editableItem(int row) const;
    // The one that is being edited; null if none is.
    OvComboBoxEditableItem *editedItem() const;

    // A row is as wide as the list, and leaves room for the vertical scroll bar while that is visible.
    QRect visualRect(const QModelIndex &index) const override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
};
