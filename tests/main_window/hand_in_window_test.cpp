#include "platform/desktop_colours.h"
#include "platform/number_keys.h"
#include "table/picture_box.h"
#include "table/poker_table.h"
#include "table/table_canvas.h"
#include "tests/kit/pixels.h"
#include "tests/kit/played_window.h"

namespace quillet::test
{

namespace
{

constexpr auto red = "#ff0000";
constexpr auto green = "#00c000";
constexpr auto grey = "#808080"; // rows of odd play codes

// Whether the outline lies around the card and the markers inside its edges.
bool outlined(PlayedWindow& game, int slot, const QColor& colour)
{
    const QRect card = game.placeOf("picPoker" + std::to_string(slot));
    const QImage picture = game.picture();
    int found = 0;
    for (const int x : {card.left() - 2, card.left() + 1, card.right() - 1, card.right() + 2})
        found += picture.pixelColor(x, card.center().y()) == colour ? 1 : 0;
    EXPECT_TRUE(found == 0 || found == 4) << "slot " << slot << ": " << found;
    return found == 4;
}

// Whether the place shows this card, apart from its rounded corners.
bool shows(PlayedWindow& game, int slot, int cardNumber)
{
    const QRect place = game.placeOf("picPoker" + std::to_string(slot));
    const QRect middle = QRect(QPoint(), place.size()).adjusted(8, 8, -8, -8);
    return difference(game.picture().copy(middle.translated(place.topLeft())),
                      cardAt(cardNumber, 1.0).copy(middle))
        .isEmpty();
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

TEST(HandInWindow, oddNumbersInTheStoreAreShownAsFarAsTheyGo)
{
    StartedWindow usual;
    const QImage table = usual.picture();
    PlayedWindow odd;
    odd.store.texts["prfPKBackFace"] = "40";               // no such back
    odd.store.texts["prfCardOutlineColor"] = "&H80000008"; // the text of the desktop's windows
    ASSERT_TRUE(odd.start());
    EXPECT_EQ(odd.picture(), table);
    odd.clickCard(0);
    EXPECT_TRUE(outlined(odd, 0, QGuiApplication::palette().color(QPalette::WindowText)));
    EXPECT_EQ(odd.window->prfPKBackFace, 40) << "what is stored stays";
    EXPECT_EQ(colourOf(0x80000011),
              QGuiApplication::palette().color(QPalette::Disabled, QPalette::WindowText));
}

TEST(HandInWindow, aWrongHoldIsRefusedAndTheRightOnePaid)
{
    StartedWindow game;
    EXPECT_EQ(game.rowColour(11), grey) << "the best play is kept secret";
    game.sounds.names.clear();
    const int prepared = game.sounds.prepared;
    game.clickCard(0);
    EXPECT_GT(game.sounds.prepared, prepared) << "the hold may be wrong, and that is heard at once";
    game.draw("");
    EXPECT_EQ(game.sounds.prepared, prepared + 2) << "as the first card is";
    EXPECT_EQ(game.rowColour(11), red);
    const QRect row = game.placeOf("pkLabel10");
    EXPECT_EQ(game.picture().pixelColor(row.left() + 2, row.center().y()), QColor(red))
        << "between the arms of a cross";
    EXPECT_EQ(game.part("pkLabel10").accessibleName(), "High Pair, missed best play");
    EXPECT_EQ(game.sounds.names, std::vector<std::string>{"wrong2.wav"});
    EXPECT_FALSE(outlined(game, 0, Qt::green));
    EXPECT_EQ(game.counters(), "-5/1/0");
    EXPECT_TRUE(game.waitsForDraw());

    game.sounds.names.clear();
    game.draw("12");
    EXPECT_EQ(game.rowColour(11), green);
    EXPECT_LT(qGray(game.picture().pixel(row.left() + 2, row.center().y())), 64) << "a diamond";
    EXPECT_EQ(game.picture().pixelColor(row.left() + 2, row.center().y() - 4), QColor(green));
    EXPECT_EQ(game.counters(), "0/1/1");
    EXPECT_EQ(game.sounds.names,
              (std::vector<std::string>{"deal.wav", "deal.wav", "deal.wav", "pokerwin1.wav"}));
    EXPECT_EQ(game.cards(), "Jack of clubs; Jack of diamonds; Five of hearts; Six of spades; "
                            "Eight of clubs");
    EXPECT_FALSE(game.waitsForDraw());
}

TEST(HandInWindow, theBestPlayHasAnArrow)
{
    PlayedWindow game;
    game.store.texts["prfShowPokerPlay"] = "True";
    ASSERT_TRUE(game.start("2h 4s 6c 8d Th 3c 5d 7h 9s Kc"));
    const QRect row = game.placeOf("pkLabel20");
    EXPECT_LT(qGray(game.picture().pixel(row.left() + 2, row.center().y() - 3)), 64);
    game.draw("");
    EXPECT_EQ(game.rowColour(21), grey) << "a lost hand lights nothing";
}

TEST(HandInWindow, lastsOnDisplaysOfOtherScales)
{
    StartedWindow game;
    game.clickCard(1);
    const QImage before = game.picture();
    ASSERT_TRUE(moveToScale(*game.window, 1.25));
    EXPECT_NE(game.picture().size(), before.size());
    auto& table = control<PokerTable>(*game.window, "pokerTable");
    EXPECT_EQ(table.background().picture().image.width(), 1000) << "as sharp as the display";
    const QImage held = game.picture();
    game.clickCard(1);
    const QImage free = game.picture();
    const QPoint card = game.placeOf("picPoker1").topLeft() * 1.25;
    const QPoint corner = card - QPoint(2, 2);
    EXPECT_EQ(held.pixel(corner), free.pixel(corner)) << "the outline is as round as the card";
    game.part("table").update();
    EXPECT_EQ(game.picture(), free) << "and leaves nothing behind";
    game.clickCard(1);
    ASSERT_TRUE(moveToScale(*game.window, 1.0));
    EXPECT_EQ(game.picture(), before);
    display(*game.window).fill(Qt::magenta);
    emit control<TableCanvas>(*game.window, "table").scaleChanged();
    EXPECT_EQ(game.picture(), before) << "a flight may have painted only its own part";
    game.draw("1");
    EXPECT_EQ(game.counters(), "0/1/1") << "the hand went on";
}

TEST(PokerTable, cardsLieInTheBackThatWasChosenWhenTheyFlew)
{
    StartedWindow game;
    auto& table = control<PokerTable>(*game.window, "pokerTable");
    table.flyCardTo(0);
    game.window->prfPKBackFace = 60;
    table.flyCardTo(3);
    ASSERT_TRUE(moveToScale(*game.window, 1.5) && moveToScale(*game.window, 1.0));
    EXPECT_TRUE(shows(game, 0, 65) && shows(game, 3, 60));
    const QImage pile = game.picture();
    table.DrawDealDeck();
    EXPECT_EQ(game.picture(), pile) << "nothing shines through the round corners";
    table.showFace(3, 17, false);
    EXPECT_TRUE(shows(game, 3, 17));
    table.takeAway(3);
    EXPECT_FALSE(table.isCardShowing(3) || shows(game, 3, 17));
    EXPECT_EQ(game.part("picPoker3").accessibleName(), "Card 4: empty");
}

TEST(PokerTable, aFlightThatBreaksOffLeavesATableThatCanBePlayedOn)
{
    StartedWindow game;
    auto& table = control<PokerTable>(*game.window, "pokerTable");
    game.window->prfAnimation = true;
    game.window->prfAnimationDelay = 3'000'000;
    table.flyCardTo(2);
    EXPECT_EQ(game.errors.texts, std::vector<std::string>{"Error in AnimateCard  Overflow"});
    EXPECT_TRUE(shows(game, 2, 65));
    EXPECT_EQ(game.part("picPoker2").accessibleName(), "Card 3: face down");
    auto& deck = control<PictureBox>(*game.window, "picDeal0");
    table.showHold(2, true);
    deck.setShowing(false);
    table.recover();
    EXPECT_TRUE(deck.isShowing());
    EXPECT_FALSE(control<PictureBox>(*game.window, "picPoker2").isChecked());
}

TEST(HandInWindow, theKeyboardPlaysAWholeHand)
{
    StartedWindow game;
    QWindow* const display = game.window->windowHandle();
    const auto press = [&](Qt::Key key) { QTest::keyClick(display, key); };

    press(Qt::Key_1);
    press(Qt::Key_5);
    EXPECT_TRUE(outlined(game, 0, Qt::green) && outlined(game, 4, Qt::green));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_5, {}, "5", true);
    QApplication::sendEvent(game.window.get(), &held);
    for (const Qt::Key key : {Qt::Key_5, Qt::Key_Space})
        QTest::keyClick(display, key, Qt::ControlModifier);
    press(Qt::Key_6);
    EXPECT_TRUE(outlined(game, 4, Qt::green)) << "neither repeats nor combinations count";
    QTest::keyClick(display, Qt::Key_5, Qt::KeypadModifier);
    QTest::keyClick(display, Qt::Key_1, Qt::ShiftModifier);
    EXPECT_FALSE(outlined(game, 0, Qt::green) || outlined(game, 4, Qt::green));
    press(Qt::Key_1);

    // Tab goes from the deck to the cards, where Space toggles the hold.
    const QImage before = game.picture();
    for (int step = 0; step < 3; ++step)
        press(Qt::Key_Tab);
    EXPECT_NE(game.picture(), before) << "the focus is seen";
    press(Qt::Key_Space);
    EXPECT_TRUE(outlined(game, 1, Qt::green));
    press(Qt::Key_Return);
    EXPECT_EQ(game.counters(), "0/1/1");
    QTest::keyClick(display, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(game.counters(), "-5/2/1");
    press(Qt::Key_F1);
    EXPECT_TRUE(game.window->findChild<QWidget*>("HelpViewer") != nullptr);
}

TEST(NumberKeys, aRowWithoutDigitsCountsByItsPlaces)
{
    const auto digit = [](quint32 scanCode, const QString& text, Qt::KeyboardModifiers modifiers,
                          const char* platform = "xcb") {
        return digitOfKey(QKeyEvent(QEvent::KeyPress, 0, modifiers, scanCode, 0, 0, text),
                          platform);
    };
    EXPECT_EQ(digit(10, "&", Qt::NoModifier), 1) << "French";
    EXPECT_EQ(digit(14, "(", Qt::NoModifier, "wayland"), 5);
    EXPECT_EQ(digit(14, "5", Qt::ShiftModifier), 5);
    EXPECT_EQ(digit(10, "!", Qt::ShiftModifier), std::nullopt) << "English";
    EXPECT_EQ(digit(10, "&", Qt::AltModifier), std::nullopt);
    EXPECT_EQ(digit(10, "&", Qt::NoModifier, "offscreen"), std::nullopt);
    EXPECT_EQ(digit(20, "-", Qt::NoModifier), std::nullopt);
    EXPECT_EQ(digit(38, QString(QChar(0x0663)), Qt::NoModifier), 3) << "Arabic";
}

} // namespace quillet::test
