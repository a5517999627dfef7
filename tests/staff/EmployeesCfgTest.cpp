#include "StaffFixture.h"

#include "core/GameError.h"
#include "staff/EmployeesCfg.h"

#include <fstream>
#include <set>

using namespace zorvane;
using namespace zorvane::test;

namespace {

CandidateLine read(const std::string& line, std::vector<std::string>* messages = nullptr) {
    return readCandidateLine(line, [&](const std::string& m) {
        if (messages)
            messages->push_back(m);
    });
}

const std::string tooMany(const std::string& name) {
    return "Error loading employee file, there are more fields for '" + name +
           "' than there should be, perhaps employees.cfg is for a newer version of zorvane?";
}

class CfgTest : public StaffTest {};

} // namespace

TEST(CandidateLineTest, FieldsAreSplitAtBarsAndTheNumbersFloored) {
    const CandidateLine c = read("Mary Ann Lee|3.9|7|2.99");
    EXPECT_EQ(c.name, "Mary Ann Lee");
    EXPECT_EQ(c.exp, 3);
    EXPECT_EQ(c.rel, 7);
    EXPECT_EQ(c.amb, 2);
    EXPECT_TRUE(c.usable());
}

TEST(CandidateLineTest, TheCommentIsCutFirst) {
    const CandidateLine c = read("Tom Tait|3.9|5|4 # a comment | with | bars");
    EXPECT_EQ(c.exp, 3);
    EXPECT_EQ(c.amb, 4);
    EXPECT_TRUE(c.usable());
    EXPECT_FALSE(read("# Tom Tait|3|5|4").usable());
    EXPECT_FALSE(read("").usable());
}

TEST(CandidateLineTest, BlanksInTheNameCountAsTheyStand) {
    EXPECT_EQ(read(" Tom Tait |3|5|4").name, " Tom Tait ");
    EXPECT_FALSE(read("|3|5|4").usable());
}

TEST(CandidateLineTest, ANumberBelowOneOrNoNumberMakesTheLineUnusable) {
    EXPECT_FALSE(read("Tom Tait|3|5|0").usable());
    EXPECT_FALSE(read("Tom Tait|0.9|5|4").usable());
    EXPECT_FALSE(read("Tom Tait|3|x|4").usable());
    EXPECT_FALSE(read("Tom Tait|3|5").usable());
    EXPECT_TRUE(read("Tom Tait|  4abc|5|4").usable()); // blanks skipped, the leading number
    EXPECT_EQ(read("Tom Tait|3|11|4").rel, 11);        // no upper limit here
}

TEST(CandidateLineTest, EachCharacterOfAnExtraFieldIsOneMessageAndTheLineStillCounts) {
    std::vector<std::string> messages;
    const CandidateLine c = read("Tom Tait|3|5|4|ab|c", &messages);
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[0], tooMany("Tom Tait"));
    EXPECT_TRUE(c.usable());
    EXPECT_EQ(c.amb, 4);
    messages.clear();
    read("Tom Tait|3|5|4|", &messages);
    EXPECT_TRUE(messages.empty());
}

TEST(CandidateLineTest, ANumberPastSixteenBitsIsAnOverflow) {
    EXPECT_THROW(read("Tom Tait|40000|5|4"), GameError);
}

TEST_F(CfgTest, TheLoaderKeepsUsableLinesAndLogsExtraFields) {
    dir.write("employees.cfg", "# header\r\nTom Tait|3|5|4\r\n\r\nBad Line|3|5|0\r\n"
                               "Sue Sims|2|6|7|x\r\nTom Tait|1|1|1\r\n");
    staff.loadEmployeeDatabase();
    ASSERT_EQ(staff.databaseCount(), 3);
    EXPECT_EQ(staff.getDatabaseEntry(2).name, "Sue Sims");
    EXPECT_EQ(staff.getDatabaseEntry(2).amb, 7);
    EXPECT_EQ(staff.getDatabaseEntry(2).num, 0);
    EXPECT_GE(staff.getDatabaseEntry(2).myPicSkin, 1); // a face from init
    EXPECT_EQ(staff.getDatabaseEntry(2).trainingcost, 0);
    ASSERT_EQ(log().size(), 1u);
    EXPECT_EQ(log()[0], tooMany("Sue Sims"));
}

TEST_F(CfgTest, AMissingFileIsARunTimeError) {
    std::filesystem::remove(dir.file("employees.cfg"));
    try {
        staff.loadEmployeeDatabase();
        FAIL() << "no file, no error";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::FileNotFound);
    }
}

TEST_F(CfgTest, AnOverflowNamesTheFileAndLine) {
    dir.write("employees.cfg", "Tom Tait|3|5|4\nSue Sims|99999|6|7\n");
    try {
        staff.loadEmployeeDatabase();
        FAIL();
    } catch (const GameError& e) {
        EXPECT_NE(std::string(e.what()).find("employees.cfg line 2"), std::string::npos);
    }
}

TEST_F(CfgTest, ThePoolStopsAt32767WithAMessageOnTheNextLine) {
    {
        std::ofstream out(dir.file("employees.cfg"), std::ios::binary);
        for (int i = 1; i <= 32767; ++i)
            out << "Person " << i << "|1|1|1\n";
        out << "# any further line, even a comment, meets the full pool\n";
        out << "Person 32768|1|1|1\n";
    }
    staff.loadEmployeeDatabase();
    EXPECT_EQ(staff.databaseCount(), 32767);
    EXPECT_EQ(logged("there are more than 32767 in the  file, only using first 32767"), 1);
    EXPECT_EQ(log().size(), 1u);
}

TEST(ShippedCandidates, LoadWithoutAMessageAndHoldTenDifferentNames) {
    DataFolder data;
    TestGame tg(data.path().string());
    tg.math(staffMath);
    tg->employees.loadEmployeeDatabase();
    EXPECT_TRUE(tg.screen.lines.empty());
    std::set<std::string> names;
    for (int i = 1; i <= tg->employees.databaseCount(); ++i) {
        const employee& e = tg->employees.getDatabaseEntry(i);
        names.insert(e.name);
        // The screen's text forms need levels 0 to 10.
        EXPECT_LE(e.rel, 10) << e.name;
        EXPECT_LE(e.amb, 10) << e.name;
    }
    EXPECT_GE(names.size(), 10u);
}
