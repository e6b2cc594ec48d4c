#include "cards/small_card.h"
#include "screens/help_cards.h"
#include "screens/help_page.h"
#include "tests/kit/cards.h"
#include "tests/kit/pixels.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QTextDocument>
#include <gtest/gtest.h>

#include <algorithm>

namespace quillet::test
{

namespace
{

constexpr const char* handAndHold =
    "<table><tr><td><span class=\"hand\">9c Th Ad</span></td>"
    "<td><span class=\"hold\">Th</span></td></tr></table><img src=\"other.png\">";
constexpr QRgb ground = 0xff406080;

// The positions of the cards on a display of this scale, left to right.
std::vector<QRect> cardsOf(QTextDocument& document, QImage& picture, int scale)
{
    picture = QImage(QSize(300, 120) * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(ground);
    QPainter painter(&picture);
    document.drawContents(&painter);
    painter.end();
    std::vector<QRect> places;
    for (const Region& region : regions(picture, [](QRgb pixel) { return pixel != ground; })) {
        if (region.around.height() > 24 * scale)
            places.push_back(region.around);
    }
    std::ranges::sort(places, {}, &QRect::left);
    return places;
}

} // namespace

TEST(HelpCards, aHandIsDrawnCardByCardForTheScaleWithTheHeldOnesRaised)
{
    QTextDocument document;
    new HelpCards(&document);
    document.setHtml(HelpCards::withPictures(handAndHold));
    QImage picture;
    const std::vector<QRect> small = cardsOf(document, picture, 1);
    const std::vector<QRect> places = cardsOf(document, picture, 2);
    ASSERT_EQ(small.size(), 3U);
    ASSERT_EQ(places.size(), 3U);
    EXPECT_LT(small[1].top(), small[0].top() - 3);
    EXPECT_EQ(small[2].top(), small[0].top());
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i].size(), small[i].size() * 2);
        QImage expected(places[i].size(), picture.format());
        expected.fill(ground);
        const int face = card(std::array{"9c", "Th", "Ad"}[i]).cardId;
        QPainter(&expected).drawImage(0, 0, renderSmallCard(face, expected.size()));
        EXPECT_EQ(picture.copy(places[i]).convertToFormat(expected.format()), expected) << i;
    }
}

TEST(HelpCards, aHandIsFoundAndCopiedAsText)
{
    HelpPage page;
    page.showText(handAndHold);
    EXPECT_EQ(page.search("9c Th Ad", {}), HelpPage::Found::next);
    page.selectAll();
    page.copy();
    const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied.text().trimmed(), "9c Th Ad\nTh");
    EXPECT_TRUE(copied.html().contains(">9c")) << qPrintable(copied.html());
    EXPECT_FALSE(copied.html().contains("<img")) << qPrintable(copied.html());
}

} // namespace quillet::test
