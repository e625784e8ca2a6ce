// Compiled, not run, by the tests: VTX_CASE 0 must compile warning-free as
// C++17; every other case must fail to compile at its static_assert.
#include "vtxgen.hpp"

#include <array>
#include <vector>

int main()
{
    std::vector<std::complex<float>> x(64), y(64);
    std::vector<double> r(64), c(66);
#if VTX_CASE == 0
    vtx::status s = vtx::dft<2>(x.data(), y.data());
    s = vtx::inverse_dft<64>(x.data(), y.data(), vtx::scale::inverse);
    s = vtx::real_forward<64, vtx::ccs>(r.data(), c.data());
    s = vtx::real_inverse<2, vtx::perm>(c.data(), r.data());
    s = vtx::hartley<64>(r.data(), r.data());
    s = vtx::walsh_hadamard<13>(r.data(), r.data());
    s = vtx::walsh_hadamard<1>(r.data(), r.data());
    s = vtx::dft(x, y);
    std::array<std::complex<float>, 8> a{}, b{};
    s = vtx::dft(a, b);
    double ra[8] = {}, rc[10];
    s = vtx::real_forward<vtx::ccs>(ra, rc);
    return static_cast<int>(s);
#elif VTX_CASE == 1
    return static_cast<int>(vtx::dft<1>(x.data(), y.data()));
#elif VTX_CASE == 2
    return static_cast<int>(vtx::inverse_dft<65>(x.data(), y.data()));
#elif VTX_CASE == 3
    return static_cast<int>(vtx::real_forward<65, vtx::pack>(r.data(), c.data()));
#elif VTX_CASE == 4
    return static_cast<int>(vtx::real_inverse<0, vtx::ccs>(c.data(), r.data()));
#elif VTX_CASE == 5
    return static_cast<int>(vtx::hartley<-8>(r.data(), r.data()));
#elif VTX_CASE == 6
    return static_cast<int>(vtx::walsh_hadamard<14>(r.data(), r.data()));
#elif VTX_CASE == 7
    return static_cast<int>(vtx::walsh_hadamard<0>(r.data(), r.data()));
#elif VTX_CASE == 8
    return static_cast<int>(vtx::real_forward<8, int>(r.data(), c.data()));
#elif VTX_CASE == 9
    vtx::dft<8>(x.data(), y.data());  // a status may not be dropped
    return 0;
#elif VTX_CASE == 10
    std::array<std::complex<double>, 65> a{}, b{};
    return static_cast<int>(vtx::dft(a, b));
#elif VTX_CASE == 11
    std::array<float, 16> a{}, b{};  // CCS of 16 needs 18
    return static_cast<int>(vtx::real_forward<vtx::ccs>(a, b));
#endif
}
