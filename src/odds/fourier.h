#pragma once

#include <complex>
#include <cstddef>
#include <numbers>
#include <vector>

namespace quillet::odds
{

// The discrete Fourier transform of a size that is a power of 2, in place. A spectrum is in
// bit-reversed order, so nothing has to be sorted for products and powers of spectra.
template <typename Real>
class Fourier
{
public:
    using Complex = std::complex<Real>;

    explicit Fourier(std::size_t size) : m_roots(size / 2)
    {
        for (std::size_t i = 0; i < m_roots.size(); ++i)
            m_roots[i] = std::polar(Real{1}, 2 * std::numbers::pi_v<Real> * static_cast<Real>(i) /
                                                 static_cast<Real>(size));
    }

    void toSpectrum(std::vector<Complex>& values) const
    {
        for (std::size_t half = values.size() / 2; half > 0; half /= 2)
            forEachPair(values, half, [](Complex& a, Complex& b, const Complex& root) {
                const Complex difference = a - b;
                a += b;
                b = product(difference, root);
            });
    }

    // Without the division by the size.
    void fromSpectrum(std::vector<Complex>& values) const
    {
        for (std::size_t half = 1; half < values.size(); half *= 2)
            forEachPair(values, half, [](Complex& a, Complex& b, const Complex& root) {
                const Complex turned = product(b, std::conj(root));
                b = a - turned;
                a += turned;
            });
    }

    // Without the library's look for infinite numbers.
    static Complex product(const Complex& a, const Complex& b)
    {
        return {a.real() * b.real() - a.imag() * b.imag(),
                a.real() * b.imag() + a.imag() * b.real()};
    }

private:
    template <typename Turn>
    void forEachPair(std::vector<Complex>& values, std::size_t half, const Turn& turn) const
    {
        const std::size_t stride = m_roots.size() / half;
        for (std::size_t block = 0; block < values.size(); block += 2 * half)
            for (std::size_t i = 0; i < half; ++i)
                turn(values[block + i], values[block + half + i], m_roots[i * stride]);
    }

    std::vector<Complex> m_roots; // half of the roots of one
};

} // namespace quillet::odds
