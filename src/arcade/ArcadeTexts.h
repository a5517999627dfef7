#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zorvane {

class arcadeManager;

// What the arcade screen shows, built from the arcade's state. The screen only draws these.

// What the details panel of the arcade screen shows for one machine.
struct ArcadeDetails {
    int num = 0;
    std::string name;
    std::string pop;                 // digits
    std::string age;                 // "12 months"
    std::string condition;           // "Working" or "Broken"
    bool broken = false;             // the condition's red back and the Repair button
    std::uint32_t conditionBack = 0; // 0xRRGGBB: light yellow while working, red when broken
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

// The screen's fixed captions.
inline constexpr const char* arcadeHeader = "Arcade";
inline constexpr std::array<const char*, 2> arcadeTabs{"My Arcade", "Buy New Games"};
inline constexpr const char* arcadeRepairCaption = "Auto-Repair";
inline constexpr const char* arcadeRepairTip =
    "When a game breaks, should it be repaired automatically?";
inline constexpr const char* arcadeSliderCaption = "Drag to change cabinet style";
// lblDetlHeader: the headers beside the details panel's figures, in panel order, and Label2.
inline constexpr std::array<const char*, 9> arcadeDetailHeaders{
    "Price per play:",  "Popularity:",  "Age:",          "Condition:",   "Price you paid:",
    "Paid in repairs:", "Total plays:", "Total Income:", "Total Profit:"};
inline constexpr const char* arcadeValueHeader = "Current Market Value";
// The panel's three buttons and their colours (blue, green, red).
inline constexpr const char* arcadeRepairButton = "Repair";
inline constexpr const char* arcadeSellButton = "Sell Game";
inline constexpr const char* arcadeCloseButton = "Close";
inline constexpr std::uint32_t arcadeRepairColour = 0xC0C0FF;
inline constexpr std::uint32_t arcadeSellColour = 0xC0FFC0;
inline constexpr std::uint32_t arcadeConditionWorking = 0xFFFF80; // 0xRRGGBB
inline constexpr std::uint32_t arcadeConditionBroken = 0xFF0000;

// The cabinet-style slider. Its handle stands at floor((left + width) * style / images) from
// the panel's edge, so style 1 sits a sixth of the way along, not at the track's start.
int arcadeSliderX(double trackLeft, double trackWidth, int style, int images);
// The style a handle at `x` stands for: floor(x * images / right), kept within 1 to images.
// The screen asks it with the handle's place before the mouse moved it, so the number
// trails the handle by one mouse event, as the game always did. 0 when there are no styles.
int arcadeSliderStyle(double x, double trackRight, int images);

// The buy table's rows: "Game Title", "Popularity", "Price" first, none when the list is empty.
std::vector<std::array<std::string, 3>> arcadeBuyGrid(const arcadeManager& arcades);
// The details panel's texts for the machine it shows (detailsNum).
ArcadeDetails arcadeDetails(const arcadeManager& arcades);

} // namespace zorvane
