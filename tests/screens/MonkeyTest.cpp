// The monkey: random presses, releases, double clicks, drags, wheel turns and key strokes on
// whatever controls are visible and enabled (the main screen, every mode screen, the log
// window, and any box that stands open), random answers to every question, input box and
// file dialog, and game days now and then at a random speed. Nothing may crash, and the game
// it leaves behind must save, load and save again to the same bytes.
//
//   ZORVANE_MONKEY_SEED    the seed (printed at the start, so a failure replays)
//   ZORVANE_MONKEY_EVENTS  how many events (a short run by default, for the test suite)
//   ZORVANE_MONKEY_STALL   seconds one event may take before the watchdog fails the run
//   ZORVANE_MONKEY_TRACE   set: every event is printed
//
// The game ends its process in places (Quit, New Theater, a No to a question): the monkey
// then starts a fresh game and goes on counting. A run-time error of the game (a 16-bit
// overflow, say) is the game's own end too: the real game shows its box and leaves. The
// monkey prints it, drops that game without the save round trip and starts a fresh one; any
// other exception reaching the top is a fault and fails the test.
#include "PlayingWindow.h"

#include "AroundScreens.h"
#include "core/GameError.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmMain.h"

#include <QDialog>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <mutex>
#include <random>
#include <sstream>
#include <thread>
#include <vector>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

std::uint64_t envNumber(const char* name, std::uint64_t otherwise) {
    const QByteArray v = qgetenv(name);
    bool ok = false;
    const qulonglong n = v.toULongLong(&ok);
    return ok ? n : otherwise;
}

