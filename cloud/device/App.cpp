#include "device/App.h"

#include "device/Theme.h"

namespace orvane::cloud {

App::App(Host host)
    : m_host(std::move(host))
{ }

App::~App() = default;

void App::resize(QSize screen)
{
    m_screen = screen;
    layout();
}

void App::touchDown(const Pointer &)
{ }
void App::touchMove(const Pointer &)
{ }
void App::touchUp(const Pointer &)
{ }
void App::touchCancel(int)
{ }
void App::keyPressed(const KeyPress &)
{ }
void App::textTyped(const QString &)
{ }
void App::setFilmRate(int)
{ }
void App::cameraPicture(const QImage &, QSize)
{ }
void App::systemChanged()
{ }
void App::resume(TimePoint)
{ }
void App::pause()
{ }
void App::tick(TimePoint)
{ }

QRect App::body() const
{
    return {0, theme::StatusBarHeight, m_screen.width(),
        m_screen.height() - theme::StatusBarHeight - theme::NavigationBarHeight};
}

} // namespace orvane::cloud
