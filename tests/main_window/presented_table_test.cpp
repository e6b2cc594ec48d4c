#include "table/picture_box.h"
#include "table/table_geometry.h"
#include "tests/kit/pixels.h"
#include "tests/kit/played_window.h"

#include <QPainter>

#include <set>

namespace quillet::test
{

namespace
{

constexpr int sleeve = 65, hatch = 53;

// The parts of the table that are known to a pixel, on a transparent picture.
class KnownTable
{
public:
    explicit KnownTable(PlayedWindow& game)
        : m_game(game), m_scale(game.window->devicePixelRatioF()),
          m_picture(game.picture().size(), QImage::Format_ARGB32_Premultiplied)
    {
        m_picture.fill(Qt::transparent);
        paintFrame();
        paintDeck();
    }

    void paint(const QImage& image, const QPointF& at)
    {
        QPainter painter(&m_picture);
        painter.drawImage(origin() + at.toPoint(), image);
    }

    void paintCards(const std::vector<int>& faces)
    {
        for (int slot = 0; slot < 5; ++slot) {
            const auto& box =
                static_cast<PictureBox&>(m_game.part("picPoker" + std::to_string(slot)));
            paint(cardAt(faces[std::size_t(slot)], m_scale), box.devicePlace().topLeft());
            paint(inkOf(cardAt(hatch, m_scale)), box.devicePlace().topLeft());
        }
    }

    // How many of the known pixels are shown otherwise.
    [[nodiscard]] int differences(const QImage& shown) const
    {
        int count = 0;
        for (int y = 0; y < m_picture.height(); ++y)
            for (int x = 0; x < m_picture.width(); ++x)
                if (qAlpha(m_picture.pixel(x, y)) == 255 &&
                    m_picture.pixel(x, y) != shown.pixel(x, y))
                    ++count;
        return count;
    }

    [[nodiscard]] QPoint origin() const
    {
        return (QPointF(m_game.placeOf("table").topLeft()) * m_scale).toPoint();
    }

private:
    void paintFrame()
    {
        const TableMeasures table{800, 514, 96, 130, 60, 169};
        auto frame = tableFrame(table);
        frame.push_back(chartFrame(table));
        constexpr std::array names{"top", "bottom", "side1", "side2"};
        const auto paintPiece = [this](const QImage& piece, const QRectF& place) {
            const QRect to = deviceRect(place, m_scale);
            paint(piece.scaled(to.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                  to.topLeft());
        };
        for (const FramePlace& place : frame)
            paintPiece(QImage(QString(":/frame/%1.png").arg(names[std::size_t(place.piece)])),
                       place.rect);
        // The gilt edge of the left piece, at the chart's.
        const QImage left(":/frame/side1.png");
        const QImage edge = left.copy(left.width() * 9 / 13, 0, left.width(), left.height());
        const QRectF beside = frame.back().rect;
        paintPiece(edge.copy(0, 0, left.width() * 4 / 13, left.height()),
                   {beside.right() - 4, 0, 4, beside.height()});
        // Status bar and chart lie over the frame, and beside the bar it is black.
        QPainter painter(&m_picture);
        painter.translate(origin());
        painter.fillRect(deviceRect({480, 442, 126, 60}, m_scale), Qt::black);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        for (const QRectF& covered : {chartPlace(table), QRectF(12, 442, 468, 60)})
            painter.fillRect(deviceRect(covered, m_scale).adjusted(-1, -1, 1, 1), Qt::black);
    }

    void paintDeck()
    {
        const auto& box = static_cast<PictureBox&>(m_game.part("picDeal0"));
        for (int back = 0; back < 4; ++back)
            paint(cardAt(sleeve, m_scale),
                  box.devicePlace().topLeft() +
                      QPoint(deviceOrigin(2 * back, m_scale), deviceOrigin(back, m_scale)));
    }

    PlayedWindow& m_game;
    double m_scale;
    QImage m_picture;
};

std::set<QRgb> coloursIn(const QImage& picture, const QRectF& place)
{
    std::set<QRgb> colours;
    for (int y = int(place.top()); y < int(place.bottom()); ++y)
        for (int x = int(place.left()); x < int(place.right()); ++x)
            colours.insert(picture.pixel(x, y));
    return colours;
}

} // namespace

TEST(PresentedTable, aHandOnFourDisplaysLooksAsItShould)
{
    for (const double scale : {1.0, 1.25, 1.5, 1.75}) {
        SCOPED_TRACE(scale);
        PlayedWindow game;
        game.in(1000, [&game] {
            EXPECT_EQ(KnownTable(game).differences(game.picture()), 0) << "before the deal";
        });
        ASSERT_TRUE(game.start());
        game.clickCard(0);
        ASSERT_TRUE(moveToScale(*game.window, scale));
        game.draw("2");
        KnownTable known(game);
        known.paintCards({40, 41, 18, 23, 28});
        EXPECT_EQ(known.differences(game.picture()), 0);
        const auto colours = [&](const std::string& part, int width) {
            const QRect place = game.placeOf(part).adjusted(1, 1, 0, -1);
            return coloursIn(game.picture(), {QPointF(place.topLeft()) * scale,
                                              QSizeF(width, place.height()) * scale});
        };
        EXPECT_TRUE(colours("lblstatus", 215).contains(qRgb(250, 175, 200)));
        for (int row = 0; row < 21; ++row) {
            const auto part = "pkLabel" + std::to_string(row);
            EXPECT_EQ(colours(part, 9).size() > 1, row == 10) << "the mark";
            EXPECT_GT(colours(part, 160).size(), 2U) << "the caption";
        }
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
    KnownTable known(game);
    EXPECT_EQ(known.differences(look), 0);
    EXPECT_FALSE(coloursIn(look, look.rect()).contains(lost));
    const QImage back = cardAt(sleeve, 1.5).convertToFormat(look.format());
    const QRect middle = back.rect().adjusted(9, 9, -9, -9);
    bool seen = false;
    for (int step = 0; step < 273; ++step) {
        const int down = step * 189 / 273;
        const QRectF at(209 + step, 95 + down, 96, 130);
        const QPoint place = known.origin() + deviceRect(at, 1.5).topLeft();
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
    game.window->prfPKBackFace = hatch;
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
}

} // namespace quillet::test
