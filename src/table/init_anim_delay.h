#pragma once

#include "faults/guarded.h"
#include "platform/clock.h"
#include "settings/preferences.h"
#include "table/card_library.h"
#include "table/table_canvas.h"
#include "table/table_geometry.h"

#include <functional>

namespace quillet
{

// Measures this machine, so that cards fly at the same speed everywhere. Sets prfAnimationDelay,
// prfScrollVal and prfBannerDelay (that of a banner sliding into a strip as large as the status
// bar). Calls afterRound after every measured round, to let events run and show progress. An error
// is shown in a box; the delays keep the values they had reached.
void InitAnimDelay(TableCanvas& canvas, CardLibrary& library, const TableMeasures& table,
                   Preferences& preferences, const Clock& clock, const ErrorBox& errorBox,
                   const std::function<void()>& afterRound);

} // namespace quillet
