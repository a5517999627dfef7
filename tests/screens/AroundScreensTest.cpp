// The screens around the game, offscreen: the title screen, the file menu, the log window,
// the two end pictures and the help window, as a player would notice them going wrong.
#include "HelpWindow.h"
#include "core/GameError.h"
#include "frame/ButtonLabel.h"
#include "frmGoal.h"
#include "frmLoader.h"
#include "frmLog.h"
#include "frmLose.h"
#include "frmMenuFile.h"
#include "ports/QtScreen.h"
#include "session/Game.h"
#include "session/TitleScreen.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

namespace {

// A started game whose status lines go to a real title screen.
struct TitleGame {
    QtScreen screen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    std::unique_ptr<Game> game;
    std::unique_ptr<frmLoader> loader;

    TitleGame() {
        GameSetup setup;
        setup.folder = ZORVANE_SOURCE_DATA;
        setup.seed = 5;
        setup.screen = &screen;
        setup.dialogs = &dialogs;
        setup.settings = &settings;
        game = std::make_unique<Game>(std::move(setup));
        loader = std::make_unique<frmLoader>(*game);
        loader->attach(screen);
        loader->show();
        game->startup();
        screen.flush();
    }
    template <class T = ButtonLabel> T* control(const char* name) {
        T* c = loader->findChild<T*>(QString::fromLatin1(name));
        if (!c)
            qFatal("no control %s", name);
        return c;
    }
    QString status() { return control<QPlainTextEdit>("txtStatus")->toPlainText(); }
};

QString lastLine(const QString& text) {
    return text.section(QLatin1Char('\n'), -1);
}

} // namespace

class AroundScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void playWithNoSelectionPlaysFreePlayAndExitThenOnlyHides() {
        TitleGame t;
        const QString status = t.status();
        QVERIFY(status.startsWith("\nZorvane v2.0.1\nInitializing random number generator"));
        QCOMPARE(lastLine(status), QString("invoking next day"));
        auto* list = t.control<QListWidget>("lstGoals");
        QVERIFY(list->count() > 1);
        QCOMPARE(list->item(0)->text(), QString("Free Play"));

        QTest::mouseClick(t.control("lbcVer"), Qt::LeftButton);
        QCOMPARE(lastLine(t.status()), QString::fromStdString(changesText()));

        QSignalSpy mainWanted(t.loader.get(), &frmLoader::mainScreenWanted);
        const double funds = t.game->finances.getFunds();
        QTest::mouseClick(t.control("lbcStart"), Qt::LeftButton);
        QCOMPARE(t.game->goals.getSelected(), 0);
        QCOMPARE(t.game->finances.getFunds(), funds);
        QVERIFY(t.game->playing);
        QCOMPARE(mainWanted.count(), 1);
        QVERIFY(!t.loader->isVisible());
        QCOMPARE(lastLine(t.status()), QString("bringing up main form"));

