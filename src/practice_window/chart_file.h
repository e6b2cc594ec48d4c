#pragma once

#include "charts/chart.h"

#include <QString>

namespace quillet::practice_window
{

struct ChartFile {
    charts::Chart chart;
    QString problem; // a sentence; empty if the chart could be read
};

// Reads only regular files up to 1 MB, so a pipe or a wrong file cannot block the program.
[[nodiscard]] ChartFile readChartFile(const QString& path);

} // namespace quillet::practice_window
