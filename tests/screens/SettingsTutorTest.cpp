// The settings screen's boxes and the advisor panel, offscreen, with the sounds recorded.
#include "PlayingWindow.h"
#include "advisor/TutorTexts.h"
#include "frame/ButtonLabel.h"
#include "frmMain.h"
#include "frmSettings.h"
#include "frmTutor.h"

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include <memory>

using namespace zorvane;
using namespace zorvane::screens;

class SettingsTutorTest : public QObject {
    Q_OBJECT

    std::unique_ptr<PlayingWindow> p;

    void flush() { p->w->screen().flush(); }
    std::string stored(const char* section, const char* key) {
        return p->settings.get(section, key, "missing");
    }
    QString talk() {
        return PlayingWindow::control<QLabel>(&p->w->tutorWindow(), QStringLiteral("lblTalk"))
            ->text();
    }
    QString stepText(int step) {
        return QString::fromStdString(labelText(tutorText(step, p->game())));
    }

  private slots:
    void init() { p = std::make_unique<PlayingWindow>(); }
    void cleanup() { p.reset(); }

    // The Settings menu opens the boxes, ticked from an empty store; each click writes its key
    // at once, clearing Music stops the music and clearing Button clicks silences the buttons.
    // Closing only hides the window.
    void boxesWriteTheStore() {
        Game& game = p->game();
        QWidget* settings = &p->w->settingsWindow();
        ButtonLabel* menu =
            PlayingWindow::control<ButtonLabel>(&p->w->main(), QStringLiteral("lbcMenu_3"));
        const long clicks = p->clicks();
        QVERIFY(clicks >= 0);
        QTest::mouseClick(menu, Qt::LeftButton);
        QVERIFY(settings->isVisible());
        QCOMPARE(p->clicks(), clicks + 1);
        QVERIFY(p->sound.playing[SoundPort::musicPlayer]);

        struct Row {
            const char* box;
            const char* key;
        };
        for (const Row& r :
             {Row{"chkSound", "effects"}, Row{"chkMusic", "music"}, Row{"chkClick", "click"}}) {
            auto* box = PlayingWindow::control<QCheckBox>(settings, QString::fromLatin1(r.box));
            QVERIFY2(box->isChecked(), r.box);
            box->click();
            QCOMPARE(stored("sound", r.key), std::string("0"));
            QVERIFY(!box->isChecked());
        }
        QVERIFY(!p->sound.playing[SoundPort::musicPlayer]);
        QTest::mouseClick(menu, Qt::LeftButton);
        QCOMPARE(p->clicks(), clicks + 1);
        PlayingWindow::control<QCheckBox>(settings, QStringLiteral("chkMusic"))->click();
        QCOMPARE(stored("sound", "music"), std::string("1"));
        QVERIFY(p->sound.playing[SoundPort::musicPlayer]);

        // The advisor's box: cleared here, the panel hides with no word; the store is left
        // to the advisor's own close.
        QVERIFY(game.tutor.visible);
        PlayingWindow::control<QCheckBox>(settings, QStringLiteral("chkTutor"))->click();
        flush();
        QVERIFY(!p->w->tutorWindow().isVisible());
        QVERIFY(p->dialogs.asked.empty());
        // A box the logic sets shows on the screen.
        game.settingsBoxes.setBox(SettingsBox::Sound, 1);
        flush();
        QVERIFY(
            PlayingWindow::control<QCheckBox>(settings, QStringLiteral("chkSound"))->isChecked());

        QVERIFY(settings->close() == false);
        QVERIFY(!settings->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton);
        QVERIFY(settings->isVisible());
    }

    // "Play !" opened the advisor at step 1; the arrows walk the steps, with a click each,
    // the background drags it and the cross closes it with its word.
    void panelFollowsTheArrows() {
        Game& game = p->game();
        QWidget* panel = &p->w->tutorWindow();
        flush();
        QVERIFY(panel->isVisible());
        QCOMPARE(talk(), stepText(1));
        const long clicks = p->clicks();
        auto* next = PlayingWindow::control<ButtonLabel>(panel, QStringLiteral("lbcNext"));
        auto* prev = PlayingWindow::control<ButtonLabel>(panel, QStringLiteral("lbcPrev"));
        const struct {
            ButtonLabel* arrow;
            int step;
        } walk[] = {{next, 2}, {next, 3}, {prev, 2}, {prev, 1}, {prev, 1}};
        for (const auto& w : walk) {
            QTest::mouseClick(w.arrow, Qt::LeftButton);
            flush();
            QCOMPARE(int(game.tutor.step), w.step);
            QCOMPARE(talk(), stepText(w.step));
        }
        QCOMPARE(p->clicks(), clicks + 5);

        const QPoint before = panel->pos();
        mouse(panel, QEvent::MouseButtonPress, Qt::LeftButton, QPointF(30, 150));
        mouse(panel, QEvent::MouseMove, Qt::LeftButton, QPointF(70, 175));
        mouse(panel, QEvent::MouseButtonRelease, Qt::LeftButton, QPointF(70, 175));
        QCOMPARE(panel->pos(), before + QPoint(40, 25));

        auto* close = PlayingWindow::control<QLabel>(panel, QStringLiteral("lbcClose"));
        mouse(close, QEvent::MouseButtonPress, Qt::RightButton);
        QCOMPARE(close->frameShadow(), QFrame::Raised);
        mouse(close, QEvent::MouseButtonRelease, Qt::RightButton);
        flush();
        QVERIFY(panel->isVisible());
        QCOMPARE(close->frameShadow(), QFrame::Plain);
        mouse(close, QEvent::MouseButtonPress, Qt::LeftButton);
        mouse(close, QEvent::MouseButtonRelease, Qt::LeftButton);
        flush();
        QVERIFY(!panel->isVisible());
        QCOMPARE(p->dialogs.asked.size(), std::size_t(1));
        QCOMPARE(stored("other", "tutor"), std::string("0"));
        QCOMPARE(p->clicks(), clicks + 7);
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    GameApplication app(argc, argv);
    SettingsTutorTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SettingsTutorTest.moc"
