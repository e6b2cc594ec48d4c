#include "table/init_anim_delay.h"

#include "cards/card_numbers.h"
#include "table/animation_speed.h"
#include "table/counting_loop.h"
#include "table/delay_calibration.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace quillet
{

namespace
{

constexpr int flightFrames = 150;
constexpr std::int32_t bannerTop = -60;
constexpr int bannerFrames = 61;
constexpr double trail = 10;

// Milliseconds from the start of the program to the end of the last round. On a busy machine, the
// table then takes about as long again as the program took to get here.
constexpr std::int64_t timeLimit = 2500;

QImage bannerPicture(QSize size)
{
    QImage banner(size, QImage::Format_ARGB32_Premultiplied);
    QLinearGradient shine(0, 0, size.width(), 0);
    shine.setColorAt(0.0, Qt::black);
    shine.setColorAt(0.5, QColor(0xc8, 0x10, 0x2e));
    shine.setColorAt(1.0, Qt::black);
    QPainter(&banner).fillRect(banner.rect(), shine);
    return banner;
}

// Runs the rounds. It measures the processor time of this thread, which the work of other programs
// does not change.
class DelayMeter
{
public:
    DelayMeter(TableCanvas& canvas, CardLibrary& library, const TableMeasures& table,
               const Clock& clock, const std::function<void()>& afterRound)
        : m_canvas(canvas), m_library(library), m_clock(clock), m_afterRound(afterRound),
          m_board(canvas.innerSize(), canvas.scale()), m_under(library.cardSize(), canvas.scale()),
          m_bannerStrip({statusBarWidth, table.statusBarHeight}, canvas.scale()),
          picBanner3(bannerPicture((m_bannerStrip.size() * canvas.scale()).toSize()))
    {
        const QSizeF pile = rejectPileSize(table);
        m_frame = {std::nearbyint(pile.width()), std::nearbyint(pile.height())};
    }

    void setDelays(Preferences& preferences)
    {
        const double unit = secondsPerDelayUnit();
        calibrateFlight(preferences.prfAnimationDelay, {flightRound(0), unit * flightFrames},
                        [this](std::int32_t delay) {
                            return whileTimeIsLeft([&] { return flightRound(delay); });
                        });
        preferences.prfScrollVal = scrollValueFor(preferences.prfAnimationDelay);
        calibrateBanner(preferences.prfBannerDelay, {bannerRound(0), unit * bannerFrames},
                        [this](std::int32_t delay) {
                            return whileTimeIsLeft([&] { return bannerRound(delay); });
                        });
    }

private:
    // Runs a round, or returns nothing if the round would probably end too late. Assumes that other
    // programs slow it down as much as the rounds so far.
    template <typename Round>
    [[nodiscard]] std::optional<double> whileTimeIsLeft(const Round& round)
    {
        const std::int64_t now = m_clock.milliseconds();
        const auto waited = static_cast<double>(now - m_started);
        const double slowness = waited / (m_clock.processorSeconds() - m_startedProcessor);
        if (static_cast<double>(now) + m_longestRound * slowness > timeLimit)
            return std::nullopt;
        return round();
    }

    // Seconds taken by a round of frames.
    template <typename Frames>
    [[nodiscard]] double secondsTaken(const Frames& frames)
    {
        const double start = m_clock.processorSeconds();
        frames();
        const double elapsed = m_clock.processorSeconds() - start;
        m_longestRound = std::max(m_longestRound, elapsed);
        m_afterRound();
        return elapsed;
    }

    [[nodiscard]] double flightRound(std::int32_t delay)
    {
        return secondsTaken([&] {
            for (int frame = 0; frame < flightFrames; ++frame) {
                m_under.copyFrom(m_board, {0, 0}, m_frame, {0, 0});
                m_library.cdtDraw(m_board, 0, 0, beachBack, drawBack, whiteColour);
                const QRectF copied({0, -trail}, m_frame + QSizeF(trail, trail));
                m_canvas.copyPixels(m_board, deviceRect(copied, m_board.scale()));
                m_board.copyFrom(m_under, {0, 0}, m_frame, {0, 0});
                countingLoop(delay);
            }
        });
    }

    [[nodiscard]] double bannerRound(std::int32_t delay)
    {
        return secondsTaken([&] {
            for (std::int32_t k = bannerTop; k <= 0; ++k) {
                m_bannerStrip.drawPixels(picBanner3, QPointF(0, k));
                countingLoop(delay);
            }
        });
    }

    [[nodiscard]] double secondsPerDelayUnit() const
    {
        constexpr std::int32_t sample = 500;
        double best = 0.0;
        for (int i = 0; i < 3; ++i) {
            const double start = m_clock.processorSeconds();
            countingLoop(sample);
            const double elapsed = m_clock.processorSeconds() - start;
            best = i == 0 ? elapsed : std::min(best, elapsed);
        }
        return best / sample;
    }

    TableCanvas& m_canvas;
    CardLibrary& m_library;
    const Clock& m_clock;
    const std::function<void()>& m_afterRound;
    Surface m_board; // of the table's size
    Surface m_under; // of a card's size
    QSizeF m_frame;  // logical pixels that a frame copies
    Surface m_bannerStrip;
    QImage picBanner3; // what slides into it
    const std::int64_t m_started = m_clock.milliseconds();
    const double m_startedProcessor = m_clock.processorSeconds();
    double m_longestRound = 0.4; // seconds of the processor's; what the rounds aim at, or more
};

} // namespace

void InitAnimDelay(TableCanvas& canvas, CardLibrary& library, const TableMeasures& table,
                   Preferences& preferences, const Clock& clock, const ErrorBox& errorBox,
                   const std::function<void()>& afterRound)
{
    guardedWithText(errorBox, "Error in InitAnimDelay ", "", [&] {
        preferences.prfAnimationDelay = 0;
        DelayMeter(canvas, library, table, clock, afterRound).setDelays(preferences);
    });
}

} // namespace quillet
