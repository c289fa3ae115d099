// The SVG text behind the drawing operations.
#include "Drawing.h"

#include <fmt/format.h>

namespace {

std::string Opacity(std::string_view kind, double opacity) {
    return opacity < 1 ? fmt::format(" {}-opacity=\"{}\"", kind, Num(opacity)) : std::string();
}

std::string Stroke(std::string_view color, double width) {
    return fmt::format(" stroke=\"{}\" stroke-width=\"{}\"", color, Num(width));
}

constexpr std::string_view Round = " stroke-linecap=\"round\" stroke-linejoin=\"round\"";

}  // namespace

std::string Num(double value) {
    std::string text = fmt::format("{:.3f}", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string Placed(double x, double y, double scale, double turn) {
    std::string text = fmt::format("translate({} {})", Num(x), Num(y));
    if (turn != 0) text += fmt::format(" rotate({})", Num(turn));
    if (scale != 1) text += fmt::format(" scale({})", Num(scale));
    return text;
}

Drawing::Drawing(double width, double height) : width_(width), height_(height) {}

void Drawing::Fill(std::string_view path, std::string_view color, double opacity) {
    body_ += fmt::format("<path fill=\"{}\"{} d=\"{}\"/>\n", color, Opacity("fill", opacity), path);
}

void Drawing::Line(std::string_view path, std::string_view color, double width, double opacity) {
    body_ += fmt::format("<path fill=\"none\"{}{}{} d=\"{}\"/>\n", Stroke(color, width), Round,
                         Opacity("stroke", opacity), path);
}

void Drawing::SharpLine(std::string_view path, std::string_view color, double width, double opacity) {
    body_ += fmt::format("<path fill=\"none\"{}{} d=\"{}\"/>\n", Stroke(color, width),
                         Opacity("stroke", opacity), path);
}

void Drawing::Shape(std::string_view path, std::string_view color, std::string_view edge, double width) {
    body_ += fmt::format("<path fill=\"{}\"{}{} d=\"{}\"/>\n", color, Stroke(edge, width), Round, path);
}

void Drawing::Disc(double x, double y, double radius, std::string_view color, double opacity) {
    body_ += fmt::format("<circle cx=\"{}\" cy=\"{}\" r=\"{}\" fill=\"{}\"{}/>\n", Num(x), Num(y),
                         Num(radius), color, Opacity("fill", opacity));
}

void Drawing::Ring(double x, double y, double radius, std::string_view color, double width, double opacity) {
    body_ += fmt::format("<circle cx=\"{}\" cy=\"{}\" r=\"{}\" fill=\"none\"{}{}/>\n", Num(x), Num(y),
                         Num(radius), Stroke(color, width), Opacity("stroke", opacity));
}

void Drawing::Oval(double x, double y, double radiusX, double radiusY, std::string_view color,
                   double opacity) {
    body_ += fmt::format("<ellipse cx=\"{}\" cy=\"{}\" rx=\"{}\" ry=\"{}\" fill=\"{}\"{}/>\n", Num(x), Num(y),
                         Num(radiusX), Num(radiusY), color, Opacity("fill", opacity));
}

void Drawing::Box(double x, double y, double width, double height, double radius, std::string_view color,
                  double opacity) {
    body_ += fmt::format(
        "<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" rx=\"{}\" ry=\"{}\" fill=\"{}\"{}/>\n", Num(x),
        Num(y), Num(width), Num(height), Num(radius), Num(radius), color, Opacity("fill", opacity));
}

void Drawing::BoxEdge(double x, double y, double width, double height, double radius, std::string_view color,
                      double lineWidth, double opacity) {
    body_ += fmt::format(
        "<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" rx=\"{}\" ry=\"{}\" fill=\"none\"{}{}/>\n",
        Num(x), Num(y), Num(width), Num(height), Num(radius), Num(radius), Stroke(color, lineWidth),
        Opacity("stroke", opacity));
}

void Drawing::FadeDown(std::string_view name, double top, double bottom, std::string_view from,
                       std::string_view to) {
    definitions_ += fmt::format(
        "<linearGradient id=\"{}\" gradientUnits=\"userSpaceOnUse\" x1=\"0\" y1=\"{}\" x2=\"0\" y2=\"{}\">"
        "<stop offset=\"0\" stop-color=\"{}\"/><stop offset=\"1\" stop-color=\"{}\"/></linearGradient>\n",
        name, Num(top), Num(bottom), from, to);
}

void Drawing::FadeOut(std::string_view name, double x, double y, double radius, std::string_view from,
                      std::string_view to) {
    definitions_ += fmt::format(
        "<radialGradient id=\"{}\" gradientUnits=\"userSpaceOnUse\" cx=\"{}\" cy=\"{}\" r=\"{}\">"
        "<stop offset=\"0\" stop-color=\"{}\"/><stop offset=\"1\" stop-color=\"{}\"/></radialGradient>\n",
        name, Num(x), Num(y), Num(radius), from, to);
}

void Drawing::Define(std::string_view name, std::string_view path) {
    definitions_ += fmt::format("<path id=\"{}\" d=\"{}\"/>\n", name, path);
}

void Drawing::Use(std::string_view name, std::string_view transform, std::string_view color, double opacity) {
    body_ += fmt::format("<use xlink:href=\"#{}\" transform=\"{}\" fill=\"{}\"{}/>\n", name, transform, color,
                         Opacity("fill", opacity));
}

void Drawing::OpenGroup(std::string_view transform, std::string_view name) {
    body_ += "<g";
    if (!name.empty()) body_ += fmt::format(" id=\"{}\"", name);
    if (!transform.empty()) body_ += fmt::format(" transform=\"{}\"", transform);
    body_ += ">\n";
}

void Drawing::CloseGroup() { body_ += "</g>\n"; }

void Drawing::Repeat(std::string_view name, std::string_view transform) {
    body_ += fmt::format("<use xlink:href=\"#{}\" transform=\"{}\"/>\n", name, transform);
}

std::string Drawing::Text() const {
    return fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
        "version=\"1.2\" baseProfile=\"tiny\" width=\"{0}\" height=\"{1}\" viewBox=\"0 0 {0} {1}\">\n"
        "<defs>\n{2}</defs>\n{3}</svg>\n",
        Num(width_), Num(height_), definitions_, body_);
}
