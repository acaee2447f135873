#pragma once

#include <QCheckBox>

// A check box whose text goes on below where the room is too narrow for it on one line. White on a dark
// ground.
//
// GUI thread; child of whoever shows it.
class WrappingCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit WrappingCheckBox(QWidget *parent = nullptr);
    ~WrappingCheckBox() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    // All of it can be clicked.
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect textRect(
        int width) const; // of the text laid out for a width of the box; from its left upper corner
};
