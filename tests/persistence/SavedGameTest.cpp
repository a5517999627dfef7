// The saved game: the file menu around it, one committed whole game that must load and save
// again byte for byte, and a table of hand-written files whose reading every section's
// quirks decide.
#include "StateJson.h"
#include "core/GameError.h"
#include "persistence/SavedFile.h"
#include "session/Game.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

using namespace zorvane;
using namespace zorvane::test;
using nlohmann::json;

namespace {

const std::string versionMessage =
    "This saved game is from a different program version.  There may be unexpected results.";
const std::string filter = "Theater saved games (*.ZVN)|*.zvn|All File (*.*)|*.*";
const std::string version = "<version>\r\nprogramVersion=2.0.1\r\n</version>\r\n";
// A section behind a failing one, still at its start-up value when the load stopped.
const std::string after = "<calendar>\r\ncurrentyear=9\r\n</calendar>\r\n";
const char* const stopped = R"({"/calendar/currentyear": null})";

// A game of 70 days with staff, movies, showtimes, snacks, an arcade machine, a promotion and
// a loan, made by whole-game.txt beside it (zorvane-sim --data data --seed 2026).
std::string wholeGame() {
    return readFile(shippedData() + "/../tests/persistence/whole.zvn");
}

struct SavedGameFixture : ::testing::Test {
    DataFolder data;
    TempDir saves;
    std::unique_ptr<TestGame> session;

