#pragma once

#include "widgets/OvMaskDialog.h"

class QFrame;
class QLabel;
class QPushButton;

// A question over a window: a box in the middle of the mask holds it and the buttons "Close" and "Confirm".
//
//     auto *dialog = new OvMaskTipsDialog(window);
//     dialog->setFixedSize(window->contentSize());
//     dialog->move(10, 10); // within the window
//     dialog->setText(question);
//     if (dialog->exec() != 0) ...
//
// Made with new: it deletes itself when it is answered or closed. GUI thread.
class OvMaskTipsDialog : public OvMaskDialog
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

    // For a question that comes by itself, while the user does something else: no key and no second half of a
    // double click that was meant for what is covered answers it. No button has the focus or is the default;
    // the Tab key goes to them. Only the Escape key still ends the dialog. Call it before the dialog is
    // shown.
    void setUnprompted();

    // Ends the dialog with a result of 0, as the button "Close", the Escape key and closing it do.
    void reject() override;

signals:
    // The dialog was left unconfirmed, or confirmed; before it ends.
    void sigCancelBtnClicked();
    void sigConfirmBtnClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &colors);
    void createBox();
    void setTexts();
    void confirm();

    QString m_title; // empty: the usual one
    QFrame *m_box; // children
    QLabel *m_titleLabel;
    QLabel *m_messageLabel;
    QPushButton *m_closeButton;
    QPushButton *m_confirmButton;
};
