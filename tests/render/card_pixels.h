#pragma once

#include "render/card_art/card_art.h"

#include <QImage>

#include <cmath>
#include <cstdlib>
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

inline std::vector<int> allFaces()
{
    std::vector<int> numbers;
    for (int number = 0; number < 52; ++number)
        numbers.push_back(number);
    return numbers;
}

inline std::vector<int> allPicturedBacks()
{
    std::vector<int> numbers;
    for (int number = 54; number <= 65; ++number)
        numbers.push_back(number);
    return numbers;
}

// How many pixels differ by more than a quarter of the way from black to white, when two cards
// are looked at in grey and 48 pixels high.
inline int greyDifference(int first, int second)
{
    const auto grey = [](int number) {
        return renderCard(number, QSize(35, 48)).convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage a = grey(first);
    const QImage b = grey(second);
    int different = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            different += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64 ? 1 : 0;
    return different;
}

} // namespace quillet::test
