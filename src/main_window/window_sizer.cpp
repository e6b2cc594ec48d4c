#include "main_window/window_sizer.h"

#include "main_window/status_bar.h"
#include "platform/window_exposure.h"
#include "table/poker_table.h"
#include "table/table_canvas.h"

#include <utility>

namespace quillet
{

WindowSizer::WindowSizer(QMainWindow& window, PokerTable& table, StatusBar& statusBar,
                         ErrorBox errorBox)
    : m_window(window), m_table(table), m_statusBar(statusBar), m_errorBox(std::move(errorBox))
{
}

void WindowSizer::AutoSizeToPicture(const LoadedPicture& picture)
{
    guarded(m_errorBox, "AutoSizeToPicture", [&] {
        const auto guard = layingOut();
        m_statusBar.setFixedHeight(m_layout.statusBarPixels());
        setOuterSize(m_layout.sizeForPicture(picture.logicalSize));
        if (m_layout.metrics().largeFonts())
            m_statusBar.centreText();
    });
}

void WindowSizer::sizeWithoutPicture()
{
    setOuterSize(m_layout.outerTwips({designedTable.innerWidth, designedTable.innerHeight}));
}

void WindowSizer::windowResized(bool isPoker)
{
    // showNormal alone: if the window were hidden and shown, the window manager would place it
    // again, or maximise it again.
    if (m_window.isMaximized() || m_window.isFullScreen())
        m_window.showNormal();
    if (m_window.isMinimized() || m_window.isMaximized())
        return;
    // A tiling window manager that insists on its size gets its way.
    const QSize size = m_window.size();
    if (size == m_window.sizeHint() || size == m_forcedSize)
        return;
    m_forcedSize = size;
    if (!inLayout && !m_table.background().picture().isNull())
        AutoSizeToPicture(m_table.background().picture());
    if (isPoker && isTooNarrow()) {
        // Stays set until the next AutoSizeToPicture. Otherwise the resize events that follow
        // would bring back the width of the picture.
        inLayout = true;
        setOuterSize(m_layout.widened(m_outerSize));
    }
}

bool WindowSizer::showWindow()
{
    const auto guard = layingOut();
    showAndWaitUntilExposed(m_window);
    if (!isTooNarrow())
        return false;
    setOuterSize(m_layout.widened(m_outerSize));
    return true;
}

// Qt adds the frame, so the table gets the inner size.
void WindowSizer::setOuterSize(QSizeF twips)
{
    m_outerSize = twips;
    const QSizeF inner = m_layout.innerPixels(twips);
    const QSizeF card = m_table.library().cardSize();
    m_table.setMeasures({inner.width(), inner.height(), card.width(), card.height(),
                         double(m_statusBar.height()), designedTable.chartWidth});
    // A visible window learns the table's new size only with the next events.
    m_window.centralWidget()->updateGeometry();
    const QSize size = m_window.sizeHint();
    m_window.setFixedSize(size);
    // If this fixed size was set before, it leaves a window alone that was forced to another size.
    m_window.resize(size);
}

} // namespace quillet
