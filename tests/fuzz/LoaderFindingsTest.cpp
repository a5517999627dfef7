// What fuzzing the file loaders found, each pinned by a test that fails on the old
// behaviour: a file that once hung, crashed or misread the game now ends as the game's own
// run-time error with a message that names the problem, or reads as it should.
#include "core/GameError.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane::test {
namespace {

std::string names(int count, int repeats) {
    std::string text;
    for (int r = 0; r < repeats; ++r)
        for (int i = 0; i < count; ++i)
            text += "Person " + std::to_string(i) + "|3|5|5\n";
    return text;
}

// The day's ten applicants need ten different names; with fewer the draw never ended.
TEST(LoaderFindings, EmployeesCfgWithFewerThanTenNamesStopsTheFirstDayWithAMessage) {
    struct Case {
        std::string file, message; // no message: the full table is drawn
    };
    const Case cases[] = {
        {names(9, 2), "employees.cfg holds 9 different names"},
        {names(1, 50), "employees.cfg holds 1 different names"},
        {names(10, 3), ""},
    };
    for (const Case& c : cases) {
        DataFolder folder;
        folder.write("employees.cfg", c.file);
        TestGame game(folder.path().string());
        std::string message;
        try {
            game->startup();
            EXPECT_EQ(game->employees.candidateCount(), 10);
        } catch (const GameError& e) {
            message = e.what();
        }
        if (c.message.empty()) {
            EXPECT_EQ(message, "");
        } else {
            EXPECT_NE(message.find(c.message), std::string::npos) << message;
        }
    }
}

// The load stops at the infinite figure. Once a too-large number became an overflow, the
// section readers that took every value's number before looking at the key failed on a person
// named like a number (a name from employees.cfg, saved by the game itself) and on an unknown
// key with a huge value, which the game ignores: only the keys that hold numbers are read as
// numbers.
TEST(LoaderFindings, OnlyAHugeFigureStopsASavedGameNotTextsOrUnknownKeysThatLookLikeOne) {
    DataFolder folder;
    TestGame game(folder.path().string());
    game->startup();
    const double before = game->finances.getFunds();
    const std::string version = "<version>\r\nprogramVersion=2.0.1\r\n</version>\r\n";
    game->files.loadGame(folder.write(
        "odd.zvn", version + "<finances>\r\nhistfunds(10)=1e400\r\nfunds=5\r\n</finances>\r\n"));
    EXPECT_EQ(game->finances.getFunds(), before); // the load stopped before funds=5
    EXPECT_EQ(game->finances.getHistFunds(10), 0.0);

    game->files.loadGame(folder.write(
        "names.zvn",
        version + "<calendar>\r\nmood=1e999\r\nspare=40000\r\ncurrentday=3\r\n</calendar>\r\n"
                  "<emps>\r\nminWage= 5.15\r\n<employee>\r\nname=9e999 Smith\r\n"
                  "angerreason=1e999\r\nexp= 3\r\nmood=1e999\r\n</employee>\r\n</emps>\r\n"
                  "<building>\r\nmood=1e999\r\nseating=77\r\n</building>\r\n"
                  "<loans>\r\nmood=1e999\r\nbalance=12\r\n</loans>\r\n"
                  "<finances>\r\nmood=1e999\r\nfunds=34\r\n</finances>\r\n"));
    expectChecks({}, sim::gameState(*game),
                 R"({"/employees#": 1, "/employees/0/name": "9e999 Smith", "/employees/0/exp": 3,
                     "/building/seating": 77, "/loan/balance": 12, "/funds": 34,
                     "/calendar/currentday": 3})");
}

} // namespace
} // namespace zorvane::test
