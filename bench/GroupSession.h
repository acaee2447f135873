#pragma once

#include "Service.h"

#include "group/GroupController.h"
#include "group/GroupDevice.h"

#include <QPointer>
#include <QStringList>

#include <memory>
#include <vector>

class BatchProcessThread;
class SubController;
class SubControlPage;

namespace bench {

// The real service in a process of its own with a group of its devices, all of which show a film at five
// pictures a second, and the group's window. GUI thread. Every operation throws e2e::StepFailed.
class GroupSession
{
public:
    // Starts the service; the window is not open yet.
    explicit GroupSession(int devices);
    ~GroupSession();

    // Opens the window; returns after how many milliseconds every tile of the first page has its picture.
    double open();

    e2e::Service &service() { return m_service; }
    SubControlPage &page() const;
    BatchProcessThread &batchThread() const;
    std::vector<SubController *> shownTiles() const;
    // Of those, how many lie in the part of the page that the window shows.
    int visibleTiles() const;
    // Of the controlled devices, in the group's order.
    const QStringList &tilePads() const { return m_tilePads; }
    // Pictures that the gateway has sent to the sessions with the controlled devices so far.
    double tilePicturesSent() const;
    // CPU time that the service has used so far, in milliseconds.
    double serviceCpuMs() const;

private:
    void signIn();
    void showFilms();

    e2e::Service m_service;
    group::GroupDevices m_devices;
    QStringList m_pads; // of all devices, in the group's order
    QStringList m_tilePads;
    QPointer<GroupController> m_window;
};

} // namespace bench
