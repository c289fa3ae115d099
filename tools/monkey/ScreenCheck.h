// Whether the screen shows what the records of the plate say.
#pragma once

#include <string>

class frmMain;

namespace mScreenCheck {

/// The items of the scene against the records: place, visibility, height over the table. Empty where
/// they agree, else the first difference.
[[nodiscard]] std::string ItemsFault(const frmMain& window);
/// What stands on the screen against the same widget drawn afresh: a difference is a repaint that was
/// forgotten. Empty where they agree, where a repaint still waits it may differ for a moment. Only the
/// offscreen platform can be asked; elsewhere the answer is always empty.
[[nodiscard]] std::string PixelsFault(const frmMain& window);

}  // namespace mScreenCheck
