#include "odds/fraction.h"

#include <cassert>
#include <utility>

namespace quillet::odds
{

namespace
{

Int128 magnitude(Int128 number)
{
    return number < 0 ? -number : number;
}

Int128 commonDivisor(Int128 a, Int128 b)
{
    while (b != 0)
        a = std::exchange(b, a % b);
    return a;
}

} // namespace

Fraction::Fraction(Int128 numerator, Int128 denominator)
{
    assert(denominator > 0);
    const Int128 divisor = commonDivisor(magnitude(numerator), denominator);
    m_numerator = numerator / divisor;
    m_denominator = denominator / divisor;
}

double Fraction::value() const
{
    return static_cast<double>(m_numerator) / static_cast<double>(m_denominator);
}

std::string Fraction::text() const
{
    return m_denominator == 1 ? textOf(m_numerator)
                              : textOf(m_numerator) + "/" + textOf(m_denominator);
}

std::string Fraction::decimals(int places) const
{
    Int128 scale = 1;
    for (int i = 0; i < places; ++i)
        scale *= 10;
    const Int128 doubled = magnitude(m_numerator) * scale * 2 + m_denominator;
    const Int128 rounded = doubled / (m_denominator * 2);
    std::string digits = textOf(rounded % scale);
    while (digits.size() < static_cast<std::size_t>(places))
        digits.insert(digits.begin(), '0');
    const std::string sign = m_numerator < 0 && rounded != 0 ? "-" : "";
    return sign + textOf(rounded / scale) + (places > 0 ? "." + digits : "");
}

Fraction operator+(const Fraction& a, const Fraction& b)
{
    const Int128 shared = commonDivisor(a.m_denominator, b.m_denominator);
    return {a.m_numerator * (b.m_denominator / shared) + b.m_numerator * (a.m_denominator / shared),
            a.m_denominator / shared * b.m_denominator};
}

Fraction operator-(const Fraction& a, const Fraction& b)
{
    return a + b * -1;
}

Fraction operator*(const Fraction& a, Int128 factor)
{
    return {a.m_numerator * factor, a.m_denominator};
}

Fraction operator/(const Fraction& a, Int128 divisor)
{
    return {a.m_numerator, a.m_denominator * divisor};
}

bool operator<(const Fraction& a, const Fraction& b)
{
    return a.m_numerator * b.m_denominator < b.m_numerator * a.m_denominator;
}

std::string textOf(Int128 number)
{
    std::string digits;
    for (Int128 left = magnitude(number); left > 0 || digits.empty(); left /= 10)
        digits += static_cast<char>('0' + static_cast<int>(left % 10));
    if (number < 0)
        digits += '-';
    return {digits.rbegin(), digits.rend()};
}

} // namespace quillet::odds
