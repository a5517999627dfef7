#include "core/GameError.h"
#include "persistence/SessionPorts.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const std::string versionMessage =
    "This saved game is from a different program version.  There may be unexpected results.";
const std::string filter = "Theater saved games (*.ZVN)|*.zvn|All File (*.*)|*.*";

struct SavedGameFixture : ::testing::Test {
    DataFolder data;
    TempDir saves;
    std::unique_ptr<PortGame> session;

    PortGame& start(const std::string& arg = "") {
        session = std::make_unique<PortGame>(data.path().string(), 7, arg);
        (*session)->startup();
        return *session;
    }
    Game& game() { return **session; }
    PortDialogs& dialogs() { return session->dialogs; }
    void days(int n) {
        for (int i = 0; i < n; ++i)
            game().calendar.nextDay();
    }
    // Hires from the top of today's applicants, so that the staff section closes.
    void hireStaff(int n) {
        game().finances.setFunds(1e6);
        for (int i = 0; i < n && game().employees.candidateCount() > 0; ++i)
            game().employees.hireEmployee(1);
        ASSERT_GT(game().employees.employeeCount(), 0);
    }
    std::string saveTo(const std::string& name) {
        game().savedPath = saves.file(name);
        EXPECT_TRUE(game().files.saveGame());
        return game().savedPath;
    }
    // Loads a file written by hand; returns the number of questions the load asked.
    std::size_t loadText(const std::string& text) {
        const std::string path = saves.write("hand.zvn", text);
        const std::size_t before = dialogs().asked.size();
        game().files.loadGame(path);
        return dialogs().asked.size() - before;
    }
    void setCalendar(int day, int week, int month, int year) {
        game().calendar.currentday = day;
        game().calendar.currentweek = week;
        game().calendar.currentmonth = month;
        game().calendar.currentyear = year;
    }
    bool logged(const std::string& line) const {
        const auto& lines = session->screen.lines;
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
};

const std::string version = "<version>\r\nprogramVersion=2.0.1\r\n</version>\r\n";

std::string calendarSection(int day, int year) {
    return "<calendar>\r\ncurrentday=" + std::to_string(day) +
           "\r\ncurrentweek=2\r\ncurrentmonth=5\r\ncurrentyear=" + std::to_string(year) +
           "\r\nonedayclose=0\r\n</calendar>\r\n";
}

} // namespace

TEST_F(SavedGameFixture, SaveWritesTheVersionThenTheSectionsInOrderWithCrLf) {
    start();
    days(3);
    const std::string path = saveTo("a.zvn");
    const std::string text = readFile(path);
    ASSERT_EQ(text.rfind(version + "<calendar>\r\n", 0), 0u) << text.substr(0, 80);
    EXPECT_EQ(text.find("<math>"), std::string::npos); // the math step writes nothing
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') {
            ASSERT_TRUE(i > 0 && text[i - 1] == '\r') << "bare LF at byte " << i;
        }
    }
    EXPECT_EQ(text.substr(text.size() - 2), "\r\n");

    // The open tags of the table stand in its order, each once.
    std::vector<std::string> order = {"<version>"};
    for (const auto& sec : SavedGame::sections())
        order.emplace_back(sec.tag);
    std::vector<std::string> found;
    for (const std::string& line : fileLines(text))
        if (std::find(order.begin(), order.end(), line) != order.end())
            found.push_back(line);
    order.erase(std::find(order.begin(), order.end(), "<math>"));
    EXPECT_EQ(found, order);
    EXPECT_EQ(session->screen.lines.back(), "saved " + path);
    EXPECT_TRUE(game().saved);
    EXPECT_TRUE(dialogs().fileModes.empty()); // the path was known: no dialog
}

TEST_F(SavedGameFixture, SaveAsksForAPathOnlyWhenThereIsNone) {
    start();
    const std::string path = saves.file("asked.zvn");
    dialogs().files = {path};
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_EQ(game().savedPath, path);
    ASSERT_EQ(dialogs().fileModes, std::vector<FileMode>{FileMode::Save});
    EXPECT_EQ(dialogs().filters[0], filter);
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_EQ(dialogs().fileModes.size(), 1u);
}

