#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

namespace quillet
{

// Thrown inside a procedure that promises an error box; what() is the description in the box.
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

// Shows a message to the player, with only an OK button and the application's title.
class ErrorBox
{
public:
    virtual ~ErrorBox() = default;
    virtual void showError(const std::string& text) = 0;
};

// Runs the body. If it throws, shows the error between the two texts. Returns whether the body
// completed.
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

// The same with the text of most procedures.
template <typename Body>
bool guarded(ErrorBox& box, const std::string& procedure, Body&& body)
{
    return guardedWithText(box, "Error  in  " + procedure + " (  ", "  )",
                           std::forward<Body>(body));
}

} // namespace quillet
