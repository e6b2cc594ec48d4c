#include "screens/run_shell_execute.h"

namespace quillet
{

void RunShellExecute(const PageOpener& openPage, const std::string& sTopic,
                     const std::string& sFile, const std::string& /*sParams*/,
                     const std::string& /*sDirectory*/, std::int32_t /*nShowCmd*/)
{
    if (sTopic == "open")
        openPage(sFile);
}

void openWebPage(const PageOpener& openPage, const std::string& address)
{
    constexpr std::int32_t showNormal = 1;
    RunShellExecute(openPage, "open", address, "", "", showNormal);
}

} // namespace quillet
