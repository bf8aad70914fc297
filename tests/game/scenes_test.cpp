// What presses and keys mean in moments of a game: tests/game/scenes.txt tells for each the line
// below the table, the places, and what the buttons do at each point of the table.

#include <cmath>

#include "tests/game/game.h"

namespace tombrello {
namespace {

struct Scene {
  std::string name;
  State s;
  float scale = 1;
};

/// The shell around a table that stands still.
class Desk {
 public:
  explicit Desk(const Scene& scene) : s_(scene.s), g_(Geometry::at_scale(scene.scale)) {
    window.add_entry(personalize_players, kMenuBar, "");
    panels_.create();
    names_.create();
    window.listening = true;
    if (scene.name.ends_with("names open")) names_.personalize_players_Click();
    window.surface().set_background(kFelt);
    window.surface().set_text_position(g_.prompt().left, g_.prompt().top);
    window.surface().print("what stood there");
    chronicle_.show(false);
    before_ = told();
  }

  std::string line(bool by_keys) {
    chronicle_.show(by_keys);
    return window.told_now;
  }
  std::vector<Spot> spots() { return places_.spots(); }
  void move(PressPoint to) {
    pointer_.Form_MouseMove(to.x, to.y);
    mark_.pointer_moved(to.x, to.y);
  }
  std::string press(PressPoint at, Button button) {
    s_.x_click = -1;
    pointer_.Form_MouseDown(button, at.x, at.y);
    chronicle_.show(false);
    std::string words;
    for (const auto& line : told()) {
      if (!has(before_, line)) words += (words.empty() ? "" : ", ") + line;
    }
    return s_.x_click == at.x || s_.x_click == -1 ? words : words + " at another x";
  }
  /// The marked place's number after this key, pressed where the keys have marked that place.
  int after_key(PressPoint from, Key key) {
    mark_.pointer_moved(from.x, from.y);
    mark_.move(key);
    mark_.move(key);
    mark_.refresh();
    return window.focused;
  }

  HeadlessTimer timer;
  HeadlessWindow window{timer};

 private:
  Lines told() {
    constexpr const char* kCodes[] = {
        "no code",           "draws from pile", "draws from stock", "selects",       "lays",
        "lays at partner's", "discards",        "draws for dealer", "confirms names"};
    Lines lines = seen(window.surface());
    lines.emplace_back(kCodes[s_.azione]);
    if (s_.carta_scelta != 0) lines.push_back("turns up " + short_name(s_.carta_scelta));
    if (!names_.is_open()) lines.emplace_back("names closed");
    lines.push_back("\"" + window.told_now + "\"");
    return lines;
  }

  State s_;
  Geometry g_;
  MemoryArchive archive_;
  Settings settings_{s_, archive_};
  Panels panels_{window};
  PaintedTable table_{s_, g_, window};
  NamesDialog names_{s_, window, settings_, table_, plain_capital};
  Chronicle chronicle_{s_, window};
  Pointer pointer_{s_, g_, window, panels_, names_, chronicle_};
  Places places_{s_, g_, pointer_};
  Mark mark_{window, pointer_, places_};
  Lines before_;
};

/// What the buttons do at each point, as a chart with a letter for each answer.
class Chart {
 public:
  explicit Chart(const Scene& scene) : scene_(scene), spots_(Desk(scene).spots()) {}

  std::string text() {
    std::string chart;
    std::string last;
    for (float y = 0; y <= kSurfaceHeight; y += kDown) {
      std::string row;
      for (float x = 0; x <= kSurfaceWidth; x += kAcross) row += letter({x, y});
      if (row != last) chart += "  " + row + " from " + std::to_string(static_cast<int>(y)) + "\n";
      last = row;
    }
    for (std::size_t i = 0; i < answers_.size(); ++i) {
      const auto& [words, from, to] = answers_[i];
      chart += std::string("  ") + kLetters[i] + " " +
               at(end(from, -kAcross, 0).x, end(from, 0, -kDown).y) + " " +
               at(end(to, kAcross, 0).x, end(to, 0, kDown).y) + ": " + words + "\n";
    }
    return chart;
  }

