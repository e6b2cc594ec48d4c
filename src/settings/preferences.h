#pragma once

#include <cstdint>
#include <string>

namespace quillet
{

inline constexpr std::int32_t defaultBack = 65; // the sleeve
inline constexpr const char* defaultBackground = "vpokerwood.jpg";

// The player's choices, with the values that they have until the store is read. The types follow
// the rules of the store; see preferences_store.h.
struct Preferences {
    std::int32_t prfCardOutlineColor = 0; // 0x00BBGGRR
    std::int32_t prfPKBackFace = 0;       // card-back design
    bool prfShowPokerPlay = false;        // light the best play after the deal
    bool prfPokerAutoDeal = false;
    bool isPoker = false;
    bool prfShowHide = false; // carried from load to unload, otherwise unused
    bool prfAnimation = false;
    bool prfSound = false;
    // Thousands of loop passes per frame; negative: not measured.
    std::int32_t prfAnimationDelay = 0;
    std::int32_t prfBannerDelay = 0; // the same unit
    std::string prfPKBackground;     // file name below pics/
    std::int16_t prfScrollVal = 0;   // position of the speed slider, which shows 0..1000
};

} // namespace quillet
