#include "frmLog.h"

#include "core/Game.h"

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
    txtBigLog_->setStyleSheet(
        "QPlainTextEdit { background: #F6E7C1; color: #2B1D14; border: 2px solid #C9A227;"
        " font-family: 'DejaVu Sans'; font-size: 9pt; }");
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
    // The caret stands at the end, so the new line is typed in there: no copy of the box.
    QTextCursor end(txtBigLog_->document());
    end.movePosition(QTextCursor::End);
    end.insertText(QStringLiteral("\n") + line);
    txtBigLog_->setTextCursor(end);
}

bool frmLog::event(QEvent* e) {
    // Shown, or made the active window again: a fresh copy of the main log box.
    if (e->type() == QEvent::WindowActivate || e->type() == QEvent::Show)
        copyLog();
    return QWidget::event(e);
}

} // namespace zorvane::screens
