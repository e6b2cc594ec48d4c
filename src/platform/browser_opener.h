#pragma once

#include <functional>
#include <string>

namespace quillet
{

// Opens a web page. Returns at once and reports nothing.
using PageOpener = std::function<void(const std::string& address)>;

// Opens a page in the player's browser with xdg-open, which runs detached. Its output is discarded
// and its failures are ignored. Ignores everything but http and https addresses, so that no text
// can start a program.
void openInBrowser(const std::string& address);

} // namespace quillet
