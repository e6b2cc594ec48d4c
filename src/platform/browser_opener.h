#pragma once

#include "platform/page_opener.h"

namespace quillet
{

// Opens web addresses in the player's browser with xdg-open, which runs detached. Its output is
// discarded and its failures are ignored.
class BrowserOpener : public PageOpener
{
public:
    // Ignores everything but http and https addresses, so that no text can start a program.
    void open(const std::string& address) override;
};

} // namespace quillet
