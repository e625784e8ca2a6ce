#include "isa.hpp"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace vtx {
namespace {

Isa query_processor() noexcept
{
#if defined(__x86_64__)
    // The variants exist in the 64-bit build only; libgcc's answers include
    // the operating system's consent (XCR0) to the wider registers.
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl"))
        return Isa::avx512;
    if (__builtin_cpu_supports("avx2"))
        return Isa::avx2;
#endif
    return Isa::sse2;
}

Isa narrow_by_environment(Isa supported) noexcept
{
    const char* asked = std::getenv("VTX_ISA");
    if (asked == nullptr)
        return supported;
    for (Isa isa : {Isa::sse2, Isa::avx2, Isa::avx512}) {
        if (std::strcmp(asked, isa_name(isa)) == 0)
            return isa < supported ? isa : supported;
    }
    return supported;
}

}  // namespace

Isa supported_isa() noexcept
{
    static const Isa isa = query_processor();
    return isa;
}

Isa active_isa() noexcept
{
    static const Isa isa = narrow_by_environment(supported_isa());
    return isa;
}

const char* isa_name(Isa isa) noexcept
{
    switch (isa) {
    case Isa::avx2:
        return "avx2";
    case Isa::avx512:
        return "avx512";
    case Isa::sse2:
        break;
    }
    return "sse2";
}

}  // namespace vtx
