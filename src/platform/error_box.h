#pragma once

#include <string>

namespace quillet
{

// The error box on the screen: modal, an OK button only, titled with the application's name.
void showErrorBox(const std::string& text);

} // namespace quillet