    TestGame& start(const std::string& arg = "") {
        session = std::make_unique<TestGame>(data.path().string(), 7, arg);
        (*session)->startup();
        return *session;
    }
    Game& game() { return **session; }
    RecordingDialogs& dialogs() { return session->dialogs; }
    void days(int n) {
        for (int i = 0; i < n; ++i)
            game().calendar.nextDay();
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
};

} // namespace

TEST_F(SavedGameFixture, TheCommittedGameLoadsAndSavesAgainUnchangedInAnySectionOrder) {
    start();
    const std::string committed = travellingPart(wholeGame());
    ASSERT_NE(committed.find("\r\n</emps>\r\n"), std::string::npos);
    EXPECT_EQ(loadText(wholeGame()), 0u);
    // Month zero of the funds is not written.
    expectChecks({}, sim::gameState(game()),
                 R"({"/employees#": 5, "/myMovies#": 2, "/myGames#": 1, "/histfunds/0": 0})");
    expectSameSections(committed, travellingPart(readFile(saveTo("again.zvn"))), "again");
    EXPECT_EQ(session->screen.lines.back(), "saved " + game().savedPath);
    EXPECT_TRUE(game().saved);

    // Showtimes name movies by their place: read before the movies, they fail the load.
    start();
    std::vector<FileSection> sections = splitSections(committed);
    std::reverse(sections.begin(), sections.end());
    std::string reversed;
    for (const FileSection& section : sections)
        if (section.tag != "<showtimes>")
            reversed += joinLines(section.lines);
    EXPECT_EQ(loadText(reversed), 0u);
    expectSameSections(committed, travellingPart(readFile(saveTo("reversed.zvn"))), "reversed",
                       "<showtimes>");
}

TEST_F(SavedGameFixture, ATruncatedFileKeepsWhatWasReadAndNeverCrashes) {
    start();
    const std::string text = wholeGame();
    loadText(text);
    const double wholeFunds = game().finances.funds;
    const Int16 wholeDay = game().calendar.currentday;
    const std::size_t dayStart = text.find("currentday=");
    const std::size_t dayEnd = text.find("\r\n", dayStart) + 2;
    const std::size_t fundsStart = text.find("\r\nfunds=") + 2;
    const std::size_t fundsEnd = text.find("\r\n", fundsStart) + 2;
    std::vector<std::size_t> cuts;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\n' || (i > 0 && text[i] == '='))
            cuts.push_back(i + 1);
    for (const std::size_t cut : cuts) {
        game().calendar.currentday = -1;
        game().finances.funds = -1;
        // A cut inside the version section can lose the version line: then the message.
        EXPECT_LE(loadText(text.substr(0, cut)), 1u) << "cut at " << cut;
        // A cut just behind the "=" leaves an empty value, which reads as 0.
        const int day = cut >= dayEnd ? wholeDay : cut > dayStart ? 0 : -1;
        EXPECT_EQ(game().calendar.currentday, day) << "cut at " << cut;
        const double funds = cut >= fundsEnd ? wholeFunds : cut > fundsStart ? 0 : -1;
        EXPECT_EQ(game().finances.funds, funds) << "cut at " << cut;
    }
}

// One hand-written file loaded into a game just started: what the state shows afterwards.
struct ReaderCase {
    const char* name;
    std::string text;
    std::string checks;
    std::size_t asked = 0;
    std::string before = ""; // loaded first
};

const ReaderCase readerCases[] = {
    // The container: version, tags and lines between sections.
    {"VersionKeyInAnyCase",
     "<version>\r\nPROGRAMVERSION=2.0.1\r\n</version>\r\n<calendar>\r\ncurrentday=4\r\n",
     R"({"/calendar/currentday": 4})"},
    {"OtherVersionLoadsAndWarns",
     "<version>\r\nprogramVersion=1.9.9\r\n</version>\r\n<calendar>\r\ncurrentyear=2\r\n",
     R"({"/calendar/currentyear": 2})", 1},
    {"NoVersionWarns", "<calendar>\r\ncurrentday=6\r\n</calendar>\r\n",
     R"({"/calendar/currentday": 6})", 1},
    {"VersionAmongOtherKeys",
     "<version>\r\n=2.0.1\r\nother=1\r\nprogramversion=2.0.1\r\n</version>\r\n", "{}"},
    {"LastVersionDecidesWarn", version + "<version>\r\nprogramVersion=3\r\n</version>\r\n", "{}",
     1},
    {"LastVersionDecidesQuiet", "<version>\r\nprogramVersion=3\r\n</version>\r\n" + version, "{}"},
    {"VersionWithABlankIsAnother", "<version>\r\nprogramVersion=2.0.1 \r\n</version>\r\n", "{}", 1},
    {"ASectionTwiceIsReadTwice",
     version + "<calendar>\r\ncurrentday=3\r\ncurrentyear=2\r\n</calendar>\r\n"
               "<calendar>\r\ncurrentday=5\r\n</calendar>\r\n"
               "<finances>\r\nfunds=500\r\ntotalspent=20\r\n</finances>\r\n"
               "<finances>\r\nfunds=700\r\n</finances>\r\n",
     R"({"/calendar/currentday": 5, "/calendar/currentyear": 2, "/funds": 700,
         "/totalspent": 20})"},
    {"UpperCaseTags",
     "<VERSION>\r\nprogramVersion=2.0.1\r\n</VERSION>\r\n<Calendar>\r\nCURRENTDAY=4\r\n"
     "currentYear=3\r\n</CALENDAR>\r\n<FINANCES>\r\nfunds=1234\r\n</FINANCES>\r\n",
     R"({"/calendar/currentday": 4, "/calendar/currentyear": 3, "/funds": 1234})"},
    {"ATagWithABlankHidesItsSection",
     version +
         "<calendar> \r\ncurrentday=5\r\ncurrentyear=4\r\n</calendar>\r\n"
         " <finances>\r\nfunds=99\r\n</finances>\r\n<finances>\r\nfunds=77\r\n</finances>\r\n",
     R"({"/calendar/currentday": null, "/calendar/currentyear": null, "/funds": 77})"},
    // The calendar reads on through <finances> to its own close tag.
    {"AMissingCloseTagRunsIntoTheNextSection",
     version + "<calendar>\r\ncurrentday=3\r\n<finances>\r\nfunds=555\r\ncurrentyear=6\r\n"
               "</finances>\r\n<calendar>\r\ncurrentweek=1\r\n",
     R"({"/funds": null, "/calendar/currentday": 3, "/calendar/currentyear": 6,
         "/calendar/currentweek": 1})"},
    {"LinesBetweenSectionsAndMathAreIgnored",
     "hello there\r\ncurrentday=6\r\n" + version +
         "<math>\r\nfundsmin=5\r\n</math>\r\n</calendar>\r\n<calendar>\r\ncurrentday=2\r\n"
         "</calendar>\r\njunk\r\n",
     R"({"/math/fundsmin": null, "/calendar/currentday": 2})"},
    {"LfLines", "<version>\nprogramVersion=2.0.1\n</version>\n<calendar>\ncurrentday=4\n",
     R"({"/calendar/currentday": 4})"},
    {"CrLines", "<version>\rprogramVersion=2.0.1\r</version>\r<calendar>\rcurrentday=2\r",
     R"({"/calendar/currentday": 2})"},
    // A reader's failure ends the load silently, before the version message.
    {"AFailureStopsTheLoadKeepingWhatWasRead",
     "<version>\r\nprogramVersion=9\r\n</version>\r\n<calendar>\r\ncurrentday=3\r\n"
     "</calendar>\r\n<finances>\r\nfunds=444\r\nhistfunds(13)=5\r\ntotalspent=9\r\n"
     "</finances>\r\n" +
         after,
     R"({"/calendar/currentday": 3, "/funds": 444, "/totalspent": null,
         "/calendar/currentyear": null})"},
    // A staff with no close tag swallows the rest of the file.
    {"NoStaffCloseTagSwallowsTheRest",
     version + "<emps>\r\nminWage= 7.5\r\n<loans>\r\ncreditScore=12.5\r\n</loans>\r\n" + after,
     R"({"/minWage": 7.5, "/loan/creditScore": null, "/calendar/currentyear": null})"},
    // Calendar and finances.
    {"CalendarKeys",
     version + "<calendar>\r\nCURRENTDAY=5.5\r\nx=1\r\n=7\r\ncurrentweek 2\r\nonedayclose= 1\r\n"
               "</calendar>\r\ncurrentyear=9\r\n",
     R"({"/calendar/currentday": 6, "/calendar/currentweek": null, "/calendar/onedayclose": true,
         "/calendar/currentyear": null})"},
    {"CalendarYearBeyond16BitsStops",
     version + "<calendar>\r\ncurrentyear=70000\r\n</calendar>\r\n" + after, stopped},
    {"FinanceKeysAreCaseSensitive",
     version + "<finances>\r\nFUNDS=5\r\nfunds=6\r\ntotalspent\r\nhistfunds(3)=33\r\n"
               "</finances>\r\nfunds=9\r\n",
     R"({"/funds": 6, "/totalspent": null, "/histfunds/3": 33})"},
    // The building.
    {"BuildingKeysInAnyCaseAndBadLines",
     version + "<building>\r\nCONDITION=55.5\r\n=99\r\nseating 400\r\nSeating=abc\r\n"
               "RENT= 1234.5 dollars\r\nunknown=7\r\niambroken=1\r\n"
               "MonthsWithoutPayingRent=2.5\r\n</building>\r\ncondition=10\r\n",
     R"({"/building/condition": 56, "/building/seating": 0, "/building/rent": 1234.5,
         "/building/monthsWithoutPayingRent": 2, "/building/IamBroken": false})"},
    {"BuildingMissingKeysKeepTheirValues",
     version + "<building>\r\ncondition=50\r\n</building>\r\n",
     R"({"/building/condition": 50, "/building/totalRentPaid": 999})", 0,
     version + "<building>\r\ntotalRentPaid=999\r\n</building>\r\n"},
    // Written with no "=", so never read; the broken flag's key never matches.
    {"BuildingRemodelCostAndBrokenFlagAreNeverRead",
     version + "<building>\r\nremodelcost42\r\nIamBroken=1\r\nrepairCost=600\r\n</building>\r\n",
     R"({"/building/remodelcost": null, "/building/IamBroken": false, "/building/repairCost": 0})"},
    {"BuildingSeatingBeyond16BitsStops",
     version + "<building>\r\nseating=40000\r\n</building>\r\n" + after,
     R"({"/building/seating": null, "/calendar/currentyear": null})"},
    // The bank.
    {"LoanFiguresRounded",
     version + "<loans>\r\nINTERESTRATE=2.346\r\ncreditscore=61.125 points\r\n=5\r\n"
               "balance 99\r\nPayPlan=12.5\r\npaymentsRemaining=2.5\r\nmonthlyPayment=$12\r\n"
               "loanAmount=3000.125\r\n</loans>\r\nbalance=5\r\n",
     R"({"/loan/interestRate": 2.35, "/loan/creditScore": 61.12, "/loan/balance": null,
         "/loan/payPlan": 12, "/loan/paymentsRemaining": 2.5, "/loan/monthlyPayment": 0,
         "/loan/loanAmount": 3000.125})"},
    // Movies and showtimes.
    {"MoviesEndOnlyAtTheirOwnCloseTag",
     version + "<movies>\r\n</junk>\r\n<MOVIE_BUY>\r\nTitle=Late\r\nPop=30\r\n</MOVIE_BUY>\r\n"
               "TicketPriceSenior=3.5 dollars\r\n</MOVIES>\r\nticketPriceMatinee=1\r\n",
     R"({"/buyMovies#": 1, "/buyMovies/0/Title": "Late", "/ticketPrice/2": 3.5,
         "/ticketPrice/1": null})"},
    {"OfferSortedWithoutPopularityOutsideOneToHundred",
     version + "<movies>\r\n<movie_buy>\r\nTitle=Low\r\nPop=20\r\n</movie_buy>\r\n"
               "<movie_buy>\r\nTitle=Zero\r\nPop=0\r\n</movie_buy>\r\n"
               "<movie_buy>\r\nTitle=High\r\nPop=70\r\n</movie_buy>\r\n</movies>\r\n",
     R"({"/buyMovies#": 2, "/buyMovies/0/Title": "High", "/buyMovies/1/Title": "Low"})"},
    {"AMovieLoadEmptiesBothLists",
     version + "<movies>\r\n<movie_my>\r\nNum=7\r\nTITLE=A = B\r\nrunning=-1\r\npop=56.5\r\n"
               "CLASSIC=7.5\r\n=9\r\nnoise\r\n</movie_my>\r\n</movies>\r\n",
     R"({"/buyMovies#": 0, "/myMovies#": 1, "/myMovies/0/Num": 7, "/myMovies/0/Title": "A = B",
         "/myMovies/0/Running": false, "/myMovies/0/Pop": 56, "/myMovies/0/Classic": 8,
         "/myMoviesSelected": 0, "/ticketPrice/0": null})",
     0, wholeGame()},
    {"MovieRunningOnlyAsOne",
     version + "<movies>\r\n<movie_my>\r\nRunning=1 yes\r\n</movie_my>\r\n</movies>\r\n",
     R"({"/myMovies/0/Running": true})"},
    {"ShowtimesInAnyCaseMatineeOnlyAsOne",
     version + "<showtimes>\r\n<SHOWTIME NUM=5>\r\nMATINEE=-1\r\nAds=2.5\r\nName=Late Show\r\n"
               "</showtime>\r\n<showtime num=6>\r\nmatinee=1\r\n</showtime>\r\n</showtimes>\r\n"
               "<showtime num=7>\r\nads=4\r\n</showtime>\r\n",
     R"({"/showtimes/4/matinee": false, "/showtimes/4/ads": 2, "/showtimes/4/name": "Late Show",
         "/showtimes/5/matinee": true, "/showtimes/6/ads": null})"},
    {"ShowtimeNumberNineStops",
     version + "<showtimes>\r\n<showtime num=9>\r\n</showtime>\r\n</showtimes>\r\n" + after,
     stopped},
    // The loader keeps a movie number beyond the own list; the table then fails.
    {"ShowtimeMovieBeyondTheListStops",
     version + "<showtimes>\r\n<showtime num=2>\r\nmovie=4\r\n</showtime>\r\n</showtimes>\r\n" +
         after,
     R"({"/showtimes/1/movie": 4, "/calendar/currentyear": null})"},
    // The staff.
    // The file's employee numbers are ignored; the staff's close tag in any case.
    {"EmployeeBlock",
     version + "<emps>\r\nminwage=6\r\n<employee>\r\nnum= 9\r\nNAME=Zed = Zimmer\r\nexp=2.5\r\n"
               "Job= 3\r\nsomething=1\r\nfillingin=-1\r\ndaysworked=70000\r\nnoequals\r\n=5\r\n"
               "</employee>\r\n</EMPS>\r\n<calendar>\r\ncurrentyear=2\r\n</calendar>\r\n",
     R"({"/employees/0/num": 1, "/employees/0/name": "Zed = Zimmer", "/employees/0/exp": 2,
         "/employees/0/job": 3, "/employees/0/fillingin": false, "/employees/0/daysworked": 70000,
         "/positions/2/myEmployee": 1, "/minWage": 6, "/calendar/currentyear": 2})"},
    {"EmployeeJobEightStops",
     version + "<emps>\r\n<employee>\r\njob=8\r\n</employee>\r\n</emps>\r\n" + after, stopped},
    {"WagesBelowTheMinimumAsTheyStand",
     version + "<positions>\r\n<position>\r\nWAGE=1.5\r\n</position>\r\n<position>\r\nx=1\r\n"
               "wage=$3\r\n</position>\r\n</positions>\r\n",
     R"({"/positions/0/wage": 1.5, "/positions/1/wage": 0, "/positions/2/wage": null})"},
    {"EightPositionBlocksStop",
     version + "<positions>\r\n" +
         [] {
             std::string blocks;
             for (int i = 0; i < 8; ++i)
                 blocks += "<position>\r\nwage= 9\r\n</position>\r\n";
             return blocks;
         }() +
         "</positions>\r\n" + after,
     stopped},
    // Promotions and the rating.
    {"PromotionKeys",
     version + "<promotions>\r\nRUNNING 3=2.5\r\nCost 4=99.5abc\r\nrunning 5=7\r\nrunning3=9\r\n"
               "</promotions>\r\nrunning 0=4\r\n",
     R"({"/promotions/running/3": 2, "/promotions/cost/4": 99.5, "/promotions/running/0": null,
         "/promotions/points": 20})"},
    {"RatingKeys",
     version + "<ratings>\r\nCURRENTRATING=250\r\nHistory(3.5)=12\r\nhistoryx(2)=9\r\n"
               "currentaverage=-3\r\n</ratings>\r\n",
     R"({"/rating/currentRating": 250, "/rating/history/4": 12, "/rating/history/2": 9,
         "/rating/currentAverage": -3})"},
    {"RatingHistoryTwelveStops", version + "<ratings>\r\nhistory(12)=1\r\n</ratings>\r\n" + after,
     stopped},
    // The stand.
    {"ConcessionBlocks",
     version + "<concessions>\r\njunk\r\n<CONCESSION NUM=3>\r\nNAME=Big Dog\r\nQuality=3\r\n"
               "=7\r\nno equals sign\r\nstock=12abc\r\nbuypermonth=2.5\r\ntodayssold=3.5\r\n"
               "price=\r\ncolour=red\r\n</concession>\r\n<concession num=2.5>\r\nstock=55\r\n"
               "</concession>\r\n</concessions>\r\n",
     R"({"/concessions/3/name": "Big Dog", "/concessions/3/quality": 3, "/concessions/3/stock": 12,
         "/concessions/3/buypermonth": 2, "/concessions/3/todayssold": 4, "/concessions/3/price": 0,
         "/concessions/2/stock": 55, "/concessions/2/name": null})"},
    {"ConcessionNumberFiveStops",
     version +
         "<concessions>\r\n<concession num=5>\r\nstock=1\r\n</concession>\r\n"
         "</concessions>\r\n" +
         after,
     stopped},
    // The arcade.
    {"ArcadeBlocks",
     version + "<arcades>\r\n<arcade_my>\r\nNUM=1.5\r\n=7\r\nno equals\r\nIAMBROKE=1.5\r\n"
               "Pop= 41abc\r\nName=  spaced  \r\nunknown=3\r\nAge=3.5\r\nMyCabTop=0\r\n"
               "myCabLeft=2000\r\n</arcade_my>\r\n<ARCADE_MY>\r\nNum=1\r\nName=B\r\n"
               "MyCabTop=900\r\nmyCabLeft=-5\r\n</arcade_my>\r\n<arcade_buy> \r\n"
               "Name=skipped\r\n</arcades>\r\n<arcade_buy>\r\n",
     R"({"/myGames#": 2, "/buyGames#": 0, "/myGames/0/Num": 2, "/myGames/0/Age": 4,
         "/myGames/0/IamBroke": false, "/myGames/0/Pop": 41, "/myGames/0/Name": "  spaced  ",
         "/myGames/0/left": 2000, "/myGames/0/top": 1800, "/myGames/1/left": 600,
         "/myGames/1/top": 900})"},
    {"ArcadeNumbersThatClashStop",
     version +
         "<arcades>\r\n<arcade_my>\r\nNum=1\r\n</arcade_my>\r\n<arcade_my>\r\nNum=1\r\n"
         "</arcade_my>\r\n</arcades>\r\n" +
         after,
     stopped},
    {"ArcadePopularityBeyond16BitsStops",
     version + "<arcades>\r\n<arcade_buy>\r\nPop=40000\r\n</arcade_buy>\r\n</arcades>\r\n" + after,
     stopped},
};

