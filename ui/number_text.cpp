#include "ui/number_text.h"

// Qt
#include <QRegularExpression>

// Marivale
#include "engine/number_text.h"

namespace marivale {

QLocale numberLocale() {
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale;
}

QString countText(long long count) {
    return QString::fromStdString(groupedText(static_cast<double>(count), 0));
}

QString decimalText(double value, int decimals, bool plusSign) {
    return QString::fromStdString(groupedText(value, decimals, plusSign));
}

QString percentText(double fraction, int decimals) {
    return decimalText(100.0 * fraction, decimals) + QLatin1Char('%');
}

std::optional<double> readTypedNumber(const QString& text) {
    static const QRegularExpression grouped(QStringLiteral("^-?\\d{1,3}(,\\d{3})+(\\.\\d*)?$"));
    static const QRegularExpression plain(QStringLiteral("^-?(\\d+[.,]?\\d*|[.,]\\d+)$"));
    const QString typed = text.trimmed();
    QString number;
    if (grouped.match(typed).hasMatch()) {
        number = QString(typed).remove(QLatin1Char(','));
    } else if (plain.match(typed).hasMatch()) {
        number = QString(typed).replace(QLatin1Char(','), QLatin1Char('.'));
    } else {
        return std::nullopt;
    }
    bool ok = false;
    const double value = QLocale::c().toDouble(number, &ok);
    return ok ? std::optional(value) : std::nullopt;
}

} // namespace marivale
