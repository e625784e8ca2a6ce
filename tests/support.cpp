#include "support.hpp"

#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <stdexcept>

namespace vtxtest {

namespace {

// Every kernel of a model list, looked up by name in the library that holds
// the version query.
template <class Kernel, class Models>
std::vector<Kernel> resolve(const Models& models)
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&vtxgenGetLibVersion), &info))
        throw std::runtime_error("cannot locate the library");
    void* lib = dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD);
    if (!lib)
        throw std::runtime_error(std::string("cannot open ") + info.dli_fname);
    std::vector<Kernel> out;
    for (const auto& k : models) {
        void* sym = dlsym(lib, k.name().c_str());
        if (!sym)
            throw std::runtime_error("library lacks " + k.name());
        Kernel ref{k};
        ref.fn = reinterpret_cast<typename Kernel::Fn>(sym);
        out.push_back(ref);
    }
    return out;
}

}  // namespace

const std::vector<ComplexKernel>& complex_kernels()
{
    static const std::vector<ComplexKernel> all = resolve<ComplexKernel>(vtxgen::complex_kernels());
    return all;
}

const std::vector<RealKernel>& real_kernels(vtxgen::Direction d)
{
    static const std::vector<RealKernel> forward = resolve<RealKernel>(vtxgen::real_kernels(vtxgen::Direction::Forward));
    static const std::vector<RealKernel> inverse = resolve<RealKernel>(vtxgen::real_kernels(vtxgen::Direction::Inverse));
    return d == vtxgen::Direction::Forward ? forward : inverse;
}

const std::vector<RealKernel>& hartley_kernels()
{
    static const std::vector<RealKernel> all = resolve<RealKernel>(vtxgen::hartley_kernels());
    return all;
}

const std::vector<WhtKernel>& wht_kernels()
{
    static const std::vector<WhtKernel> all = resolve<WhtKernel>(vtxgen::wht_kernels());
    return all;
}

std::vector<double> fixed_input(int components, std::uint32_t seed, bool single)
{
    std::vector<double> v(static_cast<std::size_t>(components));
    std::uint64_t state = 0x9E3779B97F4A7C15ull ^ seed;
    for (double& x : v) {
        state = state * 6364136223846793005ull + 1442695040888963407ull;
        const int bits = single ? 24 : 53;
        const std::int64_t m = static_cast<std::int64_t>(state >> (64 - bits)) - (std::int64_t(1) << (bits - 1));
        x = static_cast<double>(m) / static_cast<double>(std::int64_t(1) << (bits - 1));
    }
    return v;
}

std::vector<double> run_kernel(const ComplexKernel& k, const std::vector<double>& x, int flag)
{
    const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
    Buffer src(bytes), dst(bytes);
    src.put(0, x, k.single());
    const vtxStatus status = k(src.at(0), dst.at(0), flag);
    if (status != vtxStatusOk)
        throw std::runtime_error(k.name() + " returned status " + std::to_string(status));
    return dst.get(0, k.components(), k.single());
}

Buffer::Buffer(std::size_t bytes, unsigned char fill)
    : bytes_(bytes), store_(bytes + 2 * kGuard + 32, fill), fill_(fill)
{
}

std::string Buffer::changed_outside(std::size_t offset, std::size_t bytes) const
{
    const std::size_t from = static_cast<std::size_t>(at(offset) - store_.data()), to = from + bytes;
    for (std::size_t i = 0; i < store_.size(); ++i) {
        if ((i >= from && i < to) || store_[i] == fill_)
            continue;
        char buf[96];
        if (i < from)
            std::snprintf(buf, sizeof buf, "byte %zu before the data start changed to 0x%02x", from - i, store_[i]);
        else
            std::snprintf(buf, sizeof buf, "byte %zu past the data end changed to 0x%02x", i - to, store_[i]);
        return buf;
    }
    return {};
}

std::string damage(const Buffer& src, const std::vector<unsigned char>& src_before, const Buffer& dst,
                   std::size_t src_offset, std::size_t dst_offset, std::size_t bytes, bool in_place, bool ok)
{
    if (in_place)
        return ok ? src.changed_outside(src_offset, bytes) : src.raw() != src_before ? "the data changed" : "";
    if (src.raw() != src_before)
        return "the source buffer changed";
    return ok ? dst.changed_outside(dst_offset, bytes) : dst.changed();
}

std::string first_difference(const ComplexKernel& k, const void* got, const void* expected)
{
    const int width = k.component_bytes();
    const auto* a = static_cast<const unsigned char*>(got);
    const auto* b = static_cast<const unsigned char*>(expected);
    for (int i = 0; i < k.components(); ++i) {
        if (std::memcmp(a + i * width, b + i * width, static_cast<std::size_t>(width)) == 0)
            continue;
        auto show = [&](const unsigned char* p) {
            char buf[64];
            if (k.single()) {
                float f;
                std::uint32_t u;
                std::memcpy(&f, p, 4);
                std::memcpy(&u, p, 4);
                std::snprintf(buf, sizeof buf, "0x%08x (%.9g)", u, f);
            } else {
                double d;
                std::uint64_t u;
                std::memcpy(&d, p, 8);
                std::memcpy(&u, p, 8);
                std::snprintf(buf, sizeof buf, "0x%016llx (%.17g)", static_cast<unsigned long long>(u), d);
            }
            return std::string(buf);
        };
        return "y[" + std::to_string(i / 2) + (i % 2 ? "].im = " : "].re = ") + show(a + i * width) +
               ", expected " + show(b + i * width);
    }
    return {};
}

unsigned char* Buffer::base()
{
    auto p = reinterpret_cast<std::uintptr_t>(store_.data()) + kGuard;
    return store_.data() + ((p + 15) / 16 * 16 - reinterpret_cast<std::uintptr_t>(store_.data()));
}

const unsigned char* Buffer::base() const { return const_cast<Buffer*>(this)->base(); }

void Buffer::put(std::size_t offset, const std::vector<double>& v, bool single)
{
    for (std::size_t i = 0; i < v.size(); ++i) {
        if (single) {
            const float f = static_cast<float>(v[i]);
            std::memcpy(at(offset + 4 * i), &f, 4);
        } else {
            std::memcpy(at(offset + 8 * i), &v[i], 8);
        }
    }
}

std::vector<double> Buffer::get(std::size_t offset, int components, bool single) const
{
    std::vector<double> v(static_cast<std::size_t>(components));
    for (std::size_t i = 0; i < v.size(); ++i) {
        if (single) {
            float f;
            std::memcpy(&f, at(offset + 4 * i), 4);
            v[i] = f;
        } else {
            std::memcpy(&v[i], at(offset + 8 * i), 8);
        }
    }
    return v;
}

}  // namespace vtxtest
