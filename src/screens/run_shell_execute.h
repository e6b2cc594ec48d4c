#pragma once

#include "platform/shell_open.h"

#include <cstdint>
#include <string>

namespace quillet
{

// Hands an address to the desktop and returns at once; nobody learns whether it could be opened.
void RunShellExecute(ShellOpen& shell, const std::string& sTopic, const std::string& sFile,
                     const std::string& sParams, const std::string& sDirectory,
                     std::int32_t nShowCmd);

// The one way in which the program's links call it.
void openWebPage(ShellOpen& shell, const std::string& address);

} // namespace quillet
