#include "update/OvUpdateDialog.h"

#include "base/AppPaths.h"
#include "net/HttpHelper.h"
#include "update/InstallerName.h"
#include "update/PendingPackage.h"
#include "update/ReleaseInfo.h"
#include "widgets/OvTitleBarBase.h"

#include <QButtonGroup>
#include <QDebug>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QNetworkReply>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <limits>

namespace {

// What the service and the user rely on.
namespace Contract {
const char latestInfoName[] = "/latest.yml";
constexpr int hiddenPercent = 5; // the bar shows nothing up to here
constexpr int confirmButtonHeight = 40; // pixels
constexpr int httpOk = 200;
} // namespace Contract

// A description has a few hundred bytes.
constexpr qint64 maxLatestInfoBytes = 65'536;
// What may wait to be written.
constexpr qint64 maxUnwrittenBytes = 4'194'304;
// What the network layer may hold that has not been taken from it.
constexpr qint64 readBufferBytes = 1'048'576;
constexpr std::chrono::seconds defaultStallTime(30);

// Sizes in pixels and colours.
namespace Look {
constexpr QSize SmallestContent(420, 224); // title bar included
constexpr QMargins Margins(32, 28, 32, 28);
constexpr int Spacing = 16;
constexpr int TitlePixels = 14;
constexpr QRgb TitleColour = qRgb(255, 255, 255);
} // namespace Look

const QLatin1String contentStyle(
    "QLabel { color: #303133; font-size: 16px; }"
    "QRadioButton { color: #606266; font-size: 14px; spacing: 8px; }"
    "QRadioButton:focus { color: #303133; }"
    "QRadioButton::indicator { width: 12px; height: 12px; border: 2px solid #C0C4CC; border-radius: 8px;"
    " background: white; }"
    "QRadioButton::indicator:hover { border-color: #FF9B7A; }"
    "QRadioButton::indicator:checked { border-color: #FF9B7A; background: qradialgradient(cx: 0.5, cy: 0.5,"
    " radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 #FF9B7A, stop: 0.55 #FF9B7A, stop: 0.65 white, stop: 1 white); }"
    "QProgressBar { border: none; border-radius: 4px; background: #E5E7ED; max-height: 8px; min-height: 8px; "
    "}"
    "QProgressBar::chunk { border-radius: 4px; background: #07CCFB; }"
    "QPushButton { background: #FF9B7A; color: white; border: 1px solid #FF9B7A; border-radius: 4px;"
    " font-size: 14px; padding: 0 24px; }"
    "QPushButton:hover { background: #FFAB8F; }"
    "QPushButton:pressed { background: #F0805B; }"
    "QPushButton:focus { border-color: #D9663F; }");

QLabel *createLabel(QWidget *parent, const QString &objectName)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// A file's name is a name and nothing else: it has no query, fragment or escapes.
QString inUrl(const QString &fileName)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(fileName, "!$&'()*+,;=:@"));
}

// How many bytes a reply's body has; -1 while that is not known, or if they come encoded in others.
qint64 lengthOf(const QNetworkReply *reply)
{
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() && !reply->hasRawHeader("Content-Encoding") ? length.toLongLong() : -1;
}

} // namespace

