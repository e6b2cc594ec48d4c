#include "main_window/status_bar.h"
#include "table/picture_box.h"
#include "table/table_geometry.h"
#include "tests/kit/painted_table.h"
#include "tests/kit/pixels.h"
#include "tests/kit/played_window.h"

#include <QPainter>

#include <set>

namespace quillet::test
{

namespace
{

std::set<QRgb> coloursIn(const QImage& picture, const QRect& place)
{
    std::set<QRgb> colours;
    for (int y = place.top(); y < place.bottom(); ++y)
        for (int x = place.left(); x < place.right(); ++x)
            colours.insert(picture.pixel(x, y));
    return colours;
}

} // namespace

TEST(PresentedTable, railsPostsBarAndPileMeetAtEveryScale)
{
    QImage grey(800, 440, QImage::Format_RGB32);
    grey.fill(Qt::gray);
    for (const double scale : {1.0, 1.25, 1.35, 1.4, 1.5, 1.65, 1.7, 1.75, 1.9, 2.0, 2.35, 2.9}) {
        SCOPED_TRACE(scale);
        const auto at = [scale](double position) { return deviceOrigin(position, scale); };
        PaintedTable table;
        table.paint({grey, grey.size()}, scale);
        const QImage& pile = table.pile.top().picture().image();
        QImage expected(pile.size(), pile.format());
        expected.fill(Qt::gray);
        for (int back = 0; back < 4; ++back)
            QPainter(&expected).drawImage(at(2 * back), at(back), cardAt(sleeveBack, scale));
        EXPECT_EQ(difference(pile, expected), QRect());

        QImage shown = table.canvas.kept().image();
        const int rail = at(13);
        const QRect post(at(606), at(9), rail, at(514) - 2 * at(9));
        // A post has the body of the right rail and the gilt of the left one.
        const QRect middle(0, at(20), rail, at(380));
        const QRect gilt(rail - at(4), at(20), at(4), at(380));
        EXPECT_EQ(shown.copy(gilt.translated(post.left(), 0)), shown.copy(gilt));
        EXPECT_EQ(shown.copy(middle.adjusted(post.left(), 0, post.left() - at(4), 0)),
                  shown.copy(middle.adjusted(at(787), 0, at(787) - at(4), 0)));
        // A second one ends the bar. Left of it all is black, right of it wood.
        const int midRail = at(428) + at(14);
        const QRect lower(post.left(), midRail, rail, post.bottom() + 1 - midRail);
        EXPECT_EQ(shown.copy(lower.translated(at(480) - post.left(), 0)), shown.copy(lower));
        EXPECT_EQ(coloursIn(shown, QRect(QPoint(rail, midRail), QPoint(at(480), at(500)))),
                  std::set<QRgb>{QColor(Qt::black).rgb()});
        EXPECT_EQ(coloursIn(shown, QRect(QPoint(at(480) + rail, midRail), post.bottomLeft())
                                       .adjusted(0, 0, 0, -at(5))),
                  std::set<QRgb>{grey.pixel(0, 0)});

        // Only the posts are on the rails.
        table.painter.paintFirstTable(PaintedTable::measures);
        QImage frame = table.canvas.kept().image();
        for (QImage* image : {&shown, &frame})
            for (const QRect& hidden : {post, lower.translated(at(480) - post.left(), 0)})
                QPainter(image).fillRect(hidden, Qt::black);
        const int high = at(14), width = shown.width(), height = shown.height();
        for (const QRect& piece : {QRect(0, 0, width, high), QRect(0, 0, rail, height - high),
                                   QRect(at(787), 0, rail, height - high),
                                   QRect(rail, height - high, width - 2 * rail, high)})
            EXPECT_EQ(difference(shown.copy(piece), frame.copy(piece)), QRect());
    }
}

TEST(PresentedTable, aHandOnFourDisplaysLooksAsItShould)
{
    for (const double scale : {1.0, 1.25, 1.5, 1.75}) {
        SCOPED_TRACE(scale);
        StartedWindow game;
        game.clickCard(0);
        ASSERT_TRUE(moveToScale(*game.window, scale));
        game.draw("2");
        const QImage shown = game.picture();
        // A table that was first painted on this display looks the same.
        auto& window = control<PokerTable>(*game.window, "pokerTable");
        PaintedTable fresh;
        fresh.paint(window.background().picture(), scale);
        QImage now = shown.copy(deviceRect(game.placeOf("table"), scale));
        QImage still = fresh.canvas.kept().image();
        std::vector<std::string> covered{"picPokerLabels", "lblstatus", "picDeal0"};
        const std::array faces{40, 41, 18, 23, 28};
        for (std::size_t slot = 0; slot < faces.size(); ++slot) {
            covered.push_back("picPoker" + std::to_string(slot));
            QImage card = cardAt(faces[slot], scale);
            QPainter(&card).drawImage(0, 0, inkOf(cardAt(hatchBack, scale)));
            const QRect inside = card.rect().adjusted(9, 9, -9, -9);
            const auto& box = control<PictureBox>(*game.window, covered.back().c_str());
            EXPECT_EQ(now.copy(inside.translated(box.devicePlace().topLeft())),
                      card.convertToFormat(now.format()).copy(inside));
        }
        const QPoint origin = game.placeOf("table").topLeft();
        for (const std::string& part : covered) {
            const QRect place = game.placeOf(part).translated(-origin);
            for (QImage* image : {&now, &still})
                QPainter(image).fillRect(deviceRect(place, scale).adjusted(-1, -1, 1, 1),
                                         Qt::black);
        }
        const QRect whole = still.rect().adjusted(0, 0, -1, -1);
        EXPECT_EQ(difference(now.copy(whole), still.copy(whole)), QRect());

        const QRect text = deviceRect(game.placeOf("lblstatus"), scale);
        EXPECT_TRUE(coloursIn(shown, text).contains(qRgb(250, 175, 200)));
    }
}

TEST(PresentedTable, cardsFlyOverTheWholeTable)
{
    StartedWindow game;
    ASSERT_TRUE(moveToScale(*game.window, 1.5));
    game.window->prfAnimation = true;
    game.window->prfAnimationDelay = 0;
    constexpr QRgb lost = qRgb(255, 0, 255);
    int frames = 0;
    QImage look;
    const FrameWatch watch(game.part("table"), [&](const QImage& shown) {
        if (++frames == 100) // in the first flight everything on the display is lost
            display(*game.window).fill(lost);
        if (frames == 530) // in the third flight, from (209, 95) to (482, 284)
            look = shown.copy();
    });
    game.draw("12");
    ASSERT_GT(frames, 189 + 189 + 273);
    const QPoint origin = deviceRect(game.placeOf("table"), 1.5).topLeft();
    const QRect flight = deviceRect({{200, 80}, QPointF(600, 430)}, 1.5).translated(origin);
    const QImage after = game.picture().copy(0, 0, flight.right(), look.height());
    EXPECT_TRUE(flight.contains(difference(look.copy(after.rect()), after)));
    EXPECT_FALSE(coloursIn(look, look.rect()).contains(lost));
    const QImage back = cardAt(sleeveBack, 1.5).convertToFormat(look.format());
    const QRect middle = back.rect().adjusted(9, 9, -9, -9);
    bool seen = false;
    for (int step = 0; step < 273; ++step) {
        const int down = step * 189 / 273;
        const QRectF at(209 + step, 95 + down, 96, 130);
        const QPoint place = origin + deviceRect(at, 1.5).topLeft();
        seen = seen || look.copy(middle.translated(place)) == back.copy(middle);
    }
    EXPECT_TRUE(seen);
}

TEST(PresentedTable, deckAndChartNeverFlash)
{
    constexpr int beach = 64;
    StartedWindow game;
    game.window->prfAnimation = true;
    game.window->prfAnimationDelay = 0;
    const QPoint deck = game.placeOf("picDeal0").topLeft();
    const QPoint border = deck + QPoint(1, 8);
    const QPoint middle = deck + QPoint(54, 68);
    const QPoint chart = game.placeOf("pkLabel1").topLeft() + QPoint(3, 3);
    QRgb old = 0;
    const auto look = [&](const QImage& shown) {
        EXPECT_EQ(shown.pixel(border), qRgb(255, 255, 255));
        EXPECT_EQ(shown.pixelColor(chart), QColor(0xe0, 0xe0, 0xe0));
        EXPECT_NE(shown.pixel(middle), old);
    };
    const FrameWatch table(game.part("table"), look);
    const FrameWatch panel(game.part("picPokerLabels"), look);
    game.decks.stack(PlayedWindow::jacks);
    game.choose("mnuPoker");
    const QImage before = game.picture();
    game.window->prfPKBackFace = beach;
    control<PokerTable>(*game.window, "pokerTable").DrawDealDeck();
    EXPECT_NE(game.picture().pixel(middle), before.pixel(middle));
    old = before.pixel(middle);
    game.draw("12");
    EXPECT_TRUE(game.counters().ends_with("/1"));
}

TEST(PresentedTable, theHatchIsRoundAsABackAndSeenThroughAsAnOverlay)
{
    StartedWindow game;
    const auto corners = [&game] {
        std::vector<QRgb> colours;
        for (const char* part : {"picDeal0", "picPoker0", "picPoker4"})
            colours.push_back(game.picture().pixel(game.placeOf(part).topLeft()));
        return colours;
    };
    const auto before = corners();
    game.window->prfPKBackFace = hatchBack;
    control<PokerTable>(*game.window, "pokerTable").DrawDealDeck();
    game.in(700, [&] { EXPECT_EQ(corners(), before) << "face down"; });
    game.draw("12");
    EXPECT_EQ(corners(), before);
}

TEST(PresentedTable, theBarsPointerIsAsLargeOnEveryDisplay)
{
    StartedWindow game;
    for (const double scale : {1.0, 1.5, 2.0}) {
        ASSERT_TRUE(moveToScale(*game.window, scale));
        const QCursor pointer = game.part("picStatusBar").cursor();
        EXPECT_EQ(pointer.pixmap().size(), QSize(32, 32) * scale);
        EXPECT_EQ(pointer.pixmap().devicePixelRatio(), scale);
        EXPECT_EQ(pointer.hotSpot(), QPoint(12, 9));
    }
    EXPECT_EQ(pointerTip(1.5, "xcb"), QPoint(18, 14)) << "in device pixels";
}

} // namespace quillet::test
