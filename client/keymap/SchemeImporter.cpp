#include "keymap/SchemeImporter.h"

#include "keymap/KeyboardMapMgr.h"
#include "keymap/ShareConfigDlg.h"
#include "net/HttpHelper.h"
#include "widgets/OvToast.h"

#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int SuccessCode = 200;
constexpr int ToastSeconds = 3;
const QLatin1String SharePath("/apiv1/keyboard_map/shareMapConfig");

} // namespace

SchemeImporter::SchemeImporter(KeyboardMapMgr *manager, QWidget *window)
    : QObject(window)
    , m_manager(manager)
    , m_window(window)
    , m_httpHelper(new HttpHelper(this))
{ }

SchemeImporter::~SchemeImporter() = default;

void SchemeImporter::importFrom(ShareConfigDlg *dialog)
{
    if (m_importing)
        return;
    m_dialog = dialog;
    dialog->setBusy(true);
    importScheme(dialog->code());
}

void SchemeImporter::importScheme(const QString &code)
{
    if (m_importing)
        return;
    m_importing = true;
    const QJsonObject body{{QStringLiteral("map_id"), code}};
    m_httpHelper->post(
        HttpHelper::apiBaseUrl() + SharePath, QString::fromUtf8(QJsonDocument(body).toJson()),
        [this](const ResponseData &response) {
            if (response.code == SuccessCode)
                onImported();
            else
                onFailed(QStringLiteral("share map config request error!\nresponse msg --> ") + response.msg,
                    response.msg);
        },
        [this](const QString &error) {
            onFailed(QStringLiteral("share map config request failed!\nresponse data --> ") + error, error);
        });
}

void SchemeImporter::onImported()
{
    m_importing = false;
    if (m_manager)
        m_manager->onRefreshMapConfig();
    if (m_dialog)
        m_dialog->accept();
    emit sigImported();
    showToast(tr("Operated successfully"));
}

void SchemeImporter::onFailed(const QString &logText, const QString &message)
{
    qWarning().noquote() << logText;
    m_importing = false;
    if (m_dialog)
        m_dialog->setBusy(false);
    emit sigFailed();
    showToast(message);
}

void SchemeImporter::showToast(const QString &text)
{
    (new OvToast(m_window))->show(text, ToastSeconds);
}
