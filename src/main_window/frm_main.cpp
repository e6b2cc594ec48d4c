#include "main_window/frm_main.h"

#include "faults/guarded.h"
#include "main_window/calibration_splash.h"
#include "main_window/chart_panel.h"
#include "main_window/designed_look.h"
#include "main_window/frm_preferences.h"
#include "main_window/main_menus.h"
#include "main_window/status_bar.h"
#include "platform/number_keys.h"
#include "screens/frm_about.h"
#include "screens/frm_exit_no_banner.h"
#include "screens/help_viewer.h"
#include "screens/run_shell_execute.h"
#include "screens/web_pages.h"
#include "settings/preferences_store.h"
#include "table/init_anim_delay.h"
#include "table/table_canvas.h"

#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace quillet
{

namespace
{

QString backgroundPath(const Surroundings& surroundings, const std::string& fileName)
{
    return QString::fromStdString(surroundings.programFolder + "/pics/" + fileName);
}

// Centred over the game window.
void showExitScreen(frmMain& window, const Surroundings& surroundings)
{
    frmExitNoBanner screen(surroundings.openPage);
    screen.adjustSize();
    screen.move(window.geometry().center() - screen.rect().center());
    QObject::connect(&screen, &frmExitNoBanner::unloadMainWindow, &window, &QWidget::close);
    QObject::connect(&screen, &frmExitNoBanner::endProgram, &window,
                     [&surroundings] { surroundings.endProcess(0); });
    screen.exec();
}

} // namespace

frmMain::frmMain(Surroundings& surroundings)
    : m_surroundings(surroundings),
      m_sessionEnd(surroundings.clock,
                   [this] {
                       // An error box must not delay logout. If the window is closed after all,
                       // that reports the error.
                       const ErrorBox noBox = [](const std::string&) {};
                       // Until the first game, the measurement of the delays may be unfinished.
                       if (m_firstHandStarted && !m_unloading)
                           guarded(noBox, "Form_Unload",
                                   [this] { savePreferences(*this, m_surroundings.store); });
                   }),
      m_table(*this, surroundings.errorBox, this),
      m_coach(m_chart, [this] { return prfShowPokerPlay; }),
      m_cues([this] { return prfSound; }, surroundings.programFolder, surroundings.sound),
      m_controller(m_state, m_counters, [this] { return prfPokerAutoDeal; },
                   {m_table, *this, m_coach, m_cues, surroundings.nextDeck, surroundings.errorBox}),
      picPokerLabels(new ChartPanel(m_chart, &m_table.canvas())),
      picStatusBar(new StatusBar(&m_table.canvas())),
      m_sizer(*this, m_table, *picStatusBar, surroundings.errorBox)
{
    // Most players have the default. It is decoded while Qt looks up the fonts.
    m_table.background().expect(backgroundPath(m_surroundings, defaultBackground));
    setObjectName("frmMain");
    setWindowTitle("Jacks or Better Quillet");
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setContextMenuPolicy(Qt::NoContextMenu);
    makeCentralWidget();
    makeMenus(*this);
    connectControls();
    m_table.canvas().setFocus();
}

// A tiling window manager may give the window more room than the table has.
void frmMain::makeCentralWidget()
{
    auto* middle = new QWidget(this);
    middle->setAutoFillBackground(true);
    setColour(*middle, QPalette::Window, Qt::black);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&m_table.canvas(), 0, Qt::AlignCenter);
    setCentralWidget(middle);
}

void frmMain::connectControls()
{
    connect(&m_table, &PokerTable::deckClicked, this, &frmMain::picDeal_Click);
    connect(&m_table, &PokerTable::cardPressed, this,
            [this](Slot slot) { picPoker_MouseDown(static_cast<std::int16_t>(slot)); });
    connect(&m_table, &PokerTable::cardDoubleClicked, this,
            [this](Slot slot) { picPoker_DblClick(static_cast<std::int16_t>(slot)); });
    connect(&m_table.canvas(), &TableCanvas::scaleChanged, picStatusBar, &StatusBar::makePointer);
    connect(picStatusBar, &StatusBar::clicked, this, &frmMain::picStatusBar_Click);
}

bool frmMain::Form_Load()
{
    const bool built = guarded(m_surroundings.errorBox, "Form_Load", [this] {
        QDir::setCurrent(QString::fromStdString(m_surroundings.programFolder));
        m_table.library().cdtInit(cWidth, cHeight);
        loadPreferences(m_surroundings.store, *this);
        m_table.expectBacks();

        if (!loadBackground())
            m_sizer.sizeWithoutPicture();
        m_table.makePictures();
        if (prfAnimationDelay < 0) {
            CalibrationSplash splash;
            splash.show();
            splash.advance();
            InitAnimDelay(m_table.canvas(), m_table.library(), m_table.measures(), *this,
                          m_surroundings.clock, m_surroundings.errorBox,
                          [&splash] { splash.advance(); });
        }
        FirstInit();
    });
    // A step may have shown its own error. Without a visible window the process could not be
    // closed.
    return built && (isVisible() || m_unloading);
}

