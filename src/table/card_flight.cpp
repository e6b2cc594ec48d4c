#include "table/card_flight.h"

#include "faults/run_time_error.h"
#include "table/animation_speed.h"
#include "table/counting_loop.h"
#include "table/picture_box.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace quillet
{

namespace
{

// How far a frame's copy extends past the card, over the place that it has left.
constexpr int trail = 10;

std::int32_t roundHalfToEven(double value)
{
    return static_cast<std::int32_t>(std::nearbyint(value));
}

std::int16_t pixelsToTravel(std::int64_t distance)
{
    if (distance > std::numeric_limits<std::int16_t>::max())
        throw overflowError();
    return static_cast<std::int16_t>(distance);
}

int frameCount(std::int16_t pixels, std::int16_t stepSize)
{
    if (stepSize == 0)
        throw pixels > 0 ? divisionByZeroError() : overflowError();
    return roundHalfToEven(
        static_cast<double>(static_cast<float>(pixels) / static_cast<float>(stepSize)));
}

} // namespace

// The longer axis moves by whole steps, the other by fractions. If the distances are equal, y is
// the longer axis.
struct CardFlight::Path {
    Path(std::int32_t fromX, std::int32_t fromY, std::int32_t x, std::int32_t y)
        : toX(x), movingDown(y > fromY), movingRight(!movingDown && fromX < x)
    {
        const std::int64_t dx = std::int64_t{x} - fromX;
        const std::int64_t dy = std::int64_t{y} - fromY;
        alongX = std::abs(dx) > std::abs(dy);
        pixels = pixelsToTravel(std::max(std::abs(dx), std::abs(dy)));
        if (pixels > 0) {
            stepX = static_cast<double>(dx) / pixels;
            stepY = static_cast<double>(dy) / pixels;
        }
    }

    std::int32_t toX;
    bool movingDown;
    bool movingRight; // unused while moving down
    bool alongX = false;
    double stepX = 0.0;
    double stepY = 0.0;
    std::int16_t pixels = 0;
};

void CardFlight::AnimateCard(std::int32_t& fromX, std::int32_t& fromY, std::int32_t toX,
                             std::int32_t toY, std::int16_t stepSize, std::int32_t cardNumber,
                             std::int32_t drawMode)
{
    guardedWithText(m_errorBox, "Error in AnimateCard  ", "", [&] {
        prepareTable();
        const Path path(fromX, fromY, toX, toY);
        m_canvas.refresh();
        m_canvas.setPersistentImage(false);

        std::int32_t& major = path.alongX ? fromX : fromY;
        std::int32_t& minor = path.alongX ? fromY : fromX;
        const double majorStep = stepSize * (path.alongX ? path.stepX : path.stepY);
        const double minorStep = stepSize * (path.alongX ? path.stepY : path.stepX);
        double exactMinor = minor;
        const int frames = m_preferences.prfAnimation ? frameCount(path.pixels, stepSize) : 0;
        for (int frame = 1; frame <= frames; ++frame) {
            major = roundHalfToEven(major + majorStep);
            exactMinor += minorStep;
            minor = static_cast<std::int32_t>(std::floor(exactMinor));
            drawFrame(fromX, fromY, path, cardNumber, drawMode);
            countingLoop(effectiveDelay(m_preferences.prfAnimationDelay));
        }
        land(toX, toY, cardNumber, drawMode);
    });
}

void CardFlight::prepareTable()
{
    m_canvas.setPersistentImage(true);
    sizePictures();
    BoardBuffer.copyFrom(m_canvas.kept(), {0, 0}, m_canvas.innerSize(), {0, 0});
    m_pile.setShowing(false);
    // No event is handled during a flight, so the display is whole again only with the next one.
    m_canvas.presentWholeWindowWithNextFrame();
    m_canvas.refresh();
    // The rounded corners of the flying card show the cards on the table.
    m_canvas.copyBoxesTo(BoardBuffer);
    m_lastFrame = {};
}

void CardFlight::sizePictures()
{
    const double scale = m_canvas.scale();
    if (BoardBuffer.size() == m_canvas.innerSize() && BoardBuffer.scale() == scale)
        return;
    BoardBuffer = Surface(m_canvas.innerSize(), scale);
    picBuffer = picAnimate = Surface(m_library.cardSize(), scale);
}

void CardFlight::drawFrame(std::int32_t x, std::int32_t y, const Path& path,
                           std::int32_t cardNumber, std::int32_t drawMode)
{
    const QSizeF card = picBuffer.size();
    const double scale = BoardBuffer.scale();
    const QPointF at(x, y);

    picBuffer.copyFrom(BoardBuffer, at, card, {0, 0});
    m_library.cdtDraw(BoardBuffer, x, y, cardNumber, drawMode, whiteColour);

    QPointF corner = at;
    if (path.movingDown) {
        corner.ry() -= trail;
        if (path.toX >= x)
            corner.rx() -= trail;
    } else if (path.movingRight) {
        corner.rx() -= trail;
    }
    show(deviceRect({at, card}, scale), deviceRect({corner, card + QSizeF(trail, trail)}, scale));

    BoardBuffer.copyFrom(picBuffer, {0, 0}, card, at);
}

void CardFlight::land(std::int32_t toX, std::int32_t toY, std::int32_t cardNumber,
                      std::int32_t drawMode)
{
    const QSizeF card = picAnimate.size();
    const QPointF at(toX, toY);
    // Here the rounded corners show the table without its cards.
    picAnimate.copyFrom(m_canvas.kept(), at, card, {0, 0});
    m_library.cdtDraw(picAnimate, 0, 0, cardNumber, drawMode, whiteColour);
    BoardBuffer.copyFrom(picAnimate, {0, 0}, card, at);
    show(deviceRect({at, card}, BoardBuffer.scale()), {});
    m_canvas.setPersistentImage(true);
    m_pile.top().setShowing(true);
}

// The position of each frame is rounded to device pixels by itself, so the copy includes the
// pixels of this frame's card and of the last one's.
void CardFlight::show(const QRect& card, const QRect& copied)
{
    m_canvas.liftOverBoxes(card);
    m_canvas.copyPixels(BoardBuffer, copied | card | m_lastFrame);
    m_lastFrame = card;
}

} // namespace quillet
