#include <map>

#include "player.h"

namespace tombrello {
namespace {

namespace files = std::filesystem;

using Told = std::map<std::string, std::string>;

// The way through the menus, and what the game tells then of what it told otherwise before.
struct Choice {
  std::vector<const char*> captions;
  std::vector<const char*> keys;
  Told becomes;
};

// Each undoes what the ones before it did, so that all ends as it began.
const std::vector<Choice> kChoices = {
    {{"Regole"}, {"alt+r"}, {{"rules", "1"}}},
    {{"Help"}, {"alt+h"}, {{"rules", "0"}, {"help", "1"}}},
    {{"Info"}, {"alt+i"}, {{"help", "0"}, {"info", "1"}}},
    {{"Suoni", "Fruscio delle carte", "No"},
     {"alt+s", "Right", "Return"},
     {{"info", "0"}, {"checks", "Bassa No Nessuna "}, {"rustle", "0"}}},
    {{"Suoni", "Fruscio delle carte", "Si"},
     {"alt+s", "Right", "Down", "Return"},
     {{"checks", "Bassa Si Nessuna "}, {"rustle", "1"}}},
    {{"Opzioni", "Velocità gioco", "Media"},
     {"alt+o", "Right", "Down", "Return"},
     {{"checks", "Media Si Nessuna "}}},
    {{"Opzioni", "Velocità gioco", "Alta"},
     {"alt+o", "Right", "Up", "Return"},
     {{"checks", "Alta Si Nessuna "}}},
    {{"Opzioni", "Velocità gioco", "Bassa"},
     {"alt+o", "Right", "Return"},
     {{"checks", "Bassa Si Nessuna "}}},
    {{"Musica", "Minuetto"}, {"alt+m", "Up", "Return"}, {{"checks", "Bassa Si Minuetto "}}},
    {{"Musica", "MODO SEQUENZIALE"},
     {"alt+m", "Down", "Return"},
     {{"checks", "Bassa Si MODO SEQUENZIALE Canone "}}},
    {{"Musica", "Nessuna"}, {"alt+m", "Return"}, {{"checks", "Bassa Si Nessuna "}}},
    {{"Esci"}, {"alt+e"}, {{"box", "Uscire da Tombrello?"}}},
    {{"No"}, {"Escape"}, {{"box", ""}}},
    {{"Partita", "Continua"}, {"alt+p"}, {{"popup", "1"}}},  // where nothing is enabled
};

const std::vector<std::string> kLookedAt = {
    "replay", "continue", "names", "marked", "checks", "rustle", "opening", "rules", "help",
    "info",   "dialog",   "box",   "popup",  "seat",   "action", "drawn",   "n",     "hand1",
    "melds1", "pile",     "top",   "stock",  "round",  "totals", "name1"};

class Entries : public PlayingSession, public ::testing::WithParamInterface<bool> {
 protected:
  void put_tunes_there() {
    files::create_directory(folder / "music");
    const files::path tunes = files::path(TOMBRELLO).parent_path() / "music";
    for (const char* tune : {"Canone.mid", "Minuetto.mid"}) {
      files::copy_file(tunes / tune, folder / "music" / tune);
    }
  }

  Told told() const {
    Told all;
    for (const auto& key : kLookedAt) all[key] = view.text(key);
    return all;
  }

  // Only what is to become otherwise may do so.
  void choose(const Choice& choice, bool by_keys) {
    SCOPED_TRACE(choice.captions.back());
    Told wanted = told();
    for (const auto& [key, value] : choice.becomes) wanted[key] = value;
    if (by_keys) {
      for (const char* each : choice.keys) key(each);
    } else {
      for (const char* caption : choice.captions) press_screen(caption);
    }
    comes_true([&](const View&) { return told() == wanted; }, Milliseconds(5000));
    EXPECT_EQ(told(), wanted);
    // The window manager takes a moment to settle which window is in front.
    if (choice.becomes.contains("box")) {
      comes_true([](const View&) { return false; }, Milliseconds(250));
    }
  }
};

// In the person's turn, with two cards selected; tests/game has all other moments.
TEST_P(Entries, DoWhatTheySayAndNothingElse) {
  put_tunes_there();
  start_quick({.clock = kSeat4Deals});
  dismiss_opening();
  choose({{"Partita", "Ripeti ultima mano"},
          {"alt+p", "Return"},
          {{"box", "Nessuna mano è stata ancora giocata"}}},
         GetParam());
  choose({{"OK"}, {"Return"}, {{"box", ""}}}, GetParam());
  turn_up(1, 4);
  wait_for("pile", 1);
  draw(kStock);
  select({4, 9});
  move(20, 595);
  const Shot before = settled_shot();
  const std::string settings = file("config.zvq");
  for (const Choice& choice : kChoices) choose(choice, GetParam());
  for (int menus = 0; menus < 2; ++menus) key("Escape");
  wait_for("popup", 0);
  EXPECT_EQ(file("config.zvq"), settings);
  move(20, 595);
  EXPECT_EQ(settled_shot(), before);
  for (const float x : {100.F, 600.F}) {  // on the panel, and beside it
    press_screen("Regole");
    wait_for("rules", 1);
    press(x, 100);
    wait_for("rules", 0);
  }
  press_slot(1, 1);  // lowers the selected cards
  press_slot(1, 1);
  wait_until("the discard", [](const View& v) { return v.number("seat") != 1; });
  close_by_frame();
  expect_quiet_end();
}

INSTANTIATE_TEST_SUITE_P(By, Entries, ::testing::Values(false, true),
                         [](const auto& by) { return by.param ? "Keys" : "Mouse"; });

}  // namespace
}  // namespace tombrello
