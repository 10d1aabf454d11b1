#pragma once

// A label that says when it has painted itself, for the timing of an answer.

// Standard library
#include <functional>
#include <utility>

// Qt
#include <QLabel>

namespace marivale {

class AnswerLabel final : public QLabel {
public:
    AnswerLabel(QWidget* parent, std::function<void()> painted)
        : QLabel(parent), painted_(std::move(painted)) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        painted_();
    }

private:
    std::function<void()> painted_;
};

} // namespace marivale
