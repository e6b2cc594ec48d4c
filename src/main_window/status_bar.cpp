#include "main_window/status_bar.h"

#include "main_window/designed_look.h"
#include "main_window/window_layout.h"
#include "platform/accessible_widgets.h"
#include "platform/click_tracker.h"
#include "table/surface.h"
#include "table/table_geometry.h"

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>

namespace quillet
{

namespace
{

constexpr int pointerSide = 32; // logical pixels
constexpr QPoint hotSpot{12, 9};

bool countsDevicePixels(const QString& platform)
{
    return platform == "xcb";
}

} // namespace

QPoint pointerTip(double scale, const QString& platform)
{
    return hotSpot * (countsDevicePixels(platform) ? scale : 1);
}

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent), m_lblstatus(new QLabel("Welcome to Quillet", this))
{
    setObjectName("picStatusBar");
    presentAs(*this, QAccessible::Link);
    setAccessibleName("Status bar, opens the web site");
    setFixedSize(static_cast<int>(statusBarWidth),
                 static_cast<int>(statusBarDesignedHeight / designTwips));
    connect(new ClickTracker(*this), &ClickTracker::clicked, this, &StatusBar::clicked);
    makePointer();

    new ClickTracker(*m_lblstatus); // keeps its clicks from the bar
    m_lblstatus->setObjectName("lblstatus");
    m_lblstatus->setTextFormat(Qt::PlainText);
    m_lblstatus->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_lblstatus->setFont(designedFont(12, true));
    m_lblstatus->setGeometry(117, 21, 215, 16);
    setTextColour(QColor(0xff, 0xff, 0xc0));
}

void StatusBar::setTextColour(const QColor& colour)
{
    setColour(*m_lblstatus, QPalette::WindowText, colour);
}

void StatusBar::centreText()
{
    m_lblstatus->move((width() - m_lblstatus->width()) / 2, m_lblstatus->y());
}

void StatusBar::makePointer()
{
    const QImage drawn(":/pointer/hand@2x.png");
    if (drawn.isNull()) {
        setCursor(Qt::PointingHandCursor);
        return;
    }
    const double scale = devicePixelRatioF();
    const int side = deviceSize(pointerSide, scale);
    QPixmap hand = QPixmap::fromImage(
        drawn.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    const QString platform = QGuiApplication::platformName();
    hand.setDevicePixelRatio(countsDevicePixels(platform) ? 1 : scale);
    const QPoint tip = pointerTip(scale, platform);
    setCursor(QCursor(hand, tip.x(), tip.y()));
}

} // namespace quillet
