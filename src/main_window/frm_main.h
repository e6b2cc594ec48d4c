#pragma once

#include "coach/hold_coach.h"
#include "coach/strategy_chart.h"
#include "engine/counters.h"
#include "engine/hand_controller.h"
#include "engine/hand_state.h"
#include "engine/hand_table.h"
#include "engine/preferences.h"
#include "main_window/desktop.h"
#include "main_window/window_layout.h"
#include "table/card_flight.h"
#include "table/card_library.h"
#include "table/card_on_table.h"
#include "table/deck_pile.h"
#include "table/table_painter.h"
#include "table/table_pictures.h"

#include <QMainWindow>
#include <QString>

#include <array>
#include <cstdint>
#include <optional>

namespace quillet
{

class ChartPanel;
class StatusBar;

// The main window. It owns the running state (the preference fields, the hand, the counters, the
// table's pictures) and answers what happens to it by forwarding to those who know how: the
// controller, the coach, the painters. Split by task into frm_main_*.cpp.
class frmMain : public QMainWindow, public Preferences, private HandTable, private CueOutput
{
    Q_OBJECT

public:
    // Everything in the desktop outlives the window.
    explicit frmMain(Desktop& desktop);
    ~frmMain() override;

    // Builds the running state, shows the window and deals the first hand. False after an error,
    // which has been shown; nothing is to be saved then.
    [[nodiscard]] bool Form_Load();
    // Saves the preferences, shows the exit screen and ends the process.
    void Form_Unload();

    // Paints the pile in the chosen back.
    void DrawDealDeck();
    void shuffleCards();
    void resetGraphics();
    // Lays the table out again and deals; see HandController.
    void initPokerScreen();
    void AutoSizeToPicture(const LoadedPicture& picture);
    void Form_Resize();

    void picDeal_Click(std::int16_t Index);
    void picPoker_MouseDown(std::int16_t Index);
    void picPoker_DblClick(std::int16_t Index);
    void picStatusBar_Click();

    void mnuPoker_Click();
    void mnuPref_Click();
    void mnuExit_Click();
    void mnuSites_Click(int Index);
    void mnuContents_Click();
    void mnuAbout_Click();

    [[nodiscard]] bool FileExists(const std::string& thePath) override;

    [[nodiscard]] const HandState& handState() const { return m_state; }
    [[nodiscard]] const Counters& counters() const { return m_counters; }
    [[nodiscard]] const StrategyChart& chart() const { return m_chart; }

    std::int32_t cWidth = 0; // card size in logical pixels
    std::int32_t cHeight = 0;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // frm_main.cpp
    void makeBoxes();
    void watchSession();
    void paintOutlines(QPainter& painter, double scale) const;
    void describeSlot(int slot);
    void prepareSound();

    // frm_main_startup.cpp
    void buildRunningState();
    void FirstInit();
    void calibrate();
    [[nodiscard]] QString backgroundPath() const;
    // Whether there is a background file, which then is in thePic.
    bool loadBackground();

    // frm_main_layout.cpp
    void setOuterSize(QSizeF twips);
    void placeChartAndStatusBar();
    void widenToMinimum();
    void comeBack();
    void showAndWaitUntilExposed();
    [[nodiscard]] TableMeasures measures() const;
    void followScale();

    // frm_main_shutdown.cpp
    void saveForSession();
    [[nodiscard]] bool sessionIsEnding();
    void showExitScreen();

    // frm_main_menus.cpp
    void makeMenus();

    // frm_main_table.cpp: HandTable
    void layOutGame() override;
    void fadeStatusText(int step) override;
    void placeFlyingCard() override;
    void paintFlyingCard(std::int32_t backNumber) override;
    void paintDeckIntoTable() override;
    void flyCardTo(int slot) override;
    void endFlights() override;
    [[nodiscard]] bool cardShowing(int slot) const override;
    void hideCard(int slot) override;
    void showBack(int slot) override;
    void paintFace(int slot, std::int16_t cardId) override;
    void layOverlay(int slot) override;
    void refreshCard(int slot) override;
    void showHoldOutline(int slot, bool shown) override;
    void showCounters(const Counters& counters) override;
    void recover() override;
    void shortDelay(std::int32_t delayTime) override;
    void paintCard(int slot);
    [[nodiscard]] PictureBox& box(int slot) { return *m_pictures.picPoker.at(std::size_t(slot)); }

    // CueOutput
    void sndPlaySound(const std::string& path) override;

    Desktop& m_desktop;
    WindowLayout m_layout;

    HandState m_state;
    Counters m_counters;
    StrategyChart m_chart;
    TablePictures m_pictures;
    std::array<CardOnTable, 5> m_cards;     // what the card places show
    std::array<bool, 5> m_outlineShowing{}; // Shape1, Shape2 and Shape3 of each place

    CardLibrary m_library;
    DeckPile m_pile;
    TablePainter m_painter;
    CardFlight m_flight;
    HoldCoach m_coach;
    HandController m_controller;

    ChartPanel* picPokerLabels = nullptr; // children of the window
    StatusBar* picStatusBar = nullptr;

    bool m_comingBack = false;     // from a state that was forced on the window
    std::optional<QPoint> m_place; // of the inner area on the screen, where it was left
    QSizeF m_outerSize;            // twips
    QString m_backgroundVersion;   // of the file and the scale that thePic was read for
    bool inLayout = false;
    bool calibrateDelays = false;
    bool m_firstHandStarted = false;
    bool m_unloading = false;
    std::optional<std::int64_t> m_sessionEndAnnounced; // in milliseconds of the clock
};

} // namespace quillet
