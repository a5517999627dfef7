#pragma once
#include <fstream>
#include <istream>
#include <string>

namespace zorvane {

// Reads a text file line by line. A line ends at CR LF, at LF or at a lone CR, so files
// written on any system read alike. Counts lines for error messages.
class LineReader {
  public:
    LineReader(std::istream& in, std::string name) : in_(in), name_(std::move(name)) {}

    bool readLine(std::string& line);
    bool atEnd() { return in_.peek() == std::char_traits<char>::eof(); }

    int lineNumber() const { return line_; }
    const std::string& name() const { return name_; }
    // "file.txt line 12: " for messages.
    std::string where() const { return name_ + " line " + std::to_string(line_) + ": "; }

  private:
    bool readRawLine(std::string& line);

    std::istream& in_;
    std::string name_;
    int line_ = 0;
};

// Opens a file for reading; one that cannot be opened (or an empty path) is the game's
// file-not-found error, naming the path.
std::ifstream openTextFile(const std::string& path);

// Writes the lines of a saved game, each ended by CR LF.
class LineWriter {
  public:
    explicit LineWriter(std::ostream& out) : out_(out) {}
    void line(const std::string& text) { out_ << text << "\r\n"; }
    LineWriter& operator<<(const std::string& text) {
        line(text);
        return *this;
    }

  private:
    std::ostream& out_;
};

// Splits "key=value" at the first "=". Returns false when there is none or it stands first
// (a key must have at least one character), as every section reader requires.
bool splitKeyValue(const std::string& line, std::string& key, std::string& value);

// Reads a saved-game section's lines up to and including its closing line (the first that
// begins with "</"), handing each "key=value" line to `entry`; other lines are skipped.
// An entry takes a value's number only for the keys that hold numbers: a name, or a key the
// game does not know, may begin like a number too large to read, and must not stop the load.
template <typename Entry> void readSection(LineReader& in, Entry&& entry) {
    std::string line, key, value;
    while (in.readLine(line)) {
        if (line.rfind("</", 0) == 0)
            return;
        if (splitKeyValue(line, key, value))
            entry(key, value);
    }
}

} // namespace zorvane
