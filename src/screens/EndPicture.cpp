#include "EndPicture.h"

#include "frame/Look.h"
#include "frame/Picture.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>

namespace zorvane::screens {

namespace {
constexpr QSize windowSize(640, 480);
} // namespace

EndPicture::EndPicture(Game& game, const QString& formName, const QString& pictureName,
                       const QString& picturePath, const QString& caption, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), game_(game), pic_(new QLabel(this)) {
    setObjectName(formName);
    setWindowTitle("Zorvane");
    setModal(true);
    setFixedSize(windowSize);
    look::paint(this, look::night, look::cream);

    pic_->setObjectName(pictureName);
    pic_->setGeometry(0, 0, windowSize.width(), windowSize.height());
    pic_->setAccessibleName(caption);
    pic_->setAccessibleDescription("Double click the picture or press Enter to go on");
    pic_->setToolTip("Double click to go on");
    pic_->setFocusPolicy(Qt::StrongFocus);
    const QPixmap picture = loadPicture(game, picturePath.toStdString());
    if (!picture.isNull()) {
        pic_->setPixmap(picture);
        pic_->setScaledContents(picture.deviceIndependentSize().toSize() != windowSize);
    }
    pic_->installEventFilter(this);
}

void EndPicture::showModal() {
    pic_->setFocus();
    exec();
}

bool EndPicture::eventFilter(QObject* watched, QEvent* e) {
    if (watched == pic_) {
        const bool doubleClick = e->type() == QEvent::MouseButtonDblClick;
        const bool enter =
            e->type() == QEvent::KeyPress && (static_cast<QKeyEvent*>(e)->key() == Qt::Key_Return ||
                                              static_cast<QKeyEvent*>(e)->key() == Qt::Key_Enter);
        if (doubleClick || enter) {
            emit doubleClicked();
            pictureDoubleClicked();
            return true;
        }
    }
    return QDialog::eventFilter(watched, e);
}

// Nothing but the double click closes it: not the window manager's close either.
void EndPicture::closeEvent(QCloseEvent* e) {
    e->ignore();
}

} // namespace zorvane::screens
