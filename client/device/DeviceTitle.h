#pragma once

#include <QWidget>

class EditingMenu;
class OvTitleBarBase;
class QLabel;
class QualityBox;

// What a device window adds to its title bar: the device's name, and beside it the quality and the delay, or
// the menu of the key mapping's editor in their place.
//
// GUI thread; child of the title bar.
class DeviceTitle : public QWidget
{
    Q_OBJECT

public:
    // Takes its place in the bar.
    explicit DeviceTitle(OvTitleBarBase *titleBar);
    ~DeviceTitle() override;

    QualityBox *qualityBox() const { return m_qualityBox; }
    EditingMenu *editingMenu() const { return m_editingMenu; }

    // Milliseconds from the device's screen to the user's; nothing is shown before the first.
    void showDelay(int delayMs);
    void clearDelay();
    // Whether the menu is shown.
    void setEditing(bool editing);
    // Shows as much of the name as a bar of that width, in pixels, has room for.
    void showName(const QString &name, int barWidth);

private:
    OvTitleBarBase *m_titleBar; // its parent
    QualityBox *m_qualityBox; // children
    QLabel *m_delayLabel;
    EditingMenu *m_editingMenu;
};
