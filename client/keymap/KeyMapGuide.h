#pragma once

#include "keymap/GuidePages.h"
#include "widgets/OvWindowBase.h"

class HttpHelper;
class QLabel;
class QPushButton;
class QScrollArea;
class QStackedLayout;
class QSvgWidget;

// The tutorial of the key mapping: a small window that leafs through the pages which the service sends. The
// arrow keys leaf as the buttons do, Escape closes. While there are no pages it says why and offers to try
// again.
//
//     auto *guide = new KeyMapGuide;
//     guide->show();
//     guide->load();
//
// GUI thread. Made with new: it deletes itself when it is closed, which also ends a request under way.
class KeyMapGuide : public OvWindowBase
{
    Q_OBJECT

public:
    explicit KeyMapGuide(QWidget *parent = nullptr);
    ~KeyMapGuide() override;

    // Asks the service for the pages and shows the first. Nothing happens while a request is under way.
    void load();
    int pageCount() const { return m_guide.pages.size(); }
    // Counts from 0; -1 while there are no pages.
    int currentPage() const { return m_page; }

public slots:
    // Leaf; at the first and the last page nothing happens.
    void onPreviousBtnClicked();
    // Closes the guide on the last page.
    void onNextBtnClicked();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *createGuidePage();
    QWidget *createMessagePage();
    void setTexts();
    void showMessage();
    void showGuide(const GuidePages &guide);
    void showPage(int page);
    void onFailed(const QString &reason);

    HttpHelper *m_httpHelper; // child
    bool m_loading = false;
    GuidePages m_guide;
    int m_page = -1;
    QStackedLayout *m_pages; // children from here
    QSvgWidget *m_picture;
    QLabel *m_pageTitle;
    QScrollArea *m_textArea;
    QLabel *m_pageText;
    QLabel *m_pageNumber;
    QPushButton *m_previousButton;
    QPushButton *m_nextButton;
    QLabel *m_message;
    QPushButton *m_retryButton;
};
