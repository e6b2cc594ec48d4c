#pragma once

namespace quillet::practice_window
{

class PracticeWindow;

void makeMenus(PracticeWindow& window);

} // namespace quillet::practice_window
