#pragma once

#include <QWidget>

class QProgressBar;

namespace quillet
{

// Shown on the first start, while the program measures the machine.
class CalibrationSplash : public QWidget
{
    Q_OBJECT

public:
    CalibrationSplash();

    // Call after each measured round. Handles events.
    void advance();

private:
    QProgressBar* m_progress; // a child
};

} // namespace quillet
