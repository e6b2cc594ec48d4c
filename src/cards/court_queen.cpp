#include "cards/card_numbers.h"
#include "cards/court.h"

#include <array>
#include <cstddef>

namespace quillet
{
namespace
{

constexpr double axis = 49;

constexpr std::array<std::string_view, 4> emblems = {
    // A sprig of clover.
    R"(-k2 M67 62 C66 50 68 40 67 32; -b1 M67 62 C66 50 68 40 67 32;
       bk.6 M66.8 43 C62 43 60 40 60 37 C64 36.6 66.6 39 66.8 43 Z; gk.7 O66.4 24.4 3.7;
       gk.7 O62.6 30.4 3.7; gk.7 O69.9 30.4 3.7; r- O66.4 28.4 1.8;)",
    // An open fan.
    R"(gk.8 M66.6 47 L58.6 28.4 C60.4 24.4 63.4 22.4 66.6 22.4 C69.8 22.4 71.8 24.4 73.4 28.4 Z;
       rk.6 M66.6 47 L58.6 28.4 C59.4 26.6 60.6 25.2 61.8 24.2 Z;
       rk.6 M66.6 47 L65 22.5 C66 22.3 67.4 22.3 68.4 22.6 Z;
       rk.6 M66.6 47 L71.4 24.8 C72.2 25.8 72.8 27 73.4 28.4 Z;
       -k.8 M61.6 35.4 C64.6 32.4 68.6 32.4 71 35.4; gk.6 O66.6 46 1.4;)",
    // A rose.
    R"(-k2 M67 62 C66 52 68 44 67 36; -b1 M67 62 C66 52 68 44 67 36;
       bk.6 M67 44 C62 44.6 59.6 42 59.4 38.6 C63.6 38 66.4 40 67 44 Z;
       rk.8 M61 29 C59.6 25 62 21.6 65 22 C67 19.6 71 20.6 71.6 23.4 C74 24.6 74 28.6 72 30
           C72 33.6 69 35.4 66.6 34.4 C63.6 35.6 60.6 33 61 29 Z;
       -w.8 M64 28.6 C63.4 26 66 24.4 68 25.4 C70.6 26 70.6 29.6 68.4 30.4
           C66.6 31 65.6 29.4 66.6 28.2; -w.7 M63 31 C64 32.6 66.6 33 68.6 32.4;)",
    // A lily.
    R"(-k2 M67 62 C66 52 68 44 67 34; -b1 M67 62 C66 52 68 44 67 34;
       bk.6 M67 45 C62 44 60.4 41 60.8 37.6 C64.6 38 66.8 41 67 45 Z;
       wk.8 M67 34 C62.4 33 60.4 28 61.4 23 C64 24 66 26 67 28.6 C68 26 70 24 72.6 23
           C73.6 28 71.6 33 67 34 Z;
       wk.8 M67 34 C64.4 29 64.6 23.6 67 19 C69.4 23.6 69.6 29 67 34 Z; -g1 M67 33 L67 26;)",
};

constexpr std::array<std::string_view, 4> coronets = {
    R"(|gk.8 M49 12.6 L47.2 17.2 L44.4 13.6 L43.4 17.4 L40.6 15.4 L41.6 21 C44 19.8 47 19.4 49 19.4;
       gk.6 O49 11.6 1.7; :gk.6 O44.2 12.8 1.4 O40.2 14.8 1.3; r- O49 17.4 1.1;)",
    R"(|gk.8 M49 11.4 L46.6 16.4 L43.8 13.6 L43.4 16.8 L40.8 15.4 L41.6 21 C44 19.8 47 19.4 49 19.4;
       :rk.4 M40.6 13 L41.8 15 L40.6 17 L39.4 15 Z;
       rk.4 M49 14.4 L50.2 16.4 L49 18.4 L47.8 16.4 Z;)",
    R"(|rk.8 M49 12.4 C45 12 42.4 14 42 18.4 L49 18;
       |gk.8 M49 17.4 C46 17.4 43.6 17.6 41.2 18.6 L41.6 21.4 C44 20.2 47 19.8 49 19.8;
       :wk.5 O42.2 16.4 1.2 O44.4 13.6 1.2; wk.5 O47 12.2 1.2 O49 11 1.5 O51 12.2 1.2;)",
    R"(|gk.8 M49 10.6 C48.4 13 47.6 14.4 46.4 15.6 L43.6 11.4 L43 16.2 L39.6 13.4 L41.4 21
           C44 19.8 47 19.4 49 19.4; b- O49 16.6 1.2; :b- O44.6 17.6 .9;)",
};

