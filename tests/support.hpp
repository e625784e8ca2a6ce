// What the tests share: the list of kernels the generator knows, each with
// its entry point in the library, and inputs that are the same bits on every
// build.
#pragma once

#include "complex.hpp"
#include "real.hpp"
#include "wht.hpp"
#include "vtxgen.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace vtxtest {

// A complex kernel through its C entry point; float kernels take vtx32fc,
// double kernels vtx64fc, both passed here as untyped pointers.
struct ComplexKernel {
    vtxgen::ComplexKernel model;
    using Fn = vtxStatus (*)(const void*, void*, int);
    Fn fn = nullptr;

    std::string name() const { return model.name(); }
    int size() const { return model.size; }
    bool single() const { return model.prec == vtxgen::Prec::F32; }
    int components() const { return 2 * model.size; }
    int component_bytes() const { return single() ? 4 : 8; }
    vtxStatus operator()(const void* src, void* dst, int flag) const { return fn(src, dst, flag); }
};

// Test parameters print as the kernel's name.
inline void PrintTo(const ComplexKernel& k, std::ostream* os) { *os << k.name(); }

// Every complex kernel the generator knows, resolved in the loaded library.
const std::vector<ComplexKernel>& complex_kernels();

// A real kernel through its C entry point: n real elements (float or double,
// as untyped pointers) into one packed layout, or back, or a Hartley kernel.
struct RealKernel {
    vtxgen::RealKernel model;
    using Fn = vtxStatus (*)(const void*, void*, int);
    Fn fn = nullptr;

    std::string name() const { return model.name(); }
    int size() const { return model.size; }
    bool single() const { return model.prec == vtxgen::Prec::F32; }
    vtxgen::Layout layout() const { return model.layout; }
    bool forward() const { return model.direction == vtxgen::Direction::Forward; }
    bool hartley() const { return model.is_hartley(); }
    int source_elements() const { return model.source_length(); }
    int destination_elements() const { return model.destination_length(); }
    int element_bytes() const { return single() ? 4 : 8; }
    vtxStatus operator()(const void* src, void* dst, int flag) const { return fn(src, dst, flag); }
};

inline void PrintTo(const RealKernel& k, std::ostream* os) { *os << k.name(); }

// Every real kernel of a direction, resolved in the loaded library.
const std::vector<RealKernel>& real_kernels(vtxgen::Direction d = vtxgen::Direction::Forward);

// Every Hartley kernel, resolved in the loaded library.
const std::vector<RealKernel>& hartley_kernels();

// A Walsh-Hadamard kernel through its C entry point (float or double
// elements as untyped pointers, then the flag and the work buffer).
struct WhtKernel {
    vtxgen::WhtKernel model;
    using Fn = vtxStatus (*)(const void*, void*, int, void*);
    Fn fn = nullptr;

    std::string name() const { return model.name(); }
    int order() const { return model.order; }
    int length() const { return model.length(); }
    bool single() const { return model.prec == vtxgen::Prec::F32; }
    int element_bytes() const { return single() ? 4 : 8; }
    std::size_t bytes() const { return static_cast<std::size_t>(length() * element_bytes()); }
    vtxStatus operator()(const void* src, void* dst, int flag, void* buffer) const
    {
        return fn(src, dst, flag, buffer);
    }
};

inline void PrintTo(const WhtKernel& k, std::ostream* os) { *os << k.name(); }

// The 26 Walsh-Hadamard kernels, resolved in the loaded library.
const std::vector<WhtKernel>& wht_kernels();

// Deterministic inputs in [-1, 1): integers scaled by a power of two, so
// float and double builds on any machine see the same bits.
std::vector<double> fixed_input(int components, std::uint32_t seed, bool single);

// One call with aligned buffers (guard room behind the source): the output
// components, the status expected to be vtxStatusOk.
std::vector<double> run_kernel(const ComplexKernel& k, const std::vector<double>& x, int flag);

// A buffer with room in front and behind, for misaligned and guarded calls.
// `at(offset)` is the data start: 16-byte aligned plus `offset` bytes.
class Buffer {
public:
    explicit Buffer(std::size_t bytes, unsigned char fill = 0xA5);
    unsigned char* at(std::size_t offset) { return base() + offset; }
    const unsigned char* at(std::size_t offset) const { return base() + offset; }
    std::size_t size() const { return bytes_; }
    // Stores components of the kernel's element type at `offset`.
    void put(std::size_t offset, const std::vector<double>& v, bool single);
    std::vector<double> get(std::size_t offset, int components, bool single) const;
    const std::vector<unsigned char>& raw() const { return store_; }
    // The first byte outside [at(offset), at(offset) + bytes) that no longer
    // holds the fill, described with its position; "" when all are intact.
    std::string changed_outside(std::size_t offset, std::size_t bytes) const;
    // Every byte still holds the fill: "" or the first one that does not.
    std::string changed() const { return changed_outside(0, 0); }

private:
    unsigned char* base();
    const unsigned char* base() const;
    std::size_t bytes_;
    std::vector<unsigned char> store_;
    unsigned char fill_;
};

// What a call on guarded buffers changed that it may not, or "": on success
// nothing outside the destination's `bytes` (the source's when in place),
// on failure nothing at all, and never the source of an out-of-place call.
std::string damage(const Buffer& src, const std::vector<unsigned char>& src_before, const Buffer& dst,
                   std::size_t src_offset, std::size_t dst_offset, std::size_t bytes, bool in_place, bool ok);

// Components of a kernel's element type compared bit for bit: "" when all
// are equal, else the first differing one, as in
// "y[3].im = 0x3f800000 (1), expected 0x3f800001 (1.0000001)".
std::string first_difference(const ComplexKernel& k, const void* got, const void* expected);

inline constexpr std::size_t kGuard = 64;  // bytes of guard before and after the data

}  // namespace vtxtest