TEST_F(SavedGameFixture, ACancelledSaveDialogSavesNothing) {
    start();
    const std::size_t lines = session->screen.lines.size();
    EXPECT_FALSE(game().files.saveGame());
    EXPECT_TRUE(game().savedPath.empty());
    EXPECT_FALSE(game().saved);
    EXPECT_EQ(session->screen.lines.size(), lines);
}

TEST_F(SavedGameFixture, SaveAsCancelledLeavesThePathEmptySoSaveAsksAgain) {
    start();
    saveTo("first.zvn");
    EXPECT_FALSE(game().files.saveAs());
    EXPECT_TRUE(game().savedPath.empty());
    const std::string second = saves.file("second.zvn");
    dialogs().files = {second};
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_EQ(dialogs().fileModes.size(), 2u);
    EXPECT_EQ(game().savedPath, second);
    // Save As with a name writes there.
    const std::string third = saves.file("third.zvn");
    dialogs().files = {third};
    EXPECT_TRUE(game().files.saveAs());
    EXPECT_EQ(game().savedPath, third);
    EXPECT_TRUE(std::filesystem::exists(third));
}

TEST_F(SavedGameFixture, AFailedSaveIsSilentReturnsTrueAndLeavesTheFlag) {
    start();
    game().savedPath = saves.file("no/such/folder/x.zvn");
    const std::size_t lines = session->screen.lines.size();
    const std::size_t asked = dialogs().asked.size();
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_FALSE(game().saved);
    EXPECT_EQ(session->screen.lines.size(), lines);
    EXPECT_EQ(dialogs().asked.size(), asked);
    // A quit through Yes therefore ends the process with the game unsaved.
    dialogs().answers = {Answer::Yes};
    EXPECT_THROW(game().quitGame(), ProcessEnded);
}

TEST_F(SavedGameFixture, TheSavedFlagIsSetBySavingClearedByADayAndUntouchedByALoad) {
    start();
    const std::string path = saveTo("flag.zvn");
    EXPECT_TRUE(game().saved);
    game().files.loadGame(path);
    EXPECT_TRUE(game().saved);
    days(1);
    EXPECT_FALSE(game().saved);
    game().files.loadGame(path);
    EXPECT_FALSE(game().saved); // a quit straight after a load still asks
}

TEST_F(SavedGameFixture, LoadEmptiesTheLogRunsNoDayAndKeepsSpeedAndGoal) {
    start();
    game().goals.selectGoal(1);
    game().startPlay(1);
    days(2);
    const std::string path = saveTo("quiet.zvn");
    days(3);
    game().setSpeed(2);
    const Int16 day = game().calendar.currentday;
    game().files.loadGame(path);
    EXPECT_EQ(game().logBox, "\r\nLoading " + path);
    EXPECT_EQ(session->screen.logClears, 1);
    EXPECT_EQ(session->screen.lines, std::vector<std::string>{"Loading " + path});
    EXPECT_EQ(game().calendar.currentday, day - 3);
    EXPECT_EQ(game().speed, 2);
    EXPECT_EQ(game().goals.getSelected(), 1); // the goal is not part of a saved game
}

TEST_F(SavedGameFixture, VersionMessageRules) {
    start();
    // Same version: no message.
    EXPECT_EQ(loadText(version + calendarSection(3, 1)), 0u);
    EXPECT_EQ(game().calendar.currentday, 3);
    // The key in another letter case still matches.
    EXPECT_EQ(
        loadText("<version>\r\nPROGRAMVERSION=2.0.1\r\n</version>\r\n" + calendarSection(4, 1)),
        0u);
    // Another number: the data loads, and the message comes with an OK button only.
    EXPECT_EQ(
        loadText("<version>\r\nprogramVersion=1.9.9\r\n</version>\r\n" + calendarSection(5, 2)),
        1u);
    EXPECT_EQ(dialogs().asked.back(), versionMessage);
    EXPECT_EQ(dialogs().buttons.back(), Buttons::Ok);
    EXPECT_EQ(game().calendar.currentday, 5);
    EXPECT_EQ(game().calendar.currentyear, 2);
    // No version section at all gets the same message.
    EXPECT_EQ(loadText(calendarSection(6, 2)), 1u);
    EXPECT_EQ(dialogs().asked.back(), versionMessage);
    // A version line with other keys around it, and an "=" in first place, is still found.
    EXPECT_EQ(loadText("<version>\r\n=2.0.1\r\nother=1\r\nprogramversion=2.0.1\r\n</version>\r\n"),
              0u);
    // Two version sections: the last one decides.
    EXPECT_EQ(loadText(version + "<version>\r\nprogramVersion=3\r\n</version>\r\n"), 1u);
    EXPECT_EQ(loadText("<version>\r\nprogramVersion=3\r\n</version>\r\n" + version), 0u);
    // A version followed by a blank is another version.
    EXPECT_EQ(loadText("<version>\r\nprogramVersion=2.0.1 \r\n</version>\r\n"), 1u);
}

