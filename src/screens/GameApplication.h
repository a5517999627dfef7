#pragma once
#include <QApplication>

#include <functional>

namespace zorvane::screens {

// The game's application object. Whatever reaches the top of an event unhandled ends the
// game here: a run-time error of the game (or any other exception) shows its message in an
// error box and the process ends with status 1; the game's own decision to end the process
// (quit, new game, a No to "Continue program?") ends it with status 0.
class GameApplication : public QApplication {
    Q_OBJECT
  public:
    GameApplication(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;

    // What happens at the top; the tests replace these to watch instead of ending.
    std::function<void(const QString& message)> onFatal;
    std::function<void()> onProcessEnded;

    // The error box and the end, as the game does it.
    static void fatal(const QString& message);
};

} // namespace zorvane::screens
