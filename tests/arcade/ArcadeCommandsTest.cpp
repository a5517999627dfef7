#include "ArcadeFixture.h"

#include "Commands.h"
#include "Subsystems.h"
#include "core/GameError.h"

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

// The simulator's arcade commands, run on a game whose arcade was set up by hand.
struct Commands : ArcadeFixture {
    std::ostringstream out;
    std::vector<std::string> unread;

    void run(const std::string& line) {
        std::string command;
        sim::Args args;
        ASSERT_TRUE(sim::parseLine(line, command, args));
        const sim::Command& c = sim::commandTable().at(command);
        if (static_cast<int>(args.size()) < c.minArgs ||
            (c.maxArgs >= 0 && static_cast<int>(args.size()) > c.maxArgs))
            throw sim::ScriptError("wrong number of words");
        sim::CommandContext ctx{g(), tg->dialogs, out, unread};
        c.run(ctx, args);
    }

    nlohmann::json state() {
        nlohmann::json s;
        sim::addArcadeState(g(), s);
        return s;
    }
};

TEST_F(Commands, BuyArrangeAndSell) {
    am().loadGamesList();
    g().rng.force({0.0, 0.99});
    g().math.arcadenewgamespermonth = 2;
    am().releaseGames(); // Alpha, Echo
    run("buygame 2");
    run("buygame 1");
    run("rename 2 Big  Alpha ");
    run("playprice 2 4");
    run("cabinet 2 5");
    run("move 2 5000.5 40 0.5 0");
    run("autorepair 1");

    nlohmann::json s = state();
    EXPECT_TRUE(s["autoRepair"].get<bool>());
    EXPECT_TRUE(s["buyGames"].empty());
    ASSERT_EQ(s["myGames"].size(), 2u);
    const nlohmann::json& alpha = s["myGames"][1];
    EXPECT_EQ(alpha["Name"], "Big  Alpha ");
    EXPECT_EQ(alpha["Num"], 2);
    EXPECT_EQ(alpha["OriginalNum"], 1);
    EXPECT_EQ(alpha["PricePerPlay"], 4);
    EXPECT_EQ(alpha["CabinetImageFileNumber"], 5);
    EXPECT_EQ(alpha["left"].get<double>(), arcadeRoom::templateLeft + 5000);
    EXPECT_EQ(alpha["top"].get<double>(), arcadeRoom::templateTop + 40);
    EXPECT_EQ(am().room.cabinet(2).picture, g().dataPath("images/arcades/005R.gif"));

    run("sellgame 1");
    s = state();
    ASSERT_EQ(s["myGames"].size(), 1u);
    EXPECT_EQ(s["myGames"][0]["Name"], "Big  Alpha ");
    EXPECT_EQ(s["myGames"][0]["Num"], 1);
    EXPECT_EQ(s["myGames"][0]["left"].get<double>(), arcadeRoom::templateLeft + 5000);
}

TEST_F(Commands, RepairThroughTheCommand) {
    arcade& a = addMachine(title(1, "Zap", 50));
    a.IamBroke = true;
    a.Age = 2;
    run("repairgame 1");
    EXPECT_FALSE(a.IamBroke);
    EXPECT_EQ(g().finances.deparcade, 40);
}

TEST_F(Commands, BadLinesAreScriptErrors) {
    addMachine(title(1, "Zap", 50));
    EXPECT_THROW(run("autorepair 2"), sim::ScriptError);
    EXPECT_THROW(run("move 1 10 x 0 0"), sim::ScriptError);
    EXPECT_THROW(run("rename 1"), sim::ScriptError);
    EXPECT_THROW(run("sellgame 9"), GameError); // the game's own fault, not the script's
}

} // namespace