TEST_F(SavedGameFixture, SectionsInReverseOrderGiveTheSameGame) {
    start();
    hireStaff(3);
    days(30);
    const std::string original = travellingPart(readFile(saveTo("forward.zvn")));
    std::vector<FileSection> sections = splitSections(original);
    std::reverse(sections.begin(), sections.end());
    std::string reversed;
    for (const FileSection& s : sections)
        reversed += joinLines(s.lines);

    start(); // a fresh session
    EXPECT_EQ(loadText(reversed), 0u);
    const std::vector<FileSection> again =
        splitSections(travellingPart(readFile(saveTo("again.zvn"))));
    const std::vector<FileSection> expected = splitSections(original);
    ASSERT_EQ(again.size(), expected.size());
    for (std::size_t i = 0; i < again.size(); ++i) {
        // Showtimes name movies by their place: read before the movies they stand alone.
        if (again[i].tag == "<showtimes>")
            continue;
        EXPECT_EQ(again[i].lines, expected[i].lines) << again[i].tag;
    }
}

TEST_F(SavedGameFixture, ASectionThatComesTwiceIsReadTwice) {
    start();
    game().finances.setFunds(10);
    EXPECT_EQ(loadText(version + calendarSection(3, 2) +
                       "<calendar>\r\ncurrentday=5\r\n</calendar>\r\n"
                       "<finances>\r\nfunds=500\r\ntotalspent=20\r\n</finances>\r\n"
                       "<finances>\r\nfunds=700\r\n</finances>\r\n"),
              0u);
    EXPECT_EQ(game().calendar.currentday, 5);  // the second reading wins
    EXPECT_EQ(game().calendar.currentyear, 2); // what it lacks stays from the first
    EXPECT_EQ(game().finances.funds, 700);
    EXPECT_EQ(game().finances.totalspent, 20);
}

TEST_F(SavedGameFixture, UpperCaseTagsAreRecognised) {
    start();
    EXPECT_EQ(loadText("<VERSION>\r\nprogramVersion=2.0.1\r\n</VERSION>\r\n"
                       "<Calendar>\r\nCURRENTDAY=4\r\ncurrentYear=3\r\n</CALENDAR>\r\n"
                       "<FINANCES>\r\nfunds=1234\r\n</FINANCES>\r\n"),
              0u);
    EXPECT_EQ(game().calendar.currentday, 4);
    EXPECT_EQ(game().calendar.currentyear, 3);
    EXPECT_EQ(game().finances.funds, 1234);
}

TEST_F(SavedGameFixture, ATagWithATrailingBlankHidesItsSection) {
    start();
    setCalendar(1, 0, 0, 0);
    game().finances.setFunds(10);
    EXPECT_EQ(loadText(version + "<calendar> \r\ncurrentday=5\r\ncurrentyear=4\r\n</calendar>\r\n"
                                 " <finances>\r\nfunds=99\r\n</finances>\r\n"
                                 "<finances>\r\nfunds=77\r\n</finances>\r\n"),
              0u);
    EXPECT_EQ(game().calendar.currentday, 1);
    EXPECT_EQ(game().calendar.currentyear, 0);
    EXPECT_EQ(game().finances.funds, 77); // the next proper tag is found again
}

TEST_F(SavedGameFixture, AMissingCloseTagLetsTheReaderRunIntoTheNextSection) {
    start();
    game().finances.setFunds(10);
    // The calendar reads on through <finances> up to its close tag: the finances are lost
    // (their keys mean nothing to the calendar), and the calendar keeps what it found.
    EXPECT_EQ(loadText(version + "<calendar>\r\ncurrentday=3\r\n"
                                 "<finances>\r\nfunds=555\r\ncurrentyear=6\r\n</finances>\r\n"
                                 "<calendar>\r\ncurrentweek=1\r\n"),
              0u);
    EXPECT_EQ(game().finances.funds, 10);
    EXPECT_EQ(game().calendar.currentday, 3);
    EXPECT_EQ(game().calendar.currentyear, 6);
    EXPECT_EQ(game().calendar.currentweek, 1); // a section cut by the end of the file
}

