#include "platform/picture_box.h"
#include "platform/table_canvas.h"
#include "tests/shell/played_window.h"

namespace quillet::test
{

namespace
{

constexpr auto red = "#ff0000";
constexpr auto lightRed = "#ffc0c0";
constexpr auto green = "#00c000";
constexpr auto grey = "#808080"; // rows of odd play codes

// Whether the outline lies around the card and the markers inside its edges.
bool outlined(PlayedWindow& game, int slot, const QColor& color)
{
    const QRect card = game.placeOf("picPoker" + std::to_string(slot));
    const QImage picture = game.picture();
    int found = 0;
    for (const int x : {card.left() - 2, card.left() + 1, card.right() - 1, card.right() + 2})
        found += picture.pixelColor(x, card.center().y()) == color ? 1 : 0;
    EXPECT_TRUE(found == 0 || found == 4) << "slot " << slot << ": " << found;
    return found == 4;
}

} // namespace

TEST(HandInWindow, aHeldCardIsOutlined)
{
    PlayedWindow game;
    game.store.texts["prfCardOutlineColor"] = "&HFF8000&";
    ASSERT_TRUE(game.start());
    const QImage before = game.picture();
    const QColor blue(0x00, 0x80, 0xff);
    game.clickCard(0);
    game.clickCard(4);
    for (const int slot : {0, 1, 2, 3, 4})
        EXPECT_EQ(outlined(game, slot, blue), slot == 0 || slot == 4);
    EXPECT_TRUE(game.cards().starts_with("Jack of clubs, held; Jack of diamonds;"));
    click(game.part("picPoker0"), Qt::RightButton);
    doubleClick(game.part("picPoker4"));
    EXPECT_FALSE(outlined(game, 0, blue)) << "any button toggles";
    EXPECT_TRUE(outlined(game, 4, blue)) << "a double click is two toggles";
    game.clickCard(4);
    EXPECT_EQ(game.picture(), before);
}

TEST(HandInWindow, aWrongHoldIsRefusedAndTheRightOnePaid)
{
    PlayedWindow game;
    ASSERT_TRUE(game.start());
    EXPECT_EQ(game.rowColor(11), grey) << "the best play is kept secret";
    game.sounds.clear();
    game.draw("1");
    EXPECT_EQ(game.rowColor(11), red);
    EXPECT_EQ(game.part("pkLabel10").accessibleName(), "High Pair, missed best play");
    EXPECT_EQ(game.sounds, std::vector<std::string>{"wrong2.wav"});
    EXPECT_FALSE(outlined(game, 0, Qt::green));
    EXPECT_EQ(game.counters(), "-5/1/0");
    EXPECT_TRUE(game.waitsForDraw());

    game.sounds.clear();
    game.draw("12");
    EXPECT_EQ(game.rowColor(11), green);
    EXPECT_EQ(game.counters(), "0/1/1");
    EXPECT_EQ(game.sounds,
              (std::vector<std::string>{"deal.wav", "deal.wav", "deal.wav", "pokerwin1.wav"}));
    EXPECT_EQ(game.cards(), "Jack of clubs; Jack of diamonds; Five of hearts; Six of spades; "
                            "Eight of clubs");
    EXPECT_FALSE(game.waitsForDraw());
}

TEST(HandInWindow, theBestPlayLightsWhenAlwaysShown)
{
    PlayedWindow game;
    game.store.texts["prfShowPokerPlay"] = "True";
    ASSERT_TRUE(game.start());
    EXPECT_EQ(game.rowColor(11), lightRed);
}

TEST(HandInWindow, onlyHiddenPlacesAreHatchedAndFlightsLeaveNoTrail)
{
    PlayedWindow game;
    game.store.texts["prfAnimation"] = "True";
    game.store.texts["prfAnimationDelay"] = "0";
    game.usePicture({800, 440});

    // The pixels of the card row that are not bare table: within the places, and between them.
    const auto covered = [&game] {
        const QImage picture = game.picture();
        std::array<int, 6> pixels{};
        const QRect table = game.placeOf("table");
        const QRect first = game.placeOf("picPoker0");
        for (int y = first.top(); y <= first.bottom(); ++y)
            for (int x = table.left() + 13; x < game.placeOf("picPoker4").right() + 10; ++x) {
                std::size_t place = 0;
                while (place < 5 &&
                       !game.placeOf("picPoker" + std::to_string(place)).contains(x, y))
                    ++place;
                pixels[place] += picture.pixel(x, y) != 0xff204020 ? 1 : 0;
            }
        return pixels;
    };
    game.in(600, [&] {
        for (const int hatch : covered())
            EXPECT_TRUE(hatch < 96 * 130 / 4);
        EXPECT_GT(covered()[0], 500);
        EXPECT_EQ(covered()[5], 0);
    });
    ASSERT_TRUE(game.start());
    for (std::size_t slot = 0; slot < 5; ++slot)
        EXPECT_GT(covered()[slot], 96 * 130 - 60) << "a face covers its hatch";
    EXPECT_EQ(covered()[5], 0);
}

TEST(HandInWindow, oddRowsTakeTheDesktopsTextUnlessItCannotBeRead)
{
    const QPalette usual = QApplication::palette();
    PlayedWindow game;
    ASSERT_TRUE(game.start());
    for (const auto& [desktops, drawn] :
         {std::pair{"#800000", "#800000"}, {"#f0f0f0", "#000000"}}) {
        QPalette palette = usual;
        palette.setColor(QPalette::WindowText, desktops);
        QApplication::setPalette(palette);
        const QImage row = game.part("pkLabel7").grab().toImage();
        bool found = false;
        for (int at = 0; at < row.width() * row.height(); ++at)
            found |= row.pixelColor(at % row.width(), at / row.width()) == QColor(drawn);
        EXPECT_TRUE(found) << desktops;
    }
    QApplication::setPalette(usual);
}

TEST(HandInWindow, aDisplayWithOtherPixelsLeavesTheTableAsItWas)
{
    PlayedWindow game;
    ASSERT_TRUE(game.start());
    auto& canvas = control<TableCanvas>(*game.window, "table");
    game.clickCard(1);
    const QImage before = game.picture();
    // As if the pictures had been made for another display than the one that shows them now.
    canvas.resizePictures(canvas.innerSize(), 2.0);
    for (auto* box : canvas.findChildren<PictureBox*>())
        box->place(box->place(), 2.0);
    canvas.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(canvas.scale(), 1.0);
    EXPECT_EQ(game.picture(), before);
    game.draw("1");
    EXPECT_EQ(game.counters(), "0/1/1") << "the hand went on";
}

TEST(HandInWindow, theKeyboardPlaysAWholeHand)
{
    PlayedWindow game;
    ASSERT_TRUE(game.start());
    QWindow* const display = game.window->windowHandle();
    const auto press = [&](Qt::Key key) { QTest::keyClick(display, key); };

    press(Qt::Key_1);
    press(Qt::Key_5);
    EXPECT_TRUE(outlined(game, 0, Qt::green) && outlined(game, 4, Qt::green));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_5, {}, "5", true);
    QApplication::sendEvent(game.window.get(), &held);
    QTest::keyClick(display, Qt::Key_5, Qt::ControlModifier);
    EXPECT_TRUE(outlined(game, 4, Qt::green)) << "neither repeats nor combinations count";
    press(Qt::Key_5);

    // Tab walks from the deck to the cards, where the blank toggles the hold.
    QStringList walked;
    for (int step = 0; step < 6; ++step) {
        press(Qt::Key_Tab);
        walked += QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(walked.join(' '), "picDeal0 picPoker0 picPoker1 picPoker2 picPoker3 picPoker4");
    game.part("picPoker1").setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(outlined(game, 1, Qt::green));
    press(Qt::Key_Return);
    EXPECT_EQ(game.counters(), "0/1/1");
    press(Qt::Key_F1);
    EXPECT_TRUE(game.window->findChild<QWidget*>("HelpViewer") != nullptr);
}

} // namespace quillet::test
