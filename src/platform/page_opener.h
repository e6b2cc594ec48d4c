#pragma once

#include <string>

namespace quillet
{

// Hands a file or address to the desktop. Returns at once and reports nothing.
class PageOpener
{
public:
    virtual ~PageOpener() = default;
    virtual void open(const std::string& verb, const std::string& file,
                      const std::string& parameters, const std::string& directory,
                      int showCommand) = 0;
};

} // namespace quillet
