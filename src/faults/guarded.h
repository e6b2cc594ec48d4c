#pragma once

#include "faults/error_box.h"

#include <exception>
#include <string>
#include <utility>

namespace quillet
{

// Runs the body. If it throws, shows the error between the two texts. Returns whether the body
// completed.
template <typename Body>
bool guardedWithText(ErrorBox& box, const std::string& before, const std::string& after,
                     Body&& body)
{
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        box.showError(before + error.what() + after);
        return false;
    }
}

// The same with the text that most procedures use.
template <typename Body>
bool guarded(ErrorBox& box, const std::string& procedure, Body&& body)
{
    return guardedWithText(box, "Error  in  " + procedure + " (  ", "  )",
                           std::forward<Body>(body));
}

} // namespace quillet
