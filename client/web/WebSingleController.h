#pragma once

#include "web/RelativeMove.h"

#include <QRect>
#include <QSize>
#include <QUrl>
#include <QWidget>

class OvWebContainer;
class QHBoxLayout;
class QWebEngineDownloadItem;
class WebSingleControllerJsApi;

// The window of a device that the front end streams by itself: frameless, its body is the front end's device
// page, which draws the title area and asks for size, moves and closing over the bridge. What the page saves
// goes to the file that the user chose.
//
// GUI thread; a top-level window that deletes itself when it is closed.
class WebSingleController : public QWidget
{
    Q_OBJECT

public:
    WebSingleController();

    // Makes the window's content and loads the page. Once per window.
    void load(const QUrl &url);

    OvWebContainer *webContainer() const { return m_webContainer; }
    WebSingleControllerJsApi *jsApi() const { return m_jsApi; }

public slots:
    // The size that the page wants, in pixels. The window is centred on the primary screen.
    void onSetWindowSize(int width, int height);
    // Moves by an offset in pixels; the window keeps the size that the page wants.
    void onMoveWindow(int x, int y);
    void onCloseWindow();
    void onMinimizeWindow();
    void onMaximizeWindow();
    void onRestoreWindow();

private:
    void connectJsApi();
    void onDownloadRequested(QWebEngineDownloadItem *download);
    void applySize(const QSize &size);

    OvWebContainer *m_webContainer = nullptr; // child, made by load
    WebSingleControllerJsApi *m_jsApi = nullptr; // child of the web view
    QHBoxLayout *m_layout = nullptr;
    RelativeMove m_drag{this};
    QSize m_wantedSize;
    bool m_sizeWanted = false; // the page has set a size
    bool m_maximized = false;
    QRect m_normalGeometry; // before maximising
    QString m_savePath; // for the page's next download; empty: none is expected
};
