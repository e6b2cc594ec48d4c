#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace quillet
{

// Shows a message to the player, with only an OK button and the application's title.
using ErrorBox = std::function<void(const std::string& text)>;

// Runs the body. If it throws, shows the error between the two texts. Returns whether the body
// completed.
template <typename Body>
bool guardedWithText(const ErrorBox& box, const std::string& before, const std::string& after,
                     Body&& body)
{
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        box(before + error.what() + after);
        return false;
    }
}

// The same with the text that most procedures use.
template <typename Body>
bool guarded(const ErrorBox& box, const std::string& procedure, Body&& body)
{
    return guardedWithText(box, "Error  in  " + procedure + " (  ", "  )",
                           std::forward<Body>(body));
}

} // namespace quillet
