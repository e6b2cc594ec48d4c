#include "cards/court.h"

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

constexpr double axis = 50;

constexpr std::array<std::string_view, 4> emblems = {
    // A sceptre with an orb and a cross.
    R"(gk.7 R66 20 2.2 50; gk.8 O67 20 5.2;
       bk.6 M61.9 19 C65 21 69 21 72.1 19 L72.1 21.4 C69 23.4 65 23.4 61.9 21.4 Z;
       gk.6 M66 15 L66 12.8 L64 12.8 L64 11 L66 11 L66 9.6 L68 9.6 L68 11 L70 11 L70 12.8 L68 12.8
           L68 15 Z;
       gk.6 R64 28 6 2.4;)",
    // A battle axe.
    R"(gk.7 R66 11 2.2 60; wk.8 M66 17.4 C64.4 16.4 63.2 15 62.6 13 C60.4 18 60.4 26 62.6 31
           C63.2 29 64.4 27.6 66 26.6 Z;
       wk.8 M68.2 18 L73 15.6 L73 26.4 L68.2 24 Z; rk.6 R65 17.6 4.2 6.8;)",
    // A sword, point up.
    R"(wk.8 M67 9.5 L69.4 14 L69.4 41 L64.6 41 L64.6 14 Z; -k.6 M67 14 L67 40;
       gk.7 M59.6 40 L74 40 L74 42.8 L59.6 42.8 Z; gk.6 O60 41.4 1.7; gk.6 R65.4 42.6 3.2 4;)",
    // A spear.
    R"(gk.7 R66 26 2.2 46;
       wk.8 M67 9.6 C70.6 15 71.8 20 70.6 24 L67 28 L63.4 24 C62.2 20 63.4 15 67 9.6 Z;
       -k.6 M67 12 L67 27; bk.6 M63 29 L71 29 L69.6 32.4 L71 35.6 L63 35.6 L64.4 32.4 Z;)",
};

constexpr std::array<std::string_view, 4> crowns = {
    // Trefoils on a red cap.
    R"(|Ck.8 M50 15 C45 15 42.4 18 42.6 23 L50 23;
       |gk.8 M50 18.4 L47.6 20.6 L45.4 20.2 L42 16.4 L42.6 25.6 L50 25.6;
       :gk.7 O39.6 15.2 1.7 O42.6 15.2 1.7 O41 12.8 1.7; gk.7 O48.2 14.4 2 O51.8 14.4 2 O50 11.6 2;
       |gk.7 M50 14 L48.8 18.8 L50 19.6; :r- O46 23.6 1.1; b- O50 23.6 1.2;)",
    // Tall points with lozenges.
    R"(|gk.8 M50 11 L47.4 18.4 L43.8 12.6 L42.8 18.4 L38 15 L41.4 25.6 L50 25.6;
       :rk.5 M38 12.2 L39.4 14.6 L38 17 L36.6 14.6 Z;
       :rk.5 M43.8 9.6 L45.2 12 L43.8 14.4 L42.4 12 Z; -k.6 M41 21.6 L59 21.6;
       w- M50 22.2 L51.8 23.6 L50 25 L48.2 23.6 Z; :b- O45.4 23.6 1.1;)",
    // Closed arches over a red cap.
    R"(|Ck.8 M50 13 C44 11.6 38.6 14 41.6 22.4 L50 22.4; |-k2.4 M50 13.4 C46 15 45.4 18 46.4 22.4;
       |-g1.2 M50 13.4 C46 15 45.4 18 46.4 22.4; gk.6 O50 11.4 1.9;
       |gk.8 M50 21.6 L40.6 20.6 L41.2 25.8 L50 25.8; :w- O43.6 23.4 .9 O46.8 23.6 .9;
       w- O50 23.7 .9;)",
    // Five spearheads.
    R"(|gk.8 M50 19 L48 20.4 L45.6 19.6 L44.4 20.4 L41.6 18.6 L42.2 25.6 L50 25.6;
       gk.7 M50 9.8 C51.6 12.6 53.4 14 53.4 16 C53.4 18 51.6 18.4 50.8 17.6 L51.4 20 L48.6 20
           L49.2 17.6 C48.4 18.4 46.6 18 46.6 16 C46.6 14 48.4 12.6 50 9.8 Z;
       :gk.7 M41 11.4 C42.2 14 43.8 15.2 43.4 17 C43 18.4 42 18.4 41.6 17.8 L42.6 20 L40.4 20
           L40.6 18 C39.8 18.6 38.6 18.2 38.6 16.8 C38.6 15 40.4 14 41 11.4 Z;
       -k.6 M42 21.8 L58 21.8; :b- O46 23.7 1; r- O50 23.7 1.1;)",
};

