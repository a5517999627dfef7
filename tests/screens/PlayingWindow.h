#pragma once
// A windowed game for the screens' tests and benchmarks: boxes answered from a script,
// settings kept in memory, sounds recorded, the game started, "Play !" pressed and the main
// screen up. With `play` false it stays at the title screen, as the player first sees it;
// `commandLine` is the one argument the game was started with (a saved game to open).
#include "GameApplication.h"
#include "GameWindows.h"
#include "frame/ChildFrame.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

namespace zorvane::screens {

struct PlayingWindow {
    ScriptedDialogs dialogs;
    MemorySettings settings;
    RecordingSound sound;
    std::unique_ptr<GameWindows> w;

    explicit PlayingWindow(std::uint64_t seed = 7, std::string executable = {}, bool play = true,
                           std::string commandLine = {}) {
        // A fatal error inside a test is a failed test, not a box nobody answers.
        static_cast<GameApplication*>(qApp)->onFatal = [](const QString& m) {
            qFatal("fatal: %s", qPrintable(m));
        };
        WindowsSetup setup;
        setup.folder = ZORVANE_SOURCE_DATA;
        setup.executable = std::move(executable);
        setup.commandLine = std::move(commandLine);
        setup.seed = seed;
        setup.dialogs = &dialogs;
        setup.settings = &settings;
        setup.sound = &sound;
        w = std::make_unique<GameWindows>(setup);
        w->startup();
        if (!play)
            return;
        w->game().startPlay(-1);
        w->showMain();
    }

    Game& game() { return w->game(); }
    // How many button clicks were heard so far.
    long clicks() const {
        if (sound.opened[SoundPort::clickPlayer].empty())
            return -1;
        return std::count(sound.played.begin(), sound.played.end(), std::string("click.wav"));
    }
    ChildFrame* mode(int m) { return w->modeScreen(m); }
    // Shows a mode's screen and lets its stale views repaint.
    ChildFrame* show(int m) {
        game().switchMode(m);
        QApplication::processEvents();
        return mode(m);
    }
    // A named control of a window; a missing one ends the test run with its name.
    template <class T> static T* control(QWidget* in, const QString& name) {
        T* c = in->findChild<T*>(name);
        if (!c)
            qFatal("no control %s", qPrintable(name));
        return c;
    }
};

// Sends a mouse event straight to a widget at one of its points, as the window system
// delivers it: a move carries no button of its own but holds `button`; a release holds none.
inline void mouse(QWidget* w, QEvent::Type type, Qt::MouseButton button, QPointF at = {3, 3}) {
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent e(type, at, w->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button,
                  held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

// A click of one button: down and up at the same point.
inline void press(QWidget* w, Qt::MouseButton button, QPointF at = {5, 5}) {
    mouse(w, QEvent::MouseButtonPress, button, at);
    mouse(w, QEvent::MouseButtonRelease, button, at);
}

// A double click as the mouse makes it: press, release, double click, release.
inline void doubleClick(QWidget* w, QPointF at) {
    press(w, Qt::LeftButton, at);
    mouse(w, QEvent::MouseButtonDblClick, Qt::LeftButton, at);
    mouse(w, QEvent::MouseButtonRelease, Qt::LeftButton, at);
}

} // namespace zorvane::screens
