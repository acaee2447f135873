#pragma once

#include "swplay/VideoLevel.h"

#include "stream.pb.h"

#include <optional>
#include <vector>

namespace swplay {

// What video the client wants: the level table, the choice and the cast mode, as last set, and which of them
// the gateway has not been told yet. A setting that was never made is left to the gateway.
//
// Owned by a session and guarded by its mutex. The arguments are within their ranges.
class VideoSettings
{
public:
    void setLevels(std::vector<VideoLevel> levels);
    void chooseRow(int row); // 0 = automatic
    void chooseCustom(const VideoLevel &level);
    void setScreenCast(int mode);

    int rowCount() const { return static_cast<int>(m_levels.size()); }
    // The chosen level as far as it is known before the gateway tells: the best row for automatic.
    VideoLevel chosen() const;

    // Everything that was set must be told: the gateway of a new connection knows nothing.
    void tellAll();
    // The next setting to tell; the table comes before the choice that refers to it.
    std::optional<wire::StreamMessage> takeUntold();

private:
    std::vector<VideoLevel> m_levels;
    std::optional<int> m_row;
    std::optional<VideoLevel> m_custom; // instead of m_row
    std::optional<int> m_screenCast;
    bool m_levelsUntold = false;
    bool m_choiceUntold = false;
    bool m_screenCastUntold = false;
};

} // namespace swplay
