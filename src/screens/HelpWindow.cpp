#include "HelpWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

namespace zorvane::screens {

namespace {
// The list entry's data: the heading's position in the document.
constexpr int positionRole = Qt::UserRole + 1;
} // namespace

HelpWindow::HelpWindow(QString path, QWidget* parent)
    : QWidget(parent, Qt::Window), path_(std::move(path)), lstContents_(new QListWidget),
      txtHelp_(new QTextBrowser) {
    setObjectName("HelpWindow");
    setWindowTitle("Zorvane Help");
    lstContents_->setObjectName("lstContents");
    lstContents_->setAccessibleName("Contents");
    txtHelp_->setObjectName("txtHelp");
    txtHelp_->setAccessibleName("Help text");
    txtHelp_->setOpenExternalLinks(true);
    setStyleSheet("QListWidget { background: #1D2A44; color: #F6E7C1; border: none;"
                  " font-family: 'DejaVu Sans'; font-size: 10pt; padding: 4px; }"
                  "QListWidget::item { padding: 1px 2px; }"
                  "QListWidget::item:selected { background: #C9A227; color: #2B1D14; }"
                  "QTextBrowser { background: #F6E7C1; color: #2B1D14; border: none;"
                  " font-family: 'DejaVu Sans'; font-size: 10pt; }");

    auto* split = new QSplitter(this);
    split->addWidget(lstContents_);
    split->addWidget(txtHelp_);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 1);
    split->setSizes({230, 570});
    lstContents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstContents_->setTextElideMode(Qt::ElideRight);
    txtHelp_->document()->setDocumentMargin(14);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(split);
    resize(800, 580);

    connect(lstContents_, &QListWidget::currentRowChanged, this, &HelpWindow::showTopic);
    load();
}

void HelpWindow::load() {
    lstContents_->clear();
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        txtHelp_->setPlainText("The help file " + QFileInfo(path_).fileName() +
                               " could not be found beside the game.");
        return;
    }
    txtHelp_->setMarkdown(QString::fromUtf8(file.readAll()));
    // The contents: every heading of the document, indented by its level.
    const QTextDocument* doc = txtHelp_->document();
    for (QTextBlock b = doc->begin(); b.isValid(); b = b.next()) {
        const int level = b.blockFormat().headingLevel();
        if (level <= 0 || b.text().trimmed().isEmpty())
            continue;
        auto* item = new QListWidgetItem(QString(2 * (level - 1), ' ') + b.text().trimmed());
        item->setData(positionRole, b.position());
        item->setToolTip(b.text().trimmed());
        if (level == 1) {
            QFont bold = lstContents_->font();
            bold.setBold(true);
            item->setFont(bold);
        }
        lstContents_->addItem(item);
    }
}

void HelpWindow::showTopic(int index) {
    const QListWidgetItem* item = lstContents_->item(index);
    if (!item)
        return;
    const QTextBlock block = txtHelp_->document()->findBlock(item->data(positionRole).toInt());
    const QRectF where = txtHelp_->document()->documentLayout()->blockBoundingRect(block);
    txtHelp_->verticalScrollBar()->setValue(static_cast<int>(where.top()));
}

void HelpWindow::showContents() {
    load();
    if (lstContents_->count() > 0)
        lstContents_->setCurrentRow(0);
    show();
    raise();
    activateWindow();
}

} // namespace zorvane::screens
