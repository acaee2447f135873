#pragma once

#include <QPushButton>

// A transparent button of the bar under the master's picture: an icon and, if there is room for it, its text
// in white below; otherwise the text is its tool tip. It takes no keyboard focus: that stays with the device.
//
// GUI thread; child of the bar.
class FunctionButton : public QPushButton
{
    Q_OBJECT

public:
    // `iconPath`: a resource or file path.
    explicit FunctionButton(const QString &iconPath, QWidget *parent = nullptr);
    ~FunctionButton() override;

    // The width that the text needs at that height, in device-independent pixels, but not less than the
    // icon's.
    int widthFor(int pixels) const;
    // Shows the text at that height in device-independent pixels; 0: only the icon.
    void setTextPixels(int pixels);
    int textPixels() const { return m_textPixels; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont(int pixels) const;

    int m_textPixels = 0;
};
