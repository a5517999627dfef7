#pragma once
#include <stdexcept>
#include <string>

namespace zorvane {

// The one run-time error of the game. Whatever the game calls fatal (a missing data file,
// a 16-bit overflow, an index out of bounds, a division by zero, a bad number where a
// number must stand) throws this. Only saveGame and loadGame catch it, and leave silently;
// anywhere else it ends the program with its message.
class GameError : public std::runtime_error {
  public:
    enum class Kind { Overflow, Bounds, DivisionByZero, Type, FileNotFound, Io };

    GameError(Kind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}
    Kind kind() const { return kind_; }

  private:
    Kind kind_;
};

// Not an error: the game has decided that the process ends now (quit, new game, a No to
// a continue question). Top levels catch it and end the process without clean-up.
class ProcessEnded : public std::exception {
  public:
    explicit ProcessEnded(std::string why) : why_(std::move(why)) {}
    const char* what() const noexcept override { return why_.c_str(); }

  private:
    std::string why_;
};

} // namespace zorvane
