#include "main_window/frm_main.h"
#include "screens/frm_exit_no_banner.h"
#include "settings/preferences_store.h"

#include <QGuiApplication>

namespace quillet
{

void frmMain::Form_Unload()
{
    if (m_unloading)
        return;
    m_unloading = true;
    m_controller.endGame();
    const bool saved = guarded(m_desktop.errorBox, "Form_Unload", [this] {
        m_library.cdtTerm();
        savePreferences(*this, m_desktop.store);
        hide();
        // A desktop session that is ending does not wait for a farewell.
        if (!sessionIsEnding())
            showExitScreen();
    });
    hide();
    m_desktop.endProcess(saved ? 0 : 1);
}

void frmMain::watchSession()
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &frmMain::saveForSession,
            Qt::DirectConnection);
}

// The session may end the process without closing its windows.
void frmMain::saveForSession()
{
    m_sessionEndAnnounced = m_desktop.clock.milliseconds();
    // Before the first game the delays may be half measured.
    if (!m_firstHandStarted || m_unloading)
        return;
    // No box may hold up the session. If it does close the window, that reports the error.
    struct : ErrorBox {
        void showError(const std::string&) override {}
    } nobody;
    guarded(nobody, "Form_Unload", [this] { savePreferences(*this, m_desktop.store); });
}

// An announced end that does not come has been called off.
bool frmMain::sessionIsEnding()
{
    constexpr std::int64_t patience = 60'000;
    return m_sessionEndAnnounced &&
           m_desktop.clock.milliseconds() - *m_sessionEndAnnounced < patience;
}

void frmMain::showExitScreen()
{
    frmExitNoBanner screen(m_desktop.shell);
    // It stands where the game stood.
    screen.adjustSize();
    screen.move(geometry().center() - screen.rect().center());
    connect(&screen, &frmExitNoBanner::unloadMainWindow, this, &QWidget::close);
    connect(&screen, &frmExitNoBanner::endProgram, this, [this] { m_desktop.endProcess(0); });
    screen.exec();
}

} // namespace quillet
