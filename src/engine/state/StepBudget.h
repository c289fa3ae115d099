// How long a command that shows many cards' trips may take: their steps share a time that a player waits.
#pragma once

#include "engine/state/cPlate.h"

/// While one lives, each step that the plate shows takes at most its share. Inside another one it changes
/// nothing: the command that the player gave counts, not its parts.
class StepBudget {
public:
    static constexpr double Milliseconds = 3000.0;

    /// `steps` are all steps that follow while this lives; none at all is fine.
    explicit StepBudget(int steps) : outermost_(PicBack.StepLimit() == cPlate::NoStepLimit) {
        if (outermost_ && steps > 0) PicBack.SetStepLimit(Milliseconds / steps);
    }
    ~StepBudget() {
        if (outermost_) PicBack.SetStepLimit(cPlate::NoStepLimit);
    }
    StepBudget(const StepBudget&) = delete;
    StepBudget& operator=(const StepBudget&) = delete;

private:
    bool outermost_;
};
