// Many threads at once through every exported transform, each thread with
// its own buffers and its own DCT-IV plans, each starting at another place
// in the list: every call gives the bits of the same call made alone.  Built
// with the thread sanitizer too, where a shared write inside the library is
// reported as a race.
#include "exports.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <thread>
#include <vector>

namespace {

using vtxtest::Export;

using Bytes = std::vector<unsigned char>;

// The calls of one pass: every transform at each of its settings.
struct Call {
    const Export* e;
    int n;
    std::size_t plan;  // index of the setting among the export's, for its plan
};

std::vector<Call> everyCall()
{
    vtxtest::Plans plans;
    std::vector<Call> calls;
    for (const Export& e : vtxtest::exports()) {
        const auto settings = vtxtest::settings(e, plans);
        for (std::size_t i = 0; i < settings.size(); ++i)
            calls.push_back({&e, settings[i].n, i});
    }
    return calls;
}

// The destination bytes of every call, made in the order first, first + 1,
// ... around the list, with plans of the caller's own.
std::vector<Bytes> pass(const std::vector<Call>& calls, std::size_t first, vtxtest::Plans& plans)
{
    std::vector<Bytes> out(calls.size());
    for (std::size_t j = 0; j < calls.size(); ++j) {
        const std::size_t i = (first + j) % calls.size();
        const Export& e = *calls[i].e;
        const std::size_t in = e.source_components(calls[i].n) * e.element_bytes;
        const std::size_t bytes = e.destination_components(calls[i].n) * e.element_bytes;
        vtxtest::Buffer src(in), dst(bytes), work(static_cast<std::size_t>(vtxtest::work_buffer_bytes(e, calls[i].n)));
        src.put(0, vtxtest::fixed_input(static_cast<int>(in / e.element_bytes), static_cast<std::uint32_t>(i),
                                        e.element_bytes == 4),
                e.element_bytes == 4);
        vtxtest::Args a{src.at(0), dst.at(0), calls[i].n, vtxScaleNone, work.size() ? work.at(0) : nullptr};
        a.spec = vtxtest::settings(e, plans)[calls[i].plan].spec;
        if (e(a) != vtxStatusOk)
            throw std::runtime_error(e.name + " failed at " + std::to_string(calls[i].n));
        out[i].assign(dst.at(0), dst.at(0) + bytes);
    }
    return out;
}

TEST(Threads, EveryTransformGivesItsBitsOnManyThreadsAtOnce)
{
    const std::vector<Call> calls = everyCall();
    vtxtest::Plans alonePlans;
    const std::vector<Bytes> alone = pass(calls, 0, alonePlans);

    constexpr int kThreads = 8;
    std::vector<std::vector<Bytes>> results(kThreads);
    std::vector<std::string> errors(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&, t] {
            try {
                vtxtest::Plans plans;
                results[t] = pass(calls, calls.size() * t / kThreads, plans);
            } catch (const std::exception& x) {
                errors[t] = x.what();
            }
        });
    for (std::thread& t : threads)
        t.join();
    for (int t = 0; t < kThreads; ++t) {
        ASSERT_EQ(errors[t], "") << "thread " << t;
        for (std::size_t i = 0; i < calls.size(); ++i)
            ASSERT_EQ(results[t][i], alone[i]) << calls[i].e->name << " at " << calls[i].n << ", thread " << t;
    }
    std::printf("%zu calls on each of %d threads\n", calls.size(), kThreads);
}

}  // namespace
