#include "web/WebSingleControllerJsApi.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QWebEngineView>

namespace {

// Without an ending: the user's choice of a file type, or the dialog, adds it.
QString proposedFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QDir::separator()
        + WebSingleControllerJsApi::tr("Screen capture");
}

} // namespace

WebSingleControllerJsApi::WebSingleControllerJsApi(QWebEngineView *webView)
    : OvJsApi(webView)
{ }

// The page goes on while the dialog is open; the dialog ends with the page that asked.
void WebSingleControllerJsApi::getSavePath(const Context &context)
{
    auto *dialog = new QFileDialog(nullptr, tr("Save File"), proposedFile(), tr("Image(*.jpg *.png)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("png"));
    dialog->setWindowModality(Qt::ApplicationModal);
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    const QString callback = context.callback();
    connect(dialog, &QDialog::finished, this, [this, dialog, callback](int result) {
        const QString path = result == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
        if (!path.isEmpty())
            emit sigSavePathChosen(path);
        publishResult(callback, QJsonObject{{QStringLiteral("savePath"), path}});
    });
    dialog->open();
}
