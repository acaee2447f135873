// A client that does nothing but an update, for tests that end it at any moment: opens the update dialog and
// confirms as soon as the installer is ready.
//
//     update-client UPDATE_PATH FILE_NAME now|later
//
// Prints "ready" when the installer is offered and "started" when it was started, and ends. With "later" it
// is started after the event loop, as the client does on its way out.

#include "update/InstallerStart.h"
#include "update/OvUpdateDialog.h"

#include <QApplication>
#include <QJsonObject>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int pollMs = 5;

void report(const char *what)
{
    std::puts(what);
    std::fflush(stdout);
}

void confirmWhenReady(OvUpdateDialog *dialog, bool later)
{
    auto *timer = new QTimer(dialog);
    QObject::connect(timer, &QTimer::timeout, dialog, [dialog, timer, later] {
        auto *confirm = dialog->findChild<QPushButton *>(QStringLiteral("confirmButton"));
        if (!confirm->isVisible())
            return;
        timer->stop();
        report("ready");
        dialog->findChild<QRadioButton *>(QStringLiteral("installLaterButton"))->setChecked(later);
        confirm->click();
    });
    timer->start(pollMs);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    QString installerOnExit;
    bool started = true;
    auto *dialog = new OvUpdateDialog;
    QObject::connect(dialog, &OvUpdateDialog::sigInstallNewVersionApp, &application,
        [&](const QString &filePath, bool delayInstall) {
            if (delayInstall)
                installerOnExit = filePath;
            else
                started = startInstaller(filePath);
            QApplication::quit();
        });
    dialog->show();
    dialog->updateNewVersion(arguments.at(1), {QJsonObject{{QStringLiteral("file_name"), arguments.at(2)}}});
    confirmWhenReady(dialog, arguments.at(3) == QLatin1String("later"));
    QApplication::exec();
    if (!installerOnExit.isEmpty())
        started = startInstaller(installerOnExit);
    report(started ? "started" : "not started");
    return started ? 0 : 1;
}