OvUpdateDialog::OvUpdateDialog(QWidget *parent)
    : OvWindowBase(parent)
    , m_stallTimer(new QTimer(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(QIcon(QStringLiteral(":/icon/orvane.ico")));
    titleBar()->setButtonType(OvTitleBarBase::MinCloseButtons);
    createContent();
    setTexts();
    showState();

    m_stallTimer->setObjectName(QStringLiteral("stallTimer"));
    m_stallTimer->setSingleShot(true);
    setStallTime(defaultStallTime);
    connect(m_stallTimer, &QTimer::timeout, this, [this] {
        qWarning().noquote() << "the update's download has stalled, no data for"
                             << m_stallTimer->interval() / 1000.0
                             << "s:" << (m_reply ? m_reply->url().toString() : QString());
    });
    connect(m_confirmButton, &QPushButton::clicked, this, &OvUpdateDialog::onConfirmBtnClicked);
    m_fileThread.setObjectName(QStringLiteral("update-files"));
    m_fileThread.start();
}

// The helper goes first: no reply may reach a dialog that is half gone.
OvUpdateDialog::~OvUpdateDialog()
{
    delete m_httpHelper;
    endPackage();
    m_fileThread.quit();
    m_fileThread.wait();
}

// ---- What is shown

void OvUpdateDialog::createContent()
{
    m_content = new QWidget(this);
    m_content->setStyleSheet(contentStyle);
    m_downloadingLabel = createLabel(m_content, QStringLiteral("downloadingLabel"));
    m_readyLabel = createLabel(m_content, QStringLiteral("readyLabel"));
    m_progressBar = new QProgressBar(m_content);
    m_progressBar->setRange(0, 100);
    m_progressBar->setTextVisible(false);
    m_installNowButton = new QRadioButton(m_content);
    m_installNowButton->setObjectName(QStringLiteral("installNowButton"));
    m_installNowButton->setChecked(true);
    m_installLaterButton = new QRadioButton(m_content);
    m_installLaterButton->setObjectName(QStringLiteral("installLaterButton"));
    auto *choices = new QButtonGroup(this);
    choices->addButton(m_installNowButton);
    choices->addButton(m_installLaterButton);
    m_confirmButton = new QPushButton(m_content);
    m_confirmButton->setObjectName(QStringLiteral("confirmButton"));
    m_confirmButton->setFixedHeight(Contract::confirmButtonHeight);
    m_confirmButton->setCursor(Qt::PointingHandCursor);

    auto *layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(Look::Margins);
    layout->setSpacing(Look::Spacing);
    layout->addStretch();
    layout->addWidget(m_downloadingLabel);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_readyLabel);
    layout->addWidget(m_installNowButton);
    layout->addWidget(m_installLaterButton);
    layout->addStretch();
    layout->addWidget(m_confirmButton);
    mainLayout()->addWidget(m_content, 1);
}

void OvUpdateDialog::setTexts()
{
    //: Title of the window that downloads a new version of the program.
    const QString title = tr("Update");
    setWindowTitle(title);
    titleBar()->setTitle(title, Look::TitlePixels, false, QColor(Look::TitleColour));
    m_downloadingLabel->setText(tr("Downloading the new version, please wait..."));
    m_readyLabel->setText(tr("The new version is ready, install now?"));
    m_installNowButton->setText(tr("Install now"));
    m_installLaterButton->setText(tr("Installation is automatic when closing the app"));
    m_confirmButton->setText(tr("Confirm"));
    fitToContent();
}

void OvUpdateDialog::showState()
{
    const bool ready = m_state == State::Ready;
    m_downloadingLabel->setVisible(!ready);
    m_progressBar->setVisible(!ready);
    m_readyLabel->setVisible(ready);
    m_installNowButton->setVisible(ready);
    m_installLaterButton->setVisible(ready);
    m_confirmButton->setVisible(ready);
    if (ready)
        m_confirmButton->setFocus();
    fitToContent();
}

// As wide as the longer choice in the language of the moment needs, as high as the wrapped texts need; of one
// size in both states.
void OvUpdateDialog::fitToContent()
{
    const int buttons = m_installNowButton->sizeHint().height() + m_installLaterButton->sizeHint().height();
    const int margins = Look::Margins.left() + Look::Margins.right();
    const int textWidth
        = qMax(Look::SmallestContent.width() - margins, m_installLaterButton->sizeHint().width());
    const int textHeight
        = qMax(m_readyLabel->heightForWidth(textWidth), m_downloadingLabel->heightForWidth(textWidth));
    const int height = titleBar()->height() + Look::Margins.top() + Look::Margins.bottom() + textHeight
        + buttons + m_confirmButton->height() + 3 * Look::Spacing;
    const QSize content = QSize(textWidth + margins, height).expandedTo(Look::SmallestContent);
    setContentSize(content);
    setFixedContentSize(content);
}

void OvUpdateDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    OvWindowBase::changeEvent(event);
}

