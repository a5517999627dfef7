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
    g.math.empangrynowork = 2;
    g.math.empoverqualifiedquitchance = 0;
    // Idle, never worked: impatient. Exp 1 and job 0 with limit 1: no learning draws.
    setStaff({{"Ann Able", 1, 5, 0, 10, 99}, {"Bob Brown", 2, 5, 2}});
    g.rng.force({roll(1), roll(100)}); // no-work roll passes, over-qualified roll fails
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(logged("Ann Able  quit saying 'I'm fed up with this job!!'"), 1);
    ASSERT_EQ(staff.employeeCount(), 1);
    EXPECT_EQ(emp(1).name, "Bob Brown");
    EXPECT_EQ(emp(1).num, 1);
    EXPECT_EQ(holder(2), 1); // the renumbered person wrote the new number into the post
}

TEST_F(EmployeeTest, OnePointOfAngerADayBelowTheCalmDownDoesNotQuit) {
    g.math.empprobation = 0;
    g.math.empangrycalmdown = 1;
    g.math.empangrynowork = 1;
    g.math.empoverqualifiedquitchance = 0;
    setStaff({{"Ann Able", 1, 5, 0, 10, 99}});
    g.rng.force({roll(1), roll(100)});
    emp(1).nextDay();
    EXPECT_EQ(staff.employeeCount(), 1);
    EXPECT_EQ(emp(1).anger, 99);
    EXPECT_EQ(emp(1).angerreason, "Need more work");
}

TEST_F(EmployeeTest, ABouncedPaycheckCountsOnlyOnTheNextDay) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 90}});
    g.finances.funds = 50;
    emp(1).PayMe(100);
    EXPECT_EQ(emp(1).anger, 115);
    EXPECT_EQ(emp(1).angerreason, "Paycheck bounced");
    EXPECT_EQ(emp(1).daysworked, 1); // counted before the money was tried
    EXPECT_EQ(emp(1).paid, 0);
    EXPECT_EQ(staff.employeeCount(), 1); // no quitting test in PayMe
    emp(1).nextDay();                    // probation: no rolls; calm-down 2 leaves 113
    EXPECT_EQ(staff.employeeCount(), 0);
}

TEST_F(EmployeeTest, AFallBelowZeroMakesContentButAFallToExactlyZeroKeepsTheReason) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 2}, {"Bob Brown", 2, 5, 2, 10, 1}});
    emp(1).angerreason = "Over Qualified";
    emp(2).angerreason = "Over Qualified";
    emp(1).nextDay();
    emp(2).nextDay();
    EXPECT_EQ(emp(1).anger, 0);
    EXPECT_EQ(emp(1).angerreason, "Over Qualified");
    EXPECT_EQ(emp(2).anger, 0);
    EXPECT_EQ(emp(2).angerreason, "Content");
}

TEST_F(EmployeeTest, ProbationMeansNoRollsAtAll) {
    g.math.empprobation = 3;
    setStaff({{"Ann Able", 1, 5, 0, 10, 0, 0, 1}});
    const auto before = g.rng.draws();
    emp(1).nextDay(); // day 2 of 3
    EXPECT_EQ(g.rng.draws(), before);
    EXPECT_EQ(emp(1).daysemployed, 2);
    g.rng.force({roll(100), roll(100)});
    emp(1).nextDay(); // day 3: the no-work roll and the over-qualified roll
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
}

TEST_F(EmployeeTest, WorkRatioAndPatienceDecideTheNoWorkRoll) {
    g.math.empprobation = 0;
    g.math.empoverqualifiedquitchance = 0;
    // Worked 24 of 100 days (after the day's count): ratio 24; patience 5 * 5 = 25.
    setStaff({{"Ann Able", 1, 5, 0, 10, 0, 24, 99}});
    g.rng.force({roll(24), roll(100)}); // patience 25 above roll 24: angry
    emp(1).nextDay();
    EXPECT_EQ(emp(1).anger, 8);
    // Worked 25 of 100: ratio 25 is not below patience 25: no roll at all.
    setStaff({{"Bob Brown", 1, 5, 0, 10, 0, 25, 99}});
    g.rng.force(roll(100)); // only the over-qualified roll
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).anger, 0);
}

TEST_F(EmployeeTest, AFillInJobLastsOneDay) {
    setStaff({{"Ann Able", 2, 5, 2, 10, 0, 0, 0, true}});
    emp(1).nextDay();
    EXPECT_EQ(emp(1).job, 0);
    EXPECT_FALSE(emp(1).fillingin);
}

// ---------------------------------------------------------------- learning

TEST_F(EmployeeTest, LearningTakesThreeDrawsAndAJobAboveTheLevelTeachesFaster) {
    g.math.empprobation = 0;
    g.math.empambchance = 5;
    g.math.empexpchance = 5;
    setStaff({{"Ann Able", 2, 10, 3}});
    // chance 50 against roll 11; draw 1 plus (3 - 2) = 2, not below exp 2; roll 5 <= 5.
    g.rng.force({roll(11), 0.0, roll(5)});
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).exp, 3); // now equal to the job: no over-qualified roll followed
}

TEST_F(EmployeeTest, AFailedGateMakesNoFurtherDraw) {
    g.math.empprobation = 0;
    setStaff({{"Ann Able", 5, 10, 5}});
    g.rng.force({roll(11), 0.0}); // draw 1 is below exp 5: stop
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).exp, 5);
    g.rng.force(roll(51)); // chance 50 below roll 51: stop after one draw
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    g.rng.force({roll(50), 0.999, roll(6)}); // the last roll misses empexpchance 5
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).exp, 5);
}

