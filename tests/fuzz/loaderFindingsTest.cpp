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

} // namespace
} // namespace zorvane::test
