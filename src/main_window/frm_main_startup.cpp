#include "main_window/calibration_splash.h"
#include "main_window/chart_panel.h"
#include "main_window/frm_main.h"
#include "main_window/status_bar.h"
#include "settings/preferences_store.h"
#include "table/init_anim_delay.h"
#include "table/picture_box.h"
#include "table/picture_file.h"
#include "table/table_canvas.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLinearGradient>
#include <QPainter>

namespace quillet
{

namespace
{

QImage framePicture(const QString& name)
{
    QImage piece(QStringLiteral(":/frame/%1.png").arg(name));
    return piece.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// The strip that the calibration slides into the status bar, for its time alone.
QImage bannerPicture(QSize size)
{
    QImage banner(size, QImage::Format_ARGB32_Premultiplied);
    QLinearGradient shine(0, 0, size.width(), 0);
    shine.setColorAt(0.0, Qt::black);
    shine.setColorAt(0.5, QColor(0xc8, 0x10, 0x2e));
    shine.setColorAt(1.0, Qt::black);
    QPainter(&banner).fillRect(banner.rect(), shine);
    return banner;
}

} // namespace

bool frmMain::Form_Load()
{
    const bool built = guarded(m_desktop.errorBox, "Form_Load", [this] { buildRunningState(); });
    // A step may have shown its own error. Without a window nobody could play on, or end it.
    return built && (isVisible() || m_unloading);
}

void frmMain::buildRunningState()
{
    QDir::setCurrent(QString::fromStdString(m_desktop.programFolder));
    m_library.cdtInit(cWidth, cHeight);
    loadPreferences(m_desktop.store, *this);
    calibrateDelays = prfAnimationDelay < 0;

    if (loadBackground())
        AutoSizeToPicture(m_pictures.thePic);
    else
        setOuterSize(m_layout.outerTwips(designedInnerSize));
    m_pictures.framePieces = {
        framePicture(QStringLiteral("top")), framePicture(QStringLiteral("bottom")),
        framePicture(QStringLiteral("side1")), framePicture(QStringLiteral("side2"))};
    m_painter.sizePictures(measures(), devicePixelRatioF());
    if (calibrateDelays)
        calibrate();
    FirstInit();
}

void frmMain::calibrate()
{
    CalibrationSplash splash;
    splash.show();
    splash.advance();
    const QSizeF strip(statusBarWidth, picStatusBar->height());
    m_pictures.picStatusBar = Surface(strip, devicePixelRatioF());
    m_pictures.picBanner3 = bannerPicture((strip * devicePixelRatioF()).toSize());
    DelayMeter(m_pictures, m_library, *this, m_desktop.clock, m_desktop.errorBox, [&splash] {
        splash.advance();
    }).InitAnimDelay();
}

void frmMain::FirstInit()
{
    guarded(m_desktop.errorBox, "FirstInit", [this] {
        m_painter.paintBackground();
        m_painter.paintFirstTable(measures());
        placeChartAndStatusBar();
        if (m_firstHandStarted)
            return;
        m_firstHandStarted = true;
        shuffleCards();
        mnuPoker_Click();
    });
}

QString frmMain::backgroundPath() const
{
    return QString::fromStdString(m_desktop.programFolder + "/pics/" + prfPKBackground);
}

bool frmMain::loadBackground()
{
    const QString path = backgroundPath();
    if (!FileExists(path.toStdString()))
        return false;
    const QFileInfo file(path);
    const double scale = devicePixelRatioF();
    const QString version = QStringLiteral("%1 %2 %3 %4")
                                .arg(path)
                                .arg(file.size())
                                .arg(file.lastModified().toMSecsSinceEpoch())
                                .arg(scale);
    if (version == m_backgroundVersion)
        return true;
    m_pictures.thePic = loadPictureFile(path, scale);
    m_backgroundVersion = version;
    return true;
}

} // namespace quillet
