#pragma once

#include <string>

namespace quillet
{

inline constexpr const char* siteHost = "www.quillet.example";
inline constexpr const char* downloadHost = "downloads.quillet.example";

[[nodiscard]] inline std::string homePage()
{
    return std::string("http://") + siteHost;
}

[[nodiscard]] inline std::string onlinePokerPage()
{
    return homePage() + "/texas-holdem-poker-online.html";
}

[[nodiscard]] inline std::string programPage()
{
    return std::string("http://") + downloadHost + "/free/videopoker";
}

} // namespace quillet
