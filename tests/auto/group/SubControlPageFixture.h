#pragma once

#include "GroupTiles.h"

#include "group/RemoveDeviceDialog.h"
#include "group/SubControlPage.h"
#include "net/HttpHelper.h"

#include <TestHttpServer.h>

#include <QCursor>
#include <QHBoxLayout>
#include <QNetworkReply>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(SubController *)

namespace grouptest {

// A page of a group's controlled devices in a window of the smallest size, and a service that grants
// everything. Each test begins with a new, empty page.
class SubControlPageFixture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<SubController *>();
        m_server = std::make_unique<TestHttpServer>();
        qputenv("ORVANE_API_BASE_URL", m_server->baseUrl().toUtf8());
    }

    void init()
    {
        Recorder::instance().reset();
        Recorder::instance().setRemoteSize(720, 1280);
        m_server->setAnswer(R"({"code": 200, "msg": "", "data": {}})");
        m_window = std::make_unique<QWidget>();
        QCursor::setPos(1000, 900); // over no tile
        m_window->move(0, 0);
        auto *layout = new QHBoxLayout(m_window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        m_page = new SubControlPage;
        layout->addWidget(m_page);
        m_window->resize(775, 660);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(m_page->size(), QSize(775, 660));
    }

    void cleanup() { m_window.reset(); }

protected:
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_page->findChild<Widget *>(QLatin1String(name));
    }

    QList<QPushButton *> pageButtons() const
    {
        return m_page->findChildren<QPushButton *>(QStringLiteral("pageButton"));
    }

    // Of the grid's rows.
    QScrollBar &scrollBar() const { return *m_page->findChild<QScrollArea *>()->verticalScrollBar(); }

    QStringList shownTiles() const
    {
        QStringList ids;
        for (int i = 0; m_page->controllerAt(i); ++i) {
            if (m_page->controllerAt(i)->isVisible())
                ids.append(m_page->controllerAt(i)->serviceId());
        }
        return ids;
    }

    // Whatever else may come, comes within the thread's next round.
    void waitForInput(const QStringList &expected) const
    {
        QTRY_VERIFY(sentInput().size() >= expected.size());
        QCOMPARE(sentInput(), expected);
    }

    // They are gone when their callbacks have run.
    void waitForAnswers() const { QTRY_VERIFY(m_page->findChildren<QNetworkReply *>().isEmpty()); }

    void askForRemoval(int index) const { emit m_page->controllerAt(index)->removeController(false); }

    RemoveDeviceDialog *dialog() const { return m_window->findChild<RemoveDeviceDialog *>(); }

    std::unique_ptr<TestHttpServer> m_server;
    std::unique_ptr<QWidget> m_window;
    SubControlPage *m_page = nullptr;
};

} // namespace grouptest
