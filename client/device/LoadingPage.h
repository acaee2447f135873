#pragma once

#include <QWidget>

class QLabel;
class QMovie;

// What a device window shows until its video begins: a turning ring and a text. The animation runs only while
// the page is visible. GUI thread; child of its window.
class LoadingPage : public QWidget
{
    Q_OBJECT

public:
    explicit LoadingPage(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setTexts();
    void showFrame();

    QMovie *m_movie; // children
    QLabel *m_picture;
    QLabel *m_text;
};
