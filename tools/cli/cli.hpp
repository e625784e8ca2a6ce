// The vtxgen command-line tool: what its commands share.
#pragma once

#include "exports.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace vtxcli {

// A command-line mistake or a failed operation: main prints "vtxgen: " and
// the message and exits with status 2 (usage) or 1 (anything else).
struct Error {
    std::string message;
    int status = 1;
};
[[noreturn]] void fail(const std::string& message, int status = 1);
[[noreturn]] void usage(const std::string& message);

// One transform of the library at one size: the exported function that
// computes it, looked up in the loaded library.
struct Transform {
    const vtxtest::Export* fn = nullptr;  // a kernel, a WHT kernel or vtxgDCT4_*
    int n = 0;                            // points
    bool single() const { return fn->element_bytes == 4; }
    std::size_t in() const;   // real components read
    std::size_t out() const;  // real components written
    bool flagged() const { return fn->form != vtxtest::Form::Dct4Run; }  // takes a scale flag
    std::string name() const;  // vtxgDFTFwd_CToC_8_32fc, vtxgDCT4_32f (N 1024)
    // One call on the caller's arrays; the DCT-IV plans are made on first use.
    vtxStatus operator()(const void* src, void* dst, int flag) const;
};

// The family of an export: its general entry's name (the name without the
// size or order), "" for exports that are no transform.
std::string family_of(const vtxtest::Export& e);

// The families, each with its transforms at every size the library has, in
// the library's order; DCT-IV lengths from 2 up to `dct4_max`.
struct Family {
    std::string name;
    std::vector<Transform> sizes;
};
std::vector<Family> families(int dct4_max);

// The DCT-IV lengths 2^k a plan can be made for, the largest.
int dct4_largest(bool single);

// "2-64", "2, 4, ..., 8192" style list of the sizes of a family.
std::string size_list(const Family& f);

// Resolves a transform from the words of `vtxgen run`: a family short name
// (cfwd, cinv, rfwd, rinv, dht, wht, dct4) with size, precision and layout,
// or an exported kernel's name.  Unknown names and sizes fail with a list of
// what exists.
Transform find_transform(const std::string& family, int n, bool single, const std::string& layout);
Transform find_kernel(const std::string& name, int n);

// The batch entry of a kernel's family at the kernel's size; a usage error
// for a family without one.
Transform batch_of(const Transform& t);

// The scale flag from a word: forward, inverse, symmetric, none or 1, 2, 4, 8.
int parse_flag(const std::string& word);

int info(const std::vector<std::string>& args);
int run(const std::vector<std::string>& args);
int check(const std::vector<std::string>& args);
int bench(const std::vector<std::string>& args);

// The word after the option args[i], moving i to it; a usage error at the end.
const std::string& option_value(const std::vector<std::string>& args, std::size_t& i);

// Integer of a command-line word, or a usage error naming `what`.
int to_int(const std::string& word, const std::string& what);

}  // namespace vtxcli