void OvUpdateDialog::onDownloadProgressChanged(qint64 bytesReceived, qint64 bytesTotal)
{
    if (bytesTotal <= 0) // unknown
        return;
    const int percent = static_cast<int>(qBound<qint64>(0, bytesReceived * 100 / bytesTotal, 100));
    m_progressBar->setValue(percent <= Contract::hiddenPercent ? 0 : percent);
}

// ---- The update

void OvUpdateDialog::setStallTime(std::chrono::milliseconds stallTime)
{
    m_stallTimer->setInterval(stallTime);
}

HttpHelper *OvUpdateDialog::httpHelper()
{
    if (!m_httpHelper)
        m_httpHelper = new HttpHelper(this);
    return m_httpHelper;
}

void OvUpdateDialog::updateNewVersion(const QString &updatePath, const QJsonArray &fileInfo)
{
    if (m_state == State::Downloading || m_state == State::Ready)
        return;
    m_state = State::Downloading;
    m_progressBar->setValue(0);
    m_updatePath = updatePath;
    m_fileName = installerNameIn(fileInfo);
    if (m_fileName.isEmpty())
        qWarning() << "the release has no installer among its files";
    m_pendingDir = AppPaths::pendingDir();
    if (!QDir().mkpath(m_pendingDir))
        qWarning().noquote() << "the folder for updates could not be made:" << m_pendingDir;
    startPackage();
    requestLatestInfo();
}

void OvUpdateDialog::startPackage()
{
    endPackage();
    m_unwrittenBytes = 0;
    m_package = new PendingPackage(m_pendingDir, m_fileName);
    m_filePath = m_package->filePath();
    m_package->moveToThread(&m_fileThread);
    connectPackage();
}

void OvUpdateDialog::connectPackage()
{
    connect(m_package, &PendingPackage::sigChecked, this, [this](bool verified) {
        if (!verified)
            return requestPackage();
        qInfo().noquote() << "the installer is there already:" << m_filePath;
        m_state = State::Ready;
        showState();
    });
    connect(m_package, &PendingPackage::sigTaken, this, [this](qint64 bytes) {
        m_unwrittenBytes -= bytes;
        if (m_reply && m_reply->bytesAvailable() > 0)
            onPackagetReadyRead();
    });
    connect(m_package, &PendingPackage::sigCompleted, this, [this] {
        m_state = State::Ready;
        showState();
    });
    connect(m_package, &PendingPackage::sigFailed, this, [this](const QString &error) {
        if (m_reply && m_reply->isRunning())
            m_reply->abort(); // the rest as after any other failure
        else
            fail("download package failed!", error);
    });
}

// What it has still to say does not concern this dialog any more.
void OvUpdateDialog::endPackage()
{
    if (!m_package)
        return;
    m_package->cancel();
    m_package->disconnect(this);
    m_package->deleteLater(); // on its thread
    m_package = nullptr;
}

// Before whoever reads the reply is connected to it: they may give it up, and its end must be the last thing
// that the timer hears of.
void OvUpdateDialog::watch(QNetworkReply *reply)
{
    m_reply = reply;
    m_receivedBytes = 0;
    qInfo().noquote() << "update: getting" << reply->url().toString();
    m_stallTimer->start();
    connect(reply, &QNetworkReply::readyRead, m_stallTimer, qOverload<>(&QTimer::start));
    connect(reply, &QNetworkReply::finished, m_stallTimer, &QTimer::stop);
}

void OvUpdateDialog::requestLatestInfo()
{
    const QString path = m_pendingDir + QLatin1String(Contract::latestInfoName);
    if (QFile::exists(path) && !QFile::remove(path))
        qWarning().noquote() << "an old latest.yml could not be deleted:" << path;
    QNetworkReply *reply = httpHelper()->get(
        m_updatePath + QLatin1String(Contract::latestInfoName),
        [this](const ResponseData &) { onLatestInfoComplete(); },
        [this](const QString &error) { fail("download latest.yml failed!", error); });
    watch(reply);
    connect(reply, &QNetworkReply::readyRead, this, &OvUpdateDialog::onLatestInfoReadyRead);
}

