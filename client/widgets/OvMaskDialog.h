#pragma once

#include <QDialog>
#include <QPointer>
#include <QVector>

// A dialog that lies over a window as a translucent mask; what it asks stands in a box that a subclass puts
// on the mask. Until it is answered, neither mouse nor keyboard reach what is covered.
//
// Several may lie over one window; the uppermost has the focus. The mask lies inside its parent, so that it
// goes along with the window and needs no compositor; it grows and shrinks with it, and is rejected when
// the window is hidden or closed. GUI thread.
class OvMaskDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OvMaskDialog(QWidget *parent = nullptr);
    ~OvMaskDialog() override;

    // Lays the mask over the parent: over its content without the shadow margin, if it is an OvWindowBase.
    void coverParent();

    // While the dialog is shown, it has the focus; afterwards, who had it before.
    void setVisible(bool visible) override;

protected:
    // Who takes the keyboard, in the order of the Tab key, and who has it first: one of them, or this dialog.
    void setFocusOrder(const QVector<QWidget *> &order, QWidget *first);

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void endWithItsWindow();
    void focusFirst();
    void keepFocus(QWidget *focused);
    void setMaskSize(const QSize &size);
    void takeRoundingOff();

    QVector<QWidget *> m_focusOrder; // children
    QWidget *m_firstFocus = nullptr; // one of them, or this
    QPointer<QWidget> m_focusBefore; // gets the focus back
};
