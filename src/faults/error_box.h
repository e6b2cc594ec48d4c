#pragma once

#include <string>

namespace quillet
{

// Shows a message to the player, with only an OK button and the application's title.
class ErrorBox
{
public:
    virtual ~ErrorBox() = default;
    virtual void showError(const std::string& text) = 0;
};

} // namespace quillet
