#include "svg.h"

#include <array>
#include <charconv>

namespace tombrello {
namespace {

// Whatever the locale, and no longer than it must be.
std::string number(float value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

std::string attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + '"';
}

std::string attribute(const char* name, float value) {
  return attribute(name, number(value));
}

std::string colour(const std::string& name, Rgba c) {
  std::string text =
      "rgb(" + std::to_string(c.r) + ',' + std::to_string(c.g) + ',' + std::to_string(c.b) + ')';
  text = attribute(name.c_str(), text);
  if (c.a == 255) return text;
  const std::string opacity = name == "stop-color" ? "stop-opacity" : name + "-opacity";
  return text + attribute(opacity.c_str(), static_cast<float>(c.a) / 255);
}

std::string outline(const Path& path) {
  std::string text;
  auto point = path.points.begin();
  for (const Path::Verb verb : path.verbs) {
    const auto k = static_cast<std::size_t>(verb);
    constexpr std::array<char, 4> kLetters{'M', 'L', 'C', 'Z'};
    constexpr std::array<int, 4> kPoints{1, 1, 3, 0};
    text += kLetters[k];
    for (int i = 0; i < kPoints[k]; ++i, ++point) {
      text += (i == 0 ? "" : " ") + number(point->x) + ' ' + number(point->y);
    }
  }
  return text;
}

std::string gradient(const Paint& paint, const std::string& id) {
  const bool linear = paint.kind == Paint::Kind::linear;
  const std::string tag = linear ? "linearGradient" : "radialGradient";
  std::string text = "<" + tag + attribute("id", id) + attribute("gradientUnits", "userSpaceOnUse");
  if (linear) {
    text += attribute("x1", paint.from.x) + attribute("y1", paint.from.y) +
            attribute("x2", paint.to.x) + attribute("y2", paint.to.y);
  } else {
    text += attribute("cx", paint.from.x) + attribute("cy", paint.from.y) +
            attribute("r", paint.radius);
  }
  text += ">";
  for (const Stop& stop : paint.stops) {
    text += "<stop" + attribute("offset", stop.at) + colour("stop-color", stop.colour) + "/>";
  }
  return text + "</" + tag + ">\n";
}

std::string shape_element(const Shape& shape, const std::string& id) {
  std::string text;
  const bool graded = shape.filled && !shape.fill.stops.empty();
  if (graded) text = gradient(shape.fill, id);
  text += "<path" + attribute("d", outline(shape.path));
  if (!shape.filled) text += attribute("fill", "none");
  if (graded) text += attribute("fill", "url(#" + id + ")");
  if (shape.filled && !graded) text += colour("fill", shape.fill.colour);
  if (shape.even_odd) text += attribute("fill-rule", "evenodd");
  if (shape.stroke_width > 0) {
    text += colour("stroke", shape.stroke) + attribute("stroke-width", shape.stroke_width) +
            attribute("stroke-linecap", "round") + attribute("stroke-linejoin", "round");
  }
  return text + "/>\n";
}

}  // namespace

std::string to_svg(const Drawing& drawing) {
  std::string text =
      "<svg" + attribute("xmlns", "http://www.w3.org/2000/svg") +
      attribute("width", drawing.width) + attribute("height", drawing.height) +
      attribute("viewBox", "0 0 " + number(drawing.width) + ' ' + number(drawing.height)) + ">\n";
  int count = 0;
  for (const Shape& shape : drawing.shapes) {
    text += shape_element(shape, "paint" + std::to_string(++count));
  }
  return text + "</svg>\n";
}

}  // namespace tombrello