constexpr std::string_view veil = R"(
    |Ck.8 M49 13.6 C42 13.6 38.6 19 38.4 26 C38.2 34 36.6 40 32 46 L49 50;
    |-k.5 M49 13.6 C43 14.6 40.6 19 40.6 26 C40.4 34 39 41 35 47;
)";

// The queen of clubs wears a wide collar instead of a veil, and her hair up, so that she differs
// from the queen of spades at a glance.
constexpr std::string_view collar = R"(
    |wk.8 M49 52 L34.4 47 C29.6 41 28.8 34 31.6 27.4 C36.6 29 40.6 33 42.6 38 L49 38;
    :-k.5 M41.6 43.4 L30.6 32; :-k.5 M41.4 45 L30.4 38.4; :-k.5 M42 41 L33.4 28.6;
)";

constexpr std::string_view hairUp = R"(
    |Hk.8 M49 13 C42.6 13.6 38.6 18 38.8 24 C38.6 28.6 40.4 32.6 43.4 34 L49 30;
    :-g.6 M40.6 20 C39.8 24 40.4 28 42.4 31;
)";

constexpr std::string_view hair = R"(
    |Hk.8 M49 16.6 C43 16.6 40.4 21 40.8 26.6 C41 31 39 33 39.4 36.4 C38 39 39 42 40.6 43.6
        C40 46.6 42 49 44.6 49.6 L49 44;
    :-k.5 M41.8 27 C42 31 40.8 34 41.2 37 C40.6 40 41.6 42 42.4 43.6 C42.2 45.6 43 47 44.4 48;
    :-k.5 M43 33 C43 37 42.6 40 43.8 43;
)";

constexpr std::string_view gown =
    "M49 50 L44.6 46.4 C38 47 33 50.4 31 55 L24 80 L76 80 L72 60 L67 60 C66 54 61 48 53.4 46.4 Z";

constexpr std::string_view bodice = R"(
    sk.8 M46.6 34 L46.6 41.6 C45.8 43.6 43.8 45 41.6 46 L49 56 L56.4 46 C54.2 45 52.2 43.6 51.4 41.6
        L51.4 34 Z;
    |wk.8 M49 59 L39.4 46.8 C40.6 45.4 42 44.8 43.4 44.6 L49 54;
    |Lk.8 M49 59 L45.6 55 L43.4 80 L49 80; :-g1.1 M47 58 L46 76;
    gk.6 M49 60 L51 62.6 L49 65.2 L47 62.6 Z; -g1.1 M45.4 43.4 C46.6 47.4 51.4 47.4 52.6 43.4;
    rk.5 O49 47.4 1.4;
)";

constexpr std::string_view face = R"(
    |sk.8 M49 18 C44.8 18 43 21.6 43 26.4 C43 31.6 45.6 36.4 49 36.4;
    |Hk.7 M49 17.6 C44 17.6 42 21 42.4 27 C44.6 25.6 47.4 23.4 49 20.4;
    :-k.7 M44.4 25.6 Q46 24.6 47.6 25.4; :w- M44.4 27.6 Q46 26 47.7 27.6 Q46 28.6 44.4 27.6 Z;
    :-k.7 M44.2 27.6 Q46 26 47.7 27.5; :k- O46.1 27.4 .85; -k.6 M48.5 27 L48 31 Q49 31.8 50 31.2;
    r- M47 33.4 Q48.2 32.6 49 33 Q49.8 32.6 51 33.4 Q49 35.4 47 33.4 Z;
)";

} // namespace

void paintQueen(QPainter& painter, int suit, const Palette& palette)
{
    const auto index = static_cast<std::size_t>(suit);
    paintPicture(painter, suit == clubs ? collar : veil, palette, axis);
    paintPicture(painter, suit == clubs ? hairUp : hair, palette, axis);
    paintCloth(painter, gown, suit, palette);
    paintPicture(painter, bodice, palette, axis);
    paintPicture(painter, face, palette, axis);
    paintPicture(painter, coronets[index], palette, axis);
    paintPicture(painter, emblems[index], palette, axis);
    paintHand(painter, palette);
}

} // namespace quillet
