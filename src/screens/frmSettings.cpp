#include "frmSettings.h"

#include "Screenshots.h"
#include "frame/Look.h"
#include "ports/QtScreen.h"
#include "session/Game.h"
#include "settings/SettingsBoxes.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

namespace zorvane::screens {

frmSettings::frmSettings(Game& game, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::Tool), game_(game) {
    setObjectName(QStringLiteral("frmSettings"));
    setWindowTitle(QStringLiteral("Settings"));
    look::paint(this, look::navy, look::ink);

    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabSettings"));
    auto* page = new QWidget(tabs);
    page->setObjectName(QStringLiteral("tabOptions"));
    page->setAutoFillBackground(true);
    look::paint(page, look::cream, look::ink);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(14, 12, 14, 12);
    column->setSpacing(8);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const SettingsBoxes::Box& b = SettingsBoxes::boxes()[i];
        auto* box = new QCheckBox(QString::fromLatin1(b.caption), page);
        box->setObjectName(QString::fromLatin1(b.control));
        box->setFont(look::font(9, true));
        const auto which = static_cast<SettingsBox>(i);
        // A click is the box's handler: the store is written, music starts or stops, the
        // advisor opens or closes. The box then shows what the logic holds.
        connect(box, &QCheckBox::clicked, this, [this, which](bool checked) {
            game_.settingsBoxes.setBox(which, checked ? 1 : 0);
            paintBoxes();
        });
        column->addWidget(box);
        boxes_[i] = box;
    }
    column->addStretch(1);
    tabs->addTab(page, QStringLiteral("Options"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(tabs);
    resize(260, 190);
    paintBoxes();
}

void frmSettings::paintBoxes() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QSignalBlocker quiet(boxes_[i]);
        boxes_[i]->setChecked(game_.settingsBoxes.ticked(static_cast<SettingsBox>(i)));
    }
}

void frmSettings::showSettings() {
    paintBoxes();
    show();
    raise();
    activateWindow();
}

// The window's own close button only hides it: the boxes stay for the rest of the session.
void frmSettings::closeEvent(QCloseEvent* e) {
    e->ignore();
    hide();
}

void frmSettings::attach(QtScreen& screen) {
    screen.addPainter(View::Settings, [this] { paintBoxes(); });
}

void frmSettings::addScreenshots(Screenshots& shots) {
    shots.add([this](Screenshots& s) {
        const bool shown = isVisible();
        showSettings(); // laid out as on screen
        s.save(this, QStringLiteral("frmSettings.png"));
        if (!shown)
            hide();
    });
}

} // namespace zorvane::screens
