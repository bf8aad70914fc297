#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "seam/colour.h"
#include "seam/picture.h"

namespace tombrello {

/// Width and height of the table in logical units, whatever the window's size.
inline constexpr float kSurfaceWidth = 800;
inline constexpr float kSurfaceHeight = 600;

struct Font {
  std::string name;
  float size = 0;  ///< points of the display: it doesn't grow with the window
  bool operator==(const Font&) const = default;
};

/// A rectangle in logical units, left <= right and top <= bottom.
struct Area {
  float left = 0;
  float top = 0;
  float right = 0;
  float bottom = 0;

  bool contains(const Area& other) const;
  bool contains(float x, float y) const;  ///< borders belong to the area
  bool meets(const Area& other) const;    ///< they share more than a border
  bool operator==(const Area&) const = default;
};

struct BoxItem {
  Area area;
  Colour colour = 0;
  bool filled = true;
  bool operator==(const BoxItem&) const = default;
};

struct PictureItem {
  Area area;
  Picture picture;
  bool mirrored_x = false;
  bool mirrored_y = false;
  bool operator==(const PictureItem&) const = default;
};

/// A line of text, in bold like every text of the table. It begins at (x, y), lower by the
/// heights of the lines printed since y was set: lines that followed each other still do at any
/// size of the window, though letters are measured in points and places in logical units.
struct TextItem {
  float x = 0;
  float y = 0;
  std::vector<Font> lines_above;  ///< fonts of the lines between y and this one
  std::string text;               ///< UTF-8
  Font font;
  Colour colour = 0;
  bool operator==(const TextItem&) const = default;
};

using Item = std::variant<BoxItem, PictureItem, TextItem>;

/// What is painted stays until it is painted over or the surface is cleared.
///
/// The surface is the list of what stands on it, from the bottom up. What is wholly covered
/// drops out, so that the list stays short in the longest hand; a rasteriser paints it at any
/// size, and tests read it. Coordinates are logical units; what lies beyond 800 by 600 is
/// clipped when it is rasterised.
///
/// The text state (position, font, colour) is shared by all who print: each print inherits what
/// the last one left.
class Surface {
 public:
  /// What was added or taken away since the last `take_changes`, to know what to repaint.
  struct Changes {
    bool everything = false;
    std::vector<Item> items;
  };

  /// The whole surface takes the background colour, and the text position returns to (0, 0).
  void clear();
  /// Clears as well.
  void set_background(Colour colour);
  Colour background() const { return background_; }

  /// The corners may come in any order. A text that starts inside the box goes whole.
  void filled_box(float x1, float y1, float x2, float y2, Colour colour);
  /// A filled box that goes under the pictures that `spared` names, and hides all else there.
  void filled_box_under(const Area& area, Colour colour,
                        const std::function<bool(const PictureItem&)>& spared);
  void open_box(float x1, float y1, float x2, float y2, Colour colour);

  /// A negative width mirrors the picture and lays it to the left of x, a negative height
  /// mirrors it and lays it above y.
  void paint(Picture picture, float x, float y, float width, float height);

  /// Prints at the text position, which then stands at x 0, one line of this font lower.
  /// A text that starts where another one stands takes its place.
  void print(const std::string& text);
  /// Prints and leaves the text position's line where it is.
  void print_staying(const std::string& text);
  void set_text_x(float x) { x_ = x; }
  void set_text_position(float x, float y);

  float font_size() const { return font_.size; }  ///< points
  void set_font_size(float points) { font_.size = points; }
  void set_font_name(const std::string& name) { font_.name = name; }
  void set_text_colour(Colour colour) { text_colour_ = colour; }
  Colour text_colour() const { return text_colour_; }

  const std::vector<Item>& items() const { return items_; }
  Changes take_changes();

 private:
  void drop_covered_by(const Area& area);
  void add(Item item);
  void note(const Item& item);

  std::vector<Item> items_;
  Changes changes_{true, {}};
  Colour background_ = kGrey;
  Font font_{"MS Sans Serif", 7.8F};
  Colour text_colour_ = kBlack;
  float x_ = 0;
  float y_ = 0;
  std::vector<Font> lines_above_;
};

}  // namespace tombrello
