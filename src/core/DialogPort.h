#pragma once
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace zorvane {

enum class Answer { Yes, No, Cancel, Ok };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class FileMode { Open, Save };

// The questions the game asks the player, and the few things it asks of the platform.
class DialogPort {
  public:
    virtual ~DialogPort() = default;

    // A message box; returns the button pressed.
    virtual Answer ask(const std::string& text, Buttons buttons) = 0;
    // An input box; empty text means Cancel.
    virtual std::string input(const std::string& prompt, const std::string& title,
                              const std::string& defaultText) = 0;
    // The common file dialog; an empty path means Cancel.
    virtual std::string chooseFile(FileMode mode, const std::string& filter,
                                   const std::string& title) = 0;
    // The help viewer on a topic of the help file.
    virtual void showHelp(const std::string&) {}
    // Starts the game's own executable anew, without waiting for it.
    virtual void startProcess(const std::string&) {}
    // The process ends now, with no clean-up. If this returns, the game throws ProcessEnded.
    virtual void endProcess(const std::string&) {}
};

// Ends the process for the reason given: the port's endProcess, then ProcessEnded.
[[noreturn]] void endProcess(DialogPort& dialogs, const std::string& why);

// Answers from queues: the simulator's script and the tests fill them. With nothing queued,
// a question gets Cancel where offered, else No, else OK; an input box and a file dialog
// are cancelled.
class ScriptedDialogs : public DialogPort {
  public:
    std::deque<Answer> answers;
    std::deque<std::string> inputs;
    std::deque<std::string> files;

    // Every question, input and file request as it was answered: "ask: text -> answer".
    std::function<void(const std::string&)> onTranscript;
    std::vector<std::string> asked;   // the texts of the message boxes, in order
    std::vector<std::string> started; // processes started
    std::vector<std::string> helpTopics;

    Answer ask(const std::string& text, Buttons buttons) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& defaultText) override;
    std::string chooseFile(FileMode mode, const std::string& filter,
                           const std::string& title) override;
    void showHelp(const std::string& topic) override { helpTopics.push_back(topic); }
    void startProcess(const std::string& path) override { started.push_back(path); }

    static std::string answerWord(Answer a);

  private:
    void transcript(const std::string& line);
};

} // namespace zorvane
