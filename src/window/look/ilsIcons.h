// The small pictures of trees, lists and combo boxes.
#pragma once

#include <QColor>
#include <QIcon>

namespace ilsIcons {

[[nodiscard]] QIcon Group();  ///< of games, colours or pictures
[[nodiscard]] QIcon Game();
[[nodiscard]] QIcon Player();
[[nodiscard]] QIcon Date();
[[nodiscard]] QIcon Deck();
[[nodiscard]] QIcon Background();
[[nodiscard]] QIcon Sound();
[[nodiscard]] QIcon Favorite();
[[nodiscard]] QIcon Move();  ///< a move of the running game
/// A square of that colour.
[[nodiscard]] QIcon Swatch(const QColor& color);

}  // namespace ilsIcons
