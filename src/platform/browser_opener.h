#pragma once

#include "platform/page_opener.h"

namespace quillet
{

// Opens web addresses in the player's browser through xdg-open, which runs detached and mute:
// whatever it does or prints, and whether it exists at all, the program notices nothing.
class BrowserOpener : public PageOpener
{
public:
    // Only "open" of an http or https address does anything, so that no text can start a program.
    // A page takes no parameters, and the desktop decides how its window is shown.
    void open(const std::string& verb, const std::string& file, const std::string& parameters,
              const std::string& directory, int showCommand) override;
};

} // namespace quillet
