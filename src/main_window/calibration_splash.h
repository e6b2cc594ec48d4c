#pragma once

#include <QWidget>

class QProgressBar;

namespace quillet
{

// Shows on the first start that the program measures the machine.
class CalibrationSplash : public QWidget
{
    Q_OBJECT

public:
    CalibrationSplash();

    // One more round has been measured; lets events run.
    void advance();

private:
    QProgressBar* m_progress; // a child
};

} // namespace quillet