TEST_F(SavedGameFixture, LinesBetweenSectionsAndTheMathTagAreIgnored) {
    start();
    const double fundsmin = game().math.fundsmin;
    EXPECT_EQ(loadText("hello there\r\ncurrentday=6\r\n" + version +
                       "<math>\r\nfundsmin=5\r\n</math>\r\n</calendar>\r\n" +
                       calendarSection(2, 1) + "junk\r\n"),
              0u);
    EXPECT_EQ(game().math.fundsmin, fundsmin); // math is not part of a saved game
    EXPECT_EQ(game().calendar.currentday, 2);
}

TEST_F(SavedGameFixture, FilesWithLfOrCrLinesReadAlike) {
    start();
    EXPECT_EQ(loadText("<version>\nprogramVersion=2.0.1\n</version>\n<calendar>\ncurrentday=4\n"
                       "</calendar>\n"),
              0u);
    EXPECT_EQ(game().calendar.currentday, 4);
    EXPECT_EQ(loadText("<version>\rprogramVersion=2.0.1\r</version>\r<calendar>\rcurrentday=2\r"),
              0u);
    EXPECT_EQ(game().calendar.currentday, 2);
}

TEST_F(SavedGameFixture, ATruncatedFileKeepsWhatWasReadAndNeverCrashes) {
    start();
    days(40);
    const std::string text = readFile(saveTo("whole.zvn"));
    const Int16 day = game().calendar.currentday, year = game().calendar.currentyear;
    const double funds = game().finances.funds;
    const std::size_t calendarEnd = text.find("</calendar>\r\n") + 13;
    const std::size_t fundsStart = text.find("\r\nfunds=") + 2;
    const std::size_t fundsEnd = text.find("\r\n", fundsStart) + 2;
    ASSERT_NE(calendarEnd, std::string::npos);
    // Cut after every line, and in the middle of every line.
    std::vector<std::size_t> cuts;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n')
            cuts.push_back(i + 1);
        if (i > 0 && text[i] == '=')
            cuts.push_back(i + 1);
    }
    for (const std::size_t cut : cuts) {
        setCalendar(0, 0, 0, 0);
        game().finances.funds = -1;
        const std::size_t asked = loadText(text.substr(0, cut));
        // A cut inside the version section can lose the version line: then the message.
        EXPECT_LE(asked, 1u) << "cut at " << cut;
        if (cut >= calendarEnd) {
            EXPECT_EQ(game().calendar.currentday, day) << "cut at " << cut;
            EXPECT_EQ(game().calendar.currentyear, year) << "cut at " << cut;
        } else {
            EXPECT_EQ(game().calendar.currentyear, 0) << "cut at " << cut;
        }
        // A cut just behind "funds=" leaves an empty value, which reads as 0.
        const double expected = cut >= fundsEnd ? funds : cut > fundsStart ? 0 : -1;
        EXPECT_EQ(game().finances.funds, expected) << "cut at " << cut;
    }
}

TEST_F(SavedGameFixture, AReaderFailureEndsTheLoadSilentlyKeepingWhatWasRead) {
    start();
    setCalendar(1, 0, 0, 0);
    // histfunds(13) is a bounds error in the finances reader.
    EXPECT_EQ(
        loadText("<version>\r\nprogramVersion=9\r\n</version>\r\n" + calendarSection(3, 1) +
                 "<finances>\r\nfunds=444\r\nhistfunds(13)=5\r\ntotalspent=9\r\n</finances>\r\n" +
                 calendarSection(6, 2)),
        0u); // the handler leaves before the version message
    EXPECT_EQ(game().calendar.currentday, 3);
    EXPECT_EQ(game().calendar.currentyear, 1);
    EXPECT_EQ(game().finances.funds, 444);
    EXPECT_NE(game().finances.totalspent, 9);
}

