#include "core/SoundPort.h"

#include <filesystem>

namespace zorvane {

namespace {
bool valid(int player) {
    return player >= 0 && player < SoundPort::players;
}
} // namespace

void RecordingSound::open(int player, const std::string& path) {
    if (!valid(player))
        return;
    std::error_code ec;
    const auto size = std::filesystem::file_size(path, ec);
    opened[static_cast<std::size_t>(player)] = (!ec && size > 0) ? path : "";
}

void RecordingSound::play(int player) {
    if (!valid(player) || opened[static_cast<std::size_t>(player)].empty())
        return;
    playing[static_cast<std::size_t>(player)] = true;
    played.push_back(
        std::filesystem::path(opened[static_cast<std::size_t>(player)]).filename().string());
}

void RecordingSound::stop(int player) {
    if (valid(player))
        playing[static_cast<std::size_t>(player)] = false;
}

} // namespace zorvane
