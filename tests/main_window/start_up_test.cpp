#include "main_window/calibration_splash.h"
#include "table/table_canvas.h"
#include "tests/kit/played_window.h"

#include <QFile>
#include <QFontMetricsF>
#include <QLayout>
#include <QProgressBar>

namespace quillet::test
{

TEST(StartUp, theFirstHandIsDealt)
{
    StartedWindow game;
    EXPECT_TRUE(game.window->isVisible());
    EXPECT_EQ(game.window->windowTitle(), "Jacks or Better Quillet");
    EXPECT_EQ(game.counters(), "-5/1/0");
    EXPECT_EQ(game.cards(), "Jack of clubs; Jack of diamonds; Four of hearts; Seven of spades; "
                            "Nine of clubs");
    EXPECT_TRUE(game.waitsForDraw());
    EXPECT_EQ(game.window->prfAnimationDelay, 300) << "a known delay is not measured again";
    EXPECT_EQ(game.sounds.names, std::vector<std::string>(5, "deal.wav"));
    EXPECT_EQ(game.sounds.prepared, 1) << "before the first of them";
    EXPECT_EQ(QDir::currentPath().toStdString(), game.surroundings.programFolder);
    EXPECT_TRUE(game.errors.texts.empty());
    EXPECT_EQ(control<TableCanvas>(*game.window, "table").size(), QSize(800, 514));
}

TEST(StartUp, theFirstStartMeasuresTheDelaysOrTellsWhyNot)
{
    for (const bool fails : {false, true}) {
        PlayedWindow game;
        game.store.texts = {{"prfSound", "False"}, {"prfAnimation", "False"}};
        game.failing = fails ? "clock" : "";
        ASSERT_TRUE(game.start());
        EXPECT_EQ(game.window->prfAnimationDelay, 0);
        EXPECT_EQ(game.window->prfScrollVal, fails ? 0 : 1000);
        EXPECT_EQ(game.counters(), "-5/1/0");
        EXPECT_EQ(game.errors.texts,
                  std::vector<std::string>(fails ? 1 : 0, "Error in InitAnimDelay the wind"));
    }
    PlayedWindow busy;
    busy.store.texts["prfAnimationDelay"] = "-1";
    busy.look = 100;
    busy.slowness = 12.5;
    ASSERT_TRUE(busy.start());
    EXPECT_EQ(busy.window->prfAnimationDelay, 170) << "computed from the cost of a frame";
    EXPECT_LE(busy.clock.now, 13 * busy.look + 2150) << "no round is measured in vain";
    PlayedWindow fastest;
    fastest.store.texts["prfAnimationDelay"] = "0";
    fastest.failing = "clock";
    ASSERT_TRUE(fastest.start());
    EXPECT_TRUE(fastest.errors.texts.empty()) << "a delay of 0 is known, too";
}

TEST(StartUp, anErrorBeforeTheWindowShowsEndsIt)
{
    const std::vector<std::array<std::string, 3>> rows = {
        {"prfPKBackFace", "abc", "prfPKBackFace: Type mismatch"},
        {"prfAnimationDelay", "9999999999", "prfAnimationDelay: Overflow"},
        {"prfPKBackground", "table.bmp", "Invalid picture: "}};
    for (const auto& [key, text, cause] : rows) {
        PlayedWindow game;
        game.usePicture();
        game.store.texts[key] = text;
        EXPECT_FALSE(game.start()) << key;
        EXPECT_FALSE(game.window->isVisible());
        ASSERT_EQ(game.errors.texts.size(), 1U) << key;
        EXPECT_TRUE(game.errors.texts[0].starts_with("Error  in  Form_Load (  " + cause));
        EXPECT_EQ(game.store.log.find('='), std::string::npos) << "nothing is saved";
    }
}

TEST(StartUp, aMissingOrEmptyPictureLeavesADarkTable)
{
    for (const bool empty : {false, true}) {
        PlayedWindow game;
        QFile file(game.useOwnFolder() + "/pics/vpokerwood.jpg");
        ASSERT_TRUE(!empty || file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(game.start());
        EXPECT_TRUE(game.errors.texts.empty());
        EXPECT_TRUE(game.sounds.names.empty()) << "cues are missing, too";
        EXPECT_EQ(game.part("table").size(), QSize(800, 514));
        EXPECT_EQ(game.picture().pixelColor(game.placeOf("picDeal0").topLeft() - QPoint(40, 0)),
                  QColor(Qt::black));
        game.draw("12");
        EXPECT_EQ(game.counters(), "0/1/1");
    }
}

TEST(StartUp, theWindowFollowsThePictureButKeepsAMinimum)
{
    const std::vector<std::pair<QSize, int>> rows = {
        {{640, 354}, 640}, {{674, 260}, 674}, {{400, 500}, 633}};
    for (const auto& [picture, innerWidth] : rows) {
        PlayedWindow game;
        game.usePicture(picture);
        ASSERT_TRUE(game.start());
        EXPECT_EQ(game.part("table").size(), QSize(innerWidth, picture.height() + 60 + 14));
        EXPECT_EQ(game.placeOf("picPokerLabels").right(), game.placeOf("table").right() - 12);
        EXPECT_EQ(game.window->width(), innerWidth);
        const QWidget& row = game.part("pkLabel20");
        EXPECT_LE(QFontMetricsF(row.font()).height(), row.height());
        // The window takes its size back once.
        game.window->setWindowState(Qt::WindowMaximized);
        QCoreApplication::processEvents();
        EXPECT_FALSE(game.window->isMaximized());
        const QSize right = game.window->size();
        for (const bool again : {false, true}) {
            game.window->windowHandle()->resize(1000, 700);
            QCoreApplication::processEvents();
            EXPECT_EQ(game.window->size(), again ? QSize(1000, 700) : right) << "no fight";
        }
        EXPECT_TRUE(game.errors.texts.empty());
        // Another picture is used from the next game on.
        game.usePicture({900, 480});
        game.choose("mnuPoker");
        EXPECT_EQ(game.window->width(), 900);
        EXPECT_EQ(control<TableCanvas>(*game.window, "table").innerSize(), QSizeF(900, 554));
        QImage edited(900, 480, QImage::Format_RGB32);
        edited.fill(Qt::darkBlue);
        ASSERT_TRUE(edited.save(game.useOwnFolder() + "/pics/table.bmp"));
        game.choose("mnuPoker");
        EXPECT_EQ(game.picture().pixelColor(game.placeOf("picDeal0").topLeft() - QPoint(40, 0)),
                  QColor(Qt::darkBlue));
        // A tiling window manager gives more room than that.
        QWidget& middle = *game.window->centralWidget();
        middle.resize(1200, 900);
        middle.layout()->activate();
        EXPECT_EQ(game.part("table").geometry().center(), middle.rect().center());
        EXPECT_EQ(game.picture().pixelColor(middle.geometry().topLeft()), QColor(Qt::black));
    }
}

TEST(StartUp, theSplashFitsSmallScreensAndCoversNoOtherProgram)
{
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 18));
    CalibrationSplash splash;
    EXPECT_LE(splash.sizeHint().width(), 800);
    EXPECT_FALSE(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const auto& bar = *splash.findChild<QProgressBar*>();
    for (int round = 0; round < 30; ++round, splash.advance())
        EXPECT_LT(bar.value(), bar.maximum()) << "it is not over yet";
    QApplication::setFont(usual);
}

} // namespace quillet::test
