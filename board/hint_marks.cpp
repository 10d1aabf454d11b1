#include "board/hint_marks.h"

// Qt
#include <QFrame>
#include <QPushButton>

namespace marivale {
namespace {

constexpr int kLine = 4;
const QColor kHintColour{0, 200, 255};

} // namespace

HintMarks::HintMarks(const std::array<QPushButton*, kHandSize>& cards) : cards_(cards) {
    for (int p = 0; p < kHandSize; ++p) {
        auto* frame = new QFrame(cards_[p]->parentWidget());
        frame->setObjectName(QStringLiteral("Hint%1").arg(p));
        frame->setFrameStyle(QFrame::Box | QFrame::Plain);
        frame->setLineWidth(kLine);
        QPalette palette = frame->palette();
        palette.setColor(QPalette::WindowText, kHintColour);
        frame->setPalette(palette);
        frame->setAttribute(Qt::WA_TransparentForMouseEvents);
        frame->hide();
        frames_[p] = frame;
    }
}

// Each frame stands just outside its card, so the picture stays whole.
void HintMarks::show(unsigned held) {
    for (int p = 0; p < kHandSize; ++p) {
        QFrame* frame = frames_[p];
        if (((held >> p) & 1U) == 0) {
            frame->hide();
            continue;
        }
        frame->setGeometry(
            cards_[p]->geometry().adjusted(-kLine - 1, -kLine - 1, kLine + 1, kLine + 1));
        frame->show();
        frame->raise();
    }
}

void HintMarks::clear() {
    show(0);
}

unsigned HintMarks::shown() const {
    unsigned mask = 0;
    for (int p = 0; p < kHandSize; ++p) {
        mask |= frames_[p]->isVisibleTo(frames_[p]->parentWidget()) ? 1U << p : 0U;
    }
    return mask;
}

} // namespace marivale
