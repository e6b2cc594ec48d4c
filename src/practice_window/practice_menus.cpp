#include "practice_window/practice_menus.h"

#include "platform/menu_entry.h"
#include "practice_window/practice_window.h"

#include <QMenuBar>

namespace quillet::practice_window
{

void makeMenus(PracticeWindow& window)
{
    QMenuBar& bar = *window.menuBar();
    QMenu& practice = *bar.addMenu("&Practice");
    QAction* start =
        addEntry(practice, "startExam", "Start an &exam", window, &PracticeWindow::startExam);
    QAction* stop =
        addEntry(practice, "stopExam", "S&top the exam", window, &PracticeWindow::stopExam);
    start->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    stop->setEnabled(false);
    QObject::connect(&window, &PracticeWindow::examChanged, stop, &QAction::setEnabled);
    QObject::connect(&window, &PracticeWindow::examChanged, start, &QAction::setDisabled);
    practice.addSeparator();
    addEntry(practice, "tickShaky", "Tick all &shaky decisions", window, [&window] {
        static_cast<void>(window.teacher());
        window.decisions().tickAll(practice::State::shaky);
    });
    addEntry(practice, "untickAll", "&Untick all decisions", window,
             [&window] { window.decisions().tick({}); });
    practice.addSeparator();
    addEntry(practice, "preferences", "P&references...", window,
             &PracticeWindow::choosePreferences);
    practice.addSeparator();
    addEntry(practice, "quit", "&Quit", window, &QWidget::close)
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

    QMenu& help = *bar.addMenu("&Help");
    addEntry(help, "help", "&Contents", window, &PracticeWindow::showHelp)
        ->setShortcut(QKeySequence::HelpContents);
    addEntry(help, "about", "&About Quillet Practice", window, &PracticeWindow::showAbout);
}

} // namespace quillet::practice_window