constexpr std::array<std::string_view, 4> beards = {
    // Forked.
    R"(|Hk.8 M50 45 C49 48.4 46.6 51.4 43.6 52 C42.4 46 42 39 43.4 32.6
           C44.4 35.6 46.6 36.6 50 36.6; :-k.5 M46 40 C45.4 44 45.2 47 45 49;)",
    // Short and pointed.
    R"(|Hk.8 M50 49 C46.4 46 43.6 40 43.4 32.6 C45 35.6 47.4 36.4 50 36.4;
       :-k.5 M47.4 40.4 C47.8 43 48.4 45 49.2 46.6;)",
    // Round and curled.
    R"(|Hk.8 M50 49 C48.6 50.4 46.4 50 45.8 48.4 C43.8 48.6 42.4 46.8 42.8 45
           C41 44 41 41.6 42.2 40.4 C41.2 38 42 34.6 43.4 32.6 C44.6 35.8 46.8 36.6 50 36.6;
       :-k.5 M45.8 48.4 C46.6 47 47.6 46.8 48.6 47.2; :-k.5 M42.8 45 C44 44 45.2 44 46 44.8;
       :-k.5 M42.2 40.4 C43.4 40 44.6 40.4 45 41.4;)",
    // Long and straight.
    R"(|Hk.8 M50 54 L45.4 51.4 C43 46 42.4 39 43.4 32.6 C44.6 35.6 47 36.6 50 36.6;
       :-k.5 M46 40 C46 44 46.8 47.6 47.6 50; -k.5 M50 41.6 L50 52;)",
};

constexpr std::string_view mantle =
    "M20 80 L20 50 C25 45.6 34 43.6 42 42.6 L58 42.6 C66 43.6 72 46 76 50 L76 80 Z";

constexpr std::string_view robe = R"(
    |Lk.8 M50 46 L45.4 44 L42.6 80 L50 80; |gk.7 M50 46 L48 45.4 L46.6 80 L50 80;
    k- O50 58 1 O50 63 1 O50 68 1;
    |wk.9 M50 56.6 C43 56 37.4 52 34 45.6 C36.4 44 39.4 43.2 42.6 42.4 C44 46.6 46.6 49 50 49.4;
    :k- M38 45.4 L39 45.2 L39.4 47.8 Z; :k- M41.6 49 L42.6 48.6 L43 51.2 Z;
    :k- M46 51.8 L47 52 L46.8 54.6 Z; -k.8 M24.6 62 C25.4 57 27.6 53 31 50;
)";

constexpr std::string_view head = R"(
    :Hk.8 M44 25 C40.6 26.6 38.6 29 39.6 31.6 C37.4 33 37.2 35.6 39 37 C37.4 39 38 42 40.6 42.8
        C42 43.6 44 43 45 42 L46 26 Z;
    :-k.5 M39.6 31.6 C40.8 31 42 31.4 42.4 32.4; :-k.5 M39 37 C40.2 36.2 41.6 36.4 42.2 37.4;
    |sk.8 M50 24.6 L43.3 24.6 L43.3 33 C43.3 38 46 42 50 42;
)";

constexpr std::string_view features = R"(
    :-k.9 M45 29 Q46.8 27.8 48.6 28.8; :w- M45 30.8 Q46.8 29.4 48.6 30.8 Q46.8 32 45 30.8 Z;
    :-k.5 M45 30.8 Q46.8 29.4 48.6 30.8; :k- O47 30.8 .85; -k.7 M49.4 30 L48.6 34 Q49.8 35 51 34.4;
)";

constexpr std::string_view moustache = R"(
    r- M48.4 38.2 Q50 39.8 51.6 38.2 Z;
    :Hk.6 M50 35.8 C48.4 35.2 46.4 36.2 44.4 38.8 C46.8 39.4 49 38.8 50 37.4 Z;
)";

} // namespace

void paintKing(QPainter& painter, int suit, const Palette& palette)
{
    const auto index = static_cast<std::size_t>(suit);
    paintCloth(painter, mantle, suit, palette);
    paintPicture(painter, robe, palette, axis);
    paintPicture(painter, head, palette, axis);
    paintPicture(painter, beards[index], palette, axis);
    paintPicture(painter, features, palette, axis);
    paintPicture(painter, moustache, palette, axis);
    paintPicture(painter, crowns[index], palette, axis);
    paintPicture(painter, emblems[index], palette, axis);
    paintHand(painter, palette);
}

} // namespace quillet
