#pragma once

#include <QWidget>

// A soft shadow around a widget. A window of its own that lies over its parent, 4 pixels larger on each side,
// and is open where the parent is; it lets the mouse through and follows the parent's place, size and
// visibility. Nothing is shown where the window system cannot compose: a shadow would be a black frame there.
//
//     new OvShadowEffect(popup);
//
// GUI thread; child of the widget that has the shadow, which must not be null.
class OvShadowEffect : public QWidget
{
    Q_OBJECT

public:
    explicit OvShadowEffect(QWidget *parent);
    ~OvShadowEffect() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchAncestors();
    void follow();

    QWidget *m_inner; // child; what casts the shadow
};
