#pragma once

class QWidget;

namespace quillet
{

// Shows the window and waits, a second at most, until it is on the display.
void showAndWaitUntilExposed(QWidget& window);

} // namespace quillet
