#pragma once

// A number field of a companion window: it writes and reads numbers in the program's one
// convention whatever the desktop's locale, takes what a player types in either convention
// without ever multiplying it, and never drops a typed number silently: a number outside the
// range, or no number at all, is refused and reported through `refused`, and the last good
// value stays.

// Standard library
#include <optional>

// Qt
#include <QDoubleSpinBox>

namespace marivale {

class NumberBox : public QDoubleSpinBox {
    Q_OBJECT
public:
    explicit NumberBox(QWidget* parent = nullptr);

    QValidator::State validate(QString& input, int& pos) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
    void fixup(QString& input) const override;

signals:
    // The player finished typing something the box cannot take; it keeps its last value.
    void refused(const QString& typed);

private:
    QString typedNumber(const QString& text) const;
    void checkFinished();

    std::optional<QString> typed_{}; // what the player typed since the last value was taken
};

} // namespace marivale
