#pragma once

#include <QFrame>
#include <QSize>

class QPushButton;
class QVBoxLayout;

// The white box in which a dialog of the group window asks: what the dialog puts into content(), above the
// buttons "Cancel" and "Confirm", of which the Enter key presses the second.
//
// GUI thread; child of its dialog.
class GroupDialogBox : public QFrame
{
    Q_OBJECT

public:
    // `size`: of the box, in device-independent pixels.
    GroupDialogBox(const QSize &size, QWidget *parent);
    ~GroupDialogBox() override;

    // Room for texts, in device-independent pixels; centred.
    static constexpr int textWidth = 430;

    QVBoxLayout *content() const { return m_content; }
    QPushButton *cancelButton() const { return m_cancelButton; }
    QPushButton *confirmButton() const { return m_confirmButton; }

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *createButton(const QString &objectName, const QString &colours);
    void setTexts();

    QVBoxLayout *m_content;
    QPushButton *m_cancelButton; // children
    QPushButton *m_confirmButton;
};
