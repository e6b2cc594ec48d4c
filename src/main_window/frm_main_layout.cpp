#include "main_window/chart_panel.h"
#include "main_window/frm_main.h"
#include "main_window/status_bar.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWindow>

namespace quillet
{

namespace
{

constexpr int longestExposure = 1000; // milliseconds

} // namespace

void frmMain::AutoSizeToPicture(const LoadedPicture& picture)
{
    guarded(m_desktop.errorBox, "AutoSizeToPicture", [&] {
        const ScreenMetrics& metrics = m_desktop.metrics;
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
    const QSize inner = m_layout.innerPixels(twips).toSize().expandedTo({1, 1});
    m_pictures.canvas->setFixedSize(inner);
    setFixedSize(sizeHint());
}

void frmMain::Form_Resize()
{
    guarded(m_desktop.errorBox, "Form_Resize", [this] {
        if (isMaximized() || isFullScreen()) {
            hide();
            showNormal();
            comeBack();
        }
        if (isMinimized() || isMaximized())
            return;
        const bool sizeIsRight = size() == sizeHint();
        if (!inLayout && !sizeIsRight && !m_pictures.thePic.isNull())
            AutoSizeToPicture(m_pictures.thePic);
        if (isPoker && m_layout.isTooNarrow(m_layout.innerPixels(m_outerSize)) && !sizeIsRight) {
            inLayout = true;
            widenToMinimum();
        }
    });
}

void frmMain::widenToMinimum()
{
    setOuterSize(m_layout.widened(m_outerSize));
}

void frmMain::layOutGame()
{
    for (PictureBox* deck : m_pictures.picDeal)
        deck->setShowing(false);
    for (int slot = 0; slot < 5; ++slot)
        showHoldOutline(slot, false);
    if (loadBackground())
        AutoSizeToPicture(m_pictures.thePic);
    isPoker = true;
    m_chart.resetChartColors();
    placeChartAndStatusBar();
    inLayout = true;
    showAndWaitUntilExposed();
    inLayout = false;
    if (m_layout.isTooNarrow(m_layout.innerPixels(m_outerSize))) {
        inLayout = true;
        widenToMinimum();
        inLayout = false;
        placeChartAndStatusBar();
    }
    shuffleCards();
    resetGraphics();
    prepareSound();
}

void frmMain::placeChartAndStatusBar()
{
    const TableMeasures table = measures();
    picStatusBar->move(statusBarPosition(table).toPoint());
    picPokerLabels->setGeometry(chartPlace(table).toRect());
    picPokerLabels->layoutChartRows();
}

void frmMain::showAndWaitUntilExposed()
{
    if (isVisible())
        return;
    show();
    // Its timeout is an event, too, which ends the last waiting for one.
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(longestExposure);
    while (!windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents |
                                        QEventLoop::ExcludeUserInputEvents);
}

TableMeasures frmMain::measures() const
{
    const QSizeF inner = m_layout.innerPixels(m_outerSize);
    TableMeasures table;
    table.innerWidth = inner.width();
    table.innerHeight = inner.height();
    table.cardWidth = cWidth;
    table.cardHeight = cHeight;
    table.statusBarHeight = picStatusBar->height();
    table.chartWidth = chartWidth;
    return table;
}

void frmMain::initPokerScreen()
{
    m_controller.initPokerScreen();
}

void frmMain::DrawDealDeck()
{
    m_pile.DrawDealDeck(prfPKBackFace);
}

void frmMain::shuffleCards()
{
    m_pile.shuffleCards(prfPKBackFace);
}

void frmMain::resetGraphics()
{
    guarded(m_desktop.errorBox, "resetGraphics", [this] {
        const TableMeasures table = measures();
        if (m_pictures.canvas->innerSize() != QSizeF(table.innerWidth, table.innerHeight) ||
            m_pictures.canvas->scale() != devicePixelRatioF())
            m_painter.sizePictures(table, devicePixelRatioF());
        for (PictureBox* deck : m_pictures.picDeal)
            deck->setShowing(false);
        for (int slot = 0; slot < 5; ++slot)
            hideCard(slot);
        m_painter.repaint(table, prfPKBackFace);
        m_state.judgePending = false;
    });
}

// Everything is painted again with the pixels of the display that the window has come to. The
// hand goes on.
void frmMain::followScale()
{
    // The card library closes before the exit screen is shown.
    if (m_unloading)
        return;
    // A flight may have been the first to paint in the new pixels, and of them only its own.
    m_pictures.canvas->presentWholeWindowWithNextFrame();
    picStatusBar->makePointer();
    if (m_pictures.canvas->scale() == devicePixelRatioF())
        return;
    // A picture that has been spoiled meanwhile stays as it was read.
    guarded(m_desktop.errorBox, "followScale", [this] { loadBackground(); });
    const TableMeasures table = measures();
    m_painter.sizePictures(table, devicePixelRatioF());
    std::array<bool, 5> showing{};
    for (std::size_t slot = 0; slot < showing.size(); ++slot)
        showing[slot] = m_pictures.picPoker[slot]->isShowing();
    m_painter.repaint(table, prfPKBackFace);
    for (int slot = 0; slot < 5; ++slot) {
        const auto i = static_cast<std::size_t>(slot);
        paintCard(slot);
        if (m_cards[i].overlaid)
            layOverlay(slot);
        box(slot).setShowing(showing[i]);
    }
    paintDeckIntoTable();
    m_pictures.canvas->refresh();
}

} // namespace quillet
