#pragma once

namespace quillet
{

class frmMain;

// Makes the menus of the window, whose handlers answer them.
void makeMenus(frmMain& window);

} // namespace quillet