        // Back through the Goal menu: a goal picked in the list, "Play !" again re-applies
        // its starting figures; the main screen is not brought up twice.
        t.loader->show();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(2)).center());
        QCOMPARE(t.status(), QString::fromStdString(t.game->goals.getGoal(2).getDesc()));
        t.game->finances.setFunds(3);
        QTest::mouseClick(t.control("lbcStart"), Qt::LeftButton);
        QCOMPARE(t.game->finances.getFunds(), 45000.0);
        QCOMPARE(mainWanted.count(), 1);

        // After the first play the exit only hides the title screen, with no question.
        t.loader->show();
        QTest::mouseClick(t.control("lbcExit"), Qt::LeftButton);
        QVERIFY(!t.loader->isVisible());
        QVERIFY(t.dialogs.asked.empty());
    }

    void exitBeforeTheFirstPlayEndsTheGameWithNoQuestion() {
        TitleGame t;
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, t.loader->exitClicked());
        QVERIFY(t.dialogs.asked.empty());
    }

    void logWindowKeepsWhatTheLogBoxDrops() {
        TitleGame t;
        frmLog log(*t.game);
        t.screen.onLogLine.push_back([&log](const std::string& line, bool) {
            log.appendLine(QString::fromStdString(line));
        });
        log.show();
        QCOMPARE(log.box()->toPlainText(),
                 QString::fromStdString(t.game->logBox).replace("\r\n", "\n"));
        const int before = log.box()->blockCount();
        const std::string line(99, 'x');
        int written = 0;
        for (; t.game->logBox.size() <= 65000; ++written)
            t.game->gameLog(line, 0);
        t.game->gameLog("the last straw", 0);
        QCOMPARE(t.game->logBox, std::string("\r\nthe last straw")); // the log box was emptied
        QCOMPARE(log.box()->blockCount(), before + written + 1);     // the window kept it all
        QCOMPARE(lastLine(log.box()->toPlainText()), QString("the last straw"));
        QCOMPARE(log.box()->textCursor().position(), log.box()->document()->characterCount() - 1);

        // Hidden, it takes no lines; shown again, it starts from a copy of the log box.
        log.hide();
        t.game->gameLog("while hidden", 0);
        log.show();
        QCOMPARE(log.box()->toPlainText(), QString("\nthe last straw\nwhile hidden"));
    }

    void saveAsCancelledLeavesNoPath() {
        TitleGame t;
        frmMenuFile menu(*t.game);
        QStringList captions;
        for (int i = 0; i < fileOptionCount; ++i)
            captions << menu.option(i)->text();
        QCOMPARE(captions, QStringList({"New Theater", "Open Theater", "Save Theater", "Save As...",
                                        "Quit Game", "Reload math"}));
        t.game->savedPath = "/somewhere/old.zvn";
        menu.show();
        // A right click only restores the look.
        QTest::mouseClick(menu.option(3), Qt::RightButton);
        QCOMPARE(t.game->savedPath, std::string("/somewhere/old.zvn"));
        QVERIFY(menu.isVisible());
        QTest::mouseClick(menu.option(3), Qt::LeftButton); // the save dialog is cancelled
        QVERIFY(t.game->savedPath.empty());
        QVERIFY(!menu.isVisible());
    }

    void picturesCloseOnlyByADoubleClick() {
        TitleGame t;
        frmGoal goal(*t.game);
        goal.show();
        QTest::mouseClick(goal.picture(), Qt::LeftButton);
        QTest::keyClick(&goal, Qt::Key_Escape);
        QVERIFY(goal.isVisible());
        QTest::mouseDClick(goal.picture(), Qt::LeftButton);
        QVERIFY(!goal.isVisible());
        QVERIFY(t.dialogs.asked.empty());

        // The lost game's double click asks to quit; Cancel plays on, the picture gone.
        frmLose lose(*t.game);
        lose.show();
        t.dialogs.answers = {Answer::Cancel};
        QTest::mouseDClick(lose.picture(), Qt::LeftButton);
        QVERIFY(!lose.isVisible());
        QCOMPARE(t.dialogs.asked, std::vector<std::string>{"Save your theater before quitting?"});
    }

    void helpShowsItsHeadingsAsContents() {
        QTemporaryDir dir;
        const QString path = dir.filePath("zorvane.hlp");
        HelpWindow missing(path);
        missing.showContents();
        QCOMPARE(missing.contents()->count(), 0);
        QVERIFY(missing.text()->toPlainText().contains("zorvane.hlp"));
        QVERIFY(!missing.text()->toPlainText().contains('\n'));

        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(
            "# Zorvane\n\nIntro.\n\n## The title screen\n\nText.\n\n```\n# not a heading\n```\n"
            "\n## Goals\n\nMore.\n");
        file.close();
        HelpWindow help(path);
        help.showContents();
        QStringList entries;
        for (int i = 0; i < help.contents()->count(); ++i)
            entries << help.contents()->item(i)->text().trimmed();
        QCOMPARE(entries, QStringList({"Zorvane", "The title screen", "Goals"}));
        QCOMPARE(help.contents()->currentRow(), 0);
    }
};

QTEST_MAIN(AroundScreensTest)
#include "AroundScreensTest.moc"
