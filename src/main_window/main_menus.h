#pragma once

namespace quillet
{

class frmMain;

// Makes the menus of the window, connected to its handlers.
void makeMenus(frmMain& window);

} // namespace quillet
