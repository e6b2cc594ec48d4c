#pragma once

#include "faults/guarded.h"
#include "main_window/window_layout.h"
#include "table/picture_file.h"

#include <QMainWindow>
#include <QScopeGuard>

namespace quillet
{

class PokerTable;
class StatusBar;

// Sizes the main window to the table's background picture and keeps it at that size.
class WindowSizer
{
public:
    WindowSizer(QMainWindow& window, PokerTable& table, StatusBar& statusBar, ErrorBox errorBox);

    void AutoSizeToPicture(const LoadedPicture& picture);
    void sizeWithoutPicture();
    // Undoes a resize that did not come from here.
    void windowResized(bool isPoker);
    // Shows the window and gives it its minimum width. Returns whether it was too narrow.
    [[nodiscard]] bool showWindow();

private:
    // Sets inLayout until the guard goes out of scope.
    [[nodiscard]] auto layingOut()
    {
        inLayout = true;
        return qScopeGuard([this] { inLayout = false; });
    }
    void setOuterSize(QSizeF twips);
    [[nodiscard]] bool isTooNarrow() const { return m_layout.isTooNarrow(m_outerSize); }

    QMainWindow& m_window;
    PokerTable& m_table;
    StatusBar& m_statusBar;
    ErrorBox m_errorBox;
    WindowLayout m_layout;

    QSizeF m_outerSize;    // twips
    QSize m_forcedSize;    // the last size that was undone
    bool inLayout = false; // resize events come from here
};

} // namespace quillet
