// Qt
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// Marivale
#include "ui/bell.h"

using namespace marivale;

class BellTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void recordsCommandsInOrder_data();
    void recordsCommandsInOrder();

private:
    QString previousDir_{};
    std::unique_ptr<QTemporaryDir> dir_{};
};

void BellTest::init() {
    previousDir_ = QDir::currentPath();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(dir_->path()));
}

void BellTest::cleanup() {
    QDir::setCurrent(previousDir_);
    dir_.reset();
}

void BellTest::recordsCommandsInOrder_data() {
    QTest::addColumn<bool>("withFile");
    QTest::newRow("bell.wav present") << true;
    QTest::newRow("bell.wav missing") << false;
}

// A board visit with two paying hands; with or without the sound (and with no audio device on
// the test machine) every command returns at once and the game carries on.
void BellTest::recordsCommandsInOrder() {
    QFETCH(bool, withFile);
    if (withFile) {
        QVERIFY(QFile::copy(QDir(previousDir_).filePath(QStringLiteral("bell.wav")),
                            QStringLiteral("bell.wav")));
    }
    Bell bell;
    QSignalSpy issued(&bell, &Bell::commandIssued);
    bell.open();
    QCOMPARE(bell.hasSound(), withFile);
    bell.play();
    bell.prev();
    QTest::qWait(50);
    bell.play();
    bell.prev();
    bell.close();
    QVERIFY(!bell.hasSound());
    bell.play(); // after Close: silent, still recorded

    const QStringList expected{"Open", "Play", "Prev", "Play", "Prev", "Close", "Play"};
    QCOMPARE(bell.commands(), expected);
    QCOMPARE(issued.size(), expected.size());
    QCOMPARE(issued.at(1).at(0).toString(), QStringLiteral("Play"));
}

QTEST_MAIN(BellTest)
#include "bell_test.moc"
