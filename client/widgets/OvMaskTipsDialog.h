#pragma once

#include <QDialog>
#include <QPointer>

class QFrame;
class QLabel;
class QPushButton;

// A question over a window: a translucent mask covers the window's content, and a box in its middle holds the
// question and the buttons "Close" and "Confirm". Until it is answered, neither mouse nor keyboard reach what
// is covered.
//
//     auto *dialog = new OvMaskTipsDialog(window);
//     dialog->setFixedSize(window->contentSize());
//     dialog->move(10, 10); // within the window
//     dialog->setText(question);
//     if (dialog->exec() != 0) ...
//
// Several may lie over one window; the uppermost has the focus. The mask lies inside its parent, so that it
// goes along with the window and needs no compositor; it grows and shrinks with it, and ends
// unconfirmed when the window is hidden or closed. Made with new: it deletes itself when it is answered or
// closed. GUI thread.
class OvMaskTipsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OvMaskTipsDialog(QWidget *parent = nullptr);
    ~OvMaskTipsDialog() override;

    // The heading, a plain text; "Hints" as long as none is set.
    void setTitle(const QString &title);
    QString title() const;
    // The question, a plain text.
    void setText(const QString &text);
    QString text() const;

    // Ends the dialog with a result of 0, as the button "Close", the Escape key and closing it do.
    void reject() override;
    // While the dialog is shown, it has the focus; afterwards, who had it before.
    void setVisible(bool visible) override;

signals:
    // The dialog was left unconfirmed, or confirmed; before it ends.
    void sigCancelBtnClicked();
    void sigConfirmBtnClicked();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &colors);
    void createBox();
    void setTexts();
    void confirm();
    void endWithItsWindow();
    void keepFocus(QWidget *focused);
    void setMaskSize(const QSize &size);
    void takeRoundingOff();

    QString m_title; // empty: the usual one
    QFrame *m_box; // children
    QLabel *m_titleLabel;
    QLabel *m_messageLabel;
    QPushButton *m_closeButton;
    QPushButton *m_confirmButton;
    QPointer<QWidget> m_focusBefore; // gets the focus back
};
