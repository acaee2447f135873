#pragma once

#include "web/RelativeMove.h"
#include "widgets/OvWindowBase.h"

#include <QJsonArray>
#include <QPointer>
#include <QRect>
#include <QSize>

class OvMainWindowJsApi;
class OvUpdateDialog;
class OvWebContainer;

// The client's one main window: a frameless window whose body is the web front end. Before sign-in it has the
// fixed size of the sign-in page; the page gives it a working size afterwards. Its construction also starts
// what the whole client runs on (streaming runtime, language, log), and its destruction ends the streaming
// runtime.
//
// GUI thread; lives in main's frame.
class OvMainWindow : public OvWindowBase
{
    Q_OBJECT

public:
    explicit OvMainWindow(QWidget *parent = nullptr);
    ~OvMainWindow() override;

    void updateWindowSize() override;

    // The one that is open, or none.
    OvUpdateDialog *updateDialog() const;
    OvWebContainer *webContainer() const { return m_webContainer; }
    OvMainWindowJsApi *jsApi() const { return m_jsApi; }

    // Where the front end is loaded from: "file:///" and a path beside the program.
    static QString frontEndUrl();

    // Width of the transparent border while not maximised, in pixels.
    static int normalShadowMargin(bool isWindows7);

public slots:
    // The page's working size in pixels, after sign-in.
    void onSetWindowSize(int width, int height);
    // Moves by an offset in pixels.
    void onMoveWindow(int x, int y);
    void onCloseWindow();
    void onMinimizeWindow();
    void onMaximizeWindow();
    void onRestoreWindow();
    // Back to the sign-in page and its size.
    void onLogout();
    void onSetLanguage(const QString &lang);
    // Opens the update dialog and starts the update, see OvUpdateDialog. A dialog that is open is brought
    // back; it starts again if its update has failed.
    void onUpdateNewVersion(const QString &updatePath, const QJsonArray &fileInfo);
    // Starts a downloaded installer: at once, closing the client, or when the client ends.
    void onInstallNewVersionApp(const QString &filePath, bool delayInstall);
    void onMaximumShortcutActivated();
    // Without behaviour: every front end that comes with the client fits it.
    void checkH5Version() { }

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createWebContainer();
    void connectJsApi();
    void startStreamingRuntime();
    void uninstallPerUserInstallation();

    OvWebContainer *m_webContainer = nullptr; // child
    OvMainWindowJsApi *m_jsApi = nullptr; // child of the web view
    const int m_normalShadowMargin; // pixels
    RelativeMove m_drag{this};
    bool m_pageMaximized = false;
    bool m_maximizeAllowed = false; // false before sign-in
    QPoint m_normalPos; // before maximising
    QSize m_normalSize; // content, before maximising
    QPointer<OvUpdateDialog> m_updateDialog; // deletes itself when it is closed
    QString m_installerOnExit; // path; of use while m_installOnExit
    bool m_installOnExit = false;
};
