#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class HttpHelper;
class KeyboardMapMgr;
class QWidget;
class ShareConfigDlg;

// Gets the user a copy of a scheme that somebody else has shared: asks the service for it by its sharing
// code, and has the list of schemes read again when it is there. It says on the window how that went.
//
// GUI thread; a child of the device window, over which its messages appear.
class SchemeImporter : public QObject
{
    Q_OBJECT

public:
    // `manager` may be null and destroyed at any time.
    explicit SchemeImporter(KeyboardMapMgr *manager, QWidget *window);
    ~SchemeImporter() override;

    // For a dialog that was confirmed: imports its code, keeps it busy meanwhile, and closes it when that has
    // succeeded. After a failure it stays open. The dialog may be closed at any time.
    void importFrom(ShareConfigDlg *dialog);
    // Imports the scheme with a sharing code, which is sent as it is. Nothing happens while one is under way.
    void importScheme(const QString &code);

signals:
    // The import has ended; the scheme is the user's, or nothing has changed.
    void sigImported();
    void sigFailed();

private:
    void onImported();
    void onFailed(const QString &logText, const QString &message);
    void showToast(const QString &text);

    QPointer<KeyboardMapMgr> m_manager; // not owned
    QWidget *m_window; // the parent
    HttpHelper *m_httpHelper; // child
    bool m_importing = false;
    QPointer<ShareConfigDlg> m_dialog; // not owned; whose code is being imported
};
