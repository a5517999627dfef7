// Zorvane: the game window. Starts the game the way it always starts: the title screen
// comes up, start-up writes its progress there, and the game waits for "Play !".
//
//   zorvane [SAVED.zvn | MATH.mth]     play (the one argument: a game to load or a math file)
//   zorvane --screenshots DIR          write every screen as a PNG into DIR, no display needed
#include "Commands.h"
#include "GameApplication.h"
#include "GameWindows.h"
#include "core/GameError.h"
#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "frmMain.h"
#include "lab/Strategy.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTime>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

struct Options {
    bool screenshots = false;
    std::string screenshotDir;
    std::string argument; // the whole rest of the command line is one argument
    bool platformChosen = false;
};

Options parseOptions(int argc, char** argv) {
    Options o;
    std::string joined;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--screenshots" && i + 1 < argc) {
            o.screenshots = true;
            o.screenshotDir = argv[++i];
            continue;
        }
        if (a == "-platform" && i + 1 < argc) { // Qt's own option: the user chose
            o.platformChosen = true;
            ++i;
            continue;
        }
        joined += (joined.empty() ? "" : " ") + a;
    }
    o.argument = joined;
    return o;
}

// Picks the windowing platform before Qt starts, or says why there is none.
bool choosePlatform(const Options& o) {
    if (o.screenshots) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    if (o.platformChosen || qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return true;
    const bool x11 = qEnvironmentVariableIsSet("DISPLAY");
    const bool wayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    // The screens of a mode are glued below the main screen; on Wayland a window cannot
    // place itself, so the game runs through XWayland there.
    if (wayland && x11)
        qputenv("QT_QPA_PLATFORM", "xcb");
    if (!x11 && !wayland) {
        std::fprintf(stderr, "zorvane: no display to open the game on (DISPLAY is not set); "
                             "try: zorvane --screenshots DIR\n");
        return false;
    }
    return true;
}

// The game's files: beside the program, or where an install puts them.
QString dataFolder() {
    const QString here = QCoreApplication::applicationDirPath();
    for (const QString& candidate : {here, here + QStringLiteral("/../share/zorvane")}) {
        if (QFileInfo::exists(candidate + QStringLiteral("/math.txt")))
            return QDir(candidate).canonicalPath();
    }
    return here;
}

// The screenshots show a theater in business: the demo script's first month.
void playDemo(GameWindows& w, ScriptedDialogs& dialogs, const QString& folder) {
    std::ifstream in((folder + QStringLiteral("/demo.txt")).toStdString());
    std::ostringstream sink;
    sim::playScript(w.game(), dialogs, in, sink);
}

int runScreenshots(const Options& o, const QString& folder) {
    ScriptedDialogs dialogs;
    MemorySettings settings;
    WindowsSetup setup;
    setup.folder = folder.toStdString();
    setup.executable = QCoreApplication::applicationFilePath().toStdString();
    setup.seed = 2026;
    setup.dialogs = &dialogs;
    setup.settings = &settings;
    GameWindows w(setup);
    w.startup();
    w.game().goals.selectGoal(0);
    w.game().startPlay(0);
    w.showMain();
    w.main().move(0, 0);
    playDemo(w, dialogs, folder);
    // The shots play their days themselves: a running clock would add days by the wall
    // clock, and the pictures would differ from run to run.
    w.game().setSpeed(0);
    // The shots that play on (the graph's year) have the theater run as the advisor teaches,
    // so the year shows a house in business. The player takes over at the first such day, so
    // the other shots show the demo's theater as the script left it.
    const std::unique_ptr<lab::Strategy> player = lab::makeAdvisorStrategy();
    w.screenshots().beforeDay = [&w, &player, begun = false]() mutable {
        if (!begun)
            player->begin(w.game());
        begun = true;
        player->beforeDay(w.game());
    };
    try {
        const int failed = w.screenshots().run(QString::fromStdString(o.screenshotDir));
        return failed == 0 ? 0 : 1;
    } catch (const ProcessEnded&) {
        // A shot whose game quit or went broke would leave the later pictures unwritten.
        std::fprintf(stderr, "zorvane: the game ended during the screenshots; later ones are "
                             "missing\n");
        return 1;
    }
}

} // namespace

int main(int argc, char** argv) {
    const Options options = parseOptions(argc, argv);
    if (!choosePlatform(options))
        return 1;
    GameApplication app(argc, argv);
    look::applyToApplication();
    installButtonLabelAccessibility();
    const QString folder = dataFolder();

    try {
        if (options.screenshots)
            return runScreenshots(options, folder);

        WindowsSetup setup;
        setup.audio = true; // the game's sounds, where the machine has an audio output
        setup.folder = folder.toStdString();
        setup.commandLine = options.argument;
        setup.executable = QCoreApplication::applicationFilePath().toStdString();
        // The dice are seeded from the clock: the seconds since midnight.
        setup.seed = static_cast<std::uint64_t>(QTime(0, 0).secsTo(QTime::currentTime()));
        GameWindows windows(setup);
        windows.startup();
        return app.exec();
    } catch (const ProcessEnded&) {
        return 0;
    } catch (const std::exception& e) {
        GameApplication::fatal(QString::fromLocal8Bit(e.what()));
    }
    return 1;
}
