#include "session/VideoSettings.h"

#include "session/WireMessage.h"

#include <utility>

namespace swplay {

void VideoSettings::setLevels(std::vector<VideoLevel> levels)
{
    m_levels = std::move(levels);
    m_levelsUntold = true;
}

void VideoSettings::chooseRow(int row)
{
    m_row = row;
    m_custom.reset();
    m_choiceUntold = true;
}

void VideoSettings::chooseCustom(const VideoLevel &level)
{
    m_row.reset();
    m_custom = level;
    m_choiceUntold = true;
}

void VideoSettings::setScreenCast(int mode)
{
    m_screenCast = mode;
    m_screenCastUntold = true;
}

VideoLevel VideoSettings::chosen() const
{
    if (m_custom)
        return *m_custom;
    const std::size_t row = m_row && *m_row > 0 ? static_cast<std::size_t>(*m_row) : 0;
    return row < m_levels.size() ? m_levels[row] : VideoLevel();
}

void VideoSettings::tellAll()
{
    m_levelsUntold = !m_levels.empty();
    m_choiceUntold = m_row || m_custom;
    m_screenCastUntold = m_screenCast.has_value();
}

std::optional<wire::StreamMessage> VideoSettings::takeUntold()
{
    if (std::exchange(m_levelsUntold, false))
        return videoLevelsMessage(m_levels);
    if (std::exchange(m_choiceUntold, false))
        return m_custom ? customLevelMessage(*m_custom) : levelRowMessage(m_row.value_or(0));
    if (std::exchange(m_screenCastUntold, false))
        return screenCastMessage(m_screenCast.value_or(0));
    return std::nullopt;
}

} // namespace swplay
