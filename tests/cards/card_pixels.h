#pragma once

#include "cards/card_art.h"

#include <QImage>

#include <cmath>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace quillet::test
{

// A card at a scale factor, rounded as the table rounds it.
inline QImage cardAt(int cardNumber, double factor)
{
    return renderCard(cardNumber,
                      QSize(static_cast<int>(std::floor(cardArtWidth * factor + 0.5)),
                            static_cast<int>(std::floor(cardArtHeight * factor + 0.5))));
}

inline std::vector<int> cardNumbers(int first, int last)
{
    std::vector<int> numbers(static_cast<std::size_t>(last - first + 1));
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

// How many pixels differ by more than so many of 255 steps when both cards are looked at in grey.
inline int greyDifference(const QImage& first, const QImage& second, int steps)
{
    int different = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            different += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y))) > steps;
    return different;
}

} // namespace quillet::test
