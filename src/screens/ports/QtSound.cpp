#include "ports/QtSound.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QFile>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

namespace zorvane::screens {

namespace {

// The first make waits until the title screen is up and painted.
constexpr int firstMakeDelayMs = 250;

// Whether a file looks like a sound the player can take, from its first bytes: a wave file
// for the effects; for the music also Ogg, FLAC or MP3. Anything else stays closed, so a
// wrong file never reaches the media back end (which would complain on the console).
bool looksLikeSound(const std::string& path, bool music) {
    QFile f(QString::fromStdString(path));
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = f.read(12);
    if (head.size() < 12)
        return false;
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WAVE")
        return true;
    if (!music)
        return false;
    const auto b0 = static_cast<unsigned char>(head[0]);
    const auto b1 = static_cast<unsigned char>(head[1]);
    return head.startsWith("OggS") || head.startsWith("fLaC") || head.startsWith("ID3") ||
           (b0 == 0xFF && (b1 & 0xE0) == 0xE0);
}

} // namespace

QtSound::QtSound(QObject* parent) : QObject(parent) {}

QtSound::~QtSound() = default;

// Asking for the outputs connects to the sound server; where there is none, Qt Multimedia
// says so on the console. A game without sound says nothing: the answer is all we need, so
// whatever is said while asking is dropped.
bool QtSound::hasAudio() {
    if (audio_ < 0) {
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        audio_ = QMediaDevices::audioOutputs().isEmpty() ? 0 : 1;
        qInstallMessageHandler(previous);
    }
    return audio_ == 1;
}

void QtSound::open(int player, const std::string& path) {
    if (player < 0 || player >= players)
        return;
    const auto i = static_cast<std::size_t>(player);
    paths_[i] = looksLikeSound(path, player == musicPlayer) ? path : std::string();
    playWanted_[i] = false;
    if (made_[i]) { // opened again: the new file, on the player that exists
        made_[i] = false;
        make(player);
        return;
    }
    if (!paths_[i].empty())
        scheduleMake();
}

void QtSound::scheduleMake() {
    if (scheduled_)
        return;
    scheduled_ = true;
    QTimer::singleShot(firstMakeDelayMs, this, [this] { makeNext(); });
}

// One player per pass of the event loop, so the game answers the player meanwhile.
void QtSound::makeNext() {
    for (int p = 0; p < players; ++p) {
        const auto i = static_cast<std::size_t>(p);
        if (made_[i] || paths_[i].empty())
            continue;
        make(p);
        QTimer::singleShot(0, this, [this] { makeNext(); });
        return;
    }
    scheduled_ = false;
}

void QtSound::makeAll() {
    for (int p = 0; p < players; ++p)
        if (!paths_[static_cast<std::size_t>(p)].empty() && !made_[static_cast<std::size_t>(p)])
            make(p);
}

void QtSound::make(int player) {
    const auto i = static_cast<std::size_t>(player);
    made_[i] = true;
    if (paths_[i].empty() || !hasAudio())
        return;
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(paths_[i]));
    if (player == musicPlayer) {
        if (!music_) {
            music_ = new QMediaPlayer(this);
            musicOutput_ = new QAudioOutput(this);
            music_->setAudioOutput(musicOutput_);
            // The end of the music is the sound board's business (it loops while Music is
            // ticked); it hears of it once this notice has been handled.
            connect(music_, &QMediaPlayer::mediaStatusChanged, this,
                    [this](QMediaPlayer::MediaStatus status) {
                        if (status == QMediaPlayer::EndOfMedia && onMusicEnded)
                            QTimer::singleShot(0, this, [this] {
                                if (onMusicEnded)
                                    onMusicEnded();
                            });
                    });
        }
        music_->setSource(url);
    } else {
        QSoundEffect*& e = effects_[i];
        if (!e)
            e = new QSoundEffect(this);
        e->setSource(url);
    }
    if (playWanted_[i]) {
        playWanted_[i] = false;
        play(player);
    }
}

bool QtSound::ready(int player) {
    if (player < 0 || player >= players)
        return false;
    const auto i = static_cast<std::size_t>(player);
    if (player == musicPlayer)
        return music_ != nullptr && made_[i] && !paths_[i].empty();
    return effects_[i] != nullptr && made_[i] && !paths_[i].empty();
}

// A rewind stops the sound where it is and puts it back to its start.
void QtSound::rewind(int player) {
    if (!ready(player))
        return;
    if (player == musicPlayer)
        music_->setPosition(0);
    else
        effects_[static_cast<std::size_t>(player)]->stop();
}

void QtSound::play(int player) {
    if (player < 0 || player >= players)
        return;
    const auto i = static_cast<std::size_t>(player);
    if (!made_[i]) { // its player comes in a moment: it plays then
        playWanted_[i] = !paths_[i].empty();
        return;
    }
    if (!ready(player))
        return;
    if (player == musicPlayer)
        music_->play();
    else
        effects_[i]->play();
}

void QtSound::stop(int player) {
    if (player < 0 || player >= players)
        return;
    playWanted_[static_cast<std::size_t>(player)] = false;
    if (!ready(player))
        return;
    if (player == musicPlayer)
        music_->stop();
    else
        effects_[static_cast<std::size_t>(player)]->stop();
}

} // namespace zorvane::screens
