#pragma once

#include <stdexcept>

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

} // namespace quillet
