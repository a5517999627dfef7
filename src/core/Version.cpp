#include "core/Version.h"

namespace zorvane {

namespace {
constexpr int versionMajor = 2, versionMinor = 0, versionRevision = 1;
}

const std::string& programVersion() {
    static const std::string version = std::to_string(versionMajor) + "." +
                                       std::to_string(versionMinor) + "." +
                                       std::to_string(versionRevision);
    return version;
}

} // namespace zorvane
