// Planning runtime of the DCT-IV: the bump arena, the common header of plan
// nodes, the EnvList that joins them, the sine and cosine helpers in units of
// pi and the divisor rule.  Internal to the library (hidden symbols).
//
// Record layout.  A plan lives in one block, so every reference from one
// record to another is a 32-bit byte offset from the start of the block (0 is
// null: offset 0 is the arena word itself).  The `arena` field of a record is
// its own offset in the block, so the block's address is the record's address
// less that field.  Operation slots hold small class codes.  Every field is
// thus 4 bytes wide on i386 and on x86-64 alike, and both report the same
// block sizes.
#pragma once

#include <cstdint>
#include <cstring>

namespace vtx::plan {

// The first word of a plan's block: where the next allocation starts.  The
// block may lie at any address, so the word is read and written bytewise.
struct Arena {
    unsigned char bytes[sizeof(unsigned char*)];

    unsigned char* next() const
    {
        unsigned char* p;
        std::memcpy(&p, bytes, sizeof p);
        return p;
    }
    void setNext(unsigned char* p) { std::memcpy(bytes, &p, sizeof p); }
};

using Ref = std::int32_t;  // byte offset of a record within its block; 0 is null

// 32-bit sums, products and roundings with wrap-around, as the sizing needs.
inline std::int32_t wrapAdd(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
inline std::int32_t wrapMul(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

std::int32_t vtxgAlignSize32Bytes(std::int32_t size);
unsigned char* vtxgArenaMalloc(Arena* arena, std::int32_t size);
void vtxgArenaFree(Arena* arena, const void* pointer, std::int32_t size);

// Sets up the arena at the start of a caller's block of any alignment and
// returns it: `next` is the first multiple of 32 above block + 32.
Arena* arenaSetUp(void* block);

inline unsigned char* blockOf(const void* record, std::int32_t offset)
{
    return const_cast<unsigned char*>(static_cast<const unsigned char*>(record)) - offset;
}
inline Arena* arenaOf(const void* record, std::int32_t offset)
{
    return reinterpret_cast<Arena*>(blockOf(record, offset));
}
inline Ref refOf(const Arena* arena, const void* record)
{
    return record ? static_cast<Ref>(static_cast<const unsigned char*>(record) -
                                     reinterpret_cast<const unsigned char*>(arena))
                  : 0;
}
template <class R>
R* deref(const Arena* arena, Ref ref)
{
    return ref ? reinterpret_cast<R*>(const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(arena)) + ref)
               : nullptr;
}

// Class codes of the operation slots: class number plus kDouble for the
// double-precision set.
enum ClassCode : std::int32_t {
    kEnv1 = 1, kEnv2 = 2, kEnv3 = 3, kEnv4 = 4, kEnv5 = 5, kEnv7 = 7, kEnv8 = 8, kEnv9 = 9,
    kCompose = 10, kSplit = 11, kLambda = 12,
    kDouble = 16
};

// The header of every plan node and function object.  The two slots hold the
// class code: `del` names its teardown, `slot` its plan (nodes) or at
// (function objects).
struct EnvObject {
    std::int32_t del;
    std::int32_t size;  // the record's own size in bytes
    std::int32_t slot;
    std::int32_t arena;  // this record's offset in the block
};
static_assert(sizeof(EnvObject) == 16);

// A list cell; the head is the first cell.
struct EnvList {
    Ref value;
    Ref next;
    std::int32_t arena;  // this cell's offset in the block
};
static_assert(sizeof(EnvList) == 12);
constexpr std::int32_t kCellSize = sizeof(EnvList);

EnvList* EnvList_init_(EnvList* cell, Arena* arena);
EnvObject* EnvList_add(EnvList* list, EnvObject* item);
std::int32_t EnvList_add_mem(std::int32_t count);
// Walks `index` cells and returns that cell's value.  Only index 0 is ever
// used: the walk reads one cell past the end when index equals the number of
// cells, which no caller may rely on.
EnvObject* EnvList_get(const EnvList* list, std::int32_t index);
void EnvList_freeChildren(EnvList* list);
void EnvList_del_(EnvList* list);

// Allocates and initialises a list head; returns its offset.
Ref newListHead(Arena* arena);
// EnvList_del_ of a head, then the head's own free; a null ref does nothing.
void freeListHead(Arena* arena, Ref head);

// Calls the teardown that the object's `del` slot names.
void callDel(EnvObject* object);

float vtxgCosPi_32f(float x);
float vtxgSinPi_32f(float x);
double vtxgCosPi_64f(double x);
double vtxgSinPi_64f(double x);
template <class T> T cosPi(T x);
template <class T> T sinPi(T x);
template <> inline float cosPi<float>(float x) { return vtxgCosPi_32f(x); }
template <> inline float sinPi<float>(float x) { return vtxgSinPi_32f(x); }
template <> inline double cosPi<double>(double x) { return vtxgCosPi_64f(x); }
template <> inline double sinPi<double>(double x) { return vtxgSinPi_64f(x); }

// The factor by which a length is split, given half the length: 0 and the
// divisor in `result`, or vtxStatusSizeError with `result` untouched.
std::int32_t divisorsIntNonTriv(std::int32_t* result, std::int32_t n);

}  // namespace vtx::plan
