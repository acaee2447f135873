#pragma once

#include <QVector>
#include <QWidget>

class FunctionButton;

// The bar under the master's picture: keys of the device, and the restart. It acts on nothing itself; the
// panel connects its signals. A double click on the restart is one click. The texts stand under the icons if
// there is room for all of them.
//
// GUI thread; child of the master panel.
class FunctionBar : public QWidget
{
    Q_OBJECT

public:
    // In device-independent pixels.
    static constexpr int barHeight = 36;

    explicit FunctionBar(QWidget *parent = nullptr);
    ~FunctionBar() override;

    // From left to right.
    const QVector<FunctionButton *> &buttons() const { return m_buttons; }

signals:
    // `keyType`: a Linux input key code, for the device.
    void functionBtnClicked(int keyType);
    void restartBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setTexts();
    void fitTexts();

    QVector<FunctionButton *> m_buttons; // children
};
