#pragma once

#include <QObject>

class QAbstractButton;

// Makes one click of a double click, for a button whose action must not be done twice by a hand that is used
// to double clicks: the second click of the left mouse button does not reach the button.
//
//     new DoubleClickFilter(restartButton);
//
// GUI thread; child of its button.
class DoubleClickFilter : public QObject
{
    Q_OBJECT

public:
    explicit DoubleClickFilter(QAbstractButton *button);
    ~DoubleClickFilter() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_inSecondClick = false; // its release has not come
};