struct ReaderTable : SavedGameFixture, ::testing::WithParamInterface<ReaderCase> {};

TEST_P(ReaderTable, LoadsAsTheRulesSay) {
    const ReaderCase& c = GetParam();
    start();
    if (!c.before.empty())
        loadText(c.before);
    const json before = sim::gameState(game());
    EXPECT_EQ(loadText(c.text), c.asked);
    if (c.asked > 0) {
        EXPECT_EQ(dialogs().asked.back(), versionMessage);
        EXPECT_EQ(dialogs().buttons.back(), Buttons::Ok);
    }
    expectChecks(before, sim::gameState(game()), c.checks);
}

INSTANTIATE_TEST_SUITE_P(Files, ReaderTable, ::testing::ValuesIn(readerCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(SavedGameFixture, ALoadIntoABrokenTheaterBreaksItDownAgain) {
    start();
    game().building.breakDown();
    game().setSpeed(3);
    EXPECT_EQ(loadText(version + "<building>\r\nIamBroken=0\r\n</building>\r\n"), 0u);
    EXPECT_FALSE(game().building.isInOrder());
    EXPECT_EQ(session->screen.count(" !!!  YOUR THEATER HAS BROKE DOWN !!! "), 1);
    EXPECT_EQ(game().speed, 0);
    EXPECT_EQ(game().lastSpeed, 3);
}

TEST_F(SavedGameFixture, SaveAsksForAPathOnlyWhenThereIsNoneAndNeverTellsOfAFailure) {
    start();
    EXPECT_FALSE(game().files.saveGame()); // nothing queued: cancelled
    EXPECT_TRUE(game().savedPath.empty());
    EXPECT_FALSE(game().saved);
    const std::string path = saves.file("asked.zvn");
    dialogs().files = {path};
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(dialogs().filters[1], filter);
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_EQ(dialogs().fileModes, (std::vector<FileMode>{FileMode::Save, FileMode::Save}));
    // Save As cancelled forgets the path, so the next save asks again.
    EXPECT_FALSE(game().files.saveAs());
    EXPECT_TRUE(game().savedPath.empty());
    const std::string third = saves.file("third.zvn");
    dialogs().files = {third};
    EXPECT_TRUE(game().files.saveAs());
    EXPECT_EQ(game().savedPath, third);
    EXPECT_TRUE(std::filesystem::exists(third));

    // A failed save is silent, returns true and leaves the flag; a quit through Yes therefore
    // ends the process with the game unsaved.
    game().saved = false;
    game().savedPath = saves.file("no/such/folder/x.zvn");
    const std::size_t lines = session->screen.lines.size();
    EXPECT_TRUE(game().files.saveGame());
    EXPECT_FALSE(game().saved);
    EXPECT_EQ(session->screen.lines.size(), lines);
    EXPECT_TRUE(dialogs().asked.empty());
    dialogs().answers = {Answer::Yes};
    EXPECT_THROW(game().quitGame(), ProcessEnded);
}

TEST_F(SavedGameFixture, ALoadEmptiesTheLogRunsNoDayKeepsSpeedGoalAndSavedFlag) {
    start();
    game().goals.selectGoal(1);
    game().startPlay(1);
    const std::string path = saveTo("quiet.zvn");
    const Int16 day = game().calendar.currentday;
    game().files.loadGame(path);
    EXPECT_TRUE(game().saved);
    days(3);
    game().setSpeed(2);
    game().files.loadGame(path);
    EXPECT_FALSE(game().saved); // a quit straight after a load still asks
    EXPECT_EQ(game().logBox, "\r\nLoading " + path);
    EXPECT_EQ(session->screen.lines, std::vector<std::string>{"Loading " + path});
    EXPECT_EQ(game().calendar.currentday, day);
    EXPECT_EQ(game().speed, 2);
    EXPECT_EQ(game().goals.getSelected(), 1); // the goal is not part of a saved game
}

TEST_F(SavedGameFixture, AMissingFileOrAFolderBecomesThePathAndOpenTheaterReloadsIt) {
    start();
    const Int16 day = game().calendar.currentday;
    const std::string folder = saves.file("folder.zvn");
    std::filesystem::create_directory(folder);
    game().files.loadGame(folder); // read as a file, it fails: silently, like a missing one
    EXPECT_EQ(game().savedPath, folder);
    const std::string path = saves.file("missing.zvn");
    game().files.loadGame(path);
    EXPECT_EQ(game().savedPath, path);
    EXPECT_TRUE(dialogs().asked.empty());
    EXPECT_EQ(game().calendar.currentday, day);
    EXPECT_TRUE(game().files.saveGame()); // to that path, without asking
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(dialogs().fileModes.empty());

    // Open Theater asks for a file; with no path, a cancel fails silently.
    start();
    game().files.openTheater();
    EXPECT_TRUE(game().savedPath.empty());
    EXPECT_EQ(game().logBox, "\r\nLoading ");
    days(1);
    const std::string known = saveTo("known.zvn");
    const Int16 knownDay = game().calendar.currentday;
    days(2);
    dialogs().files = {known};
    game().savedPath.clear();
    game().files.openTheater();
    EXPECT_EQ(dialogs().filters[1], filter);
    EXPECT_EQ(game().savedPath, known);
    EXPECT_EQ(game().calendar.currentday, knownDay);
    days(2);
    game().files.openTheater(); // cancelled: the known file again
    EXPECT_EQ(dialogs().fileModes, std::vector<FileMode>(3, FileMode::Open));
    EXPECT_EQ(game().calendar.currentday, knownDay);
    EXPECT_TRUE(dialogs().asked.empty());
}

TEST_F(SavedGameFixture, AGameNamedOnTheCommandLineIsLoadedAndAdvancedOneDay) {
    start();
    days(2);
    const std::string path = saves.file("Old Theater.ZVN");
    game().savedPath = path;
    ASSERT_TRUE(game().files.saveGame());
    const Int16 day = game().calendar.currentday;
    start("\"" + path + "\"");
    const auto& status = session->screen.status;
    EXPECT_NE(std::find(status.begin(), status.end(), "Autoloading " + path), status.end());
    EXPECT_EQ(game().savedPath, path);
    EXPECT_EQ(game().calendar.currentday, day + 1); // start-up's own day runs on it
}
