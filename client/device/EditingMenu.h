#pragma once

#include <QWidget>

class QHBoxLayout;
class QPushButton;

// What a device window's title bar offers while the key mapping is edited: the tutorial, getting a scheme
// that somebody else has shared, and leaving the editor. It acts on nothing itself; the window connects its
// signals. It takes no keyboard focus.
//
// GUI thread; child of its title bar.
class EditingMenu : public QWidget
{
    Q_OBJECT

public:
    explicit EditingMenu(QWidget *parent = nullptr);
    ~EditingMenu() override;

    // Where the dialog that asks for a scheme opens.
    QWidget *uploadButton() const;

signals:
    void tutorialBtnClicked();
    void uploadBtnClicked();
    void exitBtnClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addButton(const char *objectName);
    void setTexts();

    QHBoxLayout *m_layout; // children
    QPushButton *m_tutorialButton;
    QPushButton *m_uploadButton;
    QPushButton *m_exitButton;
};
