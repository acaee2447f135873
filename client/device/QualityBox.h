#pragma once

#include <QComboBox>

// The choice of the video's quality in a device window's title bar. The index is the video level of
// StreamController: 0 automatic, then from the best to the smallest. It takes no keyboard focus, and the
// wheel does not change it by chance.
//
// GUI thread; child of its title bar.
class QualityBox : public QComboBox
{
    Q_OBJECT

public:
    // In device-independent pixels.
    static constexpr int boxWidth = 84;

    explicit QualityBox(QWidget *parent = nullptr);
    ~QualityBox() override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void setTexts();
};
