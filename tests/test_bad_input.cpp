// The bad-input matrix: every exported function, found in the library's
// dynamic symbol table, called with every combination of null, misaligned
// and valid pointers, illegal and legal sizes (or orders, or lengths) and
// flags that its calling form takes.  The status must be that of the first
// failing check in the order the form makes them, and every byte of the
// caller's memory (64 guard bytes on each side of each buffer included) must
// stay as it was, but for the destination of a call that succeeds.
#include "exports.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <map>
#include <memory>

namespace {

using vtxtest::Args;
using vtxtest::Buffer;
using vtxtest::Export;
using vtxtest::Form;

enum class Check { Size, Null, Flag };
enum class Role { Src, Dst, Buffer, Bytes, SpecOut, Block, Spec };
enum class State { Valid, Misaligned, Null };
enum class Sizes { None, Size, Order, Length };

// The argument roles of a form and the order of its checks.
struct FormRow {
    Form form;
    std::vector<Role> pointers;
    Sizes sizes;
    bool flag;
    std::vector<Check> order;
};

const FormRow kForms[] = {
    {Form::Kernel, {Role::Src, Role::Dst}, Sizes::None, true, {Check::Null, Check::Flag}},
    {Form::Dispatcher, {Role::Src, Role::Dst}, Sizes::Size, true, {Check::Size, Check::Null, Check::Flag}},
    {Form::Batch, {Role::Src, Role::Dst}, Sizes::Size, true, {Check::Null, Check::Size, Check::Flag}},
    {Form::WhtKernel, {Role::Src, Role::Dst, Role::Buffer}, Sizes::None, true, {Check::Null, Check::Flag}},
    {Form::WhtEntry, {Role::Src, Role::Dst, Role::Buffer}, Sizes::Order, true, {Check::Size, Check::Null, Check::Flag}},
    {Form::BufferSize, {Role::Bytes}, Sizes::Order, false, {Check::Size}},
    {Form::Dct4Size, {Role::Bytes}, Sizes::Length, false, {Check::Size}},
    {Form::Dct4Init, {Role::SpecOut, Role::Block}, Sizes::Length, false, {Check::Null, Check::Size}},
    {Form::Dct4InitAlloc, {Role::SpecOut}, Sizes::Length, false, {Check::Null, Check::Size}},
    {Form::Dct4Free, {Role::Spec}, Sizes::None, false, {Check::Null}},
    {Form::Dct4Run, {Role::Spec, Role::Src, Role::Dst}, Sizes::None, false, {Check::Null}},
};

const std::vector<int> kBadFlags = {0, 3, 5, 6, 7, 9, 12, 16, -1, INT_MIN, INT_MAX};
const std::vector<int> kGoodFlags = {vtxScaleForward, vtxScaleNone};

// Illegal values: the extremes, the values just outside the range; legal
// ones: its ends and a value inside.
struct SizeValues {
    std::vector<int> bad, good;
};
SizeValues sizeValues(Sizes s, int elementBytes)
{
    const int dct4Above = (elementBytes == 4 ? 1 << 26 : 1 << 25) + 2;  // 2^k + 1 is accepted
    switch (s) {
    case Sizes::None: return {{}, {0}};
    case Sizes::Size: return {{INT_MIN, -1, 0, 1, 65, INT_MAX}, {2, 47, 64}};
    case Sizes::Order: return {{INT_MIN, -1, 0, 14, INT_MAX}, {1, 8, 13}};
    case Sizes::Length: return {{INT_MIN, -1, 0, 1, 3, 48, dct4Above, INT_MAX}, {2, 64}};
    }
    return {};
}

std::vector<State> statesOf(Role r)
{
    switch (r) {
    case Role::Src:
    case Role::Dst:
    case Role::Block: return {State::Valid, State::Misaligned, State::Null};
    default: return {State::Valid, State::Null};
    }
}

const char* nameOf(Role r)
{
    static const char* const names[] = {"src", "dst", "buffer", "bytes", "specOut", "block", "spec"};
    return names[static_cast<int>(r)];
}

// Roles whose null the function tests; a null work buffer or size pointer
// is no error of its own.
bool nullTested(Role r) { return r != Role::Buffer && r != Role::Bytes; }

struct Case {
    std::map<Role, State> pointers;
    int n = 0, flag = vtxScaleNone;
    bool sizeGood = true, flagGood = true;
};

vtxStatus expected(const FormRow& row, const Case& c)
{
    for (Check check : row.order) {
        if (check == Check::Size && !c.sizeGood)
            return vtxStatusSizeError;
        if (check == Check::Flag && !c.flagGood)
            return vtxStatusFlagError;
        if (check == Check::Null)
            for (const auto& [role, state] : c.pointers)
                if (nullTested(role) && state == State::Null)
                    return vtxStatusNullPointer;
    }
    return vtxStatusOk;
}

std::vector<Case> casesOf(const FormRow& row, int elementBytes)
{
    std::vector<Case> cases(1);
    for (Role r : row.pointers) {
        std::vector<Case> next;
        for (const Case& c : cases)
            for (State s : statesOf(r)) {
                next.push_back(c);
                next.back().pointers[r] = s;
            }
        cases = next;
    }
    const SizeValues sizes = sizeValues(row.sizes, elementBytes);
    std::vector<Case> out;
    for (const Case& c : cases)
        for (const bool sizeGood : {false, true})
            for (int n : sizeGood ? sizes.good : sizes.bad)
                for (const bool flagGood : {false, true}) {
                    const std::vector<int> noFlag = {flagGood ? vtxScaleNone : 0};
                    for (int flag : !row.flag ? noFlag : flagGood ? kGoodFlags : kBadFlags) {
                        if (!row.flag && !flagGood)
                            continue;
                        // A null size pointer with a legal size is the caller's fault.
                        if (c.pointers.count(Role::Bytes) && c.pointers.at(Role::Bytes) == State::Null && sizeGood)
                            continue;
                        out.push_back(c);
                        out.back().n = n;
                        out.back().flag = flag;
                        out.back().sizeGood = sizeGood;
                        out.back().flagGood = flagGood;
                    }
                }
    return out;
}

// A plan of length 64 of the export's precision, made once.
void* plan64(int elementBytes)
{
    static void* plans[2] = {};
    void*& p = plans[elementBytes == 8];
    if (!p)
        (elementBytes == 4 ? vtxgDCT4InitAlloc_32f(reinterpret_cast<vtxDCT4Spec_32f**>(&p), 64)
                           : vtxgDCT4InitAlloc_64f(reinterpret_cast<vtxDCT4Spec_64f**>(&p), 64));
    return p;
}

// The caller's memory of one call: a guarded buffer for each role, and how
// many bytes of it a successful call may write.
struct Memory {
    std::map<Role, std::unique_ptr<Buffer>> buffers;
    std::map<Role, std::size_t> writable;
    std::map<Role, std::vector<unsigned char>> before;