void frmMain::FirstInit()
{
    guarded(m_surroundings.errorBox, "FirstInit", [this] {
        m_table.paintFirstTable();
        placeChartAndStatusBar();
        if (m_firstHandStarted)
            return;
        m_firstHandStarted = true;
        m_table.shuffleCards();
        mnuPoker_Click();
    });
}

void frmMain::Form_Unload()
{
    if (m_unloading)
        return;
    m_unloading = true;
    m_controller.endGame();
    const bool saved = guarded(m_surroundings.errorBox, "Form_Unload", [this] {
        m_table.close();
        savePreferences(*this, m_surroundings.store);
        hide();
        // A desktop session that is ending does not wait for the exit screen.
        if (!m_sessionEnd.isComing())
            showExitScreen(*this, m_surroundings);
    });
    hide();
    m_surroundings.endProcess(saved ? 0 : 1);
}

void frmMain::picDeal_Click(std::int16_t Index)
{
    m_cues.prepare();
    m_controller.picDeal_Click(Index);
}

void frmMain::picPoker_MouseDown(std::int16_t Index)
{
    // The click may play the cue for a wrong hold immediately.
    m_cues.prepare();
    m_controller.picPoker_MouseDown(Index);
}

void frmMain::picStatusBar_Click()
{
    guardedWithText(m_surroundings.errorBox, "statusclick", "",
                    [this] { openWebPage(m_surroundings.openPage, onlinePokerPage()); });
}

void frmMain::mnuPref_Click()
{
    frmPreferences dialog(*this, m_table, m_surroundings.errorBox, this);
    dialog.exec();
}

void frmMain::mnuSites_Click(int)
{
    openWebPage(m_surroundings.openPage, onlinePokerPage());
}

void frmMain::mnuContents_Click()
{
    HelpViewer::present(this, m_surroundings.openPage,
                        QString::fromStdString(m_surroundings.programFolder + "/quillet.hlp"));
}

void frmMain::mnuAbout_Click()
{
    frmAbout::present(this, m_surroundings.openPage);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    event->accept();
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    Form_Resize();
}

void frmMain::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    const std::optional<int> digit = digitOfKey(*event, QGuiApplication::platformName());
    const int key = event->key();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event->isAutoRepeat() || (!digit && !plain)) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    if (digit && *digit >= 1 && *digit <= 5)
        picPoker_MouseDown(static_cast<std::int16_t>(*digit - 1));
    else if (const std::optional<Slot> slot = m_table.focusedSlot(); slot && key == Qt::Key_Space)
        picPoker_MouseDown(static_cast<std::int16_t>(*slot));
    else if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        picDeal_Click(0);
    else
        QMainWindow::keyPressEvent(event);
}

void frmMain::Form_Resize()
{
    guarded(m_surroundings.errorBox, "Form_Resize", [this] { m_sizer.windowResized(isPoker); });
}

bool frmMain::loadBackground()
{
    TableBackground& background = m_table.background();
    const bool found = background.load(backgroundPath(m_surroundings, prfPKBackground));
    if (found)
        m_sizer.AutoSizeToPicture(background.picture());
    return found;
}

void frmMain::placeChartAndStatusBar()
{
    const TableMeasures& table = m_table.measures();
    picStatusBar->move(statusBarPlace(table).topLeft().toPoint());
    picPokerLabels->setGeometry(chartPlace(table).toRect());
    picPokerLabels->layoutChartRows();
}

void frmMain::layOutGame()
{
    (void)loadBackground();
    isPoker = true;
    m_chart.resetChartColors();
    placeChartAndStatusBar();
    if (m_sizer.showWindow())
        placeChartAndStatusBar();
    m_table.shuffleCards();
    m_table.resetGraphics();
    m_cues.prepare();
}

void frmMain::fadeStatusText(int step)
{
    picStatusBar->setTextColour(QColor(10 * step, 7 * step, 8 * step));
}

void frmMain::showCounters(const Counters& counters)
{
    picPokerLabels->showCounters(counters);
}

void frmMain::shortDelay(std::int32_t delayTime)
{
    const std::uint32_t epoch = m_state.epoch;
    m_surroundings.shortDelay(delayTime, [this, epoch] { return m_state.epoch != epoch; });
}

} // namespace quillet
