#pragma once

// The board's bell player, MMControl1: the four commands Open, Play, Prev and Close over a sound
// effect on "bell.wav" in the working directory. The bell never waits for the sound and never
// asks the sound effect how it is doing (without an audio device it can claim to play forever),
// so a missing file or device leaves the game silent and never stalls it.

// Qt
#include <QObject>
#include <QStringList>

class QSoundEffect;

namespace marivale {

class Bell : public QObject {
    Q_OBJECT
public:
    // The bell carries the objectName "MMControl1".
    explicit Bell(QObject* parent = nullptr);
    ~Bell() override;

    // "Open": loads "bell.wav" from the working directory; silent when the file is missing.
    void open();
    // "Play": starts the sound from its current position (always the start with this player).
    void play();
    // "Prev": returns to the start for the next Play; the sound already playing is heard in full.
    void prev();
    // "Close": releases the file and the device.
    void close();

    // Every command given so far, in order: "Open", "Play", "Prev", "Close".
    const QStringList& commands() const { return commands_; }
    // True between an Open that found the file and the next Close.
    bool hasSound() const { return effect_ != nullptr; }

signals:
    void commandIssued(const QString& command);

private:
    void record(const QString& command);

    QSoundEffect* effect_{nullptr};
    QStringList commands_{};
};

} // namespace marivale
