#include "frmLoader.h"

#include "frame/ButtonLabel.h"
#include "frame/Look.h"
#include "frame/Picture.h"
#include "goals/GoalTexts.h"
#include "ports/QtScreen.h"
#include "session/Game.h"
#include "session/TitleScreen.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace zorvane::screens {

namespace {

constexpr QSize windowSize(640, 480);
// The game's own button colours: yellow and red as the old forms had them.
const QColor yellow(0xFF, 0xFF, 0x00);
const QColor red(0xFF, 0x00, 0x00);
const QColor black(0x00, 0x00, 0x00);

// The two boxes sit on the houses left and right of the theater.
const char* const boxStyle = "QListWidget, QPlainTextEdit { background: #F6E7C1; color: #2B1D14;"
                             " border: 2px solid #C9A227; font-family: 'DejaVu Sans';"
                             " font-size: 9pt; }"
                             "QListWidget::item { padding: 2px 4px; }"
                             "QListWidget::item:selected { background: #B3262E; color: #F6E7C1; }";

} // namespace

frmLoader::frmLoader(Game& game, QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::FramelessWindowHint), game_(game),
      background_(loadPicture(game, "images\\title.png")), label1_(new QLabel(this)),
      lstGoals_(new QListWidget(this)), txtStatus_(new QPlainTextEdit(this)),
      lbcVer_(new ButtonLabel("lbcVer", QString::fromStdString(versionCaption()), this)),
      lbcStart_(new ButtonLabel("lbcStart", "Play !", this)),
      lbcExit_(new ButtonLabel("lbcExit", "Exit", this)) {
    setObjectName("frmLoader");
    setWindowTitle("Zorvane");
    setFixedSize(windowSize);
    look::paint(this, look::night, look::cream);
    setStyleSheet(boxStyle);

    label1_->setObjectName("Label1");
    label1_->setText("Select a Goal");
    label1_->setFont(look::font(10, true));
    label1_->setGeometry(14, 258, 214, 24);
    label1_->setIndent(8);
    look::paint(label1_, look::curtain, look::cream);

    lstGoals_->setObjectName("lstGoals");
    lstGoals_->setAccessibleName("Select a Goal");
    lstGoals_->setGeometry(14, 282, 214, 150);
    lstGoals_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstGoals_->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lstGoals_, &QListWidget::itemSelectionChanged, this, &frmLoader::goalClicked);

    txtStatus_->setObjectName("txtStatus");
    txtStatus_->setAccessibleName("Status");
    txtStatus_->setReadOnly(true);
    txtStatus_->setUndoRedoEnabled(false);
    txtStatus_->setGeometry(412, 258, 214, 174);

    lbcVer_->setColours(look::night, yellow);
    lbcVer_->setFont(look::font(9, true));
    lbcVer_->setGeometry(10, 10, 130, 22);
    lbcVer_->setToolTip("What is new in this version");
    connect(lbcVer_, &ButtonLabel::clicked, this, &frmLoader::versionClicked);

    lbcStart_->setColours(black, yellow);
    lbcStart_->setFont(look::font(13, true));
    lbcStart_->setGeometry(262, 438, 116, 32);
    lbcStart_->setFocusPolicy(Qt::StrongFocus);
    connect(lbcStart_, &ButtonLabel::clicked, this, &frmLoader::startPlay);

    lbcExit_->setColours(look::night, red);
    lbcExit_->setFont(look::font(9, true));
    lbcExit_->setGeometry(578, 10, 52, 22);
    connect(lbcExit_, &ButtonLabel::clicked, this, &frmLoader::exitClicked);

    setTabOrder(lstGoals_, lbcStart_);
    setTabOrder(lbcStart_, txtStatus_);
    setTabOrder(txtStatus_, lbcVer_);
    setTabOrder(lbcVer_, lbcExit_);
    refreshGoals();
}

void frmLoader::attach(QtScreen& screen) {
    screen.onTitleStatus = [this](const std::string& line) { sLog(QString::fromStdString(line)); };
    screen.onTitleDetails = [this](const std::string& text) {
        showDetails(QString::fromStdString(text));
    };
    screen.onShowTitle = [this] { showModal(); };
    screen.addPainter(View::GoalList, [this] { refreshGoals(); });
}

void frmLoader::sLog(const QString& line) {
    QTextCursor end(txtStatus_->document());
    end.movePosition(QTextCursor::End);
    end.insertText(QStringLiteral("\n") + line);
    txtStatus_->setTextCursor(end);
    txtStatus_->ensureCursorVisible();
}

void frmLoader::showDetails(const QString& text) {
    txtStatus_->setPlainText(text);
}

void frmLoader::refreshGoals() {
    const QSignalBlocker quiet(lstGoals_);
    lstGoals_->clear();
    for (const std::string& name : goalList(game_.goals))
        lstGoals_->addItem(QString::fromStdString(name));
}

void frmLoader::goalClicked() {
    const QList<QListWidgetItem*> picked = lstGoals_->selectedItems();
    if (picked.isEmpty())
        return;
    routeClick(this);
    game_.goals.selectGoal(lstGoals_->row(picked.front()));
}

void frmLoader::startPlay() {
    const QList<QListWidgetItem*> picked = lstGoals_->selectedItems();
    const int listIndex = picked.isEmpty() ? -1 : lstGoals_->row(picked.front());
    const bool first = !game_.playing;
    game_.startPlay(listIndex);
    if (first)
        emit mainScreenWanted();
    hide();
}

void frmLoader::exitClicked() {
    exitTitle(game_); // before the first play the game ends here
    hide();
}

void frmLoader::versionClicked() {
    showChanges(game_);
}

void frmLoader::showModal() {
    exec();
}

void frmLoader::paintEvent(QPaintEvent*) {
    if (background_.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(rect(), background_);
}

// The window manager's close is the exit button.
void frmLoader::closeEvent(QCloseEvent* e) {
    e->ignore();
    exitClicked();
}

} // namespace zorvane::screens
