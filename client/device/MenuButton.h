#pragma once

#include <QPushButton>

class OvBubble;
class QLabel;

// A square icon button of a device window's side bar. While the pointer rests on it, a bubble at its left
// shows what it is for. It takes no keyboard focus: that stays with the device.
//
// GUI thread; child of the bar.
class MenuButton : public QPushButton
{
    Q_OBJECT

public:
    // `iconPath`: a resource or file path.
    explicit MenuButton(const QString &iconPath, QWidget *parent = nullptr);
    ~MenuButton() override;

    // What the button is for, as plain text; a bubble that is shown changes at once.
    void setLabel(const QString &label);
    QString label() const;
    OvBubble *bubble() const { return m_bubble; }

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void placeBubble();

    OvBubble *m_bubble; // child
    QLabel *m_labelText; // in the bubble
};
