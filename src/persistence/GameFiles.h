#pragma once
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The saved-game container: one plain .zvn text file of tagged sections, CR LF lines. Each
// manager writes and reads its own section; this class fixes their order on writing, finds
// them in any order on reading, and leaves silently when something fails.
class GameFiles {
  public:
    explicit GameFiles(Game& game) : game_(game) {}

    // The file dialog's filter for open and save.
    static const char* const fileFilter;
    // The message after loading a file that carries no matching program version.
    static const char* const versionMessage;

    // "Save Theater": writes every section to the current path (asking for one when there is
    // none). False only when the player cancelled the file dialog.
    bool saveGame();
    // "Save As...": forgets the current path first, so the dialog comes up.
    bool saveAs();
    // Reads a saved game; an empty path asks through the open dialog ("Open Theater").
    void loadGame(const std::string& path);
    // "Open Theater".
    void openTheater() { loadGame(""); }

    // Reads the <version> section; true when its programVersion matches this program's.
    static bool readVersionSection(LineReader& in);

    // One section of the file: its open tag and the routines that write and read it.
    struct Section {
        const char* tag;
        void (*save)(Game&, LineWriter&);
        void (*load)(Game&, LineReader&);
    };
    // The sections after <version>, in the order of writing.
    static const std::vector<Section>& sections();

    // The container's write and read themselves, with their run-time errors let through
    // (the commands above swallow them); for checks that must know whether a file read or
    // wrote to its end.
    void writeAll(const std::string& path);
    void readAll(const std::string& path);

  private:
    Game& game_;
};

} // namespace zorvane
