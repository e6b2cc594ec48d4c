#include "screens/frm_exit_no_banner.h"
#include "shell/frm_main.h"
#include "shell/preferences_store.h"

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
        if (!m_sessionEnding)
            showExitScreen();
    });
    hide();
    m_desktop.endProcess(saved ? 0 : 1);
}

void frmMain::watchSession()
{
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { m_sessionEnding = true; },
        Qt::DirectConnection);
}

void frmMain::showExitScreen()
{
    frmExitNoBanner screen(m_desktop.shell);
    connect(&screen, &frmExitNoBanner::unloadMainWindow, this, &QWidget::close);
    connect(&screen, &frmExitNoBanner::endProgram, this, [this] { m_desktop.endProcess(0); });
    screen.exec();
}

} // namespace quillet
