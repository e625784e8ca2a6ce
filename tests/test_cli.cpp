// The command-line tool as a user runs it: `vtxgen run` gives the bits of
// the library's own C call, every mistake a nonzero status and a message
// that names it, every command a --help.
#include "support.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Outcome {
    int status;
    std::string out, err;
};

std::string slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Files of this process: ctest runs the tests of the program side by side.
std::string temp(const std::string& name)
{
    return ::testing::TempDir() + "vtxgen_cli_" + std::to_string(getpid()) + "_" + name;
}

// `vtxgen ARGS` with `input` on its standard input.
Outcome vtxgen(const std::string& args, const std::string& input = "")
{
    {
        std::ofstream(temp("stdin"), std::ios::binary) << input;
    }
    const std::string command = std::string(VTX_CLI_COMMAND) + " " + args + " <" + temp("stdin") + " >" +
                                temp("stdout") + " 2>" + temp("stderr");
    const int raw = std::system(command.c_str());
    Outcome o{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, slurp(temp("stdout")), slurp(temp("stderr"))};
    for (const char* f : {"stdin", "stdout", "stderr"})
        std::remove(temp(f).c_str());
    return o;
}

enum class Call { Kernel, Wht, Dct4 };

struct Case {
    const char* args;    // after "vtxgen run"
    const char* kernel;  // the library function that computes it
    Call call;
    int in, out;  // real components read and written
    bool single;
    int flag;
};

const Case kCases[] = {
    {"cfwd 8", "vtxgDFTFwd_CToC_8_32fc", Call::Kernel, 16, 16, true, 8},
    {"cinv 12 --double --scale inverse", "vtxgDFTInv_CToC_12_64fc", Call::Kernel, 24, 24, false, 2},
    {"rfwd 10 -d -l pack -s forward", "vtxgDFTFwd_RToPack_10_64f", Call::Kernel, 10, 10, false, 1},
    {"rfwd 7 --layout ccs", "vtxgDFTFwd_RToCCS_7_32f", Call::Kernel, 7, 8, true, 8},
    {"rinv 16 --layout ccs -s 2", "vtxgDFTInv_CCSToR_16_32f", Call::Kernel, 18, 16, true, 2},
    {"rinv 9 --layout perm -d", "vtxgDFTInv_PermToR_9_64f", Call::Kernel, 9, 9, false, 8},
    {"dht 7 -d -s symmetric", "vtxgHartley_7_64f", Call::Kernel, 7, 7, false, 4},
    {"wht 512", "vtxgWHT_9_32f", Call::Wht, 512, 512, true, 8},
    {"dct4 64 -d", "vtxgDCT4_64f", Call::Dct4, 64, 64, false, 8},
    {"vtxgDFTFwd_CToC_61_32fc -s 1", "vtxgDFTFwd_CToC_61_32fc", Call::Kernel, 122, 122, true, 1},
};

class Run : public ::testing::TestWithParam<Case> {};

// The expected bytes: the library's function called directly.
std::string expected(const Case& c, const std::vector<double>& x)
{
    vtxtest::Buffer src(std::size_t(c.in) * 8), dst(std::size_t(c.out) * 8);
    src.put(0, x, c.single);
    void* fn = dlsym(RTLD_DEFAULT, c.kernel);
    EXPECT_NE(fn, nullptr) << c.kernel;
    vtxStatus s = -1;
    if (c.call == Call::Kernel) {
        s = reinterpret_cast<vtxStatus (*)(const void*, void*, int)>(fn)(src.at(0), dst.at(0), c.flag);
    } else if (c.call == Call::Wht) {
        s = reinterpret_cast<vtxStatus (*)(const void*, void*, int, void*)>(fn)(src.at(0), dst.at(0), c.flag, nullptr);
    } else {
        vtxDCT4Spec_64f* spec = nullptr;
        EXPECT_EQ(vtxgDCT4InitAlloc_64f(&spec, c.out), vtxStatusOk);
        s = vtxgDCT4_64f(reinterpret_cast<const double*>(src.at(0)), reinterpret_cast<double*>(dst.at(0)), spec);
        vtxgDCT4Free_64f(spec);
    }
    EXPECT_EQ(s, vtxStatusOk) << c.kernel;
    const auto* p = reinterpret_cast<const char*>(dst.at(0));
    return {p, p + std::size_t(c.out) * (c.single ? 4 : 8)};
}

