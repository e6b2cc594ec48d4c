#include "main_window/frm_preferences.h"
#include "platform/colour_contrast.h"
#include "tests/kit/pixels.h"
#include "tests/kit/played_window.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTabWidget>

namespace quillet::test
{

namespace
{

void inPreferences(PlayedWindow& game, const std::function<void(frmPreferences&)>& act)
{
    whileOpen<frmPreferences>([&] { game.choose("mnuPref"); }, act);
}

// The dialog's controls, "sounds animation speed delay autoDeal always onError back colour".
std::string shown(frmPreferences& dialog)
{
    const auto button = [&dialog](const char* name) {
        return control<QAbstractButton>(dialog, name).isChecked() ? "1 " : "0 ";
    };
    QWidget& swatch = control(dialog, "lblColor");
    const QColor colour = swatch.palette().color(QPalette::Window);
    EXPECT_TRUE(swatch.accessibleName().endsWith(colour.name()));
    return (QString(button("ckSounds")) + button("ckAnimation") +
            QString::number(control<QScrollBar>(dialog, "HScroll1").value()) + ' ' +
            control<QLabel>(dialog, "Label4").text() + ' ' + button("ckprfAutoDeal") +
            button("opAlwaysShow") + button("opShowOnError") +
            control<QComboBox>(dialog, "Combo1").currentText() + ' ' + colour.name())
        .toStdString();
}

void chooseColour(frmPreferences& dialog, const QColor& colour, bool accepted)
{
    whileOpen<QColorDialog>([&dialog] { dialog.cmdChangeColor_Click(); },
                            [&](QColorDialog& chooser) {
                                chooser.setCurrentColor(colour);
                                accepted ? chooser.accept() : chooser.reject();
                            });
}

// The bar and its slider have one edge each, the words are below its ends, and its focus shows.
void expectClearBar(frmPreferences& dialog)
{
    auto& bar = control<QScrollBar>(dialog, "HScroll1");
    const QImage plain = bar.grab().toImage();
    int changes = 0, clear = 0; // from pixel to pixel between the arrows
    for (int x = 20; x < bar.width() - 20; ++x) {
        const double change = contrast(plain.pixelColor(x, 8), plain.pixelColor(x + 1, 8));
        changes += change >= 1.5;
        clear += change >= 3;
    }
    EXPECT_EQ(changes, 4) << "an edge on both sides of the slider";
    EXPECT_EQ(clear, 4);
    EXPECT_GE(contrast(plain.pixelColor(40, bar.height() - 1), plain.pixelColor(40, 8)), 2);
    const QColor focus = bar.palette().color(QPalette::Highlight);
    EXPECT_NE(plain.pixelColor(1, 1), focus);
    bar.setFocus();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&bar] { return bar.hasFocus(); }));
    EXPECT_EQ(bar.grab().toImage().pixelColor(1, 1), focus);
    QTest::keyClick(&bar, Qt::Key_PageUp);
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(bar.value(), 749);
    const QImage words = control(dialog, "Label7").grab().toImage();
    const auto strip = [&words](int x) { return words.copy(x, 0, 6, words.height()); };
    for (const int end : {0, words.width() - 6})
        EXPECT_NE(strip(end), strip(words.width() / 2)) << "below the ends of the bar";
}

} // namespace

TEST(PreferencesDialog, saveTakesEveryFieldAndThePileItsBack)
{
    StartedWindow game;
    const QImage before = game.picture();
    inPreferences(game, [&game](frmPreferences& dialog) {
        EXPECT_EQ(shown(dialog), "1 0 700 300 0 0 1 Sleeve #00ff00");
        for (const char* name : {"ckSounds", "ckAnimation", "ckprfAutoDeal", "opAlwaysShow"})
            control<QAbstractButton>(dialog, name).click();
        control<QScrollBar>(dialog, "HScroll1").setValue(499);
        control<QComboBox>(dialog, "Combo1").setCurrentText("Castle");
        EXPECT_EQ(shown(dialog), "0 1 499 511 1 1 0 Castle #00ff00");
        EXPECT_EQ(game.window->prfPKBackFace, 65) << "not before Save";
        EXPECT_EQ(game.window->prfAnimationDelay, 511) << "at once";
        click(control(dialog, "cmdSave"));
    });
    const frmMain& now = *game.window;
    EXPECT_TRUE(!now.prfSound && now.prfAnimation && now.prfPokerAutoDeal && now.prfShowPokerPlay);
    EXPECT_EQ(now.prfScrollVal, 499);
    EXPECT_EQ(now.prfPKBackFace, 63);
    EXPECT_NE(game.picture(), before) << "the pile has its new back";
    EXPECT_EQ(game.store.log.find('='), std::string::npos) << "the store is none of its business";
}

