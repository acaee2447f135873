#include "session/PeerWatch.h"

namespace swplay {

PeerWatch::PeerWatch(Duration silenceLimit, Duration writeLimit)
    : m_silenceLimit(silenceLimit)
    , m_writeLimit(writeLimit)
{ }

void PeerWatch::reset(TimePoint now)
{
    m_heardAt = now;
    m_writing = false;
}

void PeerWatch::writeStarted(TimePoint now)
{
    m_writing = true;
    m_writingSince = now;
}

const char *PeerWatch::verdict(TimePoint now) const
{
    if (now - m_heardAt >= m_silenceLimit)
        return "the gateway is silent";
    if (m_writing && now - m_writingSince >= m_writeLimit)
        return "the gateway does not read";
    return nullptr;
}

} // namespace swplay
