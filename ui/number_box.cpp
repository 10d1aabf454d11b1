#include "ui/number_box.h"

// Qt
#include <QLineEdit>

// Marivale
#include "ui/number_text.h"

namespace marivale {

NumberBox::NumberBox(QWidget* parent) : QDoubleSpinBox(parent) {
    setLocale(numberLocale());
    setKeyboardTracking(false);
    setCorrectionMode(QAbstractSpinBox::CorrectToPreviousValue);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { typed_ = text; });
    connect(this, &QAbstractSpinBox::editingFinished, this, &NumberBox::checkFinished);
}

// The text between the prefix and the suffix.
QString NumberBox::typedNumber(const QString& text) const {
    QString typed = text.trimmed();
    if (!prefix().isEmpty() && typed.startsWith(prefix())) {
        typed.remove(0, prefix().size());
    }
    if (!suffix().isEmpty() && typed.endsWith(suffix())) {
        typed.chop(suffix().size());
    }
    return typed.trimmed();
}

// Anything that may still become a number is left to finish; only a number in range is taken.
QValidator::State NumberBox::validate(QString& input, int& /*pos*/) const {
    const QString typed = typedNumber(input);
    const std::optional<double> number = readTypedNumber(typed);
    if (!number) {
        return typed.size() <= 40 ? QValidator::Intermediate : QValidator::Invalid;
    }
    return *number >= minimum() && *number <= maximum() ? QValidator::Acceptable
                                                        : QValidator::Intermediate;
}

double NumberBox::valueFromText(const QString& text) const {
    return readTypedNumber(typedNumber(text)).value_or(value());
}

QString NumberBox::textFromValue(double value) const {
    return decimalText(value, decimals());
}

// Nothing is made up of a half-typed number: the box goes back to its last value.
void NumberBox::fixup(QString& /*input*/) const {}

// By now a refused text has given way to the last value; what was typed tells.
void NumberBox::checkFinished() {
    if (!typed_) {
        return;
    }
    QString input = *typed_;
    typed_.reset();
    int pos = 0;
    if (validate(input, pos) != QValidator::Acceptable) {
        emit refused(typedNumber(input));
    }
}

} // namespace marivale
