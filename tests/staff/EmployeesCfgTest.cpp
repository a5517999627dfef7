#include "StaffFixture.h"

#include "core/GameError.h"
#include "staff/EmployeesCfg.h"

#include <fstream>
#include <set>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const std::string tooMany(const std::string& name) {
    return "Error loading employee file, there are more fields for '" + name +
           "' than there should be, perhaps employees.cfg is for a newer version of zorvane?";
}

class CfgTest : public StaffTest {};

} // namespace

// Comment cut first, fields split at bars, the name as it stands, each number the leading
// number of its field floored (no upper limit); usable only when named and all three >= 1.
// Each character of a fifth or later field is one message, and the line still counts.
TEST(CandidateLineTest, Table) {
    struct Row {
        const char* line;
        const char* name;
        int exp, rel, amb;
        bool usable;
        std::size_t messages = 0;
    };
    // clang-format off
    const Row rows[] = {
        {"Mary Ann Lee|3.9|7|2.99", "Mary Ann Lee", 3, 7, 2, true},
        {"Tom Tait|3.9|5|4 # a comment | with | bars", "Tom Tait", 3, 5, 4, true},
        {"# Tom Tait|3|5|4", "", 0, 0, 0, false},
        {"", "", 0, 0, 0, false},
        {" Tom Tait |3|5|4", " Tom Tait ", 3, 5, 4, true},
        {"|3|5|4", "", 3, 5, 4, false},
        {"Tom Tait|3|5|0", "Tom Tait", 3, 5, 0, false},
        {"Tom Tait|0.9|5|4", "Tom Tait", 0, 5, 4, false},
        {"Tom Tait|3|x|4", "Tom Tait", 3, 0, 4, false},
        {"Tom Tait|3|5", "Tom Tait", 3, 5, 0, false},
        {"Tom Tait|  4abc|5|4", "Tom Tait", 4, 5, 4, true},
        {"Tom Tait|3|11|4", "Tom Tait", 3, 11, 4, true},
        {"Tom Tait|3|5|4|", "Tom Tait", 3, 5, 4, true},
        {"Tom Tait|3|5|4|ab|c", "Tom Tait", 3, 5, 4, true, 3},
    };
    // clang-format on
    for (const Row& r : rows) {
        SCOPED_TRACE(r.line);
        std::vector<std::string> messages;
        const CandidateLine c =
            readCandidateLine(r.line, [&](const std::string& m) { messages.push_back(m); });
        EXPECT_EQ(std::tie(c.name, c.exp, c.rel, c.amb),
                  std::make_tuple(r.name, r.exp, r.rel, r.amb));
        EXPECT_EQ(c.usable(), r.usable);
        EXPECT_EQ(messages, std::vector<std::string>(r.messages, tooMany(r.name)));
    }
    EXPECT_THROW(readCandidateLine("Tom Tait|40000|5|4", [](const std::string&) {}), GameError);
}

TEST_F(CfgTest, TheLoaderKeepsUsableLinesLogsExtraFieldsAndFailsOnAMissingFileOrAnOverflow) {
    dir.write("employees.cfg", "# header\r\nTom Tait|3|5|4\r\n\r\nBad Line|3|5|0\r\n"
                               "Sue Sims|2|6|7|x\r\nTom Tait|1|1|1\r\n");
    staff.loadEmployeeDatabase();
    EXPECT_EQ(each(staff.databaseCount(), [&](int i) { return staff.getDatabaseEntry(i).name; }),
              Names({"Tom Tait", "Sue Sims", "Tom Tait"}));
    EXPECT_EQ(staff.getDatabaseEntry(2).amb, 7);
    EXPECT_EQ(staff.getDatabaseEntry(2).num, 0);
    EXPECT_GE(staff.getDatabaseEntry(2).myPicSkin, 1); // a face from init
    EXPECT_EQ(staff.getDatabaseEntry(2).trainingcost, 0);
    EXPECT_EQ(log(), Names{tooMany("Sue Sims")});
    std::filesystem::remove(dir.file("employees.cfg"));
    const auto load = [&] { staff.loadEmployeeDatabase(); };
    EXPECT_EQ(thrown(load).value().kind(), GameError::Kind::FileNotFound);
    dir.write("employees.cfg", "Tom Tait|3|5|4\nSue Sims|99999|6|7\n");
    EXPECT_NE(std::string(thrown(load).value().what()).find("employees.cfg line 2"),
              std::string::npos);
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
