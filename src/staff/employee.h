#pragma once
#include "core/Numbers.h"

#include <array>
#include <cstdint>
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The nine picture files of a face, back to front; an empty name means "no picture" (the
// layer is cleared). The screen only loads them; a file that cannot be loaded leaves its
// layer as it was.
struct FaceLayers {
    static constexpr int count = 9;
    enum Layer { Backhair, Torso, Head, EyeSockets, Eyes, Nose, Mouth, Glasses, Hair };
    std::array<std::string, count> files{};
};

// One person: a line of employees.cfg, maybe a row of the day's hire table, maybe a member
// of the staff. The same object serves in all three lists. It holds the three stats, the
// anger that may make the person quit, the job, the pay record and the face, and decides
// each day whether the person learns, grows angry, calms down, quits or calls in sick.
class employee {
  public:
    explicit employee(Game& game) : game_(&game) {}

    // --- the class's operations ---
    FaceLayers drawPicture();
    int getMyNum() const { return num; }
    std::int32_t getDaysWorked() const { return daysworked; }
    std::int32_t getDaysEmployed() const { return daysemployed; }
    void updateJob();
    double getMyPaid() const { return paid; }
    void PayMe(double amount);
    int getMySickDays() const { return sickdays; }
    void nextDay();
    int getMyAngerLevel() const { return anger; }
    std::string getMyAngerLevelText() const;
    bool amIsick();
    void nextMonth();
    int getMySeniority() const { return seniority; }
    void init(const std::string& newName, int newExp, int newRel, int newAmb, int newNum);
    int getMyExp() const { return exp > 7 ? 7 : static_cast<int>(exp); }
    std::string getMyExpText() const;
    int getMyRel() const { return rel; }
    std::string getMyRelText() const;
    int getMyAmb() const { return amb; }
    std::string getMyAmbText() const;
    const std::string& getMyName() const { return name; }
    void setMyName(const std::string& newName) { name = newName; }
    void setMyNum(int newNum) { num = newNum; }
    // The class keeps no list position: the setter stores nothing, the getter gives nothing.
    void setMyListPos(int) {}
    std::string getMyListPos() const { return {}; }
    void setMyJob(int newJob, bool filling);
    int getMyJob() const { return job; }
    std::string getMyJobText() const;
    double getMyTrainingCost();
    bool saveSelf(LineWriter& out) const;
    void loadSelf(LineReader& in, int newNum);

    // The training price as the hire table shows it, without fixing it.
    double trainingCostShown() const;
    // The face files as they stand (no new face is drawn).
    FaceLayers faceLayers() const;

    // --- fields, named as the saved game's keys ---
    std::string name;
    Int16 num;
    Int16 exp;
    Int16 rel;
    Int16 amb;
    Int16 anger;
    std::string angerreason;
    Int16 job;
    double trainingcost = 0;
    Int16 seniority;
    double paid = 0;
    Int16 sickdays;
    std::int32_t daysworked = 0;
    std::int32_t daysemployed = 0;
    bool fillingin = false;
    Int16 myPicSkin;
    Int16 myPicGlasses;
    Int16 myPicHair;

    static constexpr const char* reasonContent = "Content";
    static constexpr const char* reasonNoWork = "Need more work";
    static constexpr const char* reasonOverQualified = "Over Qualified";
    static constexpr const char* reasonNoPay = "Paycheck bounced";

  private:
    void randomizeFace();
    void calmDown();
    void dayAtWork();
    void angerOverQualified();
    void tryToLearn();
    void angerNoWork();
    double computeTrainingCost() const;

    const std::string& positionName(int p) const;
    const std::string& levelName(int level) const;

    Game* game_;
};

} // namespace zorvane
