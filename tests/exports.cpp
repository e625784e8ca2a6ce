#include "exports.hpp"

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>

namespace vtxtest {

namespace {

// The defined global functions of the library file that holds the version
// query, read from its dynamic symbol table.
std::vector<std::string> dynamic_functions(std::string& path)
{
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&vtxgenGetLibVersion), &info))
        throw std::runtime_error("cannot locate the library");
    path = info.dli_fname;
    std::ifstream in(path, std::ios::binary);
    const std::vector<char> image{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto* header = reinterpret_cast<const ElfW(Ehdr)*>(image.data());
    if (image.size() < sizeof *header || std::memcmp(header->e_ident, ELFMAG, SELFMAG) != 0)
        throw std::runtime_error(path + " is not an ELF file");
    const auto* sections = reinterpret_cast<const ElfW(Shdr)*>(image.data() + header->e_shoff);
    std::vector<std::string> names;
    for (int i = 0; i < header->e_shnum; ++i) {
        if (sections[i].sh_type != SHT_DYNSYM)
            continue;
        const char* strings = image.data() + sections[sections[i].sh_link].sh_offset;
        const auto* symbols = reinterpret_cast<const ElfW(Sym)*>(image.data() + sections[i].sh_offset);
        for (std::size_t j = 0; j < sections[i].sh_size / sizeof(ElfW(Sym)); ++j) {
            const ElfW(Sym)& s = symbols[j];
            const int bind = s.st_info >> 4, type = s.st_info & 0xf;
            if (s.st_shndx != SHN_UNDEF && type == STT_FUNC && (bind == STB_GLOBAL || bind == STB_WEAK))
                names.emplace_back(strings + s.st_name);
        }
    }
    return names;
}

// Components of one layout at size n.
std::size_t components(const std::string& layout, int n)
{
    return layout == "C" ? 2 * std::size_t(n) : layout == "CCS" ? 2 * std::size_t(n / 2 + 1) : std::size_t(n);
}

}  // namespace

std::size_t Export::source_components(int n) const
{
    return components(from, form == Form::WhtKernel || form == Form::WhtEntry ? 1 << n : n);
}

std::size_t Export::destination_components(int n) const
{
    return components(to, form == Form::WhtKernel || form == Form::WhtEntry ? 1 << n : n);
}

vtxStatus Export::operator()(const Args& a) const
{
    using Data = vtxStatus (*)(const void*, void*, int);
    switch (form) {
    case Form::Kernel: return reinterpret_cast<Data>(fn)(a.src, a.dst, a.flag);
    case Form::Dispatcher:
        return reinterpret_cast<vtxStatus (*)(const void*, void*, int, int)>(fn)(a.src, a.dst, a.n, a.flag);
    case Form::Batch: {
        // A size outside 2..64 has no lengths: any stride does then.
        const bool sized = a.n >= 2 && a.n <= 64;
        const int per = from == "C" ? 2 : 1;
        const int srcStride = a.srcStride || !sized ? a.srcStride : int(source_components(a.n)) / per;
        const int dstStride = a.dstStride || !sized ? a.dstStride : int(destination_components(a.n)) / per;
        return reinterpret_cast<vtxStatus (*)(const void*, void*, int, int, int, int, int)>(fn)(
            a.src, a.dst, a.n, a.count, srcStride, dstStride, a.flag);
    }
    case Form::WhtKernel:
        return reinterpret_cast<vtxStatus (*)(const void*, void*, int, void*)>(fn)(a.src, a.dst, a.flag, a.buffer);
    case Form::WhtEntry:
        return reinterpret_cast<vtxStatus (*)(const void*, void*, int, int, void*)>(fn)(a.src, a.dst, a.n, a.flag,
                                                                                           a.buffer);
    case Form::BufferSize:
    case Form::Dct4Size: return reinterpret_cast<vtxStatus (*)(int, int*)>(fn)(a.n, a.bytes);
    case Form::Dct4Init: return reinterpret_cast<vtxStatus (*)(void**, int, void*)>(fn)(a.specOut, a.n, a.buffer);
    case Form::Dct4InitAlloc: return reinterpret_cast<vtxStatus (*)(void**, int)>(fn)(a.specOut, a.n);
    case Form::Dct4Free: return reinterpret_cast<vtxStatus (*)(void*)>(fn)(a.spec);
    case Form::Dct4Run: return reinterpret_cast<vtxStatus (*)(const void*, void*, const void*)>(fn)(a.src, a.dst, a.spec);
    case Form::Version: break;
    }
    throw std::logic_error(name + " takes no arguments");
}