TEST(PreferencesDialog, speedAndColourTakeEffectAtOnceAndSurviveCancel)
{
    StartedWindow game;
    game.clickCard(0);
    const QPoint edge = game.placeOf("picPoker0").topLeft() + QPoint(-2, 60);
    ASSERT_EQ(game.picture().pixelColor(edge), QColor(Qt::green));
    inPreferences(game, [&](frmPreferences& dialog) {
        control<QAbstractButton>(dialog, "ckSounds").click();
        control<QScrollBar>(dialog, "HScroll1").setValue(1000);
        chooseColour(dialog, Qt::red, false);
        EXPECT_EQ(shown(dialog), "0 0 1000 0 0 0 1 Sleeve #00ff00");
        chooseColour(dialog, Qt::blue, true);
        EXPECT_EQ(shown(dialog), "0 0 1000 0 0 0 1 Sleeve #0000ff") << "pending changes stay";
        EXPECT_EQ(game.picture().pixelColor(edge), QColor(Qt::blue));
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    });
    EXPECT_EQ(game.window->prfCardOutlineColor, 0xff0000);
    EXPECT_TRUE(game.window->prfSound);
    inPreferences(game, [](frmPreferences& dialog) {
        EXPECT_EQ(shown(dialog), "1 0 700 0 0 0 1 Sleeve #0000ff");
    });
    game.window->prfPKBackFace = 40;
    inPreferences(game, [](frmPreferences& dialog) { dialog.cmdSave_Click(); });
    EXPECT_EQ(game.window->prfPKBackFace, 40) << "no other was chosen";
}

TEST(PreferencesDialog, boxesThumbAndPreviewAreSeenOnEveryDesktop)
{
    const QPalette usual = QApplication::palette();
    for (const QPalette& desktop : {QPalette(Qt::black, Qt::black), QPalette(QColor(0xefefef))}) {
        QApplication::setPalette(desktop);
        StartedWindow game;
        const QImage row = game.part("pkLabel1").grab().toImage();
        EXPECT_LT(qGray(row.scaled(1, 1, {}, Qt::SmoothTransformation).pixel(0, 0)),
                  qGray(row.pixel(1, 1)));
        inPreferences(game, [&desktop](frmPreferences& dialog) {
            auto& tabs = control<QTabWidget>(dialog, "SSTab1");
            // The left edge of a part of a control, halfway down.
            const auto edgeOf = [](QWidget& widget, const QRect& place) {
                return widget.grab().toImage().pixelColor(place.left(), place.center().y());
            };
            for (const auto& [page, name, part] :
                 {std::tuple{0, "ckAnimation", QStyle::SE_CheckBoxIndicator},
                  {1, "opAlwaysShow", QStyle::SE_RadioButtonIndicator}}) {
                tabs.setCurrentIndex(page);
                auto& box = control(dialog, name);
                QStyleOptionButton option;
                option.initFrom(&box);
                const QColor edge = edgeOf(box, box.style()->subElementRect(part, &option, &box));
                EXPECT_GE(contrast(edge, desktop.color(QPalette::Window)), 1.5) << name;
            }
            tabs.setCurrentIndex(0);
            expectClearBar(dialog);
            tabs.setCurrentIndex(2);
            auto& preview = control(dialog, "picBacks");
            const QImage picture = dialog.grab().toImage();
            const QPoint corner = preview.mapTo(&dialog, QPoint(1, 1)); // of the card
            EXPECT_EQ(picture.pixelColor(corner), picture.pixelColor(corner - QPoint(6, 0)));
            EXPECT_EQ(preview.accessibleName(), "Card back Sleeve");
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
        });
    }
    QApplication::setPalette(usual);
}

TEST(PreferencesDialog, enterSavesButOnTheColoursButtonItOpensTheChooser)
{
    StartedWindow game;
    ASSERT_TRUE(moveToScale(*game.window, 2));
    inPreferences(game, [](frmPreferences& dialog) {
        control<QTabWidget>(dialog, "SSTab1").setCurrentIndex(2);
        control(dialog, "cmdChangeColor").setFocus();
        const auto enter = [&] { QTest::keyClick(dialog.windowHandle(), Qt::Key_Return); };
        whileOpen<QColorDialog>(enter, [](QColorDialog&) {});
        EXPECT_TRUE(dialog.isVisible());
        for (const auto& [name, number] : {std::pair{"Sleeve", 65}, {"Castle", 63}}) {
            control<QComboBox>(dialog, "Combo1").setCurrentText(name);
            const QImage back = control(dialog, "picBacks").grab({11, 11, 76, 110}).toImage();
            EXPECT_EQ(back,
                      cardAt(number, 2).convertToFormat(back.format()).copy(20, 20, 152, 220));
        }
        control(dialog, "Combo1").setFocus();
        enter();
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(game.window->prfPKBackFace, 63);
}

TEST(PreferencesDialog, aLargeFontStaysLargeAndThePagesAreOfOneSize)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(18);
    QApplication::setFont(large);
    StartedWindow game;
    inPreferences(game, [](frmPreferences& dialog) {
        const QSize opened = dialog.size();
        control<QTabWidget>(dialog, "SSTab1").setCurrentIndex(2);
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog.size(), opened) << "the buttons stay where they are";
        auto& list = control(dialog, "Combo1");
        EXPECT_GE(list.font().pointSizeF(), 14);
        EXPECT_GE(list.width(), list.sizeHint().width());
        for (const char* below : {"Label2", "picBacks", "Label5"})
            EXPECT_EQ(list.x(), control(dialog, below).x()) << below;
    });
    QApplication::setFont(usual);
}

} // namespace quillet::test
