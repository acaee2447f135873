#include "gateway/LevelSelection.h"

#include <algorithm>

namespace orvane::cloud {

namespace {

// Automatic control moves between these rows of the client's table; row 0 repeats row 1, and the rows after
// the last one are meant for thumbnails.
constexpr int BestAutomaticRow = 1;
constexpr int WorstAutomaticRow = 5;

// Stands in for a missing table when a thumbnail is asked for.
Level builtInThumbnail()
{
    Level level;
    level.width = 144;
    level.height = 218;
    level.frameRate = 5;
    level.minFrameRate = 1;
    level.bitRate = 256;
    return level;
}

} // namespace

void LevelSelection::setTable(std::vector<Level> table)
{
    m_table = std::move(table);
    if (!m_table.empty() && m_row >= static_cast<int>(m_table.size())) {
        m_row = 0;
    }
}

bool LevelSelection::chooseRow(int row)
{
    if (row < 0 || (!m_table.empty() && row >= static_cast<int>(m_table.size()))) {
        return false;
    }
    m_choice = Choice::Row;
    m_row = row;
    return true;
}

void LevelSelection::chooseCustom(const Level &level)
{
    m_choice = Choice::Custom;
    m_custom = level;
}

bool LevelSelection::isAutomatic() const
{
    return m_castMode != CastMode::Thumbnail && m_choice == Choice::Row && m_row == 0;
}

int LevelSelection::firstAutomaticRow() const
{
    return std::clamp(static_cast<int>(m_table.size()) - 1, 0, BestAutomaticRow);
}

int LevelSelection::lastAutomaticRow() const
{
    return std::clamp(static_cast<int>(m_table.size()) - 1, 0, WorstAutomaticRow);
}

std::vector<int> LevelSelection::bitRates() const
{
    std::vector<int> rates;
    for (const Level &level : m_table) {
        rates.push_back(level.bitRate);
    }
    if (rates.empty()) {
        rates.push_back(Level().bitRate);
    }
    return rates;
}

LevelSelection::Effective LevelSelection::effective(int automaticRow) const
{
    const int lastRow = static_cast<int>(m_table.size()) - 1;
    if (m_castMode == CastMode::Thumbnail) {
        return m_table.empty() ? Effective{builtInThumbnail(), -1, false}
                               : Effective{m_table.back(), lastRow, false};
    }
    if (m_choice == Choice::Custom) {
        return {m_custom, -1, false};
    }
    const bool automatic = isAutomatic();
    if (m_table.empty()) {
        return {Level(), -1, automatic};
    }
    const int row = std::clamp(automatic ? automaticRow : m_row, 0, lastRow);
    return {m_table[static_cast<std::size_t>(row)], row, automatic};
}

} // namespace orvane::cloud
