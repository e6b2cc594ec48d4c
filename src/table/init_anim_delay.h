#pragma once

#include "faults/guarded.h"
#include "platform/clock.h"
#include "settings/preferences.h"
#include "table/card_library.h"
#include "table/table_canvas.h"
#include "table/table_geometry.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillet
{

// Measures this machine, so that cards fly at the same speed everywhere. It measures the processor
// time of this thread, which the work of other programs does not change.
class DelayMeter
{
public:
    // afterRound is called after every measured round, to let events run and show progress.
    DelayMeter(TableCanvas& canvas, CardLibrary& library, Preferences& preferences,
               const Clock& clock, ErrorBox errorBox, std::function<void()> afterRound);

    // Sets prfAnimationDelay, prfScrollVal and prfBannerDelay (that of a banner sliding into a
    // strip as large as the status bar). An error is shown in a box; the delays keep the values
    // they had reached.
    void InitAnimDelay(const TableMeasures& table);

private:
    // Runs a round, or returns nothing if the round would probably end too late.
    [[nodiscard]] std::optional<double> whileTimeIsLeft(const std::function<double()>& round);
    // Seconds taken by a round of frames, with this delay.
    [[nodiscard]] double secondsTaken(const std::function<void()>& frames);
    [[nodiscard]] double flightRound(std::int32_t delay);
    [[nodiscard]] double bannerRound(std::int32_t delay);
    [[nodiscard]] double secondsPerDelayUnit();

    TableCanvas& m_canvas;
    CardLibrary& m_library;
    Preferences& m_preferences;
    const Clock& m_clock;
    ErrorBox m_errorBox;
    std::function<void()> m_afterRound;
    Surface m_board; // of the table's size
    Surface m_under; // of a card's size
    QSizeF m_frame;  // logical pixels that a frame copies
    Surface m_bannerStrip;
    QImage picBanner3;               // what slides into it
    std::int64_t m_started = 0;      // milliseconds of the clock
    double m_startedProcessor = 0.0; // and seconds of the processor's
    double m_longestRound = 0.4;     // seconds of the processor's; what the rounds aim at, or more
};

} // namespace quillet
