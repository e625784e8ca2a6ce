// vtxgen info: version record, build, families and sizes.
#include "cli.hpp"

#include <cfloat>
#include <cstdio>

namespace vtxcli {

int info(const std::vector<std::string>& args)
{
    if (!args.empty())
        usage("info takes no arguments, not \"" + args[0] + "\"");
    const VersionRecord* v = vtxgenGetLibVersion();
    std::printf("library   %s %s (version %d.%d, build %d.%d, cpu tag %.4s, built %s)\n", v->libraryName,
                v->versionText, v->versionMajor, v->versionMinor, v->buildMajor, v->buildNumber, v->cpuTag,
                v->buildDate);
    std::printf("compiler  %s\n", VTX_CLI_COMPILER);
    std::printf("flags     %s\n", VTX_CLI_FLAGS);
    std::printf("abi       %s, %zu-bit pointers, long double of %d bits mantissa, SSE2 arithmetic%s\n",
#if defined(__x86_64__)
                "x86-64",
#elif defined(__i386__)
                "i386",
#else
                "other",
#endif
                sizeof(void*) * 8, LDBL_MANT_DIG,
#if defined(__SSE2_MATH__)
                ""
#else
                " (not for this program's own arithmetic)"
#endif
    );
    std::printf("\n%-26s %8s  %s\n", "family", "kernels", "sizes");
    int kernels = 0;
    for (const Family& f : families(1 << 30)) {
        const bool planned = f.sizes.front().fn->form == vtxtest::Form::Dct4Run;
        std::printf("%-26s %8s  %s\n", f.name.c_str(), planned ? "planned" : std::to_string(f.sizes.size()).c_str(),
                    size_list(f).c_str());
        kernels += planned ? 0 : int(f.sizes.size());
    }
    std::printf("\n%d fixed-size kernels; each family's name is its general entry (vtxgen.h)\n", kernels);
    return 0;
}

}  // namespace vtxcli
