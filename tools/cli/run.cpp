// vtxgen run: one transform applied to the caller's numbers.
#include "cli.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace vtxcli {

namespace {

std::string status_text(vtxStatus s)
{
    switch (s) {
    case vtxStatusNullPointer: return "vtxStatusNullPointer";
    case vtxStatusFlagError: return "vtxStatusFlagError";
    case vtxStatusSizeError: return "vtxStatusSizeError";
    default: return "status " + std::to_string(s);
    }
}

std::vector<char> read_all(const std::string& path)
{
    if (path == "-") {
        std::cin >> std::noskipws;
        return {std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>()};
    }
    std::ifstream in(path, std::ios::binary);
    if (!in)
        fail("cannot read " + path + ": " + std::strerror(errno));
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Whitespace-separated numbers as doubles (anything strtod reads: 1e-3,
// 0x1.8p1, inf, nan).
std::vector<double> parse_text(const std::vector<char>& bytes, const std::string& path)
{
    std::vector<double> out;
    std::istringstream in(std::string(bytes.begin(), bytes.end()));
    std::string line, word;
    for (int number = 1; std::getline(in, line); ++number) {
        std::istringstream words(line);
        while (words >> word) {
            char* end = nullptr;
            const double v = std::strtod(word.c_str(), &end);
            if (*end)
                fail((path == "-" ? std::string("standard input") : path) + " line " + std::to_string(number) + ": \"" +
                     word + "\" is not a number");
            out.push_back(v);
        }
    }
    return out;
}

std::string describe(const Transform& t, std::size_t components, bool source)
{
    const std::string& layout = source ? t.fn->from : t.fn->to;
    const std::string what = t.fn->form == vtxtest::Form::Dct4Run ? "R" : layout;
    if (what == "C")
        return std::to_string(components) + " numbers (" + std::to_string(components / 2) + " complex as re im pairs)";
    if (what == "R")
        return std::to_string(components) + " numbers";
    return std::to_string(components) + " numbers (the " + what + " layout of " + std::to_string(t.n) + " points)";
}

}  // namespace

int run(const std::vector<std::string>& args)
{
    std::vector<std::string> words;
    bool single = true, binary_in = false, binary_out = false;
    int count = 0;  // transforms of one batch call; 0: one single call
    std::string layout = "ccs", input = "-", output;
    int flag = vtxScaleNone;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&]() -> const std::string& { return option_value(args, i); };
        if (a == "-d" || a == "--double")
            single = false;
        else if (a == "--single")
            single = true;
        else if (a == "-l" || a == "--layout")
            layout = value();
        else if (a == "-s" || a == "--scale")
            flag = parse_flag(value());
        else if (a == "-i" || a == "--input")
            input = value();
        else if (a == "-o" || a == "--output")
            output = value();
        else if (a == "-c" || a == "--count") {
            if ((count = to_int(value(), "--count")) < 1)
                usage("--count must be at least 1");
        }
        else if (a == "--binary-input")
            binary_in = true;
        else if (a == "--binary-output")
            binary_out = true;
        else if (a.size() > 1 && a[0] == '-')
            usage("unknown option " + a);
        else
            words.push_back(a);
    }
    if (words.empty())
        usage("run needs a transform, e.g. vtxgen run cfwd 8");
    const bool named = words[0].rfind("vtxg", 0) == 0;
    if (words.size() > 2 || (words.size() == 1 && !named))
        usage(words.size() > 2 ? "too many words: \"" + words[2] + "\"" : "run " + words[0] + " needs a size N");
    const int n = words.size() > 1 ? to_int(words[1], "the size") : 0;
    Transform t = named ? find_kernel(words[0], n) : find_transform(words[0], n, single, layout);
    if (count)
        t = batch_of(t);

    const std::vector<char> bytes = read_all(input);
    const std::size_t width = t.single() ? 4 : 8, want = t.in() * std::size_t(count ? count : 1);
    const std::string from = input == "-" ? "standard input" : input;
    std::vector<double> x;
    if (binary_in) {
        if (bytes.size() != want * width)
            fail("wrong element count: " + t.name() + " reads " + describe(t, want, true) + ", " + std::to_string(want * width) +
                 " bytes; " + from + " holds " + std::to_string(bytes.size()) + " bytes");
        for (std::size_t i = 0; i < want; ++i) {
            if (t.single()) {
                float f;
                std::memcpy(&f, bytes.data() + 4 * i, 4);
                x.push_back(f);
            } else {
                double d;
                std::memcpy(&d, bytes.data() + 8 * i, 8);
                x.push_back(d);
            }
        }
    } else {
        x = parse_text(bytes, input);
        if (x.size() != want)
            fail("wrong element count: " + t.name() + " reads " + describe(t, want, true) + "; " + from + " holds " +
                 std::to_string(x.size()));
    }

    // The arrays in the kernel's element type; a batch's transforms one
    // after another.
    const std::size_t outputs = t.out() * std::size_t(count ? count : 1);
    std::vector<float> sf(x.begin(), x.end()), df(outputs);
    std::vector<double> sd(x), dd(outputs);
    vtxStatus s;
    if (count) {
        vtxtest::Args a;
        a.src = t.single() ? static_cast<const void*>(sf.data()) : sd.data();
        a.dst = t.single() ? static_cast<void*>(df.data()) : dd.data();
        a.n = t.n;
        a.flag = flag;
        a.count = count;
        s = (*t.fn)(a);
    } else {
        s = t.single() ? t(sf.data(), df.data(), flag) : t(sd.data(), dd.data(), flag);
    }
    if (s != vtxStatusOk)
        fail(t.name() + " returned " + status_text(s));

    std::FILE* out = stdout;
    if (!output.empty() && !(out = std::fopen(output.c_str(), "wb")))
        fail("cannot write " + output + ": " + std::strerror(errno));
    const bool pairs = t.fn->to == "C" && t.fn->form != vtxtest::Form::Dct4Run;
    for (std::size_t i = 0; i < outputs; ++i) {
        if (binary_out)
            std::fwrite(t.single() ? static_cast<const void*>(&df[i]) : static_cast<const void*>(&dd[i]), width, 1, out);
        else if (t.single())
            std::fprintf(out, "%.9g%c", double(df[i]), pairs && i % 2 == 0 ? ' ' : '\n');
        else
            std::fprintf(out, "%.17g%c", dd[i], pairs && i % 2 == 0 ? ' ' : '\n');
    }
    if (std::ferror(out) || (out != stdout && std::fclose(out) != 0))
        fail("cannot write " + (output.empty() ? std::string("standard output") : output));
    return 0;
}

}  // namespace vtxcli