 private:
  struct Answer {
    std::string words;
    PressPoint first, last;  // points that gave it
  };
  static constexpr float kAcross = 10;
  static constexpr float kDown = 20;
  static constexpr const char* kLetters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

  std::string answer(PressPoint point) const {
    Desk moved(scene_);
    moved.move(point);
    std::string words = moved.window.pointer() == PointerShape::up_arrow ? "up arrow; " : "";
    if (const auto& mark = moved.window.mark) words += "marks " + name(*mark) + "; ";
    const std::string left = moved.press(point, Button::left);
    const std::string unmoved = Desk(scene_).press(point, Button::left);
    const std::string right = Desk(scene_).press(point, Button::right);
    if (!left.empty()) words += "left " + left + "; ";
    if (unmoved != left) words += "unmoved " + (unmoved.empty() ? "nothing" : unmoved) + "; ";
    if (!right.empty()) words += "right " + right + "; ";
    return words;
  }
  std::string name(const Area& area) const {
    for (const Spot& spot : spots_) {
      if (spot.told.area == area) return spot.told.name;
    }
    return at(area.left, area.top) + " " + at(area.right, area.bottom);
  }
  char letter(PressPoint point) {
    const std::string words = answer(point);
    if (words.empty()) return '.';
    std::size_t i = 0;
    while (i < answers_.size() && answers_[i].words != words) ++i;
    if (i == answers_.size()) answers_.push_back({words, point, point});
    answers_[i].last = point;
    return kLetters[i];
  }
  // Where the answer of a point ends in this direction, but within the table.
  PressPoint end(PressPoint from, float dx, float dy) const {
    const std::string words = answer(from);
    const auto on_the_way = [&](float part) {
      return PressPoint{std::clamp(from.x + part * dx, 0.0F, kSurfaceWidth),
                        std::clamp(from.y + part * dy, 0.0F, kSurfaceHeight)};
    };
    float in = 0;
    float out = 1;
    for (int i = 0; i < 12; ++i) {
      const float middle = (in + out) / 2;
      (answer(on_the_way(middle)) == words ? in : out) = middle;
    }
    const PressPoint border = on_the_way(out);
    return {std::round(100 * border.x) / 100, std::round(100 * border.y) / 100};
  }

