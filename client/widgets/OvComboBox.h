#pragma once

#include <QComboBox>

class OvComboBoxEditableItem;
class OvComboBoxListView;

// A combo box whose rows can be renamed in place: each row of its list is an OvComboBoxEditableItem. The text
// of the row follows what the user made of it, also where the closed box shows it.
//
//     box->addItem(name);
//     connect(box->editableItem(row), &OvComboBoxEditableItem::sigItemTextChanged, ...);
//     box->editableItem(row)->onWritableStateChanged(true); // rename
//
// GUI thread; child of whoever shows it.
class OvComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit OvComboBox(QWidget *parent = nullptr);
    ~OvComboBox() override;

    // Appends a row.
    void addItem(const QString &text);
    // The widget of a row; null where there is none.
    OvComboBoxEditableItem *editableItem(int row) const;
    OvComboBoxListView *listView() const { return m_view; }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    // While the list is open, composed text is meant for the row that is being edited.
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    OvComboBoxListView *m_view; // owned by the base class
};
