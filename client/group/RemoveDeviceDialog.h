#pragma once

#include "widgets/OvMaskDialog.h"

class GroupDialogBox;
class QLabel;

// Asks over the group window whether a device is to leave the group. Confirming accepts the dialog;
// cancelling, the Escape key and the end of the window reject it.
//
//     auto *dialog = new RemoveDeviceDialog(window());
//     connect(dialog, &QDialog::accepted, this, ...);
//     dialog->open();
//
// It covers its parent by itself. Made with new: it deletes itself when it is answered or closed. GUI thread.
class RemoveDeviceDialog : public OvMaskDialog
{
    Q_OBJECT

public:
    explicit RemoveDeviceDialog(QWidget *parent = nullptr);
    ~RemoveDeviceDialog() override;

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setTexts();

    GroupDialogBox *m_box; // children
    QLabel *m_questionLabel;
};
