#pragma once

#include <QStyledItemDelegate>

// Draws the rows of an OvComboBox's list: the ground under a row's widget, which itself shows the text. A row
// without a widget shows its text here.
//
// GUI thread; child of its combo box.
class OvComboBoxDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit OvComboBoxDelegate(QObject *parent = nullptr);
    ~OvComboBoxDelegate() override;

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    // A row's widget takes the whole row.
    void updateEditorGeometry(
        QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
