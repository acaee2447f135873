#pragma once

#include "widgets/OvWindowBase.h"

#include <QJsonArray>
#include <QPointer>
#include <QString>
#include <QThread>

#include <chrono>

class HttpHelper;
class PendingPackage;
class QLabel;
class QNetworkReply;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTimer;

// Gets the installer of a new version into the "pending" folder of the application data, unless it is there
// already, and asks when it shall be started. It does not start it: whoever opened the dialog does.
//
//     auto *dialog = new OvUpdateDialog;
//     dialog->show();
//     dialog->updateNewVersion(updatePath, fileInfo);
//
// It shows that it downloads until the installer is there; after a failure, which the log tells, it goes on
// showing that until it is closed or the update is started again.
//
// GUI thread; the files are worked on by a thread that the dialog has. Made with new: it deletes itself when
// it is closed, which ends the download.
class OvUpdateDialog : public OvWindowBase
{
    Q_OBJECT

public:
    explicit OvUpdateDialog(QWidget *parent = nullptr);
    ~OvUpdateDialog() override;

    // Starts the update; nothing while one is under way or when its installer is ready. `updatePath`: URL of
    // the folder that the release's files are in; `fileInfo`: these files, objects with "file_name".
    void updateNewVersion(const QString &updatePath, const QJsonArray &fileInfo);

    // How long no data may come before the log mentions it; 30 s at first.
    void setStallTime(std::chrono::milliseconds stallTime);

signals:
    // The user's choice: start the installer at once or, with `delayInstall`, when the client ends.
    void sigInstallNewVersionApp(const QString &filePath, bool delayInstall);

public slots:
    void onDownloadProgressChanged(qint64 bytesReceived, qint64 bytesTotal);
    void onPackagetReadyRead();
    void onLatestInfoReadyRead();
    void onConfirmBtnClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    enum class State { Idle, Downloading, Ready, Failed };

    void createContent();
    void connectPackage();
    void setTexts();
    void fitToContent();
    void showState();

    HttpHelper *httpHelper();
    void startPackage();
    void endPackage();
    void requestLatestInfo();
    void onLatestInfoComplete();
    void requestPackage();
    void watch(QNetworkReply *reply);
    void fail(const char *what, const QString &error);
    QByteArray takeBytes();
    // Gives the package what has come, but not more than `limit` bytes at a time that are not written.
    void passOn(qint64 limit);
    QString defectOfWholeReply() const;
    // Why a reply brings no file, or empty.
    static QString refusalOf(const QNetworkReply *reply);

    State m_state = State::Idle;
    QString m_updatePath;
    QString m_fileName;
    QString m_pendingDir;
    QString m_filePath;
    HttpHelper *m_httpHelper = nullptr; // child, made on first use
    QPointer<QNetworkReply> m_reply; // of what is being downloaded; owned by the helper
    qint64 m_receivedBytes = 0; // of m_reply
    qint64 m_unwrittenBytes = 0; // that m_package has been given
    QTimer *m_stallTimer; // child
    QThread m_fileThread;
    PendingPackage *m_package = nullptr; // lives on m_fileThread

    QWidget *m_content = nullptr; // children
    QLabel *m_downloadingLabel = nullptr;
    QProgressBar *m_progressBar = nullptr;
    QLabel *m_readyLabel = nullptr;
    QRadioButton *m_installNowButton = nullptr;
    QRadioButton *m_installLaterButton = nullptr;
    QPushButton *m_confirmButton = nullptr;
};