TEST_F(SavedGameFixture, AMissingFileLoadsNothingButBecomesThePath) {
    start();
    days(2);
    const Int16 day = game().calendar.currentday;
    const std::string path = saves.file("missing.zvn");
    const std::size_t asked = dialogs().asked.size();
    game().files.loadGame(path);
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(game().logBox, "\r\nLoading " + path);
    EXPECT_EQ(dialogs().asked.size(), asked);
    EXPECT_EQ(game().calendar.currentday, day);
    // The next "Save Theater" writes to that path without asking.
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(dialogs().fileModes.empty());
}

TEST_F(SavedGameFixture, OpenTheaterAsksForAFile) {
    start();
    days(2);
    const std::string path = saveTo("chosen.zvn");
    const Int16 day = game().calendar.currentday;
    days(2);
    game().savedPath.clear();
    dialogs().files = {path};
    game().files.openTheater();
    ASSERT_EQ(dialogs().fileModes, std::vector<FileMode>{FileMode::Open});
    EXPECT_EQ(dialogs().filters[0], filter);
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(game().calendar.currentday, day);
}

TEST_F(SavedGameFixture, CancellingTheOpenDialogReloadsTheKnownFile) {
    start();
    days(1);
    const std::string path = saveTo("known.zvn");
    const Int16 day = game().calendar.currentday;
    const double funds = game().finances.funds;
    days(3);
    game().finances.setFunds(3);
    const std::size_t asked = dialogs().asked.size();
    game().files.openTheater(); // nothing queued: the dialog is cancelled
    EXPECT_EQ(dialogs().fileModes, std::vector<FileMode>{FileMode::Open});
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(game().calendar.currentday, day);
    EXPECT_EQ(game().finances.funds, funds);
    EXPECT_EQ(dialogs().asked.size(), asked);
}

TEST_F(SavedGameFixture, CancellingTheOpenDialogWithNoPathFailsSilently) {
    start();
    const Int16 day = game().calendar.currentday;
    const std::size_t asked = dialogs().asked.size();
    game().files.openTheater();
    EXPECT_TRUE(game().savedPath.empty());
    EXPECT_EQ(game().logBox, "\r\nLoading ");
    EXPECT_EQ(dialogs().asked.size(), asked);
    EXPECT_EQ(game().calendar.currentday, day);
}

TEST_F(SavedGameFixture, AGameNamedOnTheCommandLineIsLoadedAndAdvancedOneDay) {
    start();
    days(2); // Wednesday
    const std::string path = saves.file("Old Theater.ZVN");
    game().savedPath = path;
    game().finances.setFunds(12345);
    ASSERT_TRUE(game().files.saveGame());
    const Int16 day = game().calendar.currentday;

    start("\"" + path + "\"");
    const auto& status = session->screen.status;
    EXPECT_NE(std::find(status.begin(), status.end(), "Autoloading " + path), status.end());
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(game().calendar.currentday, day + 1); // start-up's own day runs on it
    EXPECT_TRUE(logged("Loading " + path));
}

TEST_F(SavedGameFixture, SaveThenLoadThenSaveIsByteIdentical) {
    start();
    game().startPlay(0);
    hireStaff(4);
    days(45); // past a month's end: the month's figures are written too
    game().finances.earn(1234.5678, "movie");
    game().finances.spend(0.1, "labor");
    const std::string first = readFile(saveTo("one.zvn"));

    // Into a fresh session: everything the format keeps comes back.
    start();
    EXPECT_EQ(loadText(first), 0u);
    const std::string second = readFile(saveTo("two.zvn"));
    ASSERT_NE(first.find("\r\n</emps>\r\n"), std::string::npos) << "the test game needs a staff";
    const std::string kept = travellingPart(first), again = travellingPart(second);
    const auto a = splitSections(kept), b = splitSections(again);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        EXPECT_EQ(a[i].lines, b[i].lines) << a[i].tag;
    EXPECT_EQ(kept, again);
}

TEST_F(SavedGameFixture, AGameSavedWithNoStaffBringsBackOnlyWhatComesBeforeTheStaff) {
    start();
    days(3);
    const std::string path = saveTo("nostaff.zvn");
    const Int16 day = game().calendar.currentday;
    start();
    game().loans.creditScore = 12.5; // the loans come after the staff in the file
    game().files.loadGame(path);
    EXPECT_EQ(game().calendar.currentday, day);
    EXPECT_EQ(game().loans.creditScore, 12.5);
    EXPECT_TRUE(dialogs().asked.empty()); // the version came first
}