void OvUpdateDialog::onLatestInfoReadyRead()
{
    if (!m_reply)
        return;
    QFile file(m_pendingDir + QLatin1String(Contract::latestInfoName));
    const QByteArray bytes = takeBytes();
    if (!refusalOf(m_reply).isEmpty())
        return; // an explanation
    if (file.size() + bytes.size() > maxLatestInfoBytes) {
        qWarning() << "latest.yml is too long; given up after so many bytes:" << maxLatestInfoBytes;
        m_reply->abort();
    } else if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size() || !file.flush()) {
        qWarning().noquote() << "latest.yml could not be written:" << file.fileName() << "-->"
                             << file.errorString();
        m_reply->abort();
    }
}

void OvUpdateDialog::onLatestInfoComplete()
{
    const QString defect = defectOfWholeReply();
    if (!defect.isEmpty())
        return fail("download latest.yml failed!", defect);
    const ReleaseInfo info = ReleaseInfo::fromFile(m_pendingDir + QLatin1String(Contract::latestInfoName));
    qInfo().noquote() << "update: the newest version is" << info.version;
    m_package->check(info.sha512);
}

void OvUpdateDialog::requestPackage()
{
    QNetworkReply *reply = httpHelper()->get(
        m_updatePath + QLatin1Char('/') + inUrl(m_fileName),
        [this](const ResponseData &) {
            const QString defect = defectOfWholeReply();
            if (defect.isEmpty())
                m_package->complete();
            else
                fail("download package failed!", defect);
        },
        [this](const QString &error) { fail("download package failed!", error); });
    // The network layer must not gather what cannot be written as fast. With a limit it may take the end of
    // the connection for the end of the file, so there is one only where the length tells the difference.
    connect(reply, &QNetworkReply::metaDataChanged, this, [reply] {
        if (lengthOf(reply) >= 0)
            reply->setReadBufferSize(readBufferBytes);
    });
    watch(reply);
    connect(reply, &QNetworkReply::downloadProgress, this, &OvUpdateDialog::onDownloadProgressChanged);
    connect(reply, &QNetworkReply::readyRead, this, &OvUpdateDialog::onPackagetReadyRead);
    // Whoever hears of the end reads the rest.
    connect(reply, &QNetworkReply::readChannelFinished, this,
        [this] { passOn(std::numeric_limits<qint64>::max()); });
}

// What is too much stays with the reply, and then with the server, until some of it has been written.
void OvUpdateDialog::onPackagetReadyRead()
{
    passOn(maxUnwrittenBytes);
}

void OvUpdateDialog::passOn(qint64 limit)
{
    if (!m_reply || m_unwrittenBytes >= limit)
        return;
    const QByteArray bytes = takeBytes();
    if (bytes.isEmpty() || !refusalOf(m_reply).isEmpty()) // an explanation
        return;
    m_unwrittenBytes += bytes.size();
    m_package->append(bytes);
}

QByteArray OvUpdateDialog::takeBytes()
{
    QByteArray bytes = m_reply->readAll();
    m_receivedBytes += bytes.size();
    return bytes;
}

// Why a reply that has ended without a transport error is not the whole of a file, or empty.
QString OvUpdateDialog::defectOfWholeReply() const
{
    QString refusal = refusalOf(m_reply);
    const qint64 length = m_reply ? lengthOf(m_reply) : -1;
    if (!refusal.isEmpty() || length < 0 || length == m_receivedBytes)
        return refusal;
    return QStringLiteral("the connection was closed after %1 of %2 bytes").arg(m_receivedBytes).arg(length);
}

// A redirection, which is not followed, and other answers without a file are no errors to the network layer.
QString OvUpdateDialog::refusalOf(const QNetworkReply *reply)
{
    const QVariant status = reply ? reply->attribute(QNetworkRequest::HttpStatusCodeAttribute) : QVariant();
    if (!status.isValid() || status.toInt() == Contract::httpOk)
        return {};
    return QStringLiteral("the server answered with status %1").arg(status.toInt());
}

void OvUpdateDialog::fail(const char *what, const QString &error)
{
    m_stallTimer->stop();
    m_state = State::Failed;
    qWarning().noquote().nospace() << what << "\nresponse data -->" << error;
}

void OvUpdateDialog::onConfirmBtnClicked()
{
    emit sigInstallNewVersionApp(m_filePath, m_installLaterButton->isChecked());
    close();
}
