// The files the game loads: every card picture, the back and the bell exist, decode and have the
// sizes the board expects, and the build has put identical copies in the program directory.

// Standard library
#include <cstdint>

// Qt
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QtTest>

namespace {

const QDir kSourceDir(QStringLiteral(MARIVALE_ASSETS_DIR));

// Reads a little-endian unsigned number of `size` bytes at `offset`.
std::uint32_t readLittleEndian(const QByteArray& bytes, qsizetype offset, int size) {
    std::uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i) {
        value = (value << 8) | static_cast<std::uint8_t>(bytes.at(offset + i));
    }
    return value;
}

} // namespace

class TestAssets : public QObject {
    Q_OBJECT

private slots:
    void cardPicture_data();
    void cardPicture();
    void chest_data();
    void chest();
    void bell();
};

void TestAssets::cardPicture_data() {
    QTest::addColumn<QString>("name");
    for (int code = 0; code <= 52; ++code) {
        QTest::newRow(qPrintable(QString::number(code))) << QStringLiteral("%1.gif").arg(code);
    }
    for (const int code : {2, 15, 28, 41}) {
        QTest::newRow(qPrintable(QStringLiteral("%1T").arg(code)))
            << QStringLiteral("%1T.gif").arg(code);
    }
    for (const int code : {1, 14, 27, 40}) {
        QTest::newRow(qPrintable(QStringLiteral("%1W").arg(code)))
            << QStringLiteral("%1W.gif").arg(code);
    }
    QTest::newRow("back") << QStringLiteral("bb.gif");
}

// Decodes with Qt's own GIF reader at twice the card button's size, with a transparent corner
// around an opaque card, and the copy beside the program is the same file.
void TestAssets::cardPicture() {
    QFETCH(QString, name);
    QImageReader reader(kSourceDir.filePath(name));
    QCOMPARE(reader.format(), QByteArray("gif"));
    const QImage picture = reader.read();
    QVERIFY2(!picture.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(picture.size(), QSize(154, 206));
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(picture.pixel(77, 103)), 255);

    QFile source(kSourceDir.filePath(name));
    QFile copy(QDir::current().filePath(name));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QVERIFY2(copy.open(QIODevice::ReadOnly), qPrintable(copy.fileName()));
    QCOMPARE(copy.readAll(), source.readAll());
}

void TestAssets::chest_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("side");
    QTest::newRow("normal") << QStringLiteral("chest.png") << 32;
    QTest::newRow("high density") << QStringLiteral("chest@2x.png") << 64;
}

// Square, grey tones only, on a white ground.
void TestAssets::chest() {
    QFETCH(QString, name);
    QFETCH(int, side);
    const QImage chest(kSourceDir.filePath(name));
    QVERIFY(!chest.isNull());
    QCOMPARE(chest.size(), QSize(side, side));
    QCOMPARE(chest.pixel(0, 0), qRgb(255, 255, 255));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const QRgb pixel = chest.pixel(x, y);
            QVERIFY(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
        }
    }
}

// A plain 16-bit PCM RIFF/WAVE file of 0.3 to 1 second, copied beside the program.
void TestAssets::bell() {
    QFile file(QDir::current().filePath(QStringLiteral("bell.wav")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(bytes.size() >= 44);
    QCOMPARE(bytes.left(4), QByteArray("RIFF"));
    QCOMPARE(readLittleEndian(bytes, 4, 4), static_cast<std::uint32_t>(bytes.size() - 8));
    QCOMPARE(bytes.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(readLittleEndian(bytes, 20, 2), 1u);  // PCM
    QCOMPARE(readLittleEndian(bytes, 22, 2), 1u);  // mono
    QCOMPARE(readLittleEndian(bytes, 34, 2), 16u); // bits per sample
    const std::uint32_t rate = readLittleEndian(bytes, 24, 4);
    QVERIFY(rate == 22050 || rate == 44100);
    QCOMPARE(bytes.mid(36, 4), QByteArray("data"));
    const std::uint32_t dataBytes = readLittleEndian(bytes, 40, 4);
    QCOMPARE(static_cast<qsizetype>(dataBytes), bytes.size() - 44);
    const double seconds = dataBytes / (2.0 * rate);
    QVERIFY2(seconds >= 0.3 && seconds <= 1.0, qPrintable(QString::number(seconds)));
}

QTEST_GUILESS_MAIN(TestAssets)
#include "assets_test.moc"
