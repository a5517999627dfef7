#include "staff/employee.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <cmath>

namespace zorvane {

namespace {

// A 32-bit day counter one higher; past its range it is an overflow, as every counter.
std::int32_t plusOne32(std::int32_t value) {
    return toInt32(static_cast<double>(value) + 1);
}

std::string numberFirst(int value) {
    return digitsOnly(std::to_string(value));
}

} // namespace

const std::string& employee::positionName(int p) const {
    if (p < 0 || p > 7)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: position " + std::to_string(p) + " of " +
                            (name.empty() ? std::string("an unnamed employee") : name));
    return game_->math.empposname[static_cast<std::size_t>(p)];
}

const std::string& employee::levelName(int level) const {
    if (level < 0 || level > 10)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: level " + std::to_string(level) + " of " +
                            (name.empty() ? std::string("an unnamed employee") : name));
    return game_->math.empstatname[static_cast<std::size_t>(level)];
}

// A new person from the candidates' file: name, stats, place, and a random face. The
// training price is left open until it is first asked for.
void employee::init(const std::string& newName, int newExp, int newRel, int newAmb, int newNum) {
    name = newName;
    exp = newExp;
    rel = newRel;
    amb = newAmb;
    num = newNum;
    randomizeFace();
}

// A person on the staff writes his or her number back into the post of his or her job.
void employee::updateJob() {
    if (job > 0)
        game_->employees.getPosition(job).setMyEmployee(num);
}

// One day's pay. The day counts as worked before the money is tried; a refused payment
// pays nothing and makes the person angry.
void employee::PayMe(double amount) {
    daysworked = plusOne32(daysworked);
    if (game_->finances.spend(amount, "labor")) {
        paid += amount;
        return;
    }
    anger += game_->math.empangrynopay;
    angerreason = reasonNoPay;
}

// The person's day, open or closed: a day on the staff, the end of a one-day fill-in, the
// day's learning and anger, and the calm-down that may end in quitting.
void employee::nextDay() {
    daysemployed = plusOne32(daysemployed);
    if (fillingin) {
        fillingin = false;
        job = 0;
    }
    dayAtWork();
    calmDown();
}

// After probation, an idle person may grow impatient, anyone may learn, and a person above
// the level of the job may grow angry about it. An idle person counts as over-qualified.
void employee::dayAtWork() {
    if (daysemployed < game_->math.empprobation)
        return;
    angerNoWork();
    tryToLearn();
    if (exp > job)
        angerOverQualified();
}

// An idle person who has worked less of his or her days than ambition lets him or her
// bear may grow angry for want of work.
void employee::angerNoWork() {
    if (job >= 1)
        return;
    if (daysemployed == 0)
        throw GameError(GameError::Kind::DivisionByZero,
                        "division by zero: days employed of " + name);
    const double ratio = std::floor(static_cast<double>(daysworked) * 100 / daysemployed);
    const double patience = std::floor(amb * game_->math.empambchance);
    if (ratio < patience) {
        if (patience > game_->rng.percentRoll()) {
            anger += game_->math.empangrynowork;
            angerreason = reasonNoWork;
        }
    }
}

// Learning: only up to `empexpoverlimit` levels above the job; ambition is the chance to
// try, a job above one's level teaches faster, and high experience is harder to raise.
void employee::tryToLearn() {
    if (!(exp < add16(job, game_->math.empexpoverlimit)))
        return;
    const double chance = roundHalfEven(amb * game_->math.empambchance);
    if (chance < game_->rng.percentRoll())
        return;
    int draw = static_cast<int>(std::floor(game_->rng.next() * 8)) + 1;
    if (job > exp)
        draw += job - exp;
    if (draw < exp)
        return;
    if (game_->math.empexpchance >= game_->rng.percentRoll())
        exp += 1;
}

// A person above the level of the job may take offence at it.
void employee::angerOverQualified() {
    if (game_->rng.percentRoll() <= game_->math.empoverqualifiedquitchance) {
        anger += game_->math.empangryoverqualified;
        angerreason = reasonOverQualified;
    }
}

// Anger falls each day. Only a fall below 0 makes the person content again (a fall to
// exactly 0 keeps the old reason); anger at the quitting point makes the person quit.
void employee::calmDown() {
    anger -= game_->math.empangrycalmdown;
    if (anger < 0) {
        anger = 0;
        angerreason = reasonContent;
    } else if (anger >= game_->math.empangryquit) {
        // The message begins with a blank and removeEmployee adds another: two in the log.
        game_->employees.removeEmployee(num, " quit saying 'I'm fed up with this job!!'");
    }
}

// The holder of a post, on a business day, comes to work or calls in sick; reliability
// weighs against a percent roll.
bool employee::amIsick() {
    const double attendance = roundHalfEven(rel * game_->math.emprelchance);
    if (attendance < game_->rng.percentRoll()) {
        sickdays += 1;
        game_->gameLog(name + " has called in sick today.", 3);
        return true;
    }
    return false;
}

// A month more on the staff.
void employee::nextMonth() {
    seniority += 1;
}

// The person's job; a fill-in job is marked so that it lasts one day. The post's own
// record is the caller's business.
void employee::setMyJob(int newJob, bool filling) {
    job = newJob;
    if (filling) {
        fillingin = true;
        game_->gameLog(name + " filled in today, doing " + positionName(job), 4);
    } else {
        fillingin = false;
    }
}

// The price to hire the person is fixed the first time it is asked for; later learning
// does not change it.
double employee::getMyTrainingCost() {
    if (trainingcost < 1)
        trainingcost = computeTrainingCost();
    return trainingcost;
}

