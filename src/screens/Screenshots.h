#pragma once
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace zorvane::screens {

// `zorvane --screenshots DIR`: every screen writes its states as PNG files, named after the
// screen ("frmMain.png", and "-N" for tab N or a second state). Each screen adds its shots;
// the run plays them in the order added.
class Screenshots {
  public:
    using Shot = std::function<void(Screenshots&)>;

    void add(Shot shot) { shots_.push_back(std::move(shot)); }
    // A shot that plays the game on (a year for the graph): it runs after all the others, so
    // they show the game as the run set it up.
    void addLast(Shot shot) { lastShots_.push_back(std::move(shot)); }
    // Who runs the theater through the days a shot plays on (set by the screenshot run: a
    // player that keeps the house going); unset, the days pass with nobody at the helm.
    std::function<void()> beforeDay;

    // Paints the widget as it stands and writes DIR/fileName. False when it could not.
    bool save(QWidget* widget, const QString& fileName);
    // Every shot into `dir` (created if needed); the number of files that failed.
    int run(const QString& dir);

  private:
    std::vector<Shot> shots_;
    std::vector<Shot> lastShots_;
    QString dir_;
    int failed_ = 0;
};

} // namespace zorvane::screens
