#include "table/init_anim_delay.h"

#include "cards/card_numbers.h"
#include "table/animation_speed.h"
#include "table/counting_loop.h"
#include "table/delay_calibration.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

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

} // namespace

DelayMeter::DelayMeter(TableCanvas& canvas, CardLibrary& library, Preferences& preferences,
                       const Clock& clock, ErrorBox errorBox, std::function<void()> afterRound)
    : m_canvas(canvas), m_library(library), m_preferences(preferences), m_clock(clock),
      m_errorBox(std::move(errorBox)), m_afterRound(std::move(afterRound))
{
}

void DelayMeter::InitAnimDelay(const TableMeasures& table)
{
    guardedWithText(m_errorBox, "Error in InitAnimDelay ", "", [&] {
        const double scale = m_canvas.scale();
        const QSizeF strip(statusBarWidth, table.statusBarHeight);
        m_board = Surface(m_canvas.innerSize(), scale);
        m_under = Surface(m_library.cardSize(), scale);
        const QSizeF pile = rejectPileSize(table);
        m_frame = {std::nearbyint(pile.width()), std::nearbyint(pile.height())};
        m_bannerStrip = Surface(strip, scale);
        picBanner3 = bannerPicture((strip * scale).toSize());
        m_preferences.prfAnimationDelay = 0;
        m_started = m_clock.milliseconds();
        m_startedProcessor = m_clock.processorSeconds();
        const double unit = secondsPerDelayUnit();
        calibrateFlight(m_preferences.prfAnimationDelay, {flightRound(0), unit * flightFrames},
                        [this](std::int32_t delay) {
                            return whileTimeIsLeft([&] { return flightRound(delay); });
                        });
        m_preferences.prfScrollVal = scrollValueFor(m_preferences.prfAnimationDelay);
        calibrateBanner(m_preferences.prfBannerDelay, {bannerRound(0), unit * bannerFrames},
                        [this](std::int32_t delay) {
                            return whileTimeIsLeft([&] { return bannerRound(delay); });
                        });
    });
}

// Assumes that other programs slow the next round down as much as the rounds so far.
std::optional<double> DelayMeter::whileTimeIsLeft(const std::function<double()>& round)
{
    const std::int64_t now = m_clock.milliseconds();
    const auto waited = static_cast<double>(now - m_started);
    const double slowness = waited / (m_clock.processorSeconds() - m_startedProcessor);
    if (static_cast<double>(now) + m_longestRound * slowness > timeLimit)
        return std::nullopt;
    return round();
}

double DelayMeter::secondsTaken(const std::function<void()>& frames)
{
    const double start = m_clock.processorSeconds();
    frames();
    const double elapsed = m_clock.processorSeconds() - start;
    m_longestRound = std::max(m_longestRound, elapsed);
    m_afterRound();
    return elapsed;
}

double DelayMeter::flightRound(std::int32_t delay)
{
    return secondsTaken([&] {
        for (int frame = 0; frame < flightFrames; ++frame) {
            m_under.copyFrom(m_board, {0, 0}, m_frame, {0, 0});
            m_library.cdtDraw(m_board, 0, 0, beachBack, drawBack, whiteColour);
            m_canvas.copyPixels(m_board, deviceRect({{0, -trail}, m_frame + QSizeF(trail, trail)},
                                                    m_board.scale()));
            m_board.copyFrom(m_under, {0, 0}, m_frame, {0, 0});
            countingLoop(delay);
        }
    });
}

double DelayMeter::bannerRound(std::int32_t delay)
{
    return secondsTaken([&] {
        for (std::int32_t k = bannerTop; k <= 0; ++k) {
            m_bannerStrip.drawPixels(picBanner3, QPointF(0, k));
            countingLoop(delay);
        }
    });
}

double DelayMeter::secondsPerDelayUnit()
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

} // namespace quillet
