#pragma once

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "cards/card.h"

namespace tombrello::test {

// Cards are written as "Ah", "10d", "Kc", "7s"; a quote, "7s'", means the second pack.

inline constexpr const char* kRankNames[] = {"0", "A", "2", "3",  "4", "5", "6",
                                             "7", "8", "9", "10", "J", "Q", "K"};

inline std::string name_of(int card) {
  if (card == 0) return "-";
  const std::string twin = kRankNames[(card - 1) % 52 % 13 + 1];
  return twin + "hdcs"[(card - 1) % 52 / 13] + (card > 52 ? "'" : "");
}

inline int card(const std::string& name) {
  for (int code = 0; code <= kCards; ++code) {
    if (name_of(code) == name) return code;
  }
  throw std::invalid_argument("no card: " + name);
}

inline std::vector<int> cards(const std::string& names) {
  std::istringstream in(names);
  std::vector<int> codes;
  for (std::string name; in >> name;) codes.push_back(name == "|" ? kSentinel : card(name));
  return codes;
}

template <class Range>
std::string names(const Range& codes) {
  std::string text;
  for (const int code : codes) {
    text += (text.empty() ? "" : " ") + (code == kSentinel ? "|" : name_of(code));
  }
  return text;
}

}  // namespace tombrello::test
