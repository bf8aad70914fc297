#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "seam/surface.h"
#include "told/card_names.h"

namespace tombrello {

using Lines = std::vector<std::string>;

/// "x,y" of a number pair, rounded as a reader would write it.
inline std::string at(float x, float y) {
  char text[48];
  std::snprintf(text, sizeof text, "%.6g,%.6g", static_cast<double>(x), static_cast<double>(y));
  return text;
}

inline std::string colour_name(Colour colour) {
  const std::map<Colour, std::string> names = {
      {kFelt, "felt"}, {kGrey, "grey"},   {kGreen, "green"},     {kWhite, "white"},
      {kBlue, "blue"}, {kBlack, "black"}, {kPaleYellow, "pale"}, {kYellow, "yellow"}};
  const auto found = names.find(colour);
  return found == names.end() ? std::to_string(colour) : found->second;
}

/// One item as a line: "A♦ 250,485.75 310,580", with "turned" behind a half turn, "A♦ lying" or
/// "back1"; "box 250,460.75 570,580 felt" or "frame ..."; "'TU' 370,464.9 Arial 8 white", with "+1"
/// behind the place of a text that stands one line lower.
inline std::string seen(const Item& item) {
  const auto corners = [](const Area& a) {
    return at(a.left, a.top) + " " + at(a.right, a.bottom);
  };
  if (const auto* box = std::get_if<BoxItem>(&item)) {
    return (box->filled ? "box " : "frame ") + corners(box->area) + " " + colour_name(box->colour);
  }
  if (const auto* picture = std::get_if<PictureItem>(&item)) {
    const auto [set, index] = picture->picture;
    std::string name = "opening picture";
    if (set == PictureSet::carta || set == PictureSet::cartao) name = short_name(index);
    if (set == PictureSet::dorsov || set == PictureSet::dorsoo) {
      name = "back" + std::to_string(index);
    }
    if (set == PictureSet::cartao || set == PictureSet::dorsoo) name += " lying";
    const std::string turn = picture->mirrored_x && picture->mirrored_y ? " turned"
                             : picture->mirrored_x                      ? " mirrored x"
                             : picture->mirrored_y                      ? " mirrored y"
                                                                        : "";
    return name + " " + corners(picture->area) + turn;
  }
  const auto& text = std::get<TextItem>(item);
  const std::string lower =
      text.lines_above.empty() ? "" : "+" + std::to_string(text.lines_above.size());
  char size[16];
  std::snprintf(size, sizeof size, " %g ", static_cast<double>(text.font.size));
  return "'" + text.text + "' " + at(text.x, text.y) + lower + " " + text.font.name + size +
         colour_name(text.colour);
}

enum class Kind { boxes, pictures, texts, everything };  // as the alternatives of Item

/// True if one of the lines is, or holds, this text.
inline bool has(const Lines& lines, const std::string& text) {
  return std::any_of(lines.begin(), lines.end(),
                     [&](const std::string& line) { return line.find(text) != std::string::npos; });
}

inline Lines seen(const Surface& surface, Kind kind = Kind::everything) {
  Lines lines;
  for (const Item& item : surface.items()) {
    const bool wanted = kind == Kind::everything || item.index() == static_cast<std::size_t>(kind);
    if (wanted) lines.push_back(seen(item));
  }
  return lines;
}

/// What has gone and what has come, a line each.
inline std::string changes(const Lines& before, const Lines& after, const std::string& indent) {
  const auto only_in = [&](const Lines& these, Lines others, const char* sign) {
    std::string text;
    for (const auto& line : these) {
      const auto same = std::find(others.begin(), others.end(), line);
      if (same == others.end()) text += indent + sign + line + "\n";
      if (same != others.end()) others.erase(same);
    }
    return text;
  };
  return only_in(before, after, "- ") + only_in(after, before, "+ ");
}

/// Compares line by line with a file of tests/game. CONTRIBUTING.md tells how to renew it.
inline void expect_golden(const std::string& name, const std::string& text) {
  const std::string file = TOMBRELLO_ROOT "/tests/game/" + name;
  if (std::getenv("TOMBRELLO_RENEW") != nullptr) std::ofstream(file) << text;
  std::ifstream golden(file);
  std::istringstream seen(text);
  std::string wanted;
  int number = 0;
  for (std::string line; std::getline(seen, line);) {
    ++number;
    ASSERT_TRUE(std::getline(golden, wanted)) << "more than is told: " << line;
    ASSERT_EQ(line, wanted) << name << " line " << number;
  }
  EXPECT_FALSE(std::getline(golden, wanted)) << "no more: " << wanted;
}

}  // namespace tombrello
