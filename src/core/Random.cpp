#include "core/Random.h"

#include <ctime>

namespace zorvane {

std::uint64_t secondsSinceMidnight() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return static_cast<std::uint64_t>(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec);
}

} // namespace zorvane
