#include "main_window/chart_panel.h"
#include "main_window/frm_main.h"
#include "main_window/status_bar.h"

namespace quillet
{

void frmMain::AutoSizeToPicture(const LoadedPicture& picture)
{
    guarded(m_surroundings.errorBox, "AutoSizeToPicture", [&] {
        const ScreenMetrics& metrics = m_surroundings.metrics;
        const QSizeF twips(picture.logicalSize.width() * metrics.twipsPerPixelX,
                           picture.logicalSize.height() * metrics.twipsPerPixelY);
        inLayout = true;
        picStatusBar->setFixedSize(
            static_cast<int>(statusBarWidth),
            static_cast<int>(m_layout.statusBarHeight() / metrics.twipsPerPixelY));
        setOuterSize(m_layout.sizeForPicture(twips, frameEdgeHeight * metrics.twipsPerPixelY));
        if (metrics.largeFonts())
            picStatusBar->centreText();
        inLayout = false;
    });
}

// The toolkit adds the frame by itself, so the table is given the inner size.
void frmMain::setOuterSize(QSizeF twips)
{
    m_outerSize = twips;
    const QSizeF inner = m_layout.innerPixels(twips);
    m_table.setMeasures({inner.width(), inner.height(), double(cWidth), double(cHeight),
                         double(picStatusBar->height()), designedTable.chartWidth});
    // A window that shows learns of the table's new size only with the next events.
    centralWidget()->updateGeometry();
    setFixedSize(sizeHint());
    // A fixed size that has not changed does nothing to a window that was forced to another one.
    resize(sizeHint());
}

void frmMain::Form_Resize()
{
    guarded(m_surroundings.errorBox, "Form_Resize", [this] {
        // The window manager still knows where the window was. Hidden and shown anew, it would be
        // placed anew, or filled again by the state that the manager had not yet taken off.
        if (isMaximized() || isFullScreen())
            showNormal();
        if (isMinimized() || isMaximized())
            return;
        // A tiling window manager that insists on its size gets its way.
        const bool sizeIsRight = size() == sizeHint() || size() == m_forcedSize;
        if (!sizeIsRight)
            m_forcedSize = size();
        if (!inLayout && !sizeIsRight && !m_table.background().isNull())
            AutoSizeToPicture(m_table.background());
        if (isPoker && m_layout.isTooNarrow(m_layout.innerPixels(m_outerSize)) && !sizeIsRight) {
            inLayout = true;
            setOuterSize(m_layout.widened(m_outerSize));
        }
    });
}

void frmMain::placeChartAndStatusBar()
{
    const TableMeasures& table = m_table.measures();
    picStatusBar->move(statusBarPlace(table).topLeft().toPoint());
    picPokerLabels->setGeometry(chartPlace(table).toRect());
    picPokerLabels->layoutChartRows();
}

} // namespace quillet
