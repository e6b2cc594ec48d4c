#include "main_window/main_menus.h"

#include "main_window/frm_main.h"
#include "main_window/indicator_style.h"
#include "platform/menu_entry.h"

#include <QMenuBar>

namespace quillet
{

namespace
{

QMenu* addMenu(QMenuBar& bar, const QString& name, const QString& caption)
{
    QMenu* menu = bar.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

} // namespace

void makeMenus(frmMain& window)
{
    QMenuBar& bar = *window.menuBar();
    bar.setNativeMenuBar(false);
    QMenu& game = *addMenu(bar, "mnuGame", "&Game");
    addEntry(game, "mnuPoker", "Play &Video Poker", window, &frmMain::mnuPoker_Click);
    addEntry(game, "mnuPref", "Preferences", window, &frmMain::mnuPref_Click);
    auto* style = new IndicatorStyle;
    style->setParent(&game);
    game.setStyle(style);
    game.addSeparator()->setObjectName("mnuSeparator");
    addEntry(game, "mnuExit", "E&xit", window, &frmMain::mnuExit_Click);

    QMenu& sites = *addMenu(bar, "mnuCasinoSites", "Casino Games");
    int index = 0;
    for (const char* caption : {"Video Poker", "BlackJack", "Roulette", "Craps", "Slots"}) {
        addEntry(sites, QString("mnuSites%1").arg(index), caption, window,
                 [&window, index] { window.mnuSites_Click(index); });
        ++index;
    }

    QMenu& help = *addMenu(bar, "mnuHelp", "&Help");
    addEntry(help, "mnuContents", "&Contents", window, &frmMain::mnuContents_Click)
        ->setShortcut(QKeySequence::HelpContents);
    addEntry(help, "mnuAbout", "About Quillet", window, &frmMain::mnuAbout_Click);
}

} // namespace quillet