  const Scene& scene_;
  std::vector<Spot> spots_;
  std::vector<Answer> answers_;
};

std::string told(const Scene& scene) {
  Desk desk(scene);
  std::string text = "\n" + scene.name + "\n  line: " + desk.line(false) + "\n";
  text += "  by keys: " + desk.line(true) + "\n";
  const auto spots = desk.spots();
  for (std::size_t i = 0; i < spots.size(); ++i) {
    const auto& [place, own_card, on_melds, press, select] = spots[i];
    const auto& [name, area, can_press, can_select, selected] = place;
    text += "  " + std::to_string(i) + " " + name + " " + at(area.left, area.top) + " " +
            at(area.right, area.bottom) + (selected ? " selected" : "");
    if (can_press) text += " press " + at(press->x, press->y);
    if (can_select) text += " select " + at(select->x, select->y);
    if (spots[i].acts()) {
      text += " \u2192";
      for (const Key key : {Key::right, Key::left, Key::up, Key::down}) {
        text += " " + std::to_string(Desk(scene).after_key(press ? *press : *select, key));
      }
    }
    text += "\n";
  }
  return text + Chart(scene).text();
}

struct Moment {
  const char* name;
  std::function<bool(const Game&)> is_now;
  std::function<void(State&)> changed = [](State&) {};
  float scale = 1;
};

std::function<bool(const Game&)> in(Phase phase) {
  return [phase](const Game& game) { return game.s().phase == phase; };
}
bool is_draw(const Game& game) {
  return game.is_drawing();
}
bool is_others(const Game& game) {
  return game.s().phase == Phase::hand && game.s().di_turno == 3;
}
// Before the draw of the first turn, or of one with melds of all seats.
bool first_turn(const Game& game) {
  return game.is_own_turn() && !game.s().ha_pescato;
}
bool later_turn(const Game& game) {
  const auto& melds = game.s().n_calate;
  return first_turn(game) && std::count(melds.begin(), melds.end(), 0) == 1;
}

using Change = std::function<void(State&)>;
/// With a card more, or only so many of them.
Change drawn(std::vector<int> selected, int cards = kHandSlots) {
  return [=](State& s) {
    s.ha_pescato = true;
    s.mano[1][++s.n_mano[1]] = kPack;
    s.n_mano[1] = std::min(s.n_mano[1], static_cast<std::uint8_t>(cards));
    for (const int slot : selected) s.mano[1][slot] += kSelected;
    std::fill(s.mano[1].begin() + s.n_mano[1] + 1, s.mano[1].end(), 0);
  };
}
// Lists of so many positions, in melds of three cards and a longer last one.
Change filled(int own, int partners, std::vector<int> selected) {
  return [=](State& s) {
    drawn(selected)(s);
    for (const auto& [seat, n] : {std::pair{1, own}, {3, partners}}) {
      s.n_calate[seat] = static_cast<std::uint8_t>(n);
      for (int k = 1; k <= n; ++k) {
        const bool ends = k == n || (k % 4 == 0 && k + 3 < n);
        s.calate[seat][k] = static_cast<std::int16_t>(ends ? kSentinel : k);
      }
    }
  };
}
Change ended(int own, int others) {
  return [=](State& s) {
    s.phase = Phase::match_over;
    s.punti_totali = {0, static_cast<std::int16_t>(own), static_cast<std::int16_t>(others)};
  };
}

const std::vector<Moment> kMoments = {
    {"opening", in(Phase::opening)},
    {"opening, names open", in(Phase::opening)},
    {"draw for dealer", is_draw},
    {"draw for dealer, names open", is_draw},
    {"draw for dealer, own card", is_draw, [](State& s) { s.di_turno = 1; }},
    {"draw for dealer, over", is_draw, [](State& s) { s.azione = 0, s.cartaro = 2; }},
    {"draw for dealer, own deal", is_draw, [](State& s) { s.azione = 0, s.cartaro = 1; }},
    {"deal", in(Phase::deal)},
    {"deal of seat 3", in(Phase::deal), [](State& s) { s.cartaro = 3; }},
    {"first turn", first_turn},
    {"first turn, drawn", first_turn, drawn({})},
    {"first turn, drawn, names open", first_turn, drawn({})},
    {"first turn, one selected", first_turn, drawn({3})},
    {"first turn, two selected", first_turn, drawn({3, 14})},
    {"first turn, three selected", first_turn, drawn({3, 4, 13})},
    {"later turn", later_turn},
    {"later turn, one selected", later_turn, drawn({3})},
    {"later turn, three selected", later_turn, drawn({1, 2, 3})},
    {"later turn at four fifths, one selected", later_turn, drawn({1}), 0.8F},
    {"later turn at twice the size, one selected", later_turn, drawn({1}), 2},
    {"later turn at half the size, names open", later_turn, drawn({1, 2, 3}), 0.5F},
    {"nearly full, one selected", later_turn, filled(28, 29, {5})},
    {"nearly full, three selected", later_turn, filled(26, 27, {5, 6, 7})},
    {"without stock", later_turn, [](State& s) { s.stock_empty = true, s.n_pozzo = 0; }},
    {"last card", later_turn, drawn({}, 1)},
    {"three cards, one selected", first_turn, drawn({1}, 3)},
    {"two cards, none selected", first_turn, drawn({}, 2)},
    {"two cards, one selected", first_turn, drawn({2}, 2)},
    {"two cards, one selected, no meld", first_turn,
     [](State& s) { drawn({2}, 2)(s), s.n_calate[3] = 0; }},
    {"no card", later_turn, drawn({}, 0)},
    {"others", is_others, [](State& s) { s.ha_pescato = true; }},
    {"others, the pile weighed", is_others, [](State& s) { s.holds_copy = true; }},
    {"nobody can go out", later_turn,
     [](State& s) {
       s.n_mano = {0, 1, 1, 1, 1}, s.n_calate = {}, s.tallone = kCards, s.stock_empty = true;
     }},
    {"open hands", in(Phase::open_hands)},
    {"count", in(Phase::count)},
    {"match won", in(Phase::count), ended(1510, 1505)},
    {"match lost", in(Phase::count), ended(900, 1505)},
    {"match in a tie", in(Phase::count), ended(1505, 1505)},
};

constexpr std::string_view kKeys = "^v<>npE HX";  // in the order of Key
constexpr const char* kKeyNames[] = {"up",       "down",  "left",  "right", "next",
                                     "previous", "Enter", "space", "help",  "escape"};

/// What each of these keys leaves marked and told; "l" and "r" press the marked place as assistive
/// technology does.
std::string by_keys(const std::string& keys, Game& game) {
  HeadlessWindow& window = game.window;
  window.listening = true;
  std::string text;
  std::string now;
  const auto tell = [&] {
    text += window.focused < 0 ? " nothing" : " " + window.places.at(window.focused).name;
    if (window.mark.has_value() != (window.focused >= 0)) text += ", another mark";
    for (const ControlId panel : {TxtHelp, quadro}) {
      if (window.visible(panel)) text += panel == quadro ? ", opening" : ", help";
    }
    if (window.told_now != now) text += ". " + window.told_now;
    now = window.told_now;
    text += "\n";
  };
  for (const char struck : keys) {
    game.then([&, struck] {
      tell();
      if (struck == 'l' || struck == 'r') {
        text += struck == 'l' ? "  pressed:" : "  selected:";
        const Button button = struck == 'l' ? Button::left : Button::right;
        for (const int place : {-1, window.focused, static_cast<int>(window.places.size())}) {
          game.program.place_pressed(place, button);
        }
      } else {
        const std::size_t key = kKeys.find(struck);
        text += std::string("  ") + kKeyNames[key] + ":";
        window.key(static_cast<Key>(key));
      }
    });
  }
  game.then(tell).play();
  return text;
}

TEST(Scenes, PressesAndKeysMeanWhatTheyDid) {
  Game game(196);
  std::vector<Scene> scenes;
  for (const Moment& moment : kMoments) scenes.push_back({"", {}, moment.scale});
  game.window.on_pass = [&] {
    for (std::size_t i = 0; i < scenes.size(); ++i) {
      if (!scenes[i].name.empty() || !kMoments[i].is_now(game)) continue;
      scenes[i].name = kMoments[i].name;
      scenes[i].s = game.s();
      kMoments[i].changed(scenes[i].s);
    }
  };
  game.until_scoreboard().play();
  std::string text =
      "Each place with its area and where the buttons act on it; behind the arrow, the places\n"
      "to which the keys right, left, up and down lead. Then what a press does: a letter for each\n"
      "ten units across, a row for each twenty down, and what it means from where to where.\n";
  for (const Scene& scene : scenes) text += told(scene);
  Game drawn_for(7, kept_deal());
  text += "\nBy keys\n " + by_keys(" vEEvEEEE<^>v<<<E>>> > < E  HE>HvXnrnprlv<E", drawn_for);
  Game replayed(7, kept_deal());
  replayed.choose(menu_replay);
  text += "\nA spade after the other, by keys\n " +
          by_keys("E<l>> > > ^EEvn>E<<<<^^l<E^E> ^EEv>> > > > ^EE>E^l", replayed);
  text += "\nLetters and colours of panels, fields and shapes\n";
  for (ControlId control = quadro + 1; control <= Shape1_1; ++control) {
    if (control == TxtPlayer_0) continue;
    text += "  " + std::to_string(control) + " " + game.window.look(control) + "\n";
  }
  expect_golden("scenes.txt", text);
}

}  // namespace
}  // namespace tombrello
