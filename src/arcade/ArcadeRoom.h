#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zorvane {

// One cabinet picture standing in the arcade room (imgGame). Positions and sizes are twips
// inside the room picture.
struct ArcadeCabinet {
    std::string picture; // full path of the picture shown, empty for none
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    bool visible = false;
};

// The title label above a cabinet (lblGameName). The label sizes itself to its caption.
struct ArcadeTitle {
    std::string caption;
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    std::uint32_t color = 0; // 0xRRGGBB
    bool visible = false;
};

// The arcade room as the game logic sees it: the cabinets and titles by their index, the
// template at index 0 that every new cabinet copies, and the dividing line whose X decides
// whether a cabinet shows its left- or right-facing picture. The screens only mirror this,
// so a game without windows keeps and saves cabinet positions exactly as a windowed one.
class ArcadeRoom {
  public:
    // The room picture (picRoom), the divider (lnLeftRight) and the template (imgGame(0)).
    static constexpr float roomWidth = 9600;
    static constexpr float roomHeight = 4800;
    static constexpr float defaultDividerX = 4800;
    static constexpr float templateLeft = 600;
    static constexpr float templateTop = 1800;
    static constexpr float templateWidth = 960; // a cabinet picture of 64 x 96 pixels
    static constexpr float templateHeight = 1440;
    static constexpr float titleHeight = 195;   // 13 pixels
    static constexpr float titleCharWidth = 90; // 6 pixels a character
    static constexpr float twipsPerPixel = 15;

    static constexpr std::uint32_t titleWorking = 0x80FFFF; // light cyan
    static constexpr std::uint32_t titleBroken = 0xFF0000;  // red

    float dividerX = defaultDividerX;

    ArcadeRoom() { reset(""); }

    // Empties the room and sets the template up with its picture (sized from the file).
    void reset(const std::string& templatePicture);

    bool exists(int index) const;
    // Index 0 is the template; other indexes must have been created.
    ArcadeCabinet& cabinet(int index);
    const ArcadeCabinet& cabinet(int index) const;
    ArcadeTitle& title(int index);
    const ArcadeTitle& title(int index) const;
    // The indexes of the cabinets standing in the room, rising.
    std::vector<int> indexes() const;

    // A new cabinet and title at `index`, copies of the template (hidden, no caption).
    // An index that is taken or below 1 is a run-time error, as loading a control twice.
    void create(int index);
    // Removes the cabinet and title of `index`; it must exist and not be the template.
    void destroy(int index);

    // Loads a picture into a cabinet: the cabinet takes the picture's size when the file
    // can be read as a GIF, and keeps its size otherwise.
    void loadPicture(int index, const std::string& path);
    // Sets a title's caption; the label grows or shrinks to it from its left edge.
    void setCaption(int index, const std::string& caption);
    // Copies cabinet `from`'s picture and place, and title `from`'s caption and place, to
    // the objects of index `to` (closing up the room after a sale).
    void copyObjects(int from, int to);

    static float captionWidth(const std::string& caption);

  private:
    ArcadeCabinet templateCabinet_;
    ArcadeTitle templateTitle_;
    std::map<int, ArcadeCabinet> cabinets_;
    std::map<int, ArcadeTitle> titles_;
};

// The pixel size of a GIF file from its header; false when the file is no readable GIF.
bool gifSize(const std::string& path, int& width, int& height);

} // namespace zorvane
