// The library's exported functions as its dynamic symbol table lists them,
// each classified by the shape of its name into a calling form, so that
// checks over "every function" take in new families as they are exported.
#pragma once

#include "vtxgen.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace vtxtest {

enum class Form {
    Kernel,         // (src, dst, flag): a transform of the size in its name
    Dispatcher,     // (src, dst, n, flag): a family's general entry by size
    Batch,          // (src, dst, n, count, srcStride, dstStride, flag): count transforms of size n
    WhtKernel,      // (src, dst, flag, buffer): the order in its name
    WhtEntry,       // (src, dst, order, flag, buffer)
    BufferSize,     // (order, int* bytes)
    Dct4Size,       // (len, int* bytes)
    Dct4Init,       // (spec**, len, block)
    Dct4InitAlloc,  // (spec**, len)
    Dct4Free,       // (spec)
    Dct4Run,        // (src, dst, spec)
    Version,        // no argument
};

// The arguments of any form; each form reads those it has.
struct Args {
    const void* src = nullptr;
    void* dst = nullptr;
    int n = 0;  // size, order or length
    int flag = vtxScaleNone;
    void* buffer = nullptr;  // the WHT work buffer, the DCT-IV block
    int* bytes = nullptr;
    void** specOut = nullptr;
    void* spec = nullptr;
    int count = 1;  // transforms of a batch, at strides in elements (0: the transform's own lengths)
    int srcStride = 0, dstStride = 0;
};

struct Export {
    std::string name;
    Form form;
    void* fn = nullptr;
    int size = 0;           // N of a kernel, order of a WHT kernel, else 0
    int element_bytes = 0;  // of one real component: 4 or 8
    // The layouts of source and destination: C, R, CCS, Pack or Perm (R for
    // the transforms from reals to reals).
    std::string from, to;

    // Real components that source and destination hold at size (or order) n.
    std::size_t source_components(int n) const;
    std::size_t destination_components(int n) const;
    vtxStatus operator()(const Args& a) const;
};

inline void PrintTo(const Export& e, std::ostream* os) { *os << e.name; }

// Every exported function; an export whose name fits no form throws, naming
// it, so a new family is seen at once.
const std::vector<Export>& exports();

// DCT-IV plans of the lengths 2^k, made when first asked for and freed
// with the set.
class Plans {
public:
    Plans() = default;
    Plans(const Plans&) = delete;
    Plans& operator=(const Plans&) = delete;
    ~Plans();
    void* get(int element_bytes, int log2n);

private:
    void* plans_[2][27] = {};
};

// A size (or order, or length) a transform is run at, with its plan.
struct Setting {
    int n;
    void* spec = nullptr;
    int count = 1;  // transforms of a batch, at strides in elements (0: the transform's own lengths)
    int srcStride = 0, dstStride = 0;
};

// The settings each transform is run at in the checks over every export:
// a kernel at its size, a general entry at some sizes and orders, the
// DCT-IV at some lengths with plans from `plans`; none for the rest.
std::vector<Setting> settings(const Export& e, Plans& plans);

// Bytes of work buffer a Walsh-Hadamard export takes at `order`; 0 for
// other exports.
int work_buffer_bytes(const Export& e, int order);

}  // namespace vtxtest
