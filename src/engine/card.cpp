#include "engine/card.h"

#include <cassert>

namespace quillet
{

Card makeCard(std::int16_t cardId)
{
    assert(cardId >= 0 && cardId < 52);
    return {cardId, static_cast<std::int16_t>(cardId / 4 + 1),
            static_cast<std::int16_t>(cardId % 4)};
}

} // namespace quillet
