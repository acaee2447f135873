#pragma once

#include <QSlider>

class OvBubble;
class QLabel;

// A slider that shows its value in a bubble above its handle while the pointer is on it. It takes no keyboard
// focus.
//
// GUI thread; child of whoever shows it.
class OvSlider : public QSlider
{
    Q_OBJECT

public:
    explicit OvSlider(QWidget *parent = nullptr);
    explicit OvSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~OvSlider() override;

public slots:
    // Shows a value in the bubble and moves the bubble to the handle.
    void onValueChanged(int value);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void sliderChange(SliderChange change) override;

private:
    QRect handle() const; // in screen coordinates

    OvBubble *m_bubble; // child
    QLabel *m_valueLabel; // child of the bubble
};
