// The art as the program gets it: from the resources, rendered for a scale.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace Art {

/// The SVG resource of that name, such as "cards/1", "cards-four/1", "backs/501", "marks/0", "icons/help" or
/// "splash", in device pixels: `scale` times its size. A null image where there is no such resource.
[[nodiscard]] QImage Picture(const QString& name, double scale);

/// The same in that size, whatever the picture's own proportions are.
[[nodiscard]] QImage Picture(const QString& name, const QSize& size);

/// The size of the splash window, and of the picture in it, in pixels of a plain screen.
inline constexpr QSize SplashSize(480, 300);

/// The splash picture in device pixels. In its own size it is ready at once.
[[nodiscard]] QImage Splash(const QSize& size);

/// A background tile; a null image where there is none of that number.
[[nodiscard]] QImage Tile(int number);

}  // namespace Art
