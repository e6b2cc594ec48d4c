#pragma once

#include <stdexcept>
#include <string>

namespace quillet
{

// What a procedure that promises an error box reports; what() is the description in the box.
class RunTimeError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

[[nodiscard]] inline RunTimeError overflowError()
{
    return RunTimeError("Overflow");
}
[[nodiscard]] inline RunTimeError typeMismatchError()
{
    return RunTimeError("Type mismatch");
}
[[nodiscard]] inline RunTimeError divisionByZeroError()
{
    return RunTimeError("Division by zero");
}

// Shows a message to the player, with an OK button only and the application's title.
class ErrorBox
{
public:
    virtual ~ErrorBox() = default;
    virtual void showError(const std::string& text) = 0;
};

// The one guard: runs the body; an error in it is shown between the two texts and ends the
// body there. Answers whether the body ran to its end.
template <typename Body>
bool guardedWithText(ErrorBox& box, const std::string& before, const std::string& after,
                     Body&& body)
{
    std::string description;
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        description = error.what();
    }
    box.showError(before + description + after);
    return false;
}

template <typename Body>
bool guarded(ErrorBox& box, const std::string& procedure, Body&& body)
{
    return guardedWithText(box, "Error  in  " + procedure + " (  ", "  )",
                           std::forward<Body>(body));
}

} // namespace quillet
