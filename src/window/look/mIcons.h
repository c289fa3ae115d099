// The program's own small pictures: toolbar icons and the application's icon.
#pragma once

#include <QIcon>

namespace mIcons {

enum class Tool { NewGame, SelectGame, Restart, Autoplay, Undo, Redo, Back, Stop, Forward, Statistics, Help };

/// A toolbar icon on a grid of 16 × 16, sharp at any pixel ratio, grey when disabled.
[[nodiscard]] QIcon Toolbar(Tool tool);
/// The icon of that name among the art, sharp at any size, each size drawn once.
[[nodiscard]] QIcon Picture(const QString& name);
/// The application's icon.
[[nodiscard]] QIcon Application();

}  // namespace mIcons
