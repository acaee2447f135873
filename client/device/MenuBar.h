#pragma once

#include <QVector>
#include <QWidget>

class MenuButton;

// The strip of icon buttons at the side of a device window: three keys of the device, a screenshot, turning
// the picture, and key mapping. It acts on nothing itself; the window connects its signals.
//
// GUI thread; child of its window.
class MenuBar : public QWidget
{
    Q_OBJECT

public:
    // In device-independent pixels.
    static constexpr int barWidth = 50;

    explicit MenuBar(QWidget *parent = nullptr);
    ~MenuBar() override;

    // From top to bottom.
    const QVector<MenuButton *> &buttons() const { return m_buttons; }

signals:
    // `keyType`: a Linux input key code, for the device.
    void functionBtnClicked(int keyType);
    void screenCaptureBtnClicked();
    void screenRotateBtnClicked();
    void keyboardMapBtnClicked();
    void applyKeyBindingBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    MenuButton *addButton(const char *iconPath);
    void addKeyButton(const char *iconPath, int keyType);
    void setTexts();

    QVector<MenuButton *> m_buttons; // children
};
