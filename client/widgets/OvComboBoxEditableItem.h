#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;

// The widget of one row of an OvComboBox: a text that the user can change in place. While it is writable it
// shows a line edit instead of its label. Return, the keypad's Enter and leaving the edit end that and keep
// what was typed; Escape ends it and keeps the old text.
//
// Its layout is a QHBoxLayout, to which an owner may add buttons. GUI thread; child of the list view.
class OvComboBoxEditableItem : public QWidget
{
    Q_OBJECT

public:
    explicit OvComboBoxEditableItem(const QString &text, QWidget *parent = nullptr);
    ~OvComboBoxEditableItem() override;

    QString text() const { return m_text; }
    bool isWritable() const { return m_isWritable; }

    // The label's colour; white at first.
    void setTextColor(const QColor &color);
    QColor textColor() const { return m_textColor; }

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

signals:
    // Editing has ended with this text, which may be the old one. Once for each time the item was writable.
    void sigItemTextChanged(const QString &text);

public slots:
    // Starts editing, or ends it and keeps what was typed. Nothing happens if that is so already.
    void onWritableStateChanged(bool isWritable);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Appends composed text while the item is writable.
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool editKeyPressed(int key);
    void showLabel();

    QString m_text;
    QColor m_textColor;
    QLabel *m_label; // children
    QLineEdit *m_edit;
    bool m_isWritable = false;
};
