// Transforms by family, size and precision, found among the library's exports.
#include "cli.hpp"
#include "support.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <map>

namespace vtxcli {

using vtxtest::Export;
using vtxtest::Form;

void fail(const std::string& message, int status) { throw Error{message, status}; }
void usage(const std::string& message) { fail(message + " (see --help)", 2); }

const std::string& option_value(const std::vector<std::string>& args, std::size_t& i)
{
    if (i + 1 >= args.size())
        usage(args[i] + " needs a value");
    return args[++i];
}

int to_int(const std::string& word, const std::string& what)
{
    std::size_t used = 0;
    int v = 0;
    try {
        v = std::stoi(word, &used);
    } catch (...) {
        used = 0;
    }
    if (used == 0 || used != word.size())
        usage(what + " must be an integer, not \"" + word + "\"");
    return v;
}

std::size_t Transform::in() const
{
    return fn->form == Form::Dct4Run ? std::size_t(n) : fn->source_components(fn->form == Form::WhtKernel ? fn->size : n);
}

std::size_t Transform::out() const
{
    return fn->form == Form::Dct4Run ? std::size_t(n)
                                     : fn->destination_components(fn->form == Form::WhtKernel ? fn->size : n);
}

std::string Transform::name() const
{
    return fn->form == Form::Dct4Run || fn->form == Form::Batch ? fn->name + " (N " + std::to_string(n) + ")" : fn->name;
}

namespace {

// A batch of two groups of the widest vectors and one more, the caller's
// transform eighth among other inputs, its output copied out: every lane
// position and the padded last group take part, and the result is the
// single call's.
vtxStatus batch_call(const Transform& t, const void* src, void* dst, int flag)
{
    constexpr int count = 33, mine = 7;
    const std::size_t width = t.single() ? 4 : 8, in = t.in(), out = t.out();
    const std::size_t at = reinterpret_cast<std::uintptr_t>(dst) % 16 / width;  // the caller's misalignment
    std::vector<unsigned char> x((at + in * count) * width), y((at + out * count) * width);
    for (int k = 0; k < count; ++k) {
        const std::vector<double> v = vtxtest::fixed_input(int(in), 100u + unsigned(k), t.single());
        for (std::size_t c = 0; c < in; ++c) {
            unsigned char* to = x.data() + (at + k * in + c) * width;
            if (k == mine)
                std::memcpy(to, static_cast<const unsigned char*>(src) + c * width, width);
            else if (t.single()) {
                const float f = float(v[c]);
                std::memcpy(to, &f, width);
            } else {
                std::memcpy(to, &v[c], width);
            }
        }
    }
    vtxtest::Args a;
    a.src = x.data() + at * width;
    a.dst = y.data() + at * width;
    a.n = t.n;
    a.flag = flag;
    a.count = count;
    const vtxStatus s = (*t.fn)(a);
    std::memcpy(dst, y.data() + (at + mine * out) * width, out * width);
    return s;
}

}  // namespace

vtxStatus Transform::operator()(const void* src, void* dst, int flag) const
{
    static vtxtest::Plans plans;
    if (fn->form == Form::Batch)
        return batch_call(*this, src, dst, flag);
    vtxtest::Args a;
    a.src = src;
    a.dst = dst;
    a.flag = flag;
    a.n = n;
    if (fn->form == Form::Dct4Run) {
        int log2n = 0;
        while ((1 << log2n) < n)
            ++log2n;
        a.spec = plans.get(fn->element_bytes, log2n);
    }
    return (*fn)(a);
}

std::string family_of(const Export& e)
{
    if (e.form == Form::Dct4Run || e.form == Form::Batch)
        return e.name;
    if (e.form != Form::Kernel && e.form != Form::WhtKernel)
        return {};
    const std::string size = "_" + std::to_string(e.size) + "_";
    const std::size_t at = e.name.rfind(size);
    return e.name.substr(0, at) + e.name.substr(at + size.size() - 1);
}

int dct4_largest(bool single)
{
    int largest = 0;
    for (int k = 1; k < 31; ++k) {
        int bytes = 0;
        if ((single ? vtxgDCT4GetSize_32f : vtxgDCT4GetSize_64f)(1 << k, &bytes) != vtxStatusOk)
            break;
        largest = 1 << k;
    }
    return largest;
}

std::vector<Family> families(int dct4_max)
{
    std::vector<Family> out;
    std::map<std::string, std::size_t> index;
    for (const Export& e : vtxtest::exports()) {
        const std::string family = family_of(e);
        if (family.empty())
            continue;
        if (!index.count(family)) {
            index[family] = out.size();
            out.push_back({family, {}});
        }
        std::vector<Transform>& sizes = out[index[family]].sizes;
        if (e.form == Form::Dct4Run) {
            const int largest = std::min(dct4_max, dct4_largest(e.element_bytes == 4));
            for (int n = 2; n <= largest; n *= 2)
                sizes.push_back({&e, n});
        } else if (e.form == Form::Batch) {
            for (int n = 2; n <= 64; ++n)
                sizes.push_back({&e, n});
        } else {
            sizes.push_back({&e, e.form == Form::WhtKernel ? 1 << e.size : e.size});
        }
    }
    for (Family& f : out)
        std::sort(f.sizes.begin(), f.sizes.end(), [](const Transform& a, const Transform& b) { return a.n < b.n; });
    // As the header lists them: complex, real forward and inverse by layout,
    // Hartley, Walsh-Hadamard, DCT-IV, then the batches of the first
    // families; single precision first.
    static const char* const order[] = {"vtxgDFTFwd_CToC_",   "vtxgDFTInv_CToC_",   "vtxgDFTFwd_RToCCS_",
                                        "vtxgDFTFwd_RToPack_", "vtxgDFTFwd_RToPerm_", "vtxgDFTInv_CCSToR_",
                                        "vtxgDFTInv_PackToR_", "vtxgDFTInv_PermToR_", "vtxgHartley_",
                                        "vtxgWHT_",            "vtxgDCT4_",
                                        "vtxgDFTFwd_CToC_Batch_",   "vtxgDFTInv_CToC_Batch_",   "vtxgDFTFwd_RToCCS_Batch_",
                                        "vtxgDFTFwd_RToPack_Batch_", "vtxgDFTFwd_RToPerm_Batch_", "vtxgDFTInv_CCSToR_Batch_",
                                        "vtxgDFTInv_PackToR_Batch_", "vtxgDFTInv_PermToR_Batch_", "vtxgHartley_Batch_"};
    auto rank = [](const Family& f) {
        const std::size_t kind = f.name.rfind('_') + 1;
        const auto* at = std::find(std::begin(order), std::end(order), f.name.substr(0, kind));
        return std::make_pair(at - std::begin(order), f.name.substr(kind));
    };
    std::stable_sort(out.begin(), out.end(), [&](const Family& a, const Family& b) { return rank(a) < rank(b); });
    return out;
}

std::string size_list(const Family& f)
{
    std::vector<int> n;
    for (const Transform& t : f.sizes)
        n.push_back(t.n);
    if (n.empty())
        return "none";
    bool consecutive = true, powers = true;
    for (std::size_t i = 1; i < n.size(); ++i) {
        consecutive = consecutive && n[i] == n[i - 1] + 1;
        powers = powers && n[i] == 2 * n[i - 1];
    }
    if (n.size() > 2 && consecutive)
        return std::to_string(n.front()) + " to " + std::to_string(n.back());
    if (n.size() > 2 && powers) {
        int lo = 0, hi = 0;
        while ((1 << lo) < n.front())
            ++lo;
        while ((1 << hi) < n.back())
            ++hi;
        return "2^" + std::to_string(lo) + " to 2^" + std::to_string(hi) + " (" + std::to_string(n.front()) +
               " to " + std::to_string(n.back()) + ")";
    }
    std::string s;
    for (int v : n)
        s += (s.empty() ? "" : " ") + std::to_string(v);
    return s;
}

namespace {

const Export* export_named(const std::string& name)
{
    for (const Export& e : vtxtest::exports())
        if (e.name == name)
            return &e;
    return nullptr;
}

// A family's sizes for an error message.
std::string sizes_of(const std::string& family)
{
    for (const Family& f : families(1 << 30))
        if (f.name == family)
            return f.name + " has sizes " + size_list(f);
    return "the library has no family " + family;
}

}  // namespace

Transform find_kernel(const std::string& name, int n)
{
    const Export* e = export_named(name);
    if (!e || family_of(*e).empty())
        usage("unknown transform \"" + name + "\"; the kernels are named as in vtxgen.h, e.g. vtxgDFTFwd_CToC_8_32fc");
    if (e->form != Form::Dct4Run)
        return {e, e->form == Form::WhtKernel ? 1 << e->size : e->size};
    if (n < 2 || (n & (n - 1)) || n > dct4_largest(e->element_bytes == 4))
        usage("bad size " + std::to_string(n) + ": " + sizes_of(e->name));
    return {e, n};
}

Transform find_transform(const std::string& family, int n, bool single, const std::string& layout_word)
{
    std::string layout = layout_word;
    std::transform(layout.begin(), layout.end(), layout.begin(), [](char c) { return char(std::tolower(c)); });
    const std::map<std::string, std::string> layouts{{"ccs", "CCS"}, {"pack", "Pack"}, {"perm", "Perm"}};
    if (!layouts.count(layout))
        usage("unknown layout \"" + layout_word + "\"; the layouts are ccs, pack and perm");
    const std::string& L = layouts.at(layout);
    const std::string real = single ? "32f" : "64f", cplx = single ? "32fc" : "64fc";
    const std::map<std::string, std::string> entries{
        {"cfwd", "vtxgDFTFwd_CToC_" + cplx},   {"cinv", "vtxgDFTInv_CToC_" + cplx},
        {"rfwd", "vtxgDFTFwd_RTo" + L + "_" + real}, {"rinv", "vtxgDFTInv_" + L + "ToR_" + real},
        {"dht", "vtxgHartley_" + real},        {"wht", "vtxgWHT_" + real},
        {"dct4", "vtxgDCT4_" + real}};
    if (!entries.count(family)) {
        if (family.rfind("vtxg", 0) == 0)
            return find_kernel(family, n);
        usage("unknown transform \"" + family + "\"; the transforms are cfwd, cinv, rfwd, rinv, dht, wht and dct4, "
              "or a kernel's name from vtxgen.h");
    }
    const std::string& entry = entries.at(family);
    if (family == "dct4")
        return find_kernel(entry, n);
    int size = n;
    if (family == "wht") {
        size = 0;
        while ((1 << size) < n)
            ++size;
        if (n < 2 || (1 << size) != n)
            usage("bad size " + std::to_string(n) + ": " + sizes_of(entry));
    }
    const std::size_t at = entry.rfind('_');
    const std::string name = entry.substr(0, at) + "_" + std::to_string(size) + entry.substr(at);
    const Export* e = export_named(name);
    if (!e)
        usage("bad size " + std::to_string(n) + ": " + sizes_of(entry));
    return {e, n};
}

Transform batch_of(const Transform& t)
{
    const std::string family = family_of(*t.fn);
    const std::size_t at = family.rfind('_');
    const Export* e = family.empty() ? nullptr : export_named(family.substr(0, at) + "_Batch" + family.substr(at));
    if (!e || t.fn->form == Form::Batch)
        usage(t.fn->name + " has no batch form; --count takes the complex, real and Hartley transforms");
    return {e, t.n};
}

int parse_flag(const std::string& word)
{
    const std::map<std::string, int> flags{{"forward", vtxScaleForward}, {"inverse", vtxScaleInverse},
                                           {"symmetric", vtxScaleSymmetric}, {"none", vtxScaleNone},
                                           {"1", 1}, {"2", 2}, {"4", 4}, {"8", 8}};
    if (!flags.count(word))
        usage("unknown scale \"" + word + "\"; the scales are forward (1), inverse (2), symmetric (4) and none (8)");
    return flags.at(word);
}

}  // namespace vtxcli
