#pragma once
#include "core/GameError.h"
#include "session/Game.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

// What every loader target shares: one program folder per process, a fresh Game per input,
// and the rule of what counts as a finding.
namespace zorvane::fuzz {

// The program folder of this process: a temporary copy of the shipped data files, made on
// first use and removed at exit. A target writes its input over one of the files.
class FuzzFolder {
  public:
    static const FuzzFolder& instance();

    const std::string& path() const { return path_; }
    std::string file(const std::string& name) const { return path_ + "/" + name; }
    // Writes an input as the named file of the folder, byte for byte.
    std::string write(const std::string& name, const std::uint8_t* data, std::size_t size) const;
    // Cuts movies.lst, games.lst and employees.cfg to their first `entries` lines that are
    // not comments, and drops the notes of goals.cfg. Start-up reads them line by line, and
    // most of a target's time went there; nothing a target checks depends on how long the
    // catalogues are.
    void trimCatalogues(std::size_t entries) const;

    FuzzFolder(const FuzzFolder&) = delete;
    FuzzFolder& operator=(const FuzzFolder&) = delete;
    ~FuzzFolder();

  private:
    FuzzFolder();
    std::string path_;
};

// Writes an input as the named file of the fuzz folder, the catalogues cut to 40 entries
// (once per process, see trimCatalogues); returns the file's path.
std::string writeInput(const std::string& name, const std::uint8_t* data, std::size_t size);

// Questions answered without a player: the YesNo questions get `yesNo`, the others Cancel
// where offered, else OK. Input boxes and file dialogs are cancelled.
class FuzzDialogs : public DialogPort {
  public:
    Answer yesNo = Answer::No;
    int questions = 0;

    Answer ask(const std::string& text, Buttons buttons) override;
    std::string input(const std::string&, const std::string&, const std::string&) override {
        return "";
    }
    std::string chooseFile(FileMode, const std::string&, const std::string&) override { return ""; }
};

// A fresh game on the fuzz folder with a fixed seed: every input runs the same dice.
struct FuzzGame {
    FuzzDialogs dialogs;
    MemorySettings settings;
    NullScreen screen;
    std::unique_ptr<Game> game;

    explicit FuzzGame(std::uint64_t seed = 1);
    Game& operator*() { return *game; }
    Game* operator->() { return game.get(); }
};

// The math variables of the shipped math.txt, read once per process.
const MathVars& shippedMath();

// Game::startup's steps in their order, with the shipped math copied in instead of read
// (the math target reads its input through the real start-up): the state a loaded game or
// a day expects. Runs the first day as start-up does.
void startWithShippedMath(Game& game);

// A game started with the shipped math, "Play !" pressed on Free Play, and money enough for
// anything: the state in which the targets act as a player would.
void startRichGame(Game& game);

// Saves the sections of `game` with the given open tags (as the saved game writes them),
// reads that text into a fresh started game and saves the same sections again: the two
// texts must agree (SaveCompare.h), or it is a finding named after `what`.
void checkSectionsRoundTrip(Game& game, std::initializer_list<const char*> tags,
                            const std::string& what);

// Runs one input's work. The game's own run-time error (GameError) and the end of the
// process (ProcessEnded) are correct outcomes. Any other exception is a finding: its message
// is printed and the process aborts, so libFuzzer keeps the input.
template <typename Body> int runInput(Body&& body);

[[noreturn]] void finding(const std::string& what);

// The whole content of a file, "" when it cannot be read.
std::string readFile(const std::string& path);

// With ZORVANE_FUZZ_VERBOSE set, runInput prints how each input ended (for corpus work).
void tellOutcome(const char* outcome, const char* message);

template <typename Body> int runInput(Body&& body) {
    try {
        body();
        tellOutcome("read", "");
    } catch (const GameError& e) {
        tellOutcome("run-time error", e.what());
    } catch (const ProcessEnded& e) {
        tellOutcome("process ended", e.what());
    } catch (const std::exception& e) {
        finding(std::string("an exception that is not the game's run-time error escaped: ") +
                e.what());
    }
    return 0;
}

} // namespace zorvane::fuzz
