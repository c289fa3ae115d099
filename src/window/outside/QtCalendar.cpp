// The clock and the calendar of the machine.
#include "window/outside/QtCalendar.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

Moment QtCalendar::Now() const { return QDateTime::currentMSecsSinceEpoch(); }

std::string QtCalendar::Text(Moment moment) const {
    return QDateTime::fromMSecsSinceEpoch(moment)
        .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"))
        .toStdString();
}

RegionalFormat QtCalendar::Regional() const {
    const QLocale locale = QLocale::system();
    RegionalFormat format;
    format.ShortDate = locale.dateFormat(QLocale::ShortFormat).toStdString();
    format.LongTime = locale.timeFormat(QLocale::LongFormat).toStdString();
    format.Morning = locale.amText().toStdString();
    format.Afternoon = locale.pmText().toStdString();
    for (std::size_t i = 0; i < format.Months.size(); ++i) {
        format.Months[i] = locale.monthName(static_cast<int>(i) + 1, QLocale::ShortFormat).toStdString();
    }
    const auto zero = locale.zeroDigit().toUcs4();
    if (!zero.isEmpty()) format.ZeroDigit = zero.front();
    return format;
}
