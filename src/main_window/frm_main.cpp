#include "main_window/frm_main.h"

#include "main_window/chart_panel.h"
#include "main_window/chart_row.h"
#include "main_window/status_bar.h"
#include "platform/file_exists.h"
#include "platform/number_keys.h"
#include "table/accessible_widgets.h"
#include "table/card_names.h"
#include "table/picture_box.h"
#include "table/table_canvas.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace quillet
{

frmMain::frmMain(Desktop& desktop)
    : m_desktop(desktop), m_layout(desktop.metrics, true), m_pile(m_pictures, m_library),
      m_painter(m_pictures, m_library, m_pile),
      m_flight(m_pictures, m_library, *this, desktop.errorBox),
      m_coach(m_state, *this, m_chart, *this, desktop.programFolder),
      m_controller(m_state, m_counters, *this, *this, m_coach, desktop.random, desktop.errorBox)
{
    installAccessibleWidgets();
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Jacks or Better Quillet"));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_pictures.canvas = new TableCanvas(this);
    m_pictures.canvas->setObjectName(QStringLiteral("table"));
    m_pictures.canvas->setAccessibleName(tr("Card table"));
    m_pictures.canvas->setFocusPolicy(Qt::ClickFocus);
    // A tiling window manager may give the window more room than the table has.
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_pictures.canvas, 0, Qt::AlignCenter);
    setCentralWidget(middle);
    makeMenus();
    makeBoxes();
    picPokerLabels = new ChartPanel(m_chart, m_pictures.canvas);
    picStatusBar = new StatusBar(m_pictures.canvas);
    connect(picStatusBar, &StatusBar::clicked, this, &frmMain::picStatusBar_Click);
    connect(m_pictures.canvas, &TableCanvas::scaleChanged, this, &frmMain::followScale);
    watchSession();
    m_pictures.canvas->setFocus();
}

frmMain::~frmMain() = default;

void frmMain::makeBoxes()
{
    TableCanvas& canvas = *m_pictures.canvas;
    // Index 0 comes last and so lies on top: the player's clicks carry it.
    for (std::size_t i = m_pictures.picDeal.size(); i-- > 0;) {
        auto* deck = new PictureBox(canvas);
        m_pictures.picDeal[i] = deck;
        deck->setObjectName(QStringLiteral("picDeal%1").arg(i));
        if (i > 0)
            hideFromReaders(*deck); // beneath the first
        deck->setAccessibleName(tr("Deck"));
        connect(deck, &PictureBox::clicked, this,
                [this, i] { picDeal_Click(static_cast<std::int16_t>(i)); });
    }
    m_pictures.picDeal[0]->setFocusPolicy(Qt::TabFocus);
    for (std::size_t i = 0; i < m_pictures.picPoker.size(); ++i) {
        auto* place = new PictureBox(canvas);
        m_pictures.picPoker[i] = place;
        place->setObjectName(QStringLiteral("picPoker%1").arg(i));
        place->setFocusPolicy(Qt::TabFocus);
        place->setCheckable(true);
        const auto index = static_cast<std::int16_t>(i);
        connect(place, &PictureBox::mouseDown, this, [this, index] { picPoker_MouseDown(index); });
        connect(place, &PictureBox::doubleClicked, this,
                [this, index] { picPoker_DblClick(index); });
        describeSlot(index);
    }
    canvas.setOverlays([this](QPainter& painter, double scale) { paintOutlines(painter, scale); });
}

// Shape1 lies around the card, Shape2 and Shape3 inside its left and right edge.
void frmMain::paintOutlines(QPainter& painter, double scale) const
{
    const QColor color = colorOf(static_cast<std::uint32_t>(prfCardOutlineColor));
    for (std::size_t slot = 0; slot < m_outlineShowing.size(); ++slot) {
        if (!m_outlineShowing[slot])
            continue;
        const QRectF card = m_pictures.picPoker[slot]->devicePlace();
        const double width = deviceSize(3, scale);
        const double marker = deviceSize(2, scale);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        const double out = width / 2;
        const double radius = 6 * scale + out;
        painter.drawRoundedRect(card.adjusted(-out, -out, out, out), radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setClipRect(card, Qt::IntersectClip);
        painter.fillRect(QRectF(card.left(), card.top(), marker, card.height()), color);
        painter.fillRect(QRectF(card.right() - marker, card.top(), marker, card.height()), color);
        painter.setClipping(false);
    }
}

void frmMain::describeSlot(int slot)
{
    const auto i = static_cast<std::size_t>(slot);
    box(slot).setChecked(m_outlineShowing[i]);
    box(slot).setAccessibleName(spokenCard(slot, m_cards[i], m_outlineShowing[i]));
}

bool frmMain::FileExists(const std::string& thePath)
{
    return quillet::FileExists(thePath);
}

void frmMain::sndPlaySound(const std::string& path)
{
    m_desktop.sound.play(path);
}

void frmMain::picDeal_Click(std::int16_t Index)
{
    prepareSound();
    m_controller.picDeal_Click(Index);
}

// Cards land a second or more after the click, so that the first cue after a rest is not late even
// where the device takes that long to open.
void frmMain::prepareSound()
{
    if (prfSound)
        m_desktop.sound.prepare();
}

void frmMain::picPoker_MouseDown(std::int16_t Index)
{
    m_controller.picPoker_MouseDown(Index);
}

void frmMain::picPoker_DblClick(std::int16_t Index)
{
    m_controller.picPoker_DblClick(Index);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    event->accept();
}

// A window manager that is about to fill the screen may move the window first and tell of its state
// afterwards, so a place counts only when it has lasted.
void frmMain::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    const QPoint place = geometry().topLeft();
    if (m_comingBack) {
        if (m_place && place != *m_place)
            windowHandle()->setPosition(*m_place);
        return;
    }
    constexpr int lasting = 250; // milliseconds
    QTimer::singleShot(lasting, this, [this, place] {
        const bool filling = isMaximized() || isFullScreen() || isMinimized();
        if (isVisible() && !filling && !m_comingBack && geometry().topLeft() == place)
            m_place = place;
    });
}

// A window that is shown anew is placed anew, some time after that. For a moment it insists on the
// place where it was.
void frmMain::comeBack()
{
    constexpr int insistence = 1000; // milliseconds
    if (m_place)
        windowHandle()->setPosition(*m_place);
    m_comingBack = true;
    QTimer::singleShot(insistence, this, [this] { m_comingBack = false; });
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    Form_Resize();
}

void frmMain::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
}

// Seen only around the table, where the window has more room than that.
void frmMain::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), Qt::black);
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    const std::optional<int> digit = digitOfKey(*event, QGuiApplication::platformName());
    const int key = event->key();
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event->isAutoRepeat() || (!digit && !plain)) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    if (digit && *digit >= 1 && *digit <= 5) {
        picPoker_MouseDown(static_cast<std::int16_t>(*digit - 1));
        return;
    }
    for (std::int16_t slot = 0; slot < 5; ++slot)
        if (key == Qt::Key_Space && box(slot).hasFocus()) {
            picPoker_MouseDown(slot);
            return;
        }
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        picDeal_Click(0);
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace quillet