double employee::trainingCostShown() const {
    return trainingcost < 1 ? computeTrainingCost() : trainingcost;
}

// The more experienced, the cheaper to train: the true experience over the seven posts.
double employee::computeTrainingCost() const {
    return game_->math.emptraining - (exp * game_->math.empexpsave / 7);
}

std::string employee::getMyAngerLevelText() const {
    return "(" + numberFirst(anger) + "/" + std::to_string(game_->math.empangryquit) + ")-" +
           angerreason;
}

// The true experience, then the name of the post it reaches (capped at the seventh).
std::string employee::getMyExpText() const {
    return numberFirst(exp) + "-" + positionName(getMyExp());
}

std::string employee::getMyRelText() const {
    return numberFirst(rel) + "-" + levelName(rel);
}

std::string employee::getMyAmbText() const {
    return numberFirst(amb) + "-" + levelName(amb);
}

std::string employee::getMyJobText() const {
    return numberFirst(job) + "-" + positionName(job);
}

// A new face: skin, glasses and hair, drawn in this order.
void employee::randomizeFace() {
    myPicSkin = static_cast<int>(std::floor(game_->rng.next() * 3)) + 1;
    myPicGlasses = static_cast<int>(std::floor(game_->rng.next() * 3)) + 1;
    myPicHair = static_cast<int>(std::floor(game_->rng.next() * 6)) + 1;
}

// The face for the details panel. A person without a face (an old saved game) gets one
// now, and keeps it.
FaceLayers employee::drawPicture() {
    if (myPicSkin < 1 || myPicGlasses < 1 || myPicHair < 1)
        randomizeFace();
    return faceLayers();
}

FaceLayers employee::faceLayers() const {
    const std::string folder = "images\\face_elements\\";
    const auto file = [&](const std::string& f) { return game_->dataPath(folder + f); };
    std::string skin;
    if (myPicSkin == 1)
        skin = "L";
    else if (myPicSkin == 2)
        skin = "M";
    else if (myPicSkin == 3)
        skin = "D";
    FaceLayers face;
    auto& f = face.files;
    f[FaceLayers::Backhair] = myPicHair == 3 ? file("backhair.gif") : "";
    f[FaceLayers::Torso] = file("torso" + skin + ".gif");
    f[FaceLayers::Head] = file("head" + skin + ".gif");
    f[FaceLayers::EyeSockets] = file("eyesockets" + skin + ".gif");
    f[FaceLayers::Eyes] = file("eyes.gif");
    f[FaceLayers::Nose] = file("nose" + skin + ".gif");
    f[FaceLayers::Mouth] = file("mouth" + skin + ".gif");
    f[FaceLayers::Glasses] =
        myPicGlasses == 3 ? "" : file("glasses" + std::to_string(myPicGlasses) + ".gif");
    f[FaceLayers::Hair] = file("hair" + std::to_string(myPicHair) + ".gif");
    return face;
}

// The <employee> block of the saved game. Numbers are spaced (one blank before a
// non-negative number) except the face's three.
bool employee::saveSelf(LineWriter& out) const {
    out << "<employee>";
    out << "num=" + numberTextSigned(num);
    out << "name=" + name;
    out << "exp=" + numberTextSigned(exp);
    out << "rel=" + numberTextSigned(rel);
    out << "amb=" + numberTextSigned(amb);
    out << "anger=" + numberTextSigned(anger);
    out << "angerreason=" + angerreason;
    out << "job=" + numberTextSigned(job);
    out << "trainingcost=" + numberTextSigned(trainingcost);
    out << "seniority=" + numberTextSigned(seniority);
    out << "paid=" + numberTextSigned(paid);
    out << "sickdays=" + numberTextSigned(sickdays);
    out << "daysworked=" + numberTextSigned(daysworked);
    out << "daysemployed=" + numberTextSigned(daysemployed);
    out << (fillingin ? "fillingin=1" : "fillingin=0");
    out << "myPicSkin=" + std::to_string(myPicSkin);
    out << "myPicGlasses=" + std::to_string(myPicGlasses);
    out << "myPicHair=" + std::to_string(myPicHair);
    out << "</employee>";
    return true;
}

// Reads the block. The person's number is the place the loader gives, not the file's. After
// every keyed line, a person with a job writes himself or herself into that post: this is
// how the posts get their holders back.
void employee::loadSelf(LineReader& in, int newNum) {
    num = newNum;
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        const auto n = [&value] { return leadingNumber(value); };
        if (key == "name")
            name = value;
        else if (key == "exp")
            exp = toInt16(n());
        else if (key == "rel")
            rel = toInt16(n());
        else if (key == "amb")
            amb = toInt16(n());
        else if (key == "anger")
            anger = toInt16(n());
        else if (key == "angerreason")
            angerreason = value;
        else if (key == "job")
            job = toInt16(n());
        else if (key == "trainingcost")
            trainingcost = n();
        else if (key == "seniority")
            seniority = toInt16(n());
        else if (key == "paid")
            paid = n();
        else if (key == "sickdays")
            sickdays = toInt16(n());
        else if (key == "daysworked")
            daysworked = toInt32(n());
        else if (key == "daysemployed")
            daysemployed = toInt32(n());
        else if (key == "fillingin")
            fillingin = (n() == 1);
        else if (key == "mypicskin")
            myPicSkin = toInt16(n());
        else if (key == "mypicglasses")
            myPicGlasses = toInt16(n());
        else if (key == "mypichair")
            myPicHair = toInt16(n());
        if (job >= 1)
            game_->employees.getPosition(job).setMyEmployee(num);
    });
}

} // namespace zorvane
