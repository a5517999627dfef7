#include "core/LineFile.h"

#include "core/GameError.h"

namespace zorvane {

std::ifstream openTextFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (path.empty() || !file)
        throw GameError(GameError::Kind::FileNotFound, "file not found: " + path);
    return file;
}

// A file that opens but cannot be read (a folder named like the file, a disk error) is the
// game's input/output error: the buffer's own exception would reach the top unannounced.
bool LineReader::readLine(std::string& line) {
    try {
        return readRawLine(line);
    } catch (const std::ios_base::failure& e) {
        throw GameError(GameError::Kind::Io, where() + e.what());
    }
}

bool LineReader::readRawLine(std::string& line) {
    line.clear();
    std::streambuf* buf = in_.rdbuf();
    using traits = std::char_traits<char>;
    int c = buf->sbumpc();
    if (c == traits::eof()) {
        in_.setstate(std::ios::eofbit);
        return false;
    }
    while (c != traits::eof()) {
        if (c == '\n')
            break;
        if (c == '\r') {
            if (buf->sgetc() == '\n')
                buf->sbumpc();
            break;
        }
        line += static_cast<char>(c);
        c = buf->sbumpc();
    }
    ++line_;
    return true;
}

bool splitKeyValue(const std::string& line, std::string& key, std::string& value) {
    const std::size_t eq = line.find('=');
    if (eq == std::string::npos || eq == 0)
        return false;
    key = line.substr(0, eq);
    value = line.substr(eq + 1);
    return true;
}

} // namespace zorvane
