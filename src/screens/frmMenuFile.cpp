#include "frmMenuFile.h"

#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "frame/Twips.h"
#include "session/Game.h"
#include "session/TitleScreen.h"

#include <QKeyEvent>
#include <QLabel>

namespace zorvane::screens {

namespace {
constexpr int menuWidth = 132, headerHeight = 24, rowHeight = 22, margin = 4;
} // namespace

frmMenuFile::frmMenuFile(Game& game, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), game_(game),
      label1_(new QLabel("File", this)) {
    setObjectName("frmMenuFile");
    setWindowTitle("File");
    setFixedSize(menuWidth, headerHeight + fileOptionCount * rowHeight + 2 * margin);
    look::paint(this, look::brass, look::ink);

    label1_->setObjectName("Label1");
    label1_->setFont(look::font(9, true));
    label1_->setGeometry(margin, margin, menuWidth - 2 * margin, headerHeight - 2);
    label1_->setContentsMargins(6, 0, 0, 0);
    look::paint(label1_, look::curtain, look::cream);

    for (int i = 0; i < fileOptionCount; ++i) {
        auto* option = new ButtonLabel(QString("lbcOption_%1").arg(i),
                                       fileOptionCaptions[static_cast<std::size_t>(i)], this);
        option->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        option->setIndent(8);
        option->setFont(look::font(9));
        option->setGeometry(margin, margin + headerHeight + i * rowHeight, menuWidth - 2 * margin,
                            rowHeight);
        // The menu's press: the window colour and red text, and no click.
        option->setColours(look::cream, look::ink, Qt::white, QColor(0xFF, 0x00, 0x00));
        option->setClickSound(false);
        option->setFocusPolicy(Qt::StrongFocus);
        connect(option, &ButtonLabel::clicked, this, [this, i] { choose(i); });
        options_[static_cast<std::size_t>(i)] = option;
    }
}

void frmMenuFile::showAt(const QPoint& mainTopLeft) {
    move(mainTopLeft + QPoint(px(240), px(450)));
    options_[0]->setFocus();
    exec();
}

void frmMenuFile::choose(int index) {
    runFileOption(game_, index);
    hide();
}

void frmMenuFile::keyPressEvent(QKeyEvent* e) {
    if (e->key() != Qt::Key_Up && e->key() != Qt::Key_Down) {
        QDialog::keyPressEvent(e);
        return;
    }
    int at = 0;
    for (int i = 0; i < fileOptionCount; ++i)
        if (options_[static_cast<std::size_t>(i)]->hasFocus())
            at = i;
    at = (at + (e->key() == Qt::Key_Down ? 1 : fileOptionCount - 1)) % fileOptionCount;
    options_[static_cast<std::size_t>(at)]->setFocus();
}

} // namespace zorvane::screens
