#pragma once
#include <array>
#include <string>
#include <vector>

namespace zorvane {

class arcadeManager;

// What the arcade screen shows, built from the arcade's state. The screen only draws these.

// What the details panel of the arcade screen shows for one machine.
struct ArcadeDetails {
    int num = 0;
    std::string name;
    std::string pop;       // digits
    std::string age;       // "12 months"
    std::string condition; // "Working" or "Broken"
    bool broken = false;   // the condition's red back and the Repair button
    std::string paid;
    std::string repairs;
    std::string plays;
    std::string income;
    std::string profit;
    std::string value;   // "Current Market Value"
    int priceIndex = 0;  // position in the price drop-down
    int style = 0;       // the cabinet-style slider
    std::string picture; // the cabinet's picture, copied to the sample
};

// The buy table's rows: "Game Title", "Popularity", "Price" first, none when the list is empty.
std::vector<std::array<std::string, 3>> arcadeBuyGrid(const arcadeManager& arcades);
// The details panel's texts for the machine it shows (detailsNum).
ArcadeDetails arcadeDetails(const arcadeManager& arcades);

} // namespace zorvane
