// vtxgen bench: the benchmark program vtxgen_bench run family by family,
// then the report script's table, CSV, Markdown page and SVG plot.
#include "cli.hpp"
#include "progress.hpp"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <sys/stat.h>
#include <sys/wait.h>
#include <fcntl.h>
#include <unistd.h>

namespace vtxcli {

namespace {

bool executable(const std::string& path) { return !path.empty() && access(path.c_str(), X_OK) == 0; }
bool readable(const std::string& path) { return !path.empty() && access(path.c_str(), R_OK) == 0; }

std::string self_dir()
{
    char buf[4096];
    const ssize_t n = readlink("/proc/self/exe", buf, sizeof buf - 1);
    if (n <= 0)
        return ".";
    std::string path(buf, std::size_t(n));
    return path.substr(0, path.rfind('/'));
}

// The first of `candidates` that passes `ok`, or "".
template <class Ok>
std::string first_of(std::initializer_list<std::string> candidates, Ok ok)
{
    for (const std::string& c : candidates)
        if (ok(c))
            return c;
    return {};
}

std::string on_path(const std::string& program)
{
    const char* path = std::getenv("PATH");
    std::string dirs = path ? path : "/usr/bin:/bin";
    for (std::size_t from = 0; from <= dirs.size();) {
        std::size_t to = dirs.find(':', from);
        if (to == std::string::npos)
            to = dirs.size();
        std::string candidate = dirs.substr(from, to - from) + "/" + program;
        if (executable(candidate))
            return candidate;
        from = to + 1;
    }
    return {};
}

// Runs argv with standard output and error appended to `log` (or inherited
// when `log` is empty); the exit status.  `waiting`, when given, is called
// about ten times a second until the process ends.
int spawn(const std::vector<std::string>& argv, const std::string& log, const std::function<void()>& waiting = {})
{
    std::fflush(nullptr);
    const pid_t pid = fork();
    if (pid < 0)
        fail(std::string("cannot start a process: ") + std::strerror(errno));
    if (pid == 0) {
        if (!log.empty()) {
            const int fd = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
            if (fd >= 0) {
                dup2(fd, 1);
                dup2(fd, 2);
                close(fd);
            }
        }
        std::vector<char*> args;
        for (const std::string& a : argv)
            args.push_back(const_cast<char*>(a.c_str()));
        args.push_back(nullptr);
        execv(args[0], args.data());
        std::fprintf(stderr, "cannot run %s: %s\n", args[0], std::strerror(errno));
        _exit(127);
    }
    int status = 0;
    for (;;) {
        const pid_t ended = waitpid(pid, &status, waiting ? WNOHANG : 0);
        if (ended == pid || (ended < 0 && errno != EINTR))
            break;
        if (ended == 0) {
            waiting();
            usleep(100000);
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// The benchmark names matching `filter`, in the program's order.
std::vector<std::string> list(const std::string& program, const std::string& filter)
{
    const std::string command = "'" + program + "' --benchmark_list_tests --benchmark_filter='" + filter + "' 2>/dev/null";
    std::FILE* p = popen(command.c_str(), "r");
    if (!p)
        fail("cannot run " + program);
    std::vector<std::string> names;
    char line[512];
    while (std::fgets(line, sizeof line, p)) {
        std::string name(line);
        while (!name.empty() && (name.back() == '\n' || name.back() == '\r'))
            name.pop_back();
        if (!name.empty())
            names.push_back(name);
    }
    if (pclose(p) != 0)
        fail(program + " --benchmark_list_tests failed (is the filter \"" + filter + "\" a valid regular expression?)");
    return names;
}

}  // namespace

int bench(const std::vector<std::string>& args)
{
    bool quick = false, table = false, progress_wanted = true;
    std::string out = "vtxgen-bench", filter, cpu = "1", program, report;
    int repetitions = 0;  // 0: the mode's default
    std::string min_time;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&]() -> const std::string& { return option_value(args, i); };
        if (a == "--quick")
            quick = true;
        else if (a == "--table")
            table = true;
        else if (a == "--no-progress")
            progress_wanted = false;
        else if (a == "--out")
            out = value();
        else if (a == "--filter")
            filter = value();
        else if (a == "--repetitions") {
            if ((repetitions = to_int(value(), "--repetitions")) < 1)
                usage("--repetitions must be at least 1");
        }
        else if (a == "--min-time")
            min_time = value();
        else if (a == "--cpu")
            cpu = value();
        else if (a == "--bench")
            program = value();
        else if (a == "--report")
            report = value();
        else
            usage("unknown argument \"" + a + "\"");
    }
    // Full: as the bench-report target (100 x 2 ms, the fastest kept).
    // Quick: 5 x 0.5 ms, the Walsh-Hadamard and DCT-IV up to 8192 points,
    // the batches at 16 and 64 points.  Full: every row, the batches' loops
    // of single calls too.
    // Each benchmark first runs untimed for as long as a repetition, so
    // that FFTW's planning on first use stays out of the timed calls.
    if (!repetitions)
        repetitions = quick ? 5 : 100;
    if (min_time.empty())
        min_time = quick ? "0.0005" : "0.002";
    if (filter.empty())
        filter = quick ? "^((cfwd|cinv|rccs|iccs|dht)/[^/]+/[0-9]+|(wht|dct4)/[^/]+/[0-9]{1,4}|"
                         "b(cfwd|rccs|iccs|dht)/[^/]+/(16|64))/(vtxgen|fftw)$"
                       : "/(vtxgen|fftw)$|^b[a-z]+/[^/]+/[0-9]+/scalar$";

    const std::string dir = self_dir();
    program = program.empty() ? first_of({dir + "/../libexec/vtxgen/vtxgen_bench", VTX_CLI_BENCH}, executable) : program;
    if (!executable(program))
        fail("no benchmark program vtxgen_bench" + (program.empty() ? std::string() : " at " + program) +
             " (it is built with Google Benchmark, libbenchmark-dev; --bench PROGRAM names one)");
    report = report.empty() ? first_of({dir + "/../share/vtxgen/bench_report.py", VTX_CLI_REPORT}, readable) : report;
    if (!readable(report))
        fail("no report script bench_report.py (--report SCRIPT names one)");
    const std::string python = on_path("python3");
    if (python.empty())
        fail("python3 is needed for the report and was not found on PATH");

    // One run of the benchmark program per family and precision: its pairs
    // interleaved within the run, a progress line between runs.
    std::vector<std::pair<std::string, std::vector<std::string>>> groups;
    std::map<std::string, std::size_t> group_of;
    for (const std::string& name : list(program, filter)) {
        const std::string group = name.substr(0, name.find('/', name.find('/') + 1));
        if (!group_of.count(group)) {
            group_of[group] = groups.size();
            groups.push_back({group, {}});
        }
        groups[group_of[group]].second.push_back(name);
    }
    if (groups.empty())
        fail("no benchmark matches \"" + filter + "\"");
    if (mkdir(out.c_str(), 0755) != 0 && errno != EEXIST)
        fail("cannot create " + out + ": " + std::strerror(errno));
    const std::string log = out + "/vtxgen_bench.log";
    std::remove(log.c_str());
    std::vector<std::string> pin;
    const std::string taskset = on_path("taskset");
    if (cpu != "none" && !taskset.empty()) {
        const long cores = sysconf(_SC_NPROCESSORS_ONLN);
        pin = {taskset, "-c", to_int(cpu, "--cpu") < cores ? cpu : "0"};
    }
    std::size_t total = 0;
    for (const auto& g : groups)
        total += g.second.size();
    std::fprintf(stderr, "vtxgen bench: %zu benchmarks in %zu runs, %d x %s s each%s; output in %s/\n", total,
                 groups.size(), repetitions, min_time.c_str(), pin.empty() ? "" : (", pinned to core " + pin[2]).c_str(),
                 out.c_str());
    // On a terminal a line redrawn in place, the share done interpolated
    // within a run at the pace of the runs before (a benchmark takes about
    // the same time whatever its size); elsewhere a line per run.  Both
    // estimate the time left.
    Progress progress(progress_wanted);
    const double guess = repetitions * std::atof(min_time.c_str()) * 3;  // seconds a benchmark, before any ran
    double done = 0;
    std::vector<std::string> jsons;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        // (Not a structured binding: the lambda below takes `names`, which
        // clang 14 cannot capture from one.)
        const auto& group = groups[i].first;
        const auto& names = groups[i].second;
        char label[96];
        std::snprintf(label, sizeof label, "[%2zu/%zu] %-12s %4zu benchmarks", i + 1, groups.size(), group.c_str(),
                      names.size());
        if (progress_wanted && !progress.live()) {
            const std::string left = Progress::left(done, double(total), progress.seconds());
            std::fprintf(stderr, "%s   %5.0f s%s%s\n", label, progress.seconds(), left.empty() ? "" : ", ", left.c_str());
        }
        std::string only = "^(";
        for (const std::string& n : names)
            only += (only.size() > 2 ? "|" : "") + n;
        only += ")$";
        std::string json = group;
        std::replace(json.begin(), json.end(), '/', '-');
        json = out + "/vtxgen_bench-" + json + ".json";
        std::vector<std::string> argv = pin;
        for (const std::string& a :
             {program, "--benchmark_filter=" + only, "--benchmark_repetitions=" + std::to_string(repetitions),
              "--benchmark_min_time=" + min_time, "--benchmark_min_warmup_time=" + min_time,
              std::string("--benchmark_enable_random_interleaving=true"),
              std::string("--benchmark_display_aggregates_only=true"), "--benchmark_out=" + json,
              std::string("--benchmark_out_format=json")})
            argv.push_back(a);
        const double began = progress.seconds(), pace = done > 0 ? began / done : guess;
        const int status = spawn(argv, log, [&] {
            const double within = std::min(0.95, (progress.seconds() - began) / pace / double(names.size()));
            progress.show(done + within * double(names.size()), double(total), label);
        });
        if (status != 0) {
            progress.clear();
            fail("vtxgen_bench stopped with status " + std::to_string(status) + " in " + group + "; see " + log);
        }
        done += double(names.size());
        jsons.push_back(json);
    }
    progress.clear();
    if (progress_wanted)
        std::fprintf(stderr, "%zu benchmarks in %.0f s\n", total, progress.seconds());
    std::vector<std::string> argv{python, report};
    argv.insert(argv.end(), jsons.begin(), jsons.end());
    for (const std::string& a : {std::string("--csv"), out + "/vtxgen_bench.csv", std::string("--markdown"),
                                 out + "/vtxgen_bench.md", std::string("--svg"), out + "/vtxgen_bench.svg"})
        argv.push_back(a);
    if (!table)
        argv.push_back("--brief");
    if (const int status = spawn(argv, ""); status != 0)
        fail("the report script stopped with status " + std::to_string(status));
    return 0;
}

}  // namespace vtxcli
