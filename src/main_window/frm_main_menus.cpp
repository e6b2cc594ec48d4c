#include "main_window/frm_main.h"
#include "main_window/frm_preferences.h"
#include "screens/frm_about.h"
#include "screens/help_viewer.h"
#include "screens/run_shell_execute.h"
#include "screens/web_pages.h"
#include "table/table_canvas.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace quillet
{

namespace
{

QAction* addEntry(QMenu& menu, const QString& name, const QString& caption)
{
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(name);
    // The captions are to stay where they are, whatever the desktop thinks they mean.
    entry->setMenuRole(QAction::NoRole);
    return entry;
}

QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption)
{
    QMenu* menu = bar.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

} // namespace

void frmMain::makeMenus()
{
    QMenuBar& bar = *menuBar();
    bar.setNativeMenuBar(false);
    QMenu& game = *addMenu(bar, QStringLiteral("mnuGame"), tr("&Game"));
    connect(addEntry(game, QStringLiteral("mnuPoker"), tr("Play &Video Poker")),
            &QAction::triggered, this, &frmMain::mnuPoker_Click);
    connect(addEntry(game, QStringLiteral("mnuPref"), tr("Preferences")), &QAction::triggered, this,
            &frmMain::mnuPref_Click);
    game.addSeparator()->setObjectName(QStringLiteral("mnuSeparator"));
    connect(addEntry(game, QStringLiteral("mnuExit"), tr("E&xit")), &QAction::triggered, this,
            &frmMain::mnuExit_Click);

    QMenu& sites = *addMenu(bar, QStringLiteral("mnuCasinoSites"), tr("Casino Games"));
    const std::array captions{tr("Video Poker"), tr("BlackJack"), tr("Roulette"), tr("Craps"),
                              tr("Slots")};
    for (int index = 0; index < static_cast<int>(captions.size()); ++index)
        connect(addEntry(sites, QStringLiteral("mnuSites%1").arg(index),
                         captions[static_cast<std::size_t>(index)]),
                &QAction::triggered, this, [this, index] { mnuSites_Click(index); });

    QMenu& help = *addMenu(bar, QStringLiteral("mnuHelp"), tr("&Help"));
    QAction* contents = addEntry(help, QStringLiteral("mnuContents"), tr("&Contents"));
    contents->setShortcut(QKeySequence::HelpContents);
    connect(contents, &QAction::triggered, this, &frmMain::mnuContents_Click);
    connect(addEntry(help, QStringLiteral("mnuAbout"), tr("About Quillet")), &QAction::triggered,
            this, &frmMain::mnuAbout_Click);
}

void frmMain::mnuPoker_Click()
{
    initPokerScreen();
}

void frmMain::mnuPref_Click()
{
    frmPreferences dialog({*this, m_library, m_desktop.errorBox, QSize(cWidth, cHeight),
                           m_desktop.metrics.twipsPerPixelX, [this] { DrawDealDeck(); },
                           [this] { m_pictures.canvas->update(); }},
                          this);
    dialog.exec();
}

void frmMain::mnuExit_Click()
{
    close();
}

void frmMain::mnuSites_Click(int)
{
    openWebPage(m_desktop.shell, onlinePokerPage());
}

void frmMain::mnuContents_Click()
{
    HelpViewer::present(this, m_desktop.shell, QString::fromStdString(m_desktop.helpFile));
}

void frmMain::mnuAbout_Click()
{
    frmAbout::present(this, m_desktop.shell);
}

void frmMain::picStatusBar_Click()
{
    guardedWithText(m_desktop.errorBox, "statusclick", "",
                    [this] { openWebPage(m_desktop.shell, onlinePokerPage()); });
}

} // namespace quillet
