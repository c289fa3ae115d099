// Time that this process has computed for: what a search gets does not depend on what else runs.
#pragma once

#include <chrono>
#include <ctime>

struct ProcessorClock {
    using duration = std::chrono::microseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<ProcessorClock>;
    static constexpr bool is_steady = true;
    static time_point now() {
        return time_point(
            duration(static_cast<rep>(static_cast<double>(std::clock()) * 1e6 / CLOCKS_PER_SEC)));
    }
};
