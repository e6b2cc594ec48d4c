#pragma once

#include "coach/hold_coach.h"
#include "coach/strategy_chart.h"
#include "engine/counters.h"
#include "engine/game_screen.h"
#include "engine/hand_controller.h"
#include "engine/hand_state.h"
#include "main_window/surroundings.h"
#include "main_window/window_sizer.h"
#include "platform/session_end.h"
#include "settings/preferences.h"
#include "sound/game_cues.h"
#include "table/poker_table.h"

#include <QMainWindow>

#include <cstdint>

namespace quillet
{

class ChartPanel;
class StatusBar;

// The main window. It owns the running state (the preference fields, the hand, the counters) and
// the objects that work on it. It forwards keys, clicks and menus, and loads and saves. Preferences
// is a public base because the fixed names of its fields are members of the window.
class frmMain : public QMainWindow, public Preferences, private GameScreen
{
    Q_OBJECT

public:
    explicit frmMain(Surroundings& surroundings);

    // Builds the running state, shows the window and deals the first hand. Returns false if the
    // window could not be shown, after an error that has been shown; then nothing may be saved.
    [[nodiscard]] bool Form_Load();
    // Saves the preferences, shows the exit screen and ends the process.
    void Form_Unload();

    // Lays the table out again and deals; see HandController.
    void initPokerScreen() { m_controller.initPokerScreen(); }
    void Form_Resize();

    void picDeal_Click(std::int16_t Index);
    void picPoker_MouseDown(std::int16_t Index);
    void picPoker_DblClick(std::int16_t Index) { m_controller.picPoker_DblClick(Index); }
    void picStatusBar_Click();

    void mnuPoker_Click() { initPokerScreen(); }
    void mnuPref_Click();
    void mnuExit_Click() { close(); }
    void mnuSites_Click(int Index);
    void mnuContents_Click();
    void mnuAbout_Click();

    [[nodiscard]] const HandState& handState() const { return m_state; }
    [[nodiscard]] const Counters& counters() const { return m_counters; }
    [[nodiscard]] const StrategyChart& chart() const { return m_chart; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FirstInit();
    void makeCentralWidget();
    void connectControls();
    [[nodiscard]] bool loadBackground();
    void placeChartAndStatusBar();

    // GameScreen
    void layOutGame() override;
    void fadeStatusText(int step) override;
    void showCounters(const Counters& counters) override;
    void shortDelay(std::int32_t delayTime) override;

    Surroundings& m_surroundings;
    SessionEnd m_sessionEnd;

    HandState m_state;
    Counters m_counters;
    StrategyChart m_chart;

    PokerTable m_table;
    HoldCoach m_coach;
    GameCues m_cues;
    HandController m_controller;

    ChartPanel* picPokerLabels; // both on the table's canvas
    StatusBar* picStatusBar;

    WindowSizer m_sizer;
    std::int32_t cWidth = 0; // card size in logical pixels
    std::int32_t cHeight = 0;
    bool m_firstHandStarted = false;
    bool m_unloading = false;
};

} // namespace quillet
