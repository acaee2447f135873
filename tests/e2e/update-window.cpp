// The client's main window without a sign-in, for tests that end it at any moment during an update: the
// page's request is made in the page's place, and the dialog confirmed as soon as the installer is ready.
//
//     update-window UPDATE_PATH FILE_NAME now|later
//
// Prints "ready" when the installer is offered and ends by closing the main window.

#include "update/OvUpdateDialog.h"
#include "web/OvMainWindow.h"
#include "web/OvMainWindowJsApi.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int pollMs = 5;

QString updateCall(const QString &updatePath, const QString &fileName)
{
    const QJsonObject info{{QStringLiteral("update_path"), updatePath},
        {QStringLiteral("file_info"), QJsonArray{QJsonObject{{QStringLiteral("file_name"), fileName}}}}};
    const QJsonObject call{{QStringLiteral("jsApiName"), QStringLiteral("updateNewVersion")},
        {QStringLiteral("pc_update_info"), info}};
    return QString::fromUtf8(QJsonDocument(call).toJson(QJsonDocument::Compact));
}

void confirmWhenReady(OvMainWindow *window, bool later)
{
    auto *timer = new QTimer(window);
    QObject::connect(timer, &QTimer::timeout, window, [window, timer, later] {
        auto *confirm = window->updateDialog()->findChild<QPushButton *>(QStringLiteral("confirmButton"));
        if (!confirm->isVisible())
            return;
        timer->stop();
        std::puts("ready");
        std::fflush(stdout);
        window->updateDialog()
            ->findChild<QRadioButton *>(QStringLiteral("installLaterButton"))
            ->setChecked(later);
        confirm->click();
        window->close();
    });
    timer->start(pollMs);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    OvMainWindow window;
    window.show();
    window.jsApi()->callJsApi(updateCall(arguments.at(1), arguments.at(2)));
    confirmWhenReady(&window, arguments.at(3) == QLatin1String("later"));
    return QApplication::exec();
}
