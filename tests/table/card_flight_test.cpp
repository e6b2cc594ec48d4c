#include "tests/kit/painted_table.h"
#include "tests/kit/pixels.h"
#include "tests/kit/presented.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <ctime>
#include <optional>
#include <vector>

namespace quillet::test
{

namespace
{

class CardFlightTest : public testing::TestWithParam<double>, protected PaintedTable
{
protected:
    void SetUp() override
    {
        preferences.prfAnimation = true;
        ASSERT_TRUE(moveToScale(canvas, GetParam()));
        QImage wood(800, 440, QImage::Format_RGB32);
        for (int y = 0; y < wood.height(); ++y)
            for (int x = 0; x < wood.width(); ++x)
                wood.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
        paint({wood, QSizeF(800, 440)}, GetParam());
        const PictureBox& deck = pile.top();
        canvas.keptForDrawing().copyPixels(deck.picture(), deck.picture().image().rect(),
                                           deck.devicePlace().topLeft());
        for (const std::size_t slot : {1U, 2U, 3U}) {
            library.cdtDraw(picPoker.at(slot)->picture(), 0, 0, sleeve, drawBack, whiteColour);
            picPoker.at(slot)->setShowing(true);
        }
        canvas.refresh();
        bare = presented(canvas);
    }

    void fly(QPoint from, QPoint to)
    {
        std::int32_t x = from.x();
        std::int32_t y = from.y();
        flight.AnimateCard(x, y, to.x(), to.y(), 1, sleeve, drawBack);
        EXPECT_LE(std::abs(x - to.x()), 1);
        EXPECT_LE(std::abs(y - to.y()), 1);
    }

    // The place of a card on the display, which shows only the table.
    std::optional<QPoint> cardOn(const QImage& shown)
    {
        const QRect changed = difference(shown, bare);
        if (changed.isEmpty())
            return {};
        QImage expected = bare.copy(changed);
        QPainter(&expected).drawImage(0, 0, cardAt(sleeve, GetParam()));
        EXPECT_TRUE(difference(shown.copy(changed), expected).isEmpty()) << "not a whole card";
        return changed.topLeft();
    }

    QImage bare; // the display without a flying card
};

} // namespace

TEST_P(CardFlightTest, everyFrameIsOneWholeCardOnTheTable)
{
    const QPoint from(300, 100);
    std::vector<std::pair<QPoint, QPoint>> flights;
    for (const QPoint way :
         {QPoint(20, 20), QPoint(-25, 30), QPoint(30, 0), QPoint(-30, 0), QPoint(0, 30),
          QPoint(0, -20), QPoint(25, -10), QPoint(-25, -12), QPoint()})
        flights.emplace_back(from, from + way);
    for (const std::size_t slot : {0U, 4U}) { // the second over cards
        const QPoint place = picPoker[slot]->place().topLeft().toPoint();
        EXPECT_EQ(deviceRect({place, QSizeF()}, GetParam()).topLeft(),
                  picPoker[slot]->devicePlace().topLeft());
        flights.emplace_back(QPoint(209, 95), place);
    }
    for (const auto& [start, end] : flights) {
        SCOPED_TRACE(testing::Message() << "to " << end.x() << ", " << end.y());
        int frames = 0;
        const FrameWatch watch(canvas, [&](const QImage& shown) {
            const bool card = cardOn(shown).has_value();
            EXPECT_TRUE(card || frames == 0) << "it vanishes after frame " << frames;
            frames += card ? 1 : 0;
        });
        fly(start, end);
        const QPoint way = end - start;
        EXPECT_EQ(frames, std::max(std::abs(way.x()), std::abs(way.y())));
        EXPECT_EQ(cardOn(presented(canvas)), deviceRect({end, QSizeF()}, GetParam()).topLeft());
        EXPECT_TRUE(pile.top().isShowing());
        EXPECT_FALSE(pile.boxes()[1]->isShowing());
        canvas.refresh();
        EXPECT_EQ(presented(canvas), bare);
    }
    EXPECT_TRUE(errors.empty());
}

TEST_P(CardFlightTest, theMinorAxisRoundsDown)
{
    const auto lastFrame = [this](QPoint to, std::int16_t step) {
        std::int32_t x = 0;
        std::int32_t y = 100;
        flight.AnimateCard(x, y, to.x(), to.y(), step, sleeve, drawBack);
        return QPoint(x, y);
    };
    EXPECT_EQ(lastFrame({8, 98}, 1), QPoint(8, 98));
    EXPECT_EQ(lastFrame({3, 99}, 2), QPoint(4, 98)) << "one and a half frames are two";
    EXPECT_EQ(lastFrame({10, 97}, 3), QPoint(9, 97)) << "and three and a third are three";
}

TEST_P(CardFlightTest, errorsHaveTheirOwnWords)
{
    std::int32_t x = 0;
    std::int32_t y = 0;
    flight.AnimateCard(x, y, 40000, 0, 1, sleeve, drawBack);
    flight.AnimateCard(x, y, 5, 0, 0, sleeve, drawBack);
    preferences.prfAnimationDelay = 3'000'000;
    flight.AnimateCard(x, y, 5, 0, 1, sleeve, drawBack);
    preferences.prfAnimationDelay = 2'000'000;
    const std::clock_t start = std::clock();
    flight.AnimateCard(x, y, x + 1, y, 1, sleeve, drawBack);
    EXPECT_LT(std::clock() - start, 3 * CLOCKS_PER_SEC);
    EXPECT_EQ(errors, (std::vector<std::string>{"Error in AnimateCard  Overflow",
                                                "Error in AnimateCard  Division by zero",
                                                "Error in AnimateCard  Overflow"}));
}

TEST_P(CardFlightTest, theHatchLiesExactlyOnTheCardPlaces)
{
    Surface hatch({96, 130}, GetParam());
    hatch.fill(Qt::white);
    library.cdtDraw(hatch, 0, 0, hatchBack, drawBack, whiteColour);
    for (PictureBox* place : picPoker) {
        place->restoreTableBehind();
        QImage expected = place->picture().image();
        QPainter(&expected).drawImage(0, 0, inkOf(hatch.image()));
        EXPECT_EQ(canvas.kept().image().copy(place->devicePlace()), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, CardFlightTest, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0));

} // namespace quillet::test
