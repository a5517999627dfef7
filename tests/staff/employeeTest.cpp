#include "StaffFixture.h"

#include "core/GameError.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

class EmployeeTest : public StaffTest {};

// A percent roll of `roll` (1 to 100) as the draw that gives it.
double roll(int r) {
    return (r - 1) / 100.0 + 0.001;
}

} // namespace

// ---------------------------------------------------------------- quitting

TEST_F(EmployeeTest, QuitsWhenTheDaysAngerLessTheCalmDownReachesTheQuitPoint) {
    g.math.empprobation = 0;
    g.math.empangrycalmdown = 1;
    g.math.empangrynowork = 1;
    g.math.empoverqualifiedquitchance = 0;
    // Idle, never worked: impatient. Exp 1 and job 0 with limit 1: no learning draws.
    setStaff({{"Ann Able", 1, 5, 0, 10, 99}, {"Bob Brown", 2, 5, 2}});
    g.rng.force({roll(1), roll(100), roll(1), roll(100)}); // no-work passes, over-qualified not
    emp(1).nextDay();                                      // 99 + 1 - 1: one below the quit point
    EXPECT_EQ(emp(1).anger, 99);
    EXPECT_EQ(emp(1).angerreason, "Need more work");
    g.math.empangrynowork = 2;
    emp(1).nextDay(); // 99 + 2 - 1
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(logged("Ann Able  quit saying 'I'm fed up with this job!!'"), 1);
    ASSERT_EQ(staff.employeeCount(), 1);
    EXPECT_EQ(emp(1).name, "Bob Brown");
    EXPECT_EQ(emp(1).num, 1);
    EXPECT_EQ(holder(2), 1); // the renumbered person wrote the new number into the post
}

TEST_F(EmployeeTest, PayGoesUnderLaborAndABouncedPaycheckCountsOnlyOnTheNextDay) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 90}, {"Bob Brown", 2, 5, 2, 10, 32760}});
    g.finances.funds = 150;
    emp(1).PayMe(88);
    emp(1).PayMe(50);
    EXPECT_EQ(emp(1).paid, 138);
    EXPECT_EQ(g.finances.deplabor, 138);
    EXPECT_EQ(g.finances.funds, 12);
    emp(1).PayMe(100);
    EXPECT_EQ(emp(1).anger, 115);
    EXPECT_EQ(emp(1).angerreason, "Paycheck bounced");
    EXPECT_EQ(emp(1).daysworked, 3); // counted before the money was tried
    EXPECT_EQ(emp(1).paid, 138);
    EXPECT_EQ(staff.employeeCount(), 2); // no quitting test in PayMe
    EXPECT_EQ(thrown([&] { emp(2).PayMe(100); }).value().kind(), GameError::Kind::Overflow);
    emp(1).nextDay(); // probation: no rolls; calm-down 2 leaves 113
    EXPECT_EQ(staff.employeeCount(), 1);
    EXPECT_EQ(emp(1).name, "Bob Brown");
}

TEST_F(EmployeeTest, ProbationMeansNoRollsAtAllThenWorkRatioAndPatienceDecideTheNoWorkRoll) {
    g.math.empprobation = 3;
    g.math.empoverqualifiedquitchance = 0;
    // Worked 24 or 25 of 100 days (after the day's count); patience 5 * 5 = 25.
    setStaff({{"Ann Able", 1, 5, 0, 10, 0, 0, 1},
              {"Bob Brown", 1, 5, 0, 10, 0, 24, 99},
              {"Cy Cole", 1, 5, 0, 10, 0, 25, 99}});
    const auto before = g.rng.draws();
    emp(1).nextDay(); // day 2 of 3
    EXPECT_EQ(g.rng.draws(), before);
    EXPECT_EQ(emp(1).daysemployed, 2);
    g.rng.force({roll(100), roll(100)});
    emp(1).nextDay(); // day 3: the no-work roll and the over-qualified roll
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    g.rng.force({roll(24), roll(100)}); // ratio 24, patience 25 above roll 24: angry
    emp(2).nextDay();
    EXPECT_EQ(emp(2).anger, 8);
    g.rng.force({roll(25), roll(100)}); // the next day a roll of 25 is not below patience 25
    emp(2).nextDay();
    EXPECT_EQ(emp(2).anger, 6);
    const auto draws = g.rng.draws();
    g.rng.force(roll(100)); // ratio 25 is not below patience 25: only the over-qualified roll
    emp(3).nextDay();
    EXPECT_EQ(g.rng.draws(), draws + 1);
    EXPECT_EQ(emp(3).anger, 0);
}

// ---------------------------------------------------------------- learning

// Ambition is the chance to try, a job above one's level teaches faster, and high experience
// is harder to raise; a failed gate makes no further draw.
TEST_F(EmployeeTest, LearningTakesThreeDrawsAndAJobAboveTheLevelTeachesFaster) {
    g.math.empprobation = 0;
    setStaff({{"Ann Able", 2, 10, 3}, {"Bob Brown", 5, 10, 5}, {"Cy Cole", 4, 10, 3}});
    // chance 50 against roll 11; draw 1 plus (3 - 2) = 2, not below exp 2; roll 5 <= 5.
    g.rng.force({roll(11), 0.0, roll(5)});
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).exp, 3); // now equal to the job: no over-qualified roll followed
    const auto draws = g.rng.draws();
    g.rng.force({roll(11), 0.4}); // draw 4 is below exp 5: stop
    emp(2).nextDay();
    EXPECT_EQ(g.rng.draws(), draws + 2);
    g.rng.force(roll(51)); // chance 50 below roll 51: stop after one draw
    emp(2).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    g.rng.force({roll(50), 0.999, roll(6)}); // the last roll misses empexpchance 5
    emp(2).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(2).exp, 5);
    // At the limit above the job: no learning, but the over-qualified roll every day.
    g.rng.force(roll(20)); // at most 20 angers
    emp(3).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(std::tie(emp(3).anger, emp(3).angerreason), std::make_tuple(18, "Over Qualified"));
}

