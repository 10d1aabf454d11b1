#include "ui/number_text.h"

// Qt
#include <QRegularExpression>

namespace marivale {

QLocale numberLocale() {
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale;
}

QString countText(long long count) {
    return numberLocale().toString(count);
}

QString decimalText(double value, int decimals) {
    return numberLocale().toString(value, 'f', decimals);
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
