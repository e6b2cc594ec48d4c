#include "shapes/letters.h"

#include <cmath>
#include <sstream>

namespace quillet
{

const std::map<char, const char*>& letterStrokes()
{
    static const std::map<char, const char*> table{
        {'A', "D .39 0 0 1 D .39 0 .78 1 M .16 .68 L .62 .68"},
        {'B', "M 0 0 L 0 1 M 0 0 L .24 0 A .24 .235 .22 .235 90 -180 L 0 .47 "
              "M 0 .47 L .27 .47 A .27 .735 .25 .265 90 -180 L 0 1"},
        {'C', "A .44 .5 .44 .5 46 268"},
        {'D', "M 0 0 L 0 1 M 0 0 L .22 0 A .22 .5 .48 .5 90 -180 L 0 1"},
        {'E', "M .48 0 L 0 0 L 0 1 L .48 1 M 0 .48 L .42 .48"},
        {'F', "M .47 0 L 0 0 L 0 1 M 0 .5 L .40 .5"},
        {'G', "A .44 .5 .44 .5 46 272 L .77 .56 L .48 .56"},
        {'H', "M 0 0 L 0 1 M .66 0 L .66 1 M 0 .48 L .66 .48"},
        {'I', "M 0 0 L 0 1"},
        {'J', "M .36 0 L .36 .70 A .14 .70 .22 .30 0 -125"},
        {'K', "M 0 0 L 0 1 D .56 0 .02 .63 D .20 .42 .62 1"},
        {'L', "M 0 0 L 0 1 L .45 1"},
        {'M', "M 0 0 L 0 1 M .80 0 L .80 1 D .01 0 .40 .76 D .79 0 .40 .76"},
        {'N', "M 0 0 L 0 1 M .68 0 L .68 1 D .01 0 .67 1"},
        {'O', "O .45 .5 .45 .5"},
        {'P', "M 0 0 L 0 1 M 0 0 L .25 0 A .25 .275 .26 .275 90 -180 L 0 .55"},
        {'Q', "O .45 .5 .45 .5 D .50 .66 .86 1.07"},
        {'R', "M 0 0 L 0 1 M 0 0 L .25 0 A .25 .265 .26 .265 90 -180 L 0 .53 D .24 .53 .57 1"},
        {'S', "M .48 .15 C .42 .05 .35 0 .26 0 C .11 0 .03 .10 .03 .23 C .03 .39 .15 .44 .27 .49 "
              "C .41 .55 .52 .61 .52 .76 C .52 .91 .41 1 .26 1 C .14 1 .05 .94 0 .83"},
        {'T', "M 0 0 L .64 0 M .32 0 L .32 1"},
        {'U', "M 0 0 L 0 .66 A .32 .66 .32 .34 180 180 L .64 0"},
        {'V', "D 0 0 .38 1 D .76 0 .38 1"},
        {'W', "D 0 0 .27 1 D .52 0 .27 1 D .52 0 .77 1 D 1.04 0 .77 1"},
        {'X', "D .02 0 .60 1 D .60 0 0 1"},
        {'Y', "D 0 0 .34 .56 D .68 0 .34 .56 M .34 .5 L .34 1"},
        {'Z', "M .02 0 L .56 0 M 0 1 L .58 1 D .56 0 .02 1"},
        {'0', "O .27 .5 .27 .5"},
        {'1', "M .30 0 L .30 1 M .08 .21 C .18 .18 .27 .11 .30 0"},
        {'2', "M .03 .24 C .05 .08 .15 0 .27 0 C .41 0 .50 .09 .50 .24 "
              "C .50 .41 .38 .51 .26 .64 C .14 .76 .04 .87 .01 1 L .53 1"},
        {'3', "M .03 .15 C .08 .05 .16 0 .26 0 C .40 0 .48 .09 .48 .22 C .48 .37 .37 .46 .21 .46 "
              "M .21 .46 C .41 .46 .52 .57 .52 .73 C .52 .90 .40 1 .25 1 C .12 1 .04 .94 0 .82"},
        {'4', "M .40 0 L .40 1 M 0 .70 L .56 .70 D .385 0 0 .74"},
        {'5', "M .47 0 L .10 0 L .06 .45 C .12 .39 .19 .36 .26 .36 C .42 .36 .52 .49 .52 .67 "
              "C .52 .88 .40 1 .24 1 C .12 1 .04 .95 0 .84"},
        {'6', "O .27 .685 .26 .315 M .43 .02 C .20 .14 .01 .40 .01 .685"},
        {'7', "M 0 0 L .50 0 D .49 0 .14 1"},
        {'8', "O .26 .235 .21 .235 O .26 .735 .26 .265"},
        {'9', "O .27 .315 .26 .315 M .11 .98 C .34 .86 .53 .60 .53 .315"},
        {'.', "D 0 .85 0 1"},
        {',', "D .06 .85 0 1.12"},
        {';', "D .05 .38 .05 .53 D .06 .85 0 1.12"},
        {':', "D 0 .38 0 .53 D 0 .85 0 1"},
        {'/', "D .42 0 0 1"},
        {'\'', "D .04 0 0 .27"},
    };
    return table;
}

std::vector<PenMove> penMoves(const char* code)
{
    const auto count = [](char command) -> std::size_t {
        if (command == 'C' || command == 'A')
            return 6;
        return command == 'M' || command == 'L' ? 2 : 4;
    };
    std::vector<PenMove> moves;
    std::istringstream text(code);
    for (PenMove move; text >> move.command; moves.push_back(move))
        for (std::size_t i = 0; i < count(move.command); ++i)
            text >> move.numbers[i];
    return moves;
}

LetterPoint penAt(double x, double y, double weight)
{
    return {x + weight / 2, weight / 2 + y * (1 - weight)};
}

std::array<LetterPoint, 4> slantCorners(const PenMove& slant, double weight)
{
    const auto& [x1, y1, x2, y2, unused, unusedToo] = slant.numbers;
    const double half = weight / 2 * std::hypot(x2 - x1, y2 - y1) / std::abs(y2 - y1);
    const double left1 = x1 + weight / 2 - half;
    const double left2 = x2 + weight / 2 - half;
    return {{{left1, y1}, {left1 + 2 * half, y1}, {left2 + 2 * half, y2}, {left2, y2}}};
}

} // namespace quillet