TEST_F(EmployeeTest, AtTheLimitAboveTheJobNoLearningButTheOverQualifiedRollEveryDay) {
    g.math.empprobation = 0;
    g.math.empoverqualifiedquitchance = 20;
    setStaff({{"Ann Able", 4, 10, 3}});
    g.rng.force(roll(20)); // only the over-qualified roll: at most 20 angers
    emp(1).nextDay();
    EXPECT_EQ(g.rng.forcedLeft(), 0u);
    EXPECT_EQ(emp(1).anger, 18);
    EXPECT_EQ(emp(1).angerreason, "Over Qualified");
}

// ---------------------------------------------------------------- sickness and pay

TEST_F(EmployeeTest, AttendanceRoundsHalfToEven) {
    g.math.emprelchance = 12.5;
    setStaff({{"Ann Able", 1, 5, 1, 5}, {"Bob Brown", 1, 5, 0, 3}});
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
}

TEST_F(EmployeeTest, PayGoesUnderLabor) {
    setStaff({{"Ann Able", 1, 5, 1}});
    g.finances.funds = 1000;
    emp(1).PayMe(88);
    EXPECT_EQ(emp(1).paid, 88);
    EXPECT_EQ(g.finances.deplabor, 88);
    EXPECT_EQ(g.finances.funds, 912);
}

TEST_F(EmployeeTest, TrainingCostIsFixedWhenFirstAskedFor) {
    setStaff({{"Ann Able", 3}, {"Bob Brown", 9}});
    EXPECT_EQ(emp(1).trainingcost, 0);
    EXPECT_DOUBLE_EQ(emp(1).getMyTrainingCost(), 700); // 1000 - 3 * 700 / 7
    emp(1).exp = 6;
    EXPECT_DOUBLE_EQ(emp(1).getMyTrainingCost(), 700);
    EXPECT_DOUBLE_EQ(emp(2).getMyTrainingCost(), 100); // the true experience 9
}

// ---------------------------------------------------------------- texts and face

TEST_F(EmployeeTest, TextFormsPutTheNumberFirst) {
    setStaff({{"Ann Able", 9, 5, 7, 10, 12}});
    employee& e = emp(1);
    e.angerreason = "Need more work";
    EXPECT_EQ(e.getMyExp(), 7);
    EXPECT_EQ(e.getMyExpText(), "9-Manager");
    EXPECT_EQ(e.getMyRelText(), "10-Superb");
    EXPECT_EQ(e.getMyAmbText(), "5-Average");
    EXPECT_EQ(e.getMyJobText(), "7-Manager");
    EXPECT_EQ(e.getMyAngerLevelText(), "(12/100)-Need more work");
    e.rel = 11;
    EXPECT_THROW(e.getMyRelText(), GameError);
    e.job = 8;
    EXPECT_THROW(e.getMyJobText(), GameError);
}

TEST_F(EmployeeTest, FaceLayersFollowSkinGlassesAndHair) {
    setStaff({{"Ann Able"}});
    employee& e = emp(1);
    e.myPicSkin = 2;
    e.myPicGlasses = 3;
    e.myPicHair = 3;
    const auto path = [&](const std::string& f) { return g.dataPath("images/face_elements/" + f); };
    FaceLayers f = e.drawPicture();
    EXPECT_EQ(f.files[FaceLayers::Backhair], path("backhair.gif"));
    EXPECT_EQ(f.files[FaceLayers::Torso], path("torsoM.gif"));
    EXPECT_EQ(f.files[FaceLayers::Head], path("headM.gif"));
    EXPECT_EQ(f.files[FaceLayers::EyeSockets], path("eyesocketsM.gif"));
    EXPECT_EQ(f.files[FaceLayers::Eyes], path("eyes.gif"));
    EXPECT_EQ(f.files[FaceLayers::Nose], path("noseM.gif"));
    EXPECT_EQ(f.files[FaceLayers::Mouth], path("mouthM.gif"));
    EXPECT_EQ(f.files[FaceLayers::Glasses], "");
    EXPECT_EQ(f.files[FaceLayers::Hair], path("hair3.gif"));
    e.myPicSkin = 3;
    e.myPicGlasses = 1;
    e.myPicHair = 5;
    f = e.drawPicture();
    EXPECT_EQ(f.files[FaceLayers::Backhair], "");
    EXPECT_EQ(f.files[FaceLayers::Torso], path("torsoD.gif"));
    EXPECT_EQ(f.files[FaceLayers::Glasses], path("glasses1.gif"));
}

TEST_F(EmployeeTest, APersonWithoutAFaceGetsOneWhenDrawnAndKeepsIt) {
    setStaff({{"Ann Able"}});
    employee& e = emp(1);
    e.myPicHair = 0;
    g.rng.force({0.0, 0.5, 0.99}); // skin 1, glasses 2, hair 6
    e.drawPicture();
    EXPECT_EQ(e.myPicSkin, 1);
    EXPECT_EQ(e.myPicGlasses, 2);
    EXPECT_EQ(e.myPicHair, 6);
    const auto before = g.rng.draws();
    e.drawPicture();
    EXPECT_EQ(g.rng.draws(), before);
}

// ---------------------------------------------------------------- the saved block

TEST_F(EmployeeTest, AngerPastSixteenBitsIsAnOverflow) {
    setStaff({{"Ann Able", 1, 5, 1, 10, 32760}});
    g.math.empangrynopay = 25;
    g.finances.funds = 0;
    try {
        emp(1).PayMe(10);
        FAIL() << "anger passed 32767";
    } catch (const GameError& err) {
        EXPECT_EQ(err.kind(), GameError::Kind::Overflow);
    }
}
