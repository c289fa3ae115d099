// Writes one picture as SVG text: the few elements that the card art needs, in the order of drawing.
#pragma once

#include <string>
#include <string_view>

/// A number for SVG text, at most three decimals.
[[nodiscard]] std::string Num(double value);

/// A transform attribute's text: moved to x, y, then turned (degrees), then scaled.
[[nodiscard]] std::string Placed(double x, double y, double scale, double turn = 0);

/// Colours are SVG colours or "url(#name)" of a gradient; paths are SVG path data. Later elements cover
/// earlier ones. Only what every small SVG reader knows is written: no filters, masks or clips.
class Drawing {
public:
    /// The size in units, which is also the nominal size in pixels.
    Drawing(double width, double height);

    void Fill(std::string_view path, std::string_view color, double opacity = 1);
    /// A line with round ends and joins.
    void Line(std::string_view path, std::string_view color, double width, double opacity = 1);
    /// A line with square ends and mitred joins.
    void SharpLine(std::string_view path, std::string_view color, double width, double opacity = 1);
    /// A filled path with an edge of that width.
    void Shape(std::string_view path, std::string_view color, std::string_view edge, double width);
    void Disc(double x, double y, double radius, std::string_view color, double opacity = 1);
    void Ring(double x, double y, double radius, std::string_view color, double width, double opacity = 1);
    void Oval(double x, double y, double radiusX, double radiusY, std::string_view color, double opacity = 1);
    void Box(double x, double y, double width, double height, double radius, std::string_view color,
             double opacity = 1);
    void BoxEdge(double x, double y, double width, double height, double radius, std::string_view color,
                 double lineWidth, double opacity = 1);

    /// A gradient from top to bottom of the given stretch, usable as "url(#name)".
    void FadeDown(std::string_view name, double top, double bottom, std::string_view from,
                  std::string_view to);
    /// A gradient from a centre outwards.
    void FadeOut(std::string_view name, double x, double y, double radius, std::string_view from,
                 std::string_view to);
    /// A path that is drawn later, as often as wanted.
    void Define(std::string_view name, std::string_view path);
    void Use(std::string_view name, std::string_view transform, std::string_view color, double opacity = 1);

    void OpenGroup(std::string_view transform, std::string_view name = {});
    void CloseGroup();
    /// Draws a closed group once more.
    void Repeat(std::string_view name, std::string_view transform);

    [[nodiscard]] std::string Text() const;

private:
    double width_, height_;
    std::string definitions_, body_;
};
