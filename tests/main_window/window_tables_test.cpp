#include "coach/hold_judgement.h"
#include "engine/hand_evaluation.h"
#include "main_window/animation_speed.h"
#include "main_window/window_layout.h"
#include "tests/kit/cards.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace quillet::test
{

TEST(AnimationSpeed, theLowerHalfOfTheSliderIsSteep)
{
    const std::pair<int, std::int32_t> rows[] = {{0, 6000},  {1, 5989},  {250, 3250}, {499, 511},
                                                 {500, 500}, {501, 499}, {1000, 0}};
    for (const auto& [position, delay] : rows)
        EXPECT_EQ(animationDelayFor(position), delay) << position;
}

TEST(WindowLayout, theWindowIsThePictureWithBarAndFrame)
{
    const ScreenMetrics normal;
    const WindowLayout layout(normal, true);
    // 4 x 1 pixel of border and 40 twips; the caption and the menu bar 19 pixels each.
    EXPECT_EQ(layout.frameAllowance(), QSizeF(100, 670));
    EXPECT_EQ(WindowLayout(normal, false).frameAllowance(), QSizeF(100, 385));
    const QSizeF outer = layout.sizeForPicture({12000, 6600}, 210);
    EXPECT_EQ(outer, QSizeF(12100, 6600 + 900 + 210 + 670));
    EXPECT_EQ(layout.innerPixels(outer), QSizeF(800, 514));
    EXPECT_FALSE(layout.isTooNarrow({640, 1}));
    EXPECT_TRUE(layout.isTooNarrow({639, 1}));
    EXPECT_EQ(layout.innerPixels(layout.widened({8000, 7000})), QSizeF(633, 422));
}

TEST(WindowLayout, aLargeFontWindowIsWiderAndHasTheLowBar)
{
    ScreenMetrics large;
    large.twipsPerPixelX = large.twipsPerPixelY = 12;
    const WindowLayout layout(large, true);
    EXPECT_EQ(layout.statusBarHeight(), 720);
    EXPECT_EQ(layout.frameAllowance(), QSizeF(88, 544));
    const QSizeF outer = layout.sizeForPicture({9600, 5280}, 168);
    EXPECT_DOUBLE_EQ(outer.width(), 1.055 * 9688);
    EXPECT_DOUBLE_EQ(outer.height(), 5280 + 544 + 720) << "the top piece is not added";
}

TEST(HelpText, itsExampleHandsAreWhatItSays)
{
    QFile file(QStringLiteral(QUILLET_HELP_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression example("<tr id=\"row(\\d+)\">.*?<span class=\"hand\">([^<]*)</span>"
                                     ".*?<span class=\"hold\">([^<]*)</span>",
                                     QRegularExpression::DotMatchesEverythingOption);
    int rows = 0;
    for (auto found = example.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();) {
        const QRegularExpressionMatch row = found.next();
        const std::string dealt = row.captured(2).toStdString();
        const std::string kept = row.captured(3).toStdString();
        const auto cards = hand(dealt);
        const auto play = static_cast<std::int16_t>(row.captured(1).toInt());
        std::array<bool, 5> held{};
        for (std::size_t slot = 0; slot < 5; ++slot)
            held[slot] = kept.find(dealt.substr(3 * slot, 2)) != std::string::npos;
        EXPECT_EQ(play, ++rows);
        EXPECT_EQ(EvaluatePokerHand(cards, false), play) << dealt;
        EXPECT_TRUE(judgeHold(cards, held, play).correct) << dealt << ": " << kept;
    }
    EXPECT_EQ(rows, 21);
}

} // namespace quillet::test
