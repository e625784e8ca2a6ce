// Progress of long work on standard error.  On a terminal one line is
// redrawn in place, at most ten times a second: the share done, what runs,
// the time spent and an estimate of the time left.  It is erased before
// the command prints a line of its own.  Elsewhere (a pipe, a CI log), or
// when turned off, it draws nothing: the command's own lines are the record.
#pragma once

#include <chrono>
#include <string>

namespace vtxcli {

class Progress {
public:
    // `wanted`: not turned off by the user; drawn only when standard error
    // is a terminal as well.
    explicit Progress(bool wanted);

    bool live() const { return live_; }
    double seconds() const;  // since the work began

    // `done` of `total` units of work (any unit that the time grows with).
    void show(double done, double total, const std::string& what);
    void clear();

    // "about 2 min 5 s left" from the units done in `seconds`; "" before
    // any is done.
    static std::string left(double done, double total, double seconds);

private:
    bool live_;
    bool drawn_ = false;
    std::chrono::steady_clock::time_point start_, last_;
};

}  // namespace vtxcli
