// What fuzzing the file loaders found, each pinned by a test that fails on the old
// behaviour: a file that once hung, crashed or misread the game now ends as the game's own
// run-time error with a message that names the problem, or reads as it should.
#include "core/GameError.h"
#include "core/Numbers.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace zorvane::test {
namespace {

std::string names(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "Person " + std::to_string(i) + "|3|5|5\n";
    return text;
}

std::string messageOf(const std::function<void()>& run) {
    try {
        run();
    } catch (const GameError& e) {
        return e.what();
    }
    return "";
}

// The day's ten applicants need ten different names; with fewer the draw never ended.
TEST(LoaderFindings, EmployeesCfgWithNineNamesStopsTheFirstDayWithAMessage) {
    DataFolder folder;
    folder.write("employees.cfg", names(9) + names(9));
    TestGame game(folder.path().string());
    const std::string message = messageOf([&] { game->startup(); });
    EXPECT_NE(message.find("employees.cfg holds 9 different names"), std::string::npos) << message;
}

TEST(LoaderFindings, EmployeesCfgWithOneNameRepeatedStopsWithAMessage) {
    DataFolder folder;
    std::string text;
    for (int i = 0; i < 50; ++i)
        text += "Ann Lee|2|5|5\n";
    folder.write("employees.cfg", text);
    TestGame game(folder.path().string());
    const std::string message = messageOf([&] { game->startup(); });
    EXPECT_NE(message.find("holds 1 different names"), std::string::npos) << message;
}

TEST(LoaderFindings, EmployeesCfgWithTenNamesDrawsTheFullTable) {
    DataFolder folder;
    folder.write("employees.cfg", names(10) + names(10) + names(10));
    TestGame game(folder.path().string());
    game->startup();
    EXPECT_EQ(game->employees.candidateCount(), 10);
}

// A number beyond the range of a double read as an infinity, which the saved game then wrote
// as "inf" and read back as 0. It is an overflow, as every other number too large for its
// field.
TEST(LoaderFindings, ANumberBeyondTheDoubleRangeIsAnOverflow) {
    try {
        leadingNumber("1e400");
        FAIL() << "no error";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::Overflow);
        EXPECT_NE(std::string(e.what()).find("1e400"), std::string::npos) << e.what();
    }
    EXPECT_THROW(leadingNumber(std::string(400, '9')), GameError);
    EXPECT_DOUBLE_EQ(leadingNumber("1e300"), 1e300);
    EXPECT_EQ(leadingNumber("1e-400"), 0.0);
}

TEST(LoaderFindings, ASavedGameWithAnInfiniteFigureStopsLoadingThere) {
    DataFolder folder;
    TestGame game(folder.path().string());
    game->startup();
    const double before = game->finances.getFunds();
    const std::string path =
        folder.write("odd.zvn", "<version>\r\nprogramVersion=2.0.1\r\n</version>\r\n<finances>\r\n"
                                "histfunds(10)=1e400\r\nfunds=5\r\n</finances>\r\n");
    game->files.loadGame(path);
    EXPECT_EQ(game->finances.getFunds(), before); // the load stopped before funds=5
    EXPECT_EQ(game->finances.getHistFunds(10), 0.0);
}

// Once a too-large number became an overflow, the section readers that took every value's
// number before looking at the key failed on a person named like a number (a name from
// employees.cfg, saved by the game itself) and on an unknown key with a huge value, which
// the game ignores. Only the keys that hold numbers are read as numbers.
TEST(LoaderFindings, TextsAndUnknownKeysThatLookLikeHugeNumbersLoad) {
    DataFolder folder;
    TestGame game(folder.path().string());
    game->startup();
    const std::string path = folder.write(
        "names.zvn", "<version>\r\nprogramVersion=2.0.1\r\n</version>\r\n"
                     "<calendar>\r\nmood=1e999\r\nspare=40000\r\ncurrentday=3\r\n</calendar>\r\n"
                     "<emps>\r\nminWage= 5.15\r\n<employee>\r\nname=9e999 Smith\r\n"
                     "angerreason=1e999\r\nexp= 3\r\nmood=1e999\r\n</employee>\r\n</emps>\r\n"
                     "<building>\r\nmood=1e999\r\nseating=77\r\n</building>\r\n"
                     "<loans>\r\nmood=1e999\r\nbalance=12\r\n</loans>\r\n"
                     "<finances>\r\nmood=1e999\r\nfunds=34\r\n</finances>\r\n");
    game->files.loadGame(path);
    ASSERT_EQ(game->employees.employeeCount(), 1);
    EXPECT_EQ(game->employees.getEmployee(1).name, "9e999 Smith");
    EXPECT_EQ(game->employees.getEmployee(1).exp, 3);
    EXPECT_EQ(game->building.getSeating(), 77);
    EXPECT_EQ(game->loans.getBalance(), 12);
    EXPECT_EQ(game->finances.getFunds(), 34);
    EXPECT_EQ(game->calendar.currentday, 3);
}

} // namespace
} // namespace zorvane::test
