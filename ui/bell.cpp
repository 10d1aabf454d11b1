#include "ui/bell.h"

// Qt
#include <QDir>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace marivale {

namespace {
const QString kBellFile = QStringLiteral("bell.wav");
} // namespace

Bell::Bell(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("MMControl1"));
}

Bell::~Bell() {
    delete effect_;
}

void Bell::open() {
    record(QStringLiteral("Open"));
    delete effect_;
    effect_ = nullptr;
    const QFileInfo file(QDir::current().absoluteFilePath(kBellFile));
    if (!file.isFile() || !file.isReadable()) {
        return;
    }
    effect_ = new QSoundEffect(this);
    effect_->setObjectName(QStringLiteral("bellSound"));
    effect_->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
}

void Bell::play() {
    record(QStringLiteral("Play"));
    if (effect_ != nullptr) {
        effect_->play();
    }
}

// The sound effect always starts from the beginning, so there is no position to move back;
// stopping here would cut the ring short.
void Bell::prev() {
    record(QStringLiteral("Prev"));
}

void Bell::close() {
    record(QStringLiteral("Close"));
    delete effect_;
    effect_ = nullptr;
}

void Bell::record(const QString& command) {
    commands_.append(command);
    emit commandIssued(command);
}

} // namespace marivale
