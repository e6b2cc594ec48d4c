#pragma once

#include "platform/page_opener.h"

#include <cstdint>
#include <string>

namespace quillet
{

// Hands an address to the desktop and returns at once; nobody learns whether it could be opened.
void RunShellExecute(PageOpener& pages, const std::string& sTopic, const std::string& sFile,
                     const std::string& sParams, const std::string& sDirectory,
                     std::int32_t nShowCmd);

// The one way in which the program's links call it.
void openWebPage(PageOpener& pages, const std::string& address);

} // namespace quillet
