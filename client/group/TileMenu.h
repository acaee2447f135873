#pragma once

#include <QWidget>

class QPushButton;
class QVBoxLayout;

// What can be done with one tile of the group: four entries over the darkened picture. A click leaves the
// keyboard where it is; with the keyboard, the Tab key goes through the entries. A double click is one click.
//
// GUI thread; child of its tile, which it covers.
class TileMenu : public QWidget
{
    Q_OBJECT

public:
    explicit TileMenu(QWidget *parent);
    ~TileMenu() override;

signals:
    void setAsMainClicked();
    void restartClicked();
    void removeClicked();
    void singleControlClicked();
    // An entry has lost the keyboard's focus, perhaps to another entry.
    void sigFocusOut();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPushButton *addEntry(QVBoxLayout *layout, const char *objectName, void (TileMenu::*clicked)());
    void setTexts();

    QPushButton *m_setAsMain; // children
    QPushButton *m_restart;
    QPushButton *m_remove;
    QPushButton *m_singleControl;
};
