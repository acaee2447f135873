#pragma once

#include "gateway/Level.h"

#include <vector>

namespace orvane::cloud {

// Works out the level in effect for one session from what its client told: the table of levels, the choice
// and the cast mode, and from the row that automatic control is on. Pure logic, no clock; used by Viewer
// only.
class LevelSelection
{
public:
    // Level, and where it comes from.
    struct Effective
    {
        Level level;
        int row = -1; // row of the client's table, -1 = not from the table
        bool automatic = false;

        bool operator==(const Effective &other) const
        {
            return level == other.level && row == other.row && automatic == other.automatic;
        }
        bool operator!=(const Effective &other) const { return !(*this == other); }
    };

    // An empty table is allowed: built-in levels then stand in for it.
    void setTable(std::vector<Level> table);
    // 0 = automatic. False, and nothing changes, when the table is known and has no such row.
    bool chooseRow(int row);
    void chooseCustom(const Level &level);
    void setCastMode(CastMode mode) { m_castMode = mode; }
    CastMode castMode() const { return m_castMode; }

    // Whether the level in effect follows automatic control.
    bool isAutomatic() const;
    // The rows that automatic control moves between: best and worst; equal where there is no choice.
    int firstAutomaticRow() const;
    int lastAutomaticRow() const;
    // Bit rates (kbit/s) of the rows of the table, by row; never empty.
    std::vector<int> bitRates() const;

    // `automaticRow`: the row that automatic control is on, used only while isAutomatic().
    Effective effective(int automaticRow) const;

private:
    enum class Choice { Row, Custom };

    std::vector<Level> m_table;
    CastMode m_castMode = CastMode::Paused;
    Choice m_choice = Choice::Row;
    int m_row = 0;
    Level m_custom;
};

} // namespace orvane::cloud