// Text in, binary out; binary in, text out: both the C call's bits.
TEST_P(Run, GivesTheBitsOfTheLibrarysCall)
{
    const Case& c = GetParam();
    const std::vector<double> x = vtxtest::fixed_input(c.in, 7, c.single);
    const std::string want = expected(c, x);
    std::ostringstream text;
    text.precision(17);
    for (std::size_t i = 0; i < x.size(); ++i)
        text << x[i] << (i % 2 ? '\n' : ' ');
    vtxtest::Buffer raw(std::size_t(c.in) * 8);
    raw.put(0, x, c.single);
    {
        std::ofstream(temp("in.bin"), std::ios::binary)
            .write(reinterpret_cast<const char*>(raw.at(0)), std::streamsize(c.in * (c.single ? 4 : 8)));
    }

    const Outcome binary = vtxgen(std::string("run ") + c.args + " --binary-output", text.str());
    ASSERT_EQ(binary.status, 0) << binary.err;
    EXPECT_TRUE(binary.out == want) << c.args << ": binary output differs from " << c.kernel;

    const Outcome printed = vtxgen(std::string("run ") + c.args + " --binary-input -i " + temp("in.bin"));
    std::remove(temp("in.bin").c_str());
    ASSERT_EQ(printed.status, 0) << printed.err;
    std::istringstream words(printed.out);
    std::vector<double> y;
    for (std::string w; words >> w;)
        y.push_back(std::strtod(w.c_str(), nullptr));
    ASSERT_EQ(y.size(), std::size_t(c.out)) << printed.out;
    vtxtest::Buffer got(std::size_t(c.out) * 8);
    got.put(0, y, c.single);
    EXPECT_EQ(std::memcmp(got.at(0), want.data(), want.size()), 0) << c.args << ": text output differs from " << c.kernel;
}

void PrintTo(const Case& c, std::ostream* os) { *os << "vtxgen run " << c.args; }
INSTANTIATE_TEST_SUITE_P(Transforms, Run, ::testing::ValuesIn(kCases),
                         [](const ::testing::TestParamInfo<Case>& info) { return std::string(info.param.kernel); });

struct Mistake {
    const char* args;
    const char* input;
    const char* message;  // a part of what vtxgen says on standard error
};

const Mistake kMistakes[] = {
    {"frobnicate", "", "unknown command \"frobnicate\""},
    {"run cfoo 8", "", "unknown transform \"cfoo\""},
    {"run vtxgDFTFwd_CToC_65_32fc", "", "unknown transform \"vtxgDFTFwd_CToC_65_32fc\""},
    {"run cfwd 65", "", "bad size 65: vtxgDFTFwd_CToC_32fc has sizes 2 to 64"},
    {"run wht 12", "", "bad size 12: vtxgWHT_32f has sizes 2^1 to 2^13"},
    {"run dct4 48 -d", "", "bad size 48: vtxgDCT4_64f has sizes 2^1 to 2^"},
    {"run cfwd", "", "needs a size N"},
    {"run rfwd 8 --layout ccx", "", "unknown layout \"ccx\""},
    {"run cfwd 8 --scale 3", "", "unknown scale \"3\""},
    {"run cfwd 4 -i /nonexistent/vtxgen-input.txt", "", "cannot read /nonexistent/vtxgen-input.txt"},
    {"run cfwd 4", "1 2 3 4 5 6 7", "wrong element count: vtxgDFTFwd_CToC_4_32fc reads 8 numbers (4 complex as re im pairs); standard input holds 7"},
    {"run rinv 8 -l ccs -d --binary-input", "1234567", "reads 10 numbers (the CCS layout of 8 points), 80 bytes; standard input holds 7 bytes"},
    {"run cfwd 2", "1 0\n2 x", "standard input line 2: \"x\" is not a number"},
    {"check --digests /nonexistent/digests.txt", "", "cannot read /nonexistent/digests.txt"},
    {"bench --repetitions 0", "", "--repetitions must be at least 1"},
};

TEST(Mistakes, GiveANonzeroStatusAndSayWhat)
{
    for (const Mistake& m : kMistakes) {
        const Outcome o = vtxgen(m.args, m.input);
        EXPECT_NE(o.status, 0) << "vtxgen " << m.args;
        EXPECT_NE(o.err.find(m.message), std::string::npos) << "vtxgen " << m.args << " said: " << o.err;
        EXPECT_EQ(o.out, "") << "vtxgen " << m.args;
    }
}

