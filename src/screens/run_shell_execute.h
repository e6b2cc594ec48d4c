#pragma once

#include "platform/browser_opener.h"

#include <cstdint>
#include <string>

namespace quillet
{

// Asks the desktop to open an address and returns at once. A failure is not reported.
void RunShellExecute(const PageOpener& openPage, const std::string& sTopic,
                     const std::string& sFile, const std::string& sParams,
                     const std::string& sDirectory, std::int32_t nShowCmd);

// How the program's links call it.
void openWebPage(const PageOpener& openPage, const std::string& address);

} // namespace quillet
