#pragma once

// The player's record: one SQLite database in the per-user data folder that keeps every hand,
// purchase and cash-out of every run. Each hand is committed as it ends, in write-ahead-log
// mode, so that a crash loses at most the hand in play. When the database can't be used the
// game plays on without it: a corrupt file is kept aside under a new name and a fresh one
// started; a read-only folder, a full disk or a file of a newer version stop the recording, and
// the player is told once.

// Standard library
#include <deque>
#include <functional>
#include <memory>

// Qt
#include <QSqlDatabase>
#include <QString>

// Marivale
#include "play/practice/practice_drill.h"
#include "play/stats/hand_sink.h"

namespace marivale {

class RecordRows;

class LogCheckpointer;

class RecordStore final : public HandSink {
public:
    using Notice = std::function<void(const QString&)>;

    // Opens (or starts) the database at the path and begins a run in it; the notice hears each
    // problem once, in words for the player.
    explicit RecordStore(const QString& path, Notice notice = {});
    ~RecordStore() override;
    RecordStore(const RecordStore&) = delete;
    RecordStore& operator=(const RecordStore&) = delete;

    // "record.sqlite" in the per-user data folder.
    static QString defaultPath();

    void handEnded(const HandRecord& hand) override;
    void handJudged(const HandRecord& hand) override;
    void moneyMoved(const MoneyRecord& money) override;

    // A practice hand and its verdict, kept apart from play.
    void drillHand(GameId game, const HandCards& dealt, const DrillVerdict& verdict);

    bool recording() const { return recording_; }
    qint64 run() const { return run_; }
    const QString& path() const { return path_; }
    // Where a corrupt file was kept aside; empty when none was.
    const QString& keptAside() const { return keptAside_; }
    // Writes still waiting because another copy of the game held the database.
    int waiting() const { return static_cast<int>(pending_.size()); }
    // The connection, for reading on this thread.
    QSqlDatabase database() const;

    // Deletes every hand, purchase and cash-out and every total; the current run goes on.
    bool forget();

private:
    struct Pending {
        enum class Kind { Hand, Judgement, Money, Drill } kind{Kind::Hand};
        qint64 time{0};
        HandRecord hand{};
        MoneyRecord money{};
        DrillVerdict drill{};
    };

    bool open();
    bool openFile();
    bool setAside();
    void add(Pending pending);
    bool write(RecordRows& rows, const Pending& pending) const;
    void flush();
    void stop(const QString& message);
    void say(const QString& message);

    QString path_{};
    QString connection_{};
    Notice notice_{};
    bool recording_{false};
    bool said_{false};
    qint64 run_{0};
    int drillHands_{0}; // drill hands are numbered -1, -2, ... so they never meet a hand of play
    QString keptAside_{};
    std::deque<Pending> pending_{};
    std::unique_ptr<LogCheckpointer> checkpointer_{};
};

} // namespace marivale