// `vtxgen ARGS` on a terminal: `script` gives it one; what it drew there.
Outcome on_terminal(const std::string& args)
{
    const std::string command = "script -qefc \"" + std::string(VTX_CLI_COMMAND) + " " + args + "\" /dev/null >" +
                                temp("tty") + " 2>&1 </dev/null";
    const int raw = std::system(command.c_str());
    Outcome o{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, slurp(temp("tty")), ""};
    std::remove(temp("tty").c_str());
    return o;
}

// Long work shows its progress on a terminal, a line redrawn in place with
// an estimate of the time left, and nothing of it where the output goes to
// a file or with --no-progress; the benchmarks, a plain line per run.
struct Shown {
    std::string args;
    bool terminal;
    std::string present;  // a part of what it prints on standard error (or the terminal), "" for none
    std::string absent;
};

const std::string kSmallBench =
    "bench --filter '^(cfwd/32fc/(8|16)|rccs/64f/8)/(vtxgen|fftw)' --repetitions 2 --min-time 0.005 --cpu none --out " +
    temp("bench");

TEST(Progress, OnATerminalOnly)
{
    std::vector<Shown> cases = {
        {"check", true, "%  vtxgDFTFwd_CToC_2_32fc  0 s\033[K", ""},
        {"check", false, "", "\r"},
        {"check --no-progress", true, "", "\033[K"},
    };
    if (VTX_CLI_HAS_BENCH)
        cases.insert(cases.end(), {
            {kSmallBench, true, "left\033[K", ""},
            {kSmallBench, false, "[ 2/2] rccs/64f        2 benchmarks", "\r"},
            {kSmallBench, false, "left", "\033[K"},
            {kSmallBench + " --no-progress", false, "", "[ 1/2]"},
        });
    for (const Shown& c : cases) {
        const Outcome o = c.terminal ? on_terminal(c.args) : vtxgen(c.args);
        const std::string& shown = c.terminal ? o.out : o.err;
        const std::string where = std::string("vtxgen ") + c.args + std::string(c.terminal ? " on a terminal" : "");
        EXPECT_EQ(o.status, 0) << where << ": " << o.err;
        if (!c.present.empty()) {
            EXPECT_NE(shown.find(c.present), std::string::npos) << where << " shows no \"" << c.present << "\"";
        }
        if (!c.absent.empty()) {
            EXPECT_EQ(shown.find(c.absent), std::string::npos) << where << " shows \"" << c.absent << "\"";
        }
    }
    std::filesystem::remove_all(temp("bench"));
}

// The benchmarks time FFTW beside every kernel where the configuration made
// it a condition (the test preset's).
TEST(Bench, HasFftwRows)
{
    if (!VTX_CLI_HAS_BENCH || !VTX_CLI_EXPECT_FFTW)
        GTEST_SKIP() << "this configuration has no benchmarks or does not require FFTW";
    const Outcome o = vtxgen(kSmallBench + " --no-progress");
    ASSERT_EQ(o.status, 0) << o.err;
    std::istringstream csv(slurp(temp("bench") + "/vtxgen_bench.csv"));
    std::string line;
    int rows = 0;
    std::getline(csv, line);
    EXPECT_EQ(line.rfind("family,precision,size,vtxgen_ns,fftw_ns,", 0), 0u) << line;
    while (std::getline(csv, line)) {
        std::istringstream cells(line);
        std::vector<std::string> cell;
        for (std::string c; std::getline(cells, c, ',');)
            cell.push_back(c);
        ASSERT_GE(cell.size(), 6u) << line;
        EXPECT_GT(std::strtod(cell[4].c_str(), nullptr), 0) << "no FFTW time: " << line;
        ++rows;
    }
    EXPECT_EQ(rows, 3);
    std::filesystem::remove_all(temp("bench"));
}

TEST(Help, EveryCommandHasOne)
{
    for (const char* command : {"info", "run", "check", "bench"}) {
        const Outcome o = vtxgen(std::string(command) + " --help");
        EXPECT_EQ(o.status, 0) << command;
        EXPECT_EQ(o.out.rfind(std::string("usage: vtxgen ") + command, 0), 0u) << o.out;
    }
}

}  // namespace