    void add(Role r, std::size_t bytes, std::size_t writes)
    {
        buffers[r] = std::make_unique<Buffer>(bytes);
        writable[r] = writes;
        before[r] = buffers[r]->raw();
    }
    void* at(Role r, State s) { return s == State::Null ? nullptr : buffers.at(r)->at(s == State::Misaligned ? 4 : 0); }
    // What changed that may not have: "" or the first such place.
    std::string damage(const Case& c, bool ok) const
    {
        for (const auto& [role, buffer] : buffers) {
            const std::size_t offset = c.pointers.count(role) && c.pointers.at(role) == State::Misaligned ? 4 : 0;
            const std::string d = ok ? buffer->changed_outside(offset, writable.at(role))
                                     : buffer->raw() != before.at(role) ? "changed" : "";
            if (!d.empty())
                return std::string(nameOf(role)) + ": " + d;
        }
        return {};
    }
};

vtxStatus call(const Export& e, const Case& c, Memory& m)
{
    const bool sized = e.form == Form::Dispatcher || e.form == Form::Batch || e.form == Form::WhtEntry;
    const int largest = e.form == Form::WhtEntry ? 13 : sized ? 64 : e.size;
    const std::size_t inBytes = e.source_components(e.form == Form::Dct4Run ? 64 : largest) * e.element_bytes;
    const std::size_t outBytes = e.destination_components(e.form == Form::Dct4Run ? 64 : largest) * e.element_bytes;
    int blockBytes = 0, workBytes = 0;
    (e.element_bytes == 4 ? vtxgDCT4GetSize_32f : vtxgDCT4GetSize_64f)(64, &blockBytes);
    (e.element_bytes == 4 ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(13, &workBytes);
    m.add(Role::Src, inBytes + 4, 0);
    m.add(Role::Dst, outBytes + 4, sized && c.sizeGood ? e.destination_components(c.n) * e.element_bytes : outBytes);
    m.add(Role::Buffer, static_cast<std::size_t>(workBytes), static_cast<std::size_t>(workBytes));
    m.add(Role::Bytes, sizeof(int), sizeof(int));
    m.add(Role::SpecOut, sizeof(void*), sizeof(void*));
    m.add(Role::Block, static_cast<std::size_t>(blockBytes) + 4, static_cast<std::size_t>(blockBytes));

    Args a;
    auto state = [&](Role r) { return c.pointers.count(r) ? c.pointers.at(r) : State::Valid; };
    a.src = m.at(Role::Src, state(Role::Src));
    a.dst = m.at(Role::Dst, state(Role::Dst));
    a.buffer = e.form == Form::Dct4Init ? m.at(Role::Block, state(Role::Block)) : m.at(Role::Buffer, state(Role::Buffer));
    a.bytes = static_cast<int*>(m.at(Role::Bytes, state(Role::Bytes)));
    a.specOut = static_cast<void**>(m.at(Role::SpecOut, state(Role::SpecOut)));
    a.n = c.n;
    a.flag = c.flag;
    if (state(Role::Spec) == State::Valid)
        a.spec = e.form == Form::Dct4Free ? nullptr : plan64(e.element_bytes);
    if (e.form == Form::Dct4Free && state(Role::Spec) == State::Valid)
        (e.element_bytes == 4 ? vtxgDCT4InitAlloc_32f(reinterpret_cast<vtxDCT4Spec_32f**>(&a.spec), 64)
                              : vtxgDCT4InitAlloc_64f(reinterpret_cast<vtxDCT4Spec_64f**>(&a.spec), 64));
    const vtxStatus status = e(a);
    if (e.form == Form::Dct4InitAlloc && status == vtxStatusOk) {
        if (e.element_bytes == 4)
            vtxgDCT4Free_32f(static_cast<vtxDCT4Spec_32f*>(*a.specOut));
        else
            vtxgDCT4Free_64f(static_cast<vtxDCT4Spec_64f*>(*a.specOut));
    }
    return status;
}

std::string describe(const Export& e, const Case& c)
{
    static const char* const states[] = {"valid", "misaligned", "null"};
    std::string s = e.name + "(";
    for (const auto& [role, state] : c.pointers)
        s += std::string(nameOf(role)) + " " + states[static_cast<int>(state)] + ", ";
    return s + "n " + std::to_string(c.n) + ", flag " + std::to_string(c.flag) + ")";
}

TEST(BadInput, EveryExportGivesTheFirstFailingCheckAndWritesNothing)
{
    long functions = 0, calls = 0;
    for (const Export& e : vtxtest::exports()) {
        if (e.form == Form::Version)
            continue;
        const FormRow* row = nullptr;
        for (const FormRow& r : kForms)
            if (r.form == e.form)
                row = &r;
        ASSERT_NE(row, nullptr) << e.name << " has no row in the matrix";
        ++functions;
        for (const Case& c : casesOf(*row, e.element_bytes)) {
            Memory m;
            const vtxStatus want = expected(*row, c), got = call(e, c, m);
            ++calls;
            ASSERT_EQ(got, want) << describe(e, c);
            const std::string damage = m.damage(c, got == vtxStatusOk);
            ASSERT_EQ(damage, "") << describe(e, c);
        }
    }
    std::printf("bad-input matrix: %ld functions, %ld calls\n", functions, calls);
}

}  // namespace
