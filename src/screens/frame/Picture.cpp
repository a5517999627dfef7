#include "frame/Picture.h"

#include "session/Game.h"

#include <QImageReader>

namespace zorvane::screens {

QPixmap loadPicture(const Game& game, const std::string& gamePath, double ratio) {
    QImageReader reader(QString::fromStdString(game.dataPath(gamePath)));
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace zorvane::screens