const std::vector<Export>& exports()
{
    static const std::vector<Export> all = [] {
        // Name shapes, the first that matches decides: prefix, then the
        // transform, the size or order where there is one, the element type.
        struct Shape {
            const char* pattern;
            Form form;
        };
        static const Shape shapes[] = {
            {"vtxgenGetLibVersion()()", Form::Version},
            {"vtxgWHT()_([0-9]+)_(32f|64f)", Form::WhtKernel},
            {"vtxgWHT()()_(32f|64f)", Form::WhtEntry},
            {"vtxgWHTGetBufferSize()()_(32f|64f)", Form::BufferSize},
            {"vtxgDCT4GetSize()()_(32f|64f)", Form::Dct4Size},
            {"vtxgDCT4Init()()_(32f|64f)", Form::Dct4Init},
            {"vtxgDCT4InitAlloc()()_(32f|64f)", Form::Dct4InitAlloc},
            {"vtxgDCT4Free()()_(32f|64f)", Form::Dct4Free},
            {"vtxgDCT4()()_(32f|64f)", Form::Dct4Run},
            {"vtxg[A-Za-z]+(_([A-Za-z]+)To([A-Za-z]+))?_([0-9]+)_(32fc|64fc|32f|64f)", Form::Kernel},
            {"vtxg[A-Za-z]+(_([A-Za-z]+)To([A-Za-z]+))?()_(32fc|64fc|32f|64f)", Form::Dispatcher},
            {"vtxg[A-Za-z]+(_([A-Za-z]+)To([A-Za-z]+))?_Batch()_(32fc|64fc|32f|64f)", Form::Batch},
        };
        std::vector<std::regex> patterns;
        for (const Shape& s : shapes)
            patterns.emplace_back(s.pattern);
        std::string path;
        void* lib = nullptr;
        std::vector<Export> out;
        for (const std::string& name : dynamic_functions(path)) {
            if (!lib && !(lib = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD)))
                throw std::runtime_error("cannot open " + path);
            const Shape* shape = nullptr;
            std::smatch m;
            for (std::size_t i = 0; i < patterns.size() && !shape; ++i)
                if (std::regex_match(name, m, patterns[i]))
                    shape = &shapes[i];
            if (!shape)
                throw std::runtime_error("the export " + name + " has no known calling form");
            Export e{name, shape->form, dlsym(lib, name.c_str()), 0, 0, {}, {}};
            const std::size_t last = m.size() - 1;
            const std::string type = m[last];
            e.element_bytes = type.substr(0, 2) == "32" ? 4 : 8;
            if (m[last - 1].length())
                e.size = std::stoi(m[last - 1]);
            e.from = e.to = !type.empty() && type.back() == 'c' ? "C" : "R";
            if (m.size() == 6 && m[1].length()) {
                e.from = m[2];
                e.to = m[3];
            }
            out.push_back(e);
        }
        return out;
    }();
    return all;
}

Plans::~Plans()
{
    for (void* p : plans_[0])
        if (p)
            vtxgDCT4Free_32f(static_cast<vtxDCT4Spec_32f*>(p));
    for (void* p : plans_[1])
        if (p)
            vtxgDCT4Free_64f(static_cast<vtxDCT4Spec_64f*>(p));
}

void* Plans::get(int element_bytes, int log2n)
{
    void*& spec = plans_[element_bytes == 8][log2n];
    if (!spec) {
        const vtxStatus built = element_bytes == 4
                                    ? vtxgDCT4InitAlloc_32f(reinterpret_cast<vtxDCT4Spec_32f**>(&spec), 1 << log2n)
                                    : vtxgDCT4InitAlloc_64f(reinterpret_cast<vtxDCT4Spec_64f**>(&spec), 1 << log2n);
        if (built != vtxStatusOk)
            throw std::runtime_error("no DCT-IV plan of length " + std::to_string(1 << log2n));
    }
    return spec;
}

std::vector<Setting> settings(const Export& e, Plans& plans)
{
    switch (e.form) {
    case Form::Kernel:
    case Form::WhtKernel: return {{e.size}};
    case Form::Dispatcher:
    case Form::Batch: return {{2}, {5}, {47}, {59}, {64}};
    case Form::WhtEntry: return {{1}, {3}, {8}, {13}};
    case Form::Dct4Run: {
        std::vector<Setting> runs;
        for (int k : {1, 3, 5, 6, 10})
            runs.push_back({1 << k, plans.get(e.element_bytes, k)});
        return runs;
    }
    default: return {};
    }
}

int work_buffer_bytes(const Export& e, int order)
{
    int bytes = 0;
    if (e.form == Form::WhtKernel || e.form == Form::WhtEntry)
        (e.element_bytes == 4 ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(order, &bytes);
    return bytes;
}

}  // namespace vtxtest
