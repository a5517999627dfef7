#include "frmLog.h"

#include "session/Game.h"

#include "frame/Look.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QVBoxLayout>

namespace zorvane::screens {

frmLog::frmLog(Game& game, QWidget* parent)
    : QWidget(parent, Qt::Window), game_(game), txtBigLog_(new QPlainTextEdit(this)) {
    setObjectName("frmLog");
    setWindowTitle("Zorvane - Log");
    txtBigLog_->setObjectName("txtBigLog");
    txtBigLog_->setReadOnly(true);
    // The box grows for the whole session: no undo history, no block limit.
    txtBigLog_->setUndoRedoEnabled(false);
    txtBigLog_->setMaximumBlockCount(0);
    txtBigLog_->setAccessibleName("Game log");
    // Palette and font rather than a style sheet: the box repaints three times faster.
    look::paint(txtBigLog_, look::cream, look::ink);
    txtBigLog_->setFont(look::font(9));
    look::paint(this, look::navy, look::cream);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(txtBigLog_);
    resize(560, 360);
}

void frmLog::copyLog() {
    QString text = QString::fromStdString(game_.logBox);
    text.replace("\r\n", "\n");
    txtBigLog_->setPlainText(text);
    txtBigLog_->moveCursor(QTextCursor::End);
}

void frmLog::appendLine(const QString& line) {
    if (!isVisible())
        return;
    // A new paragraph at the end: the box is not copied, the caret (at the end since the
    // copy) moves along with it, and the view follows when it stood at the bottom.
    txtBigLog_->appendPlainText(line);
}

bool frmLog::event(QEvent* e) {
    // Shown, or made the active window again: a fresh copy of the main log box.
    if (e->type() == QEvent::WindowActivate || e->type() == QEvent::Show)
        copyLog();
    return QWidget::event(e);
}

} // namespace zorvane::screens
