// The clock and the calendar of the machine.
#pragma once

#include "engine/outside/windowlayer.h"

class QtCalendar : public Calendar {
public:
    [[nodiscard]] Moment Now() const override;
    /// Digits and order are the same in every locale: the records hold this text.
    [[nodiscard]] std::string Text(Moment moment) const override;
    /// As the user's region says at this moment.
    [[nodiscard]] RegionalFormat Regional() const override;
};
