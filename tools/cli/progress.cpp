#include "progress.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace vtxcli {

Progress::Progress(bool wanted)
    : live_(wanted && isatty(2)), start_(std::chrono::steady_clock::now()), last_(start_)
{
}

double Progress::seconds() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

std::string Progress::left(double done, double total, double seconds)
{
    if (!(done > 0) || seconds <= 0)
        return "";
    const long s = std::lround(seconds * std::max(0.0, total - done) / done);
    char text[64];
    if (s >= 60)
        std::snprintf(text, sizeof text, "about %ld min %02ld s left", s / 60, s % 60);
    else
        std::snprintf(text, sizeof text, "about %ld s left", s);
    return text;
}

void Progress::show(double done, double total, const std::string& what)
{
    if (!live_)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (drawn_ && now - last_ < std::chrono::milliseconds(100))
        return;
    last_ = now;
    drawn_ = true;
    const double spent = seconds();
    const std::string rest = left(done, total, spent);
    std::fprintf(stderr, "\r%3.0f%%  %s  %.0f s%s%s\033[K", total > 0 ? 100 * done / total : 0.0, what.c_str(), spent,
                 rest.empty() ? "" : ", ", rest.c_str());
    std::fflush(stderr);
}

void Progress::clear()
{
    if (!drawn_)
        return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    drawn_ = false;
}

}  // namespace vtxcli
