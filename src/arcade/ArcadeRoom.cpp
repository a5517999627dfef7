#include "arcade/ArcadeRoom.h"

#include "core/GameError.h"

#include <fstream>

namespace zorvane {

namespace {

[[noreturn]] void noSuchObject(const char* what, int index) {
    throw GameError(GameError::Kind::Bounds, std::string("control array element ") +
                                                 std::to_string(index) + " of the arcade " + what +
                                                 " does not exist");
}

} // namespace

void ArcadeRoom::reset(const std::string& templatePicture) {
    cabinets_.clear();
    titles_.clear();
    dividerX = defaultDividerX;
    templateCabinet_ = ArcadeCabinet{templatePicture, templateLeft,   templateTop,
                                     templateWidth,   templateHeight, false};
    int w = 0, h = 0;
    if (gifSize(templatePicture, w, h)) {
        templateCabinet_.width = static_cast<float>(w) * twipsPerPixel;
        templateCabinet_.height = static_cast<float>(h) * twipsPerPixel;
    }
    templateTitle_ =
        ArcadeTitle{"", templateLeft, templateTop - 360, 0, titleHeight, titleWorking, false};
}

bool ArcadeRoom::exists(int index) const {
    return index == 0 || cabinets_.count(index) > 0;
}

ArcadeCabinet& ArcadeRoom::cabinet(int index) {
    if (index == 0)
        return templateCabinet_;
    auto it = cabinets_.find(index);
    if (it == cabinets_.end())
        noSuchObject("cabinets", index);
    return it->second;
}

const ArcadeCabinet& ArcadeRoom::cabinet(int index) const {
    return const_cast<ArcadeRoom*>(this)->cabinet(index);
}

ArcadeTitle& ArcadeRoom::title(int index) {
    if (index == 0)
        return templateTitle_;
    auto it = titles_.find(index);
    if (it == titles_.end())
        noSuchObject("titles", index);
    return it->second;
}

const ArcadeTitle& ArcadeRoom::title(int index) const {
    return const_cast<ArcadeRoom*>(this)->title(index);
}

std::vector<int> ArcadeRoom::indexes() const {
    std::vector<int> result;
    for (const auto& [index, cab] : cabinets_)
        result.push_back(index);
    return result;
}

void ArcadeRoom::create(int index) {
    if (index < 1 || exists(index))
        throw GameError(GameError::Kind::Bounds,
                        "arcade cabinet " + std::to_string(index) + " cannot be created: " +
                            (index < 1 ? "no such index" : "already loaded"));
    cabinets_[index] = templateCabinet_;
    titles_[index] = templateTitle_;
}

void ArcadeRoom::destroy(int index) {
    if (index == 0 || !exists(index))
        noSuchObject("cabinets", index);
    cabinets_.erase(index);
    titles_.erase(index);
}

void ArcadeRoom::loadPicture(int index, const std::string& path) {
    ArcadeCabinet& cab = cabinet(index);
    cab.picture = path;
    int w = 0, h = 0;
    if (gifSize(path, w, h)) {
        cab.width = static_cast<float>(w) * twipsPerPixel;
        cab.height = static_cast<float>(h) * twipsPerPixel;
    }
}

void ArcadeRoom::setCaption(int index, const std::string& caption) {
    ArcadeTitle& t = title(index);
    t.caption = caption;
    t.width = captionWidth(caption);
}

void ArcadeRoom::copyObjects(int from, int to) {
    const ArcadeCabinet source = cabinet(from);
    ArcadeCabinet& target = cabinet(to);
    target.picture = source.picture;
    target.width = source.width;
    target.height = source.height;
    target.left = source.left;
    target.top = source.top;
    const std::string caption = title(from).caption;
    const float left = title(from).left, top = title(from).top;
    setCaption(to, caption);
    title(to).left = left;
    title(to).top = top;
}

float ArcadeRoom::captionWidth(const std::string& caption) {
    return static_cast<float>(caption.size()) * titleCharWidth;
}

bool gifSize(const std::string& path, int& width, int& height) {
    std::ifstream in(path, std::ios::binary);
    unsigned char header[10] = {};
    if (!in.read(reinterpret_cast<char*>(header), sizeof header))
        return false;
    if (std::string(reinterpret_cast<char*>(header), 3) != "GIF")
        return false;
    width = header[6] | (header[7] << 8);
    height = header[8] | (header[9] << 8);
    return width > 0 && height > 0;
}

} // namespace zorvane
