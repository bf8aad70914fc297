#include "player.h"

namespace tombrello {
namespace {

using Entries = PlayingSession;

// The way to an entry by keys, and what the game tells when it was chosen.
struct Choice {
  std::vector<std::string> keys;
  const char* key;
  const char* value;
};

// Each undoes what the ones before it did, so that all ends as it began.
const std::vector<Choice> kChoices = {
    {{"alt+r"}, "rules", "1"},
    {{"alt+h"}, "help", "1"},
    {{"alt+i"}, "info", "1"},
    {{"alt+s", "Right", "Return"}, "checks", "Bassa No Nessuna "},
    {{"alt+s", "Right", "Down", "Return"}, "checks", "Bassa Si Nessuna "},
    {{"alt+o", "Right", "Down", "Return"}, "checks", "Media Si Nessuna "},
    {{"alt+o", "Right", "Up", "Return"}, "checks", "Alta Si Nessuna "},
    {{"alt+o", "Right", "Return"}, "checks", "Bassa Si Nessuna "},
    {{"alt+m", "Up", "Return"}, "checks", "Bassa Si Sonatina vivace "},
    {{"alt+m", "Down", "Return"}, "checks", "Bassa Si MODO SEQUENZIALE Bergamasca "},
    {{"alt+m", "Return"}, "checks", "Bassa Si Nessuna "},
    {{"alt+e"}, "box", "Uscire da Tombrello?"},
    {{"alt+F4"}, "box", ""},  // answers the box, which is in front, and leaves the game alone
    {{"alt+p"}, "popup", "1"},
    {{"Escape", "Escape"}, "popup", "0"},
};

// In the person's turn, with two cards selected; tests/game has all other moments.
TEST_F(Entries, AreReachedByTheirKeys) {
  begin({.clock = kSeat4Deals});
  draw();
  select({4, 9});
  move(20, 595);
  const Shot before = settled_shot();
  const std::string settings = file("config.zvq");
  EXPECT_EQ(view.text("checks"), "Bassa Si Nessuna ");
  for (const auto& [keys_to_it, key, value] : kChoices) {
    keys(keys_to_it);
    wait_until(value, [&, key = key, value = value](const View& v) {
      return v.text(key) == value && (v.number("front") == 1 || !v.text("box").empty());
    });
  }
  EXPECT_EQ(file("config.zvq"), settings);
  EXPECT_EQ(settled_shot(), before);
  close_by_frame();
  expect_quiet_end();
}

}  // namespace
}  // namespace tombrello
