#pragma once

#include <string>

namespace quillet
{

// Opens web pages.
class PageOpener
{
public:
    virtual ~PageOpener() = default;
    // Returns at once and reports nothing.
    virtual void open(const std::string& address) = 0;
};

} // namespace quillet
