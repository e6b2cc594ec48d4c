#include "platform/picture_box.h"
#include "platform/table_canvas.h"
#include "render/card_flight.h"
#include "render/table_painter.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <vector>

namespace quillet::test
{

namespace
{

class RecordingErrorBox : public ErrorBox
{
public:
    void showError(const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

// A painted table with a card in the air, off screen.
class CardFlightTest : public testing::TestWithParam<double>
{
protected:
    void SetUp() override
    {
        library.cdtInit(width, height);
        pictures.canvas = &canvas;
        for (PictureBox*& box : pictures.picDeal)
            box = new PictureBox(canvas);
        for (PictureBox*& box : pictures.picPoker)
            box = new PictureBox(canvas);
        painter.sizePictures(table, GetParam());
        QImage wood(800, 440, QImage::Format_RGB32);
        for (int y = 0; y < wood.height(); ++y)
            for (int x = 0; x < wood.width(); ++x)
                wood.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
        pictures.thePic = {wood, QSizeF(800, 440)};
        painter.repaint(table, 65);
        library.cdtDraw(pictures.picAnimate.picture, 0, 0, 65, drawBack, whiteColor);
    }

    // The card lies there, and all else is the painted table. Right beside the card the last
    // frame may show for a moment, until the table is refreshed.
    void expectOnlyTheCard(QPointF at)
    {
        const QRect card = deviceRect({at, QSizeF(96, 130)}, GetParam());
        EXPECT_EQ(canvas.screen().image().copy(card), pictures.picAnimate.picture.image());
        Surface shown = canvas.screen();
        const QPointF beside = at - QPointF(2, 2);
        shown.copyFrom(canvas.kept(), beside, QSizeF(100, 134), beside);
        EXPECT_EQ(shown.image(), canvas.kept().image()) << "a trail lies on the table";
    }

    TableMeasures table{800, 514, 96, 130, 60, 169};
    std::int32_t width = 0;
    std::int32_t height = 0;
    Preferences preferences;
    RecordingErrorBox errorBox;
    TableCanvas canvas;
    TablePictures pictures;
    CardLibrary library;
    DeckPile pile{pictures, library};
    TablePainter painter{pictures, library, pile};
    CardFlight flight{pictures, library, preferences, errorBox};
};

} // namespace

TEST_P(CardFlightTest, leavesNoTrailWhateverItsDirection)
{
    preferences.prfAnimation = true;
    const QPoint from(300, 150);
    for (const QPoint to :
         {QPoint(330, 180), QPoint(260, 190), QPoint(340, 150), QPoint(250, 150), QPoint(300, 190),
          QPoint(300, 120), QPoint(335, 130), QPoint(262, 133), QPoint(300, 150)}) {
        std::int32_t x = from.x();
        std::int32_t y = from.y();
        flight.AnimateCard(x, y, to.x(), to.y(), 1, 65, drawBack);
        EXPECT_LE(std::abs(x - to.x()), 1);
        EXPECT_LE(std::abs(y - to.y()), 1);
        expectOnlyTheCard(to);
        EXPECT_EQ(pictures.BoardBuffer.image(), canvas.kept().image());
        EXPECT_TRUE(canvas.persistentImage());
        EXPECT_TRUE(pictures.picDeal[0]->isShowing());
        EXPECT_FALSE(pictures.picDeal[1]->isShowing());
    }
    EXPECT_TRUE(errorBox.texts.empty());
}

TEST_P(CardFlightTest, theMinorAxisRoundsDown)
{
    preferences.prfAnimation = true;
    const auto lastFrame = [this](QPoint to, std::int16_t step) {
        std::int32_t x = 0;
        std::int32_t y = 100;
        flight.AnimateCard(x, y, to.x(), to.y(), step, 65, drawBack);
        return QPoint(x, y);
    };
    EXPECT_EQ(lastFrame({8, 98}, 1), QPoint(8, 98));
    EXPECT_EQ(lastFrame({3, 99}, 2), QPoint(4, 98)) << "one and a half frames are two";
    EXPECT_EQ(lastFrame({10, 97}, 3), QPoint(9, 97)) << "and three and a third are three";
}

TEST_P(CardFlightTest, errorsHaveTheirOwnWords)
{
    preferences.prfAnimation = true;
    std::int32_t x = 0;
    std::int32_t y = 0;
    flight.AnimateCard(x, y, 40000, 0, 1, 65, drawBack);
    flight.AnimateCard(x, y, 5, 0, 0, 65, drawBack);
    preferences.prfAnimationDelay = 3'000'000;
    flight.AnimateCard(x, y, 5, 0, 1, 65, drawBack);
    EXPECT_EQ(errorBox.texts, (std::vector<std::string>{"Error in AnimateCard  Overflow",
                                                        "Error in AnimateCard  Division by zero",
                                                        "Error in AnimateCard  Overflow"}));
}

TEST_P(CardFlightTest, theHatchLiesExactlyOnTheCardPlaces)
{
    Surface hatch({96, 130}, GetParam());
    hatch.fill(Qt::white);
    library.cdtDraw(hatch, 0, 0, hatchBack, drawBack, whiteColor);
    for (const PictureBox* place : pictures.picPoker) {
        const QImage shown = canvas.kept().image().copy(place->devicePlace());
        const QImage bare = pictures.BoardBuffer.image().copy(place->devicePlace());
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x) {
                const QRgb ink = hatch.image().pixel(x, y);
                ASSERT_EQ(shown.pixel(x, y), ink == qRgb(255, 255, 255) ? bare.pixel(x, y) : ink);
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, CardFlightTest, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0));

} // namespace quillet::test
