#include "group/ExpiryQuestions.h"

#include "widgets/OvMaskTipsDialog.h"
#include "widgets/OvWindowBase.h"

#include <algorithm>
#include <utility>

ExpiryQuestions::ExpiryQuestions(OvWindowBase *window, Wording wording)
    : QObject(window)
    , m_window(window)
    , m_wording(std::move(wording))
{ }

ExpiryQuestions::~ExpiryQuestions() = default;

void ExpiryQuestions::notify(const group::ExpiryNotice &notice)
{
    const QString question = m_wording(notice);
    if (question.isEmpty())
        return;
    if (m_notice && m_noticeId == notice.serviceId) {
        m_notice->setText(question);
        return;
    }
    const auto earlier = std::find_if(m_waiting.begin(), m_waiting.end(),
        [&](const group::ExpiryNotice &waiting) { return waiting.serviceId == notice.serviceId; });
    if (earlier != m_waiting.end())
        *earlier = notice;
    else
        m_waiting.append(notice);
    showNextNotice();
}

void ExpiryQuestions::ask(const QString &question, const std::function<void()> &onConfirmed)
{
    open(question, onConfirmed);
}

OvMaskTipsDialog *ExpiryQuestions::open(const QString &question, const std::function<void()> &onConfirmed)
{
    auto *dialog = new OvMaskTipsDialog(m_window);
    dialog->setUnprompted();
    dialog->coverParent();
    dialog->setText(question);
    m_open.append(dialog);
    connect(dialog, &QDialog::finished, this, [this, dialog, onConfirmed](int result) {
        if (result == QDialog::Accepted && onConfirmed)
            onConfirmed();
        onAnswered(dialog);
    });
    dialog->open();
    return dialog;
}

// A window that is not shown answers all of its questions; nobody would see the next.
void ExpiryQuestions::onAnswered(OvMaskTipsDialog *question)
{
    m_open.removeAll(question);
    if (m_notice == question)
        m_notice.clear();
    if (m_window->isVisible())
        showNextNotice();
}

// While they waited, devices may have left or changed places.
void ExpiryQuestions::showNextNotice()
{
    m_open.removeAll(nullptr);
    while (m_open.isEmpty() && !m_waiting.isEmpty()) {
        const group::ExpiryNotice notice = m_waiting.takeFirst();
        const QString question = m_wording(notice);
        if (question.isEmpty())
            continue;
        m_noticeId = notice.serviceId;
        m_notice = open(question, {});
    }
}
