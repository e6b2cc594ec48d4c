#include "main_window/calibration_splash.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace quillet
{

namespace
{

constexpr int expectedRounds = 8;

} // namespace

CalibrationSplash::CalibrationSplash()
    : QWidget(nullptr, Qt::SplashScreen), m_progress(new QProgressBar(this))
{
    setObjectName("calibrationSplash");
    setWindowTitle("Quillet");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(new QLabel("Measuring this computer, so that cards fly\n"
                                 "at the right speed. This happens once.",
                                 this));
    m_progress->setRange(0, expectedRounds);
    m_progress->setTextVisible(false);
    layout->addWidget(m_progress);
}

void CalibrationSplash::advance()
{
    if (m_progress->value() + 1 >= m_progress->maximum())
        m_progress->setMaximum(m_progress->maximum() + 1);
    m_progress->setValue(m_progress->value() + 1);
    QCoreApplication::processEvents();
}

} // namespace quillet
