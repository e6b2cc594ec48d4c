#include "screens/run_shell_execute.h"

namespace quillet
{

void RunShellExecute(PageOpener& pages, const std::string& sTopic, const std::string& sFile,
                     const std::string& /*sParams*/, const std::string& /*sDirectory*/,
                     std::int32_t /*nShowCmd*/)
{
    if (sTopic == "open")
        pages.open(sFile);
}

void openWebPage(PageOpener& pages, const std::string& address)
{
    constexpr std::int32_t showNormal = 1;
    RunShellExecute(pages, "open", address, "", "", showNormal);
}

} // namespace quillet
