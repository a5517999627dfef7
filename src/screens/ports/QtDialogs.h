#pragma once
#include "core/DialogPort.h"

#include <QString>

#include <functional>

class QWidget;

namespace zorvane::screens {

// The game's questions in Qt's own boxes: message boxes, the input box, the file dialog of
// saved games, the help window, a fresh process for "New Theater", and the end of this one.
class QtDialogs : public DialogPort {
  public:
    Answer ask(const std::string& text, Buttons buttons) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& defaultText) override;
    std::string chooseFile(FileMode mode, const std::string& filter,
                           const std::string& title) override;
    void showHelp(const std::string& topic) override;
    void startProcess(const std::string& path) override;
    // Ends the process at once with status 0: nothing is closed or saved.
    void endProcess(const std::string& why) override;

    // The help window (set by whoever builds it); without it help does nothing.
    std::function<void(const std::string&)> onHelp;
    // The window the boxes stand over.
    QWidget* parent = nullptr;
};

// The game's filter ("Theater saved games (*.ZVN)|*.zvn|All File (*.*)|*.*": description
// and pattern in pairs) as a Qt file dialog filter. Patterns match in either case of
// letters, as they do where the game comes from.
QString qtFileFilter(const std::string& filter);

} // namespace zorvane::screens
