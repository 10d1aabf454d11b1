// Qt
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

// Marivale
#include "ui/card_pictures.h"

using namespace marivale;

namespace {

// A one-pixel GIF, enough to check that a real file is read and fitted with its aspect kept.
const QByteArray kOnePixelGif =
    QByteArray::fromHex("47494638396101000100800000000000ffffff2c00000000010001000002024401003b");

void writeFile(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

// Runs every case in an empty directory of its own, so the real pictures are never found.
class CardPicturesTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void missingFileGivesAStandIn_data();
    void missingFileGivesAStandIn();
    void filesAreReadOrListedMissing();
    void showOnSetsTheIconAtTheButtonSize();

private:
    QString previousDir_{};
    std::unique_ptr<QTemporaryDir> dir_{};
};

void CardPicturesTest::init() {
    previousDir_ = QDir::currentPath();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(dir_->path()));
}

void CardPicturesTest::cleanup() {
    QDir::setCurrent(previousDir_);
    dir_.reset();
}

void CardPicturesTest::missingFileGivesAStandIn_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<qreal>("ratio");
    for (const char* name :
         {"0.gif", "51.gif", "52.gif", "2T.gif", "41T.gif", "1W.gif", "bb.gif", "odd.gif"}) {
        QTest::addRow("%s at 1x", name) << QString::fromLatin1(name) << 1.0;
        QTest::addRow("%s at 2x", name) << QString::fromLatin1(name) << 2.0;
    }
}

void CardPicturesTest::missingFileGivesAStandIn() {
    QFETCH(QString, name);
    QFETCH(qreal, ratio);
    CardPictures pictures;
    const QSize button(77, 103);
    const QPixmap first = pictures.picture(name, button, ratio);
    QVERIFY(!first.isNull());
    QCOMPARE(first.deviceIndependentSize().toSize(), button);
    QCOMPARE(first.devicePixelRatio(), ratio);
    QCOMPARE(first.size(), button * ratio);
    // The stand-in is a drawn card: opaque in the middle, rounded off at the corners.
    const QImage image = first.toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).alpha(), 255);
    QVERIFY(image.pixelColor(0, 0).alpha() < 255);

    pictures.picture(name, QSize(40, 50), ratio);
    QCOMPARE(pictures.missingFiles(), QStringList{name});
}

// A real file is read and fitted with its shape kept; a file that does not decode is drawn as a
// stand-in and listed once, in the order the files were asked for.
void CardPicturesTest::filesAreReadOrListedMissing() {
    writeFile(QStringLiteral("7.gif"), kOnePixelGif);
    writeFile(QStringLiteral("12.gif"), QByteArrayLiteral("not a picture"));
    CardPictures pictures;
    const QPixmap picture = pictures.picture(QStringLiteral("7.gif"), QSize(77, 103), 2.0);
    QCOMPARE(picture.size(), QSize(154, 154));
    QCOMPARE(picture.deviceIndependentSize().toSize(), QSize(77, 77));
    QCOMPARE(picture.toImage().pixelColor(10, 10), QColor(Qt::black));
    QVERIFY(pictures.missingFiles().isEmpty());
    QCOMPARE(pictures.picture(QStringLiteral("12.gif"), QSize(77, 103), 1.0).size(),
             QSize(77, 103));
    pictures.picture(QStringLiteral("bb.gif"), QSize(77, 103), 1.0);
    pictures.picture(QStringLiteral("12.gif"), QSize(77, 103), 1.0);
    QCOMPARE(pictures.missingFiles(),
             (QStringList{QStringLiteral("12.gif"), QStringLiteral("bb.gif")}));
}

void CardPicturesTest::showOnSetsTheIconAtTheButtonSize() {
    CardPictures pictures;
    QPushButton button;
    button.setFixedSize(77, 103);
    pictures.showOn(button, QStringLiteral("14W.gif"));
    QCOMPARE(button.iconSize(), QSize(77, 103));
    QVERIFY(!button.icon().isNull());
    QCOMPARE(button.property(CardPictures::kPictureProperty).toString(), QStringLiteral("14W.gif"));
}

QTEST_MAIN(CardPicturesTest)
#include "card_pictures_test.moc"
