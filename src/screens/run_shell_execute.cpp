#include "screens/run_shell_execute.h"

namespace quillet
{

void RunShellExecute(ShellOpen& shell, const std::string& sTopic, const std::string& sFile,
                     const std::string& sParams, const std::string& sDirectory,
                     std::int32_t nShowCmd)
{
    shell.open(sTopic, sFile, sParams, sDirectory, nShowCmd);
}

void openWebPage(ShellOpen& shell, const std::string& address)
{
    constexpr std::int32_t showNormal = 1;
    RunShellExecute(shell, "open", address, "", "", showNormal);
}

} // namespace quillet
