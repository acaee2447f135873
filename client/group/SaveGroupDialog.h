#pragma once

#include "widgets/OvMaskDialog.h"

class GroupDialogBox;
class QLabel;
class QLineEdit;

// Asks for the name under which a temporary group is saved, over the group window. Confirming and cancelling
// hide it; it is used again for the next time.
//
// GUI thread; child of the group window, which gives it its size and place.
class SaveGroupDialog : public OvMaskDialog
{
    Q_OBJECT

public:
    explicit SaveGroupDialog(QWidget *parent = nullptr);
    ~SaveGroupDialog() override;

signals:
    // The group is to be saved: 1 to 50 UTF-16 units, as they were typed.
    void saveGroup(const QString &groupName);

public slots:
    void onCancelBtnClicked();
    // A name that is too short or too long is said so, and the dialog stays.
    void onConfirmBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QLabel *createLabel(const QString &objectName, int height, int pixels, QRgb colour);
    void createContent();
    void setTexts();
    void showError(bool shown);

    GroupDialogBox *m_box; // children
    QLabel *m_titleLabel;
    QLabel *m_nameLabel;
    QLineEdit *m_nameEdit;
    QLabel *m_hintLabel;
    QLabel *m_errorLabel;
    bool m_nameRefused = false; // the error is shown
};