// ---------------------------------------------------------------- sickness and pay

TEST_F(EmployeeTest, AttendanceRoundsHalfToEvenAndAngerFallsToContentOnlyBelowZero) {
    g.math.emprelchance = 12.5;
    setStaff({{"Ann Able", 1, 5, 1, 5},
              {"Bob Brown", 1, 5, 0, 3},
              {"Cy Cole", 1, 5, 1, 10, 2},
              {"Dee Dunn", 2, 5, 2, 10, 1}});
    // 5 * 12.5 = 62.5 rounds to 62: a roll of 63 is sick, 62 is not.
    g.rng.force({roll(62), roll(63)});
    EXPECT_FALSE(emp(1).amIsick());
    EXPECT_TRUE(emp(1).amIsick());
    // 3 * 12.5 = 37.5 rounds to 38.
    g.rng.force({roll(38), roll(39)});
    EXPECT_FALSE(emp(2).amIsick());
    EXPECT_TRUE(emp(2).amIsick());
    EXPECT_EQ(emp(1).sickdays, 1);
    EXPECT_EQ(emp(2).sickdays, 1);
    EXPECT_EQ(logged("Ann Able has called in sick today."), 1);
    EXPECT_EQ(logged("Bob Brown has called in sick today."), 0); // slot 3: once a day
    // Anger falling below 0 makes content; a fall to exactly 0 keeps the reason.
    emp(3).angerreason = "Over Qualified";
    emp(4).angerreason = "Over Qualified";
    emp(3).nextDay();
    emp(4).nextDay();
    EXPECT_EQ(std::tie(emp(3).anger, emp(3).angerreason), std::make_tuple(0, "Over Qualified"));
    EXPECT_EQ(std::tie(emp(4).anger, emp(4).angerreason), std::make_tuple(0, "Content"));
}

// ---------------------------------------------------------------- texts and face

TEST_F(EmployeeTest, TrainingCostAndTextFormsWithTheNumberFirst) {
    setStaff({{"Ann Able", 9, 5, 7, 10, 12}, {"Bob Brown", 3}});
    employee& e = emp(1);
    // The training price is fixed when first asked for, on the true experience.
    EXPECT_EQ(emp(2).trainingcost, 0);
    EXPECT_DOUBLE_EQ(emp(2).getMyTrainingCost(), 700); // 1000 - 3 * 700 / 7
    emp(2).exp = 6;
    EXPECT_DOUBLE_EQ(emp(2).getMyTrainingCost(), 700);
    EXPECT_DOUBLE_EQ(e.getMyTrainingCost(), 100);
    e.angerreason = "Need more work";
    EXPECT_EQ(e.getMyExp(), 7);
    EXPECT_EQ(
        Names({e.getMyExpText(), e.getMyRelText(), e.getMyAmbText(), e.getMyJobText(),
               e.getMyAngerLevelText()}),
        Names({"9-Manager", "10-Superb", "5-Average", "7-Manager", "(12/100)-Need more work"}));
    e.rel = 11;
    EXPECT_THROW(e.getMyRelText(), GameError);
    e.job = 8;
    EXPECT_THROW(e.getMyJobText(), GameError);
}

TEST_F(EmployeeTest, FaceLayersFollowSkinGlassesAndHair) {
    setStaff({{"Ann Able"}});
    employee& e = emp(1);
    const auto face = [&](int skin, int glasses, int hair) {
        e.myPicSkin = skin;
        e.myPicGlasses = glasses;
        e.myPicHair = hair;
        return e.drawPicture().files;
    };
    // Back hair, torso, head, eye sockets, eyes, nose, mouth, glasses, hair; "" is no layer.
    const auto files = [&](std::array<std::string, FaceLayers::count> names) {
        for (std::string& n : names)
            n = n.empty() ? n : g.dataPath("images/face_elements/" + n);
        return names;
    };
    EXPECT_EQ(face(2, 3, 3), files({"backhair.gif", "torsoM.gif", "headM.gif", "eyesocketsM.gif",
                                    "eyes.gif", "noseM.gif", "mouthM.gif", "", "hair3.gif"}));
    EXPECT_EQ(face(3, 1, 5), files({"", "torsoD.gif", "headD.gif", "eyesocketsD.gif", "eyes.gif",
                                    "noseD.gif", "mouthD.gif", "glasses1.gif", "hair5.gif"}));
    // A person without a face (an old saved game) gets one when drawn, and keeps it.
    g.rng.force({0.0, 0.5, 0.99}); // skin 1, glasses 2, hair 6
    EXPECT_EQ(face(2, 3, 0), files({"", "torsoL.gif", "headL.gif", "eyesocketsL.gif", "eyes.gif",
                                    "noseL.gif", "mouthL.gif", "glasses2.gif", "hair6.gif"}));
    const auto before = g.rng.draws();
    e.drawPicture();
    EXPECT_EQ(g.rng.draws(), before);
}
