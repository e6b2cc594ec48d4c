#pragma once

#include <string>

namespace quillet::odds
{

__extension__ using Int128 = __int128;

// An exact number in lowest terms, the denominator positive.
class Fraction
{
public:
    constexpr Fraction() = default;
    Fraction(Int128 numerator, Int128 denominator);

    [[nodiscard]] Int128 numerator() const { return m_numerator; }
    [[nodiscard]] Int128 denominator() const { return m_denominator; }

    [[nodiscard]] double value() const;
    [[nodiscard]] std::string text() const; // "3/4", or "3" when it is whole

    // Rounded to this number of decimals, halves away from zero.
    [[nodiscard]] std::string decimals(int places) const;

    // Products of numerators and denominators must fit in 128 bits.
    friend Fraction operator+(const Fraction& a, const Fraction& b);
    friend Fraction operator-(const Fraction& a, const Fraction& b);
    friend Fraction operator*(const Fraction& a, Int128 factor);
    friend Fraction operator/(const Fraction& a, Int128 divisor);
    friend bool operator<(const Fraction& a, const Fraction& b);
    friend bool operator==(const Fraction&, const Fraction&) = default;

private:
    Int128 m_numerator = 0;
    Int128 m_denominator = 1;
};

[[nodiscard]] std::string textOf(Int128 number);

} // namespace quillet::odds
