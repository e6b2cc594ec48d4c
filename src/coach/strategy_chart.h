#pragma once

#include "engine/hand_evaluation.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

namespace quillet
{

inline constexpr int chartRows = playCodeCount;

// A colour 0x00BBGGRR; with the top bit set, the number of a desktop colour.
using ChartColour = std::uint32_t;
inline constexpr ChartColour windowTextColour = 0x80000008;

struct ChartRowColours {
    ChartColour background;
    ChartColour text;
    friend bool operator==(const ChartRowColours&, const ChartRowColours&) = default;
};

enum class ChartRowState { base, bestPlay, missedPlay, winner };

struct ChartRowPlace {
    double top;
    double height;
};

// The chart beside the table: row r is play code r + 1, best play first. At most one row
// is lit at a time.
class StrategyChart
{
public:
    // The row's caption as it is shown, trailing blanks included.
    [[nodiscard]] static std::string_view caption(int row);

    // The rows in a panel of this inner height, in its own units: stacked from the bottom edge,
    // with room for two more rows at the top.
    [[nodiscard]] static std::array<ChartRowPlace, chartRows> layoutChartRows(double panelHeight);

    // Called with the row after each change of its colours.
    void onRowChanged(std::function<void(int)> listener) { m_rowChanged = std::move(listener); }

    void resetChartColors();
    // A play code below 1 changes nothing.
    void highlightBestPlay(std::int16_t playCode) { highlight(playCode, ChartRowState::bestPlay); }
    void highlightMissedPlay(std::int16_t playCode)
    {
        highlight(playCode, ChartRowState::missedPlay);
    }
    void highlightWinner(std::int16_t playCode) { highlight(playCode, ChartRowState::winner); }

    [[nodiscard]] ChartRowState state(int row) const;
    [[nodiscard]] static ChartRowColours coloursOf(int row, ChartRowState state);
    [[nodiscard]] ChartRowColours colours(int row) const { return coloursOf(row, state(row)); }

private:
    void setState(int row, ChartRowState state);
    void highlight(std::int16_t playCode, ChartRowState state);

    std::array<ChartRowState, chartRows> m_states{};
    std::function<void(int)> m_rowChanged;
};

} // namespace quillet