std::string readBytes(const QString& path) {
    std::ifstream in(path.toStdString(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The box that takes the input now: an open popup, else the innermost modal window.
QWidget* modalRoot() {
    if (QWidget* p = QApplication::activePopupWidget())
        return p;
    return QApplication::activeModalWidget();
}

// Fails the run with a message if one event takes too long: a modal loop nothing can close,
// or a hang. It runs on its own thread, since the game's thread is the one that is stuck.
class Watchdog {
  public:
    explicit Watchdog(int seconds) : limit_(seconds), thread_([this] { watch(); }) {}
    ~Watchdog() {
        stop_ = true;
        thread_.join();
    }
    void beat(const std::string& what) {
        std::lock_guard lock(mutex_);
        what_ = what;
        last_ = std::chrono::steady_clock::now();
    }

  private:
    void watch() {
        while (!stop_) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            std::lock_guard lock(mutex_);
            if (std::chrono::steady_clock::now() - last_ > std::chrono::seconds(limit_)) {
                std::fprintf(stderr, "monkey: FAIL: no event finished within %d s; stuck in: %s\n",
                             limit_, what_.c_str());
                std::fflush(nullptr);
                std::abort();
            }
        }
    }
    int limit_;
    std::atomic<bool> stop_{false};
    std::mutex mutex_;
    std::string what_ = "start";
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
    std::thread thread_;
};

class Monkey : public QObject {
  public:
    Monkey(std::uint64_t seed, int events, int stall, bool trace)
        : seed_(seed), events_(events), trace_(trace), rng_(seed), watchdog_(stall) {
        auto* app = static_cast<GameApplication*>(qApp);
        app->onProcessEnded = [this] { ended("the game ended its process"); };
        app->onFatal = [this](const QString& m) { fatal(m); };
        QFile junk(dir_.filePath("junk.zvn"));
        junk.open(QIODevice::WriteOnly);
        for (int i = 0; i < 3000; ++i)
            junk.putChar(static_cast<char>(rng_() % 256));
    }

    // Runs every event, then the last round trip; the failures found, if any.
    QString run() {
        startGame();
        QTimer::singleShot(0, this, [this] { pump(); });
        loop_.exec();
        auto* app = static_cast<GameApplication*>(qApp);
        app->onProcessEnded = nullptr;
        app->onFatal = nullptr;
        std::printf("monkey: %d events in %d games: %d ended their process, %d ended in a "
                    "run-time error, %d round trips identical\n",
                    done_, games_, processEnds_, fatals_, roundTrips_);
        return failure_;
    }

  private:
    int pick(int n) { return static_cast<int>(rng_() % static_cast<std::uint64_t>(n)); }
    bool chance(int percent) { return pick(100) < percent; }
    void again() {
        QTimer::singleShot(0, this, [this] { pump(); });
    }

    void startGame() {
        ++games_;
        p_ = std::make_unique<PlayingWindow>(seed_ + static_cast<std::uint64_t>(games_));
        auto* app = static_cast<GameApplication*>(qApp);
        app->onFatal = [this](const QString& m) { fatal(m); };
        over_ = fatalRun_ = false;
        closing_ = 0;
        p_->w->around().loader().hide(); // as "Play !" leaves it
        if (trace_)
            p_->dialogs.onTranscript = [](const std::string& l) {
                std::printf("monkey:   %s\n", l.c_str());
            };
        // Every mode screen and the log window open, in a random order.
        std::vector<int> modes{0, 1, 2, 3, 4, 5, 6, 7};
        std::shuffle(modes.begin(), modes.end(), rng_);
        guarded("open the screens", [&] {
            for (int m : modes)
                p_->game().switchMode(m);
            p_->w->around().log().show();
            QApplication::processEvents();
        });
    }

    // One pass of the chain of events. Each running event schedules the next pass first, so
    // that a loop of its own it waits in (a box, a picture, the title screen shown from the
    // Goal menu) gets events too, as a player's would. A pass that comes while the running
    // event is merely busy (its days repaint through the event loop) waits.
    void pump() {
        const int level = QThread::currentThread()->loopLevel();
        if (!stack_.empty() && level <= stack_.back()) {
            again();
            return;
        }
        if (over_) {
            // The game is over: close what stands open, let the events below return, then
            // the round trip and the next game.
            if (!stack_.empty()) {
                QWidget* open = modalRoot();
                for (QWidget* t : QApplication::topLevelWidgets())
                    if (!open && t->isVisible() && qobject_cast<QDialog*>(t))
                        open = t;
                watchdog_.beat("closing " + (open ? name(open) : std::string("a loop")));
                if (++closing_ > 1000) {
                    fail("a loop would not end: " + (open ? name(open) : std::string("no window")));
                    std::abort();
                }
                if (open)
                    open->hide();
                again();
            } else {
                endGame();
            }
            return;
        }
        stack_.push_back(level);
        again();
        event();
        stack_.pop_back();
    }

    void endGame() {
        if (!fatalRun_)
            roundTrip();
        p_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (done_ >= events_ || !failure_.isEmpty()) {
            loop_.quit();
            return;
        }
        startGame();
        again();
    }

    void ended(const char* why) {
        if (!over_)
            ++processEnds_;
        say(why);
        over_ = true;
    }

    // Called where the error is caught: the exception at hand tells the game's own error
    // from any other.
    void fatal(const QString& message) {
        if (!std::current_exception()) {
            fail("a fatal error with no exception: " + message.toStdString());
            return;
        }
        try {
            std::rethrow_exception(std::current_exception());
        } catch (const GameError&) {
            ++fatals_;
            std::printf("monkey: event %d: the game's run-time error \"%s\" ended game %d\n", done_,
                        qPrintable(message), games_);
            over_ = fatalRun_ = true;
        } catch (...) {
            fail("an exception that is not the game's own reached the top: " +
                 message.toStdString());
        }
    }

    void fail(const std::string& what) {
        const QString text = QString("event %1 (seed %2, game %3): %4; last event: %5")
                                 .arg(done_)
                                 .arg(seed_)
                                 .arg(games_)
                                 .arg(QString::fromStdString(what), QString::fromStdString(last_));
        std::printf("monkey: FAIL: %s\n", qPrintable(text));
        if (failure_.isEmpty())
            failure_ = text;
        over_ = fatalRun_ = true;
    }

    // A direct call into the game, caught as the application's top would catch it.
    template <class F> void guarded(const char* what, F&& f) {
        try {
            f();
        } catch (const ProcessEnded&) {
            ended("the game ended its process");
        } catch (const GameError& e) {
            fatal(QString::fromLocal8Bit(e.what()));
        } catch (const std::exception& e) {
            fail(std::string(what) + ": " + e.what());
        }
    }

    void say(const std::string& what) {
        last_ = what;
        watchdog_.beat("event " + std::to_string(done_) + ": " + what);
        if (trace_)
            std::printf("monkey: %d: %s\n", done_, what.c_str());
    }

    static std::string name(QWidget* w) {
        auto one = [](QWidget* x) {
            return (x->objectName().isEmpty() ? QString(x->metaObject()->className())
                                              : x->objectName())
                .toStdString();
        };
        return w->isWindow() ? one(w) : one(w->window()) + "/" + one(w);
    }

    // The windows a player could reach now (the box that stands open, else every window on
    // the screen), in a fixed order, each with its visible, enabled controls.
    std::vector<std::vector<QWidget*>> targets() {
        std::vector<QWidget*> windows;
        if (QWidget* m = modalRoot())
            windows.push_back(m);
        else
            for (QWidget* t : QApplication::topLevelWidgets())
                if (t->isVisible() && t->isEnabled())
                    windows.push_back(t);
        std::sort(windows.begin(), windows.end(), [](QWidget* a, QWidget* b) {
            return std::make_tuple(a->objectName(), QString(a->metaObject()->className()), a->y(),
                                   a->x()) < std::make_tuple(b->objectName(),
                                                             QString(b->metaObject()->className()),
                                                             b->y(), b->x());
        });
        std::vector<std::vector<QWidget*>> out;
        for (QWidget* w : windows) {
            out.push_back({w});
            for (QWidget* c : w->findChildren<QWidget*>())
                if (c->window() == w && c->isVisible() && c->isEnabled())
                    out.back().push_back(c);
        }
        return out;
    }

    QPoint somewhere(QWidget* w, int outside = 0) {
        return {pick(w->width() + 2 * outside) - outside,
                pick(w->height() + 2 * outside) - outside};
    }

    void mouse(QWidget* w, QEvent::Type type, Qt::MouseButton button, QPoint at) {
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
            buttons_ |= button;
        else if (type == QEvent::MouseButtonRelease)
            buttons_ &= ~Qt::MouseButtons(button);
        QMouseEvent e(type, QPointF(at), QPointF(w->mapToGlobal(at)), button, buttons_, mods_);
        QApplication::sendEvent(w, &e);
    }

    void key(QWidget* w, int code, const QString& text) {
        say("key " + std::to_string(code) + " '" + text.toStdString() + "' on " + name(w));
        QPointer<QWidget> to(w);
        if (qt_sendShortcutOverrideEvent(w, 0, code, mods_, text))
            return;
        QKeyEvent press(QEvent::KeyPress, code, mods_, text);
        QApplication::sendEvent(w, &press);
        if (!to)
            return;
        QKeyEvent release(QEvent::KeyRelease, code, mods_, text);
        QApplication::sendEvent(to, &release);
    }

    // A key a player might press in this game: a character of a sum or a name, or one
    // of the keys that move, confirm and cancel.
    void randomKey(QWidget* w) {
        static const char characters[] = "0123456789$,-.0123456789abcxyzQS ";
        static const int specials[] = {
            Qt::Key_Return,    Qt::Key_Enter,    Qt::Key_Tab,   Qt::Key_Escape,
            Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Up,    Qt::Key_Down,
            Qt::Key_Left,      Qt::Key_Right,    Qt::Key_Home,  Qt::Key_End,
            Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Space, Qt::Key_F1};
        if (chance(40)) {
            const int k = specials[pick(std::size(specials))];
            const QString text = k == Qt::Key_Return || k == Qt::Key_Enter ? "\r"
                                 : k == Qt::Key_Tab                        ? "\t"
                                 : k == Qt::Key_Escape                     ? "\x1b"
                                 : k == Qt::Key_Space                      ? " "
                                                                           : "";
            key(w, k, text);
            return;
        }
        const char c = characters[pick(sizeof characters - 1)];
        const int code = c >= 'a' && c <= 'z'   ? Qt::Key_A + (c - 'a')
                         : c >= 'A' && c <= 'Z' ? Qt::Key_A + (c - 'A')
                                                : static_cast<int>(static_cast<unsigned char>(c));
        key(w, code, (mods_ & Qt::ControlModifier) ? QString() : QString(QChar(c)));
    }

    // Answers for whatever the next event asks: any button, any text, any file.
    void fillAnswers() {
        ScriptedDialogs& d = p_->dialogs;
        d.answers.clear();
        d.inputs.clear();
        d.files.clear();
        for (int i = 0; i < 3; ++i) {
            d.answers.push_back(static_cast<Answer>(pick(4)));
            static const char* const texts[] = {"",
                                                "0",
                                                "1",
                                                "7",
                                                "12",
                                                "250",
                                                "5000",
                                                "-3",
                                                "$1,234.50",
                                                "abc",
                                                " 42xyz",
                                                "1e308",
                                                "99999999999999999999",
                                                "32768",
                                                "65536",
                                                "3.75"};
            const int t = pick(static_cast<int>(std::size(texts)) + 1);
            d.inputs.push_back(t < static_cast<int>(std::size(texts)) ? std::string(texts[t])
                                                                      : std::string(20000, '9'));
            static const char* const files[] = {"",         "monkey.zvn",       "other.zvn",
                                                "junk.zvn", "missing/none.zvn", "."};
            const char* f = files[pick(std::size(files))];
            d.files.push_back(*f ? dir_.filePath(f).toStdString() : std::string());
        }
    }

    void event() {
        if (++done_ >= events_)
            over_ = true;
        fillAnswers();
        mods_ = chance(4) ? Qt::ControlModifier : chance(4) ? Qt::ShiftModifier : Qt::NoModifier;
        const int what = pick(100);
        if (what < 8 && !modalRoot()) {
            runDays();
        } else if (what < 12 && !modalRoot()) {
            const int m = pick(8);
            say("switchMode " + std::to_string(m));
            guarded("switchMode", [&] { p_->game().switchMode(m); });
        } else {
            // A window first, then one of its controls: each open screen gets its share,
            // however many controls it has.
            const std::vector<std::vector<QWidget*>> all = targets();
            if (all.empty()) {
                say("nothing to touch");
                return;
            }
            const auto& in = all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
            touch(in[static_cast<std::size_t>(pick(static_cast<int>(in.size())))], what);
        }
        // Days come from the monkey only, so that a seed replays the same game.
        if (p_ && p_->w->main().clock()->isActive())
            p_->w->main().clock()->stop();
    }

    void runDays() {
        const int speed = 1 + pick(3);
        const int days = chance(10) ? 30 + pick(60) : 1 + pick(12);
        say("days " + std::to_string(days) + " at speed " + std::to_string(speed));
        guarded("the clock", [&] {
            p_->game().setSpeed(speed);
            for (int d = 0; d < days && !over_; ++d) {
                fillAnswers();
                p_->game().clockTick();
                QApplication::processEvents();
            }
        });
    }

    void touch(QWidget* w, int what) {
        const Qt::MouseButton button = chance(80)   ? Qt::LeftButton
                                       : chance(70) ? Qt::RightButton
                                                    : Qt::MiddleButton;
        const QPoint at = somewhere(w);
        QPointer<QWidget> to(w);
        const std::string where =
            name(w) + " at " + std::to_string(at.x()) + "," + std::to_string(at.y());
        if (what < 40) {
            say("click " + where);
            mouse(w, QEvent::MouseButtonPress, button, at);
            if (to)
                mouse(to, QEvent::MouseButtonRelease, button, at);
        } else if (what < 47) {
            say("press " + where);
            mouse(w, QEvent::MouseButtonPress, button, at);
        } else if (what < 54) {
            say("release " + where);
            mouse(w, QEvent::MouseButtonRelease, button, at);
        } else if (what < 64) {
            // As a double click arrives: press, release, double click, release.
            say("double click " + where);
            mouse(w, QEvent::MouseButtonPress, button, at);
            for (QEvent::Type t : {QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                   QEvent::MouseButtonRelease})
                if (to)
                    mouse(to, t, button, at);
        } else if (what < 72) {
            say("drag " + where);
            mouse(w, QEvent::MouseButtonPress, button, at);
            QPoint last = at;
            for (int i = 1 + pick(4); i > 0 && to; --i)
                mouse(to, QEvent::MouseMove, Qt::NoButton, last = somewhere(to, 60));
            if (to)
                mouse(to, QEvent::MouseButtonRelease, button, last);
        } else if (what < 76) {
            say("wheel " + where);
            const QPoint delta(0, (pick(2) ? 120 : -120) * (1 + pick(3)));
            QWheelEvent e(QPointF(at), QPointF(w->mapToGlobal(at)), QPoint(), delta, buttons_,
                          mods_, Qt::NoScrollPhase, false);
            QApplication::sendEvent(w, &e);
        } else {
            // Keys go where the keyboard is, or to a control the monkey picks.
            QWidget* focus = QApplication::focusWidget();
            QWidget* k = focus && focus->isVisible() && chance(60) &&
                                 (!modalRoot() || focus->window() == modalRoot())
                             ? focus
                             : w;
            QPointer<QWidget> kp(k);
            for (int n = chance(70) ? 1 : 2 + pick(12); n > 0 && kp && !over_; --n)
                randomKey(kp);
        }
    }

    // Save, load that file into the running game, save again: the same bytes.
    void roundTrip() {
        ScriptedDialogs& d = p_->dialogs;
        d.answers.clear();
        d.inputs.clear();
        d.files.clear();
        Game& g = p_->game();
        const QString first = dir_.filePath("first.zvn"), second = dir_.filePath("second.zvn");
        QFile::remove(first);
        QFile::remove(second);
        say("round trip");
        guarded("the round trip", [&] {
            g.savedPath = first.toStdString();
            g.files.saveGame();
            // Loading into a running game keeps every second person of its staff in front of
            // the loaded people, as the staff's load rule has it: the staff goes first, from
            // the end, so the load stands alone.
            while (g.employees.employeeCount() > 0)
                g.employees.removeEmployee(g.employees.employeeCount(), "");
            g.files.loadGame(first.toStdString());
            QApplication::processEvents();
            g.savedPath = second.toStdString();
            g.saved = false;
            g.files.saveGame();
        });
        if (fatalRun_) {
            fail("the round trip met a run-time error");
            return;
        }
        if (!g.saved) {
            fail("the game did not save");
            return;
        }
        const std::string a = readBytes(first), b = readBytes(second);
        if (a != b) {
            std::istringstream x(a), y(b);
            std::string lx, ly;
            int line = 1;
            while (std::getline(x, lx) && std::getline(y, ly) && lx == ly)
                ++line;
            fail("save, load, save differs at line " + std::to_string(line) + ": \"" + lx +
                 "\" then \"" + ly + "\"");
            return;
        }
        ++roundTrips_;
    }

    std::uint64_t seed_;
    int events_;
    bool trace_;
    std::mt19937_64 rng_;
    Watchdog watchdog_;
    QTemporaryDir dir_;
    QEventLoop loop_;
    std::unique_ptr<PlayingWindow> p_;
    std::vector<int> stack_; // the event loop level each running event began in
    Qt::MouseButtons buttons_;
    Qt::KeyboardModifiers mods_;
    bool over_ = false, fatalRun_ = false;
    int done_ = 0, games_ = 0, closing_ = 0;
    int processEnds_ = 0, fatals_ = 0, roundTrips_ = 0;
    std::string last_;
    QString failure_;
};

} // namespace

class MonkeyTest : public QObject {
    Q_OBJECT

  private slots:
    void randomEventsLeaveAGameThatSavesAndLoadsAlike() {
        // The offscreen platform says, for every window brought to the front, that it cannot.
        static QtMessageHandler qtTest = nullptr;
        qtTest =
            qInstallMessageHandler([](QtMsgType t, const QMessageLogContext& c, const QString& m) {
                if (!m.startsWith(QLatin1String("This plugin does not support")))
                    qtTest(t, c, m);
            });
        const std::uint64_t seed = envNumber("ZORVANE_MONKEY_SEED", 2026);
        const int events = static_cast<int>(envNumber("ZORVANE_MONKEY_EVENTS", 1000));
        const int stall = static_cast<int>(envNumber("ZORVANE_MONKEY_STALL", 60));
        std::printf("monkey: seed %llu, %d events (replay: ZORVANE_MONKEY_SEED=%llu "
                    "ZORVANE_MONKEY_EVENTS=%d)\n",
                    static_cast<unsigned long long>(seed), events,
                    static_cast<unsigned long long>(seed), events);
        std::fflush(stdout);
        Monkey monkey(seed, events, stall, !qgetenv("ZORVANE_MONKEY_TRACE").isEmpty());
        const QString failure = monkey.run();
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    MonkeyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MonkeyTest.moc"
