#include <algorithm>
#include <functional>

#include "tests/game/game.h"

namespace tombrello {
namespace {

struct Moment {
  const char* name;
  std::function<bool(Game&)> is_now;
  // Which entries are enabled; all others always are.
  bool replay, go_on, names;
};

const std::vector<Moment> kMoments = {
    {"opening", [](Game& g) { return g.window.visible(quadro); }, true, false, true},
    {"draw", [](Game& g) { return g.wait() == "draw"; }, true, false, true},
    {"first card", [](Game& g) { return g.s().indice_estrazione == 2; }, true, false, false},
    {"deal", [](Game& g) { return g.is_dealing() && g.s().mano[2][5] != 0; }, false, false, false},
    {"selected", [](Game& g) { return g.s().n_selezionate == 2; }, false, false, false},
    {"others", [](Game& g) { return g.s().phase == Phase::hand && g.s().di_turno == 3; }, false,
     false, false},
    {"count", [](Game& g) { return g.is_over(); }, false, true, false},
    {"next hand", [](Game& g) { return g.s().numero_mano == 2 && g.is_own_turn(); }, false, false,
     false},
    {"end", [](Game& g) { return g.is_over() && g.s().phase == Phase::match_over; }, false, false,
     false}};

std::string checked(EntryId entry) {
  return "checked " + std::to_string(entry);
}

std::string shows(ControlId panel) {
  return "control " + std::to_string(panel) +
         (panel == Text4 ? " 0,0 150.8,80.1" : " 0,0 285,197.7");
}

/// All that stands in the window and in the game, a line each, sorted.
Lines everything(Game& game) {
  Lines lines = view(game);
  for (EntryId entry = 1; entry <= canzoni_0 + 2; ++entry) {
    if (entry == velocita_0 || entry == canzoni_0) continue;  // nothing stands there
    if (game.window.checked(entry)) lines.push_back(checked(entry));
    if (game.window.enabled(entry)) lines.push_back("enabled " + std::to_string(entry));
  }
  const State& s = game.s();
  const auto add = [&](const char* name, const auto& numbers) {
    for (const int number : numbers) lines.push_back(name + std::to_string(number));
  };
  for (int seat = 1; seat <= kSeats; ++seat) {
    add("hand ", s.mano[seat]);
    add("melds ", s.calate[seat]);
  }
  add("deck ", s.mazzo);
  add("points ", s.punti_totali);
  add("game ", std::array<int, 5>{s.azione, s.di_turno, s.tallone, s.n_pozzo, s.numero_mano});
  std::sort(lines.begin(), lines.end());
  return lines;
}

struct Choice {
  EntryId entry;
  Lines goes;
  Lines comes;
};

constexpr EntryId kSlow = velocita_0 + 1, kMiddle = velocita_0 + 2, kQuick = velocita_0 + 3;
constexpr EntryId kAria = canzoni_0 + 1, kBallo = canzoni_0 + 2;

// Each undoes what the ones before it did, so that all ends as it began.
const std::vector<Choice> kChoices = {
    {istruzioni, {}, {shows(TxtItaliano)}},
    {menu_help, {shows(TxtItaliano)}, {shows(TxtHelp)}},
    {menu_about, {shows(TxtHelp)}, {shows(Text4)}},
    {menu_card_rustle_0,
     {shows(Text4), checked(menu_card_rustle_1)},
     {checked(menu_card_rustle_0)}},
    {menu_card_rustle_1, {checked(menu_card_rustle_0)}, {checked(menu_card_rustle_1)}},
    {kMiddle, {checked(kSlow)}, {checked(kMiddle)}},
    {kQuick, {checked(kMiddle)}, {checked(kQuick)}},
    {kSlow, {checked(kQuick)}, {checked(kSlow)}},
    {kBallo, {checked(nomusic_0)}, {checked(kBallo)}},
    {all_0, {checked(kBallo)}, {checked(all_0), checked(kAria)}},
    {nomusic_0, {checked(all_0), checked(kAria)}, {checked(nomusic_0)}},
    {nomusic_0, {}, {}},
    {istruzioni, {}, {shows(TxtItaliano)}},
    {istruzioni, {shows(TxtItaliano)}, {}},
    {esci, {}, {}}};  // and the answer is no

void choose_all(Game& game, const Moment& moment) {
  for (const Choice& choice : kChoices) {
    Lines wanted = everything(game);
    for (const auto& line : choice.goes) EXPECT_EQ(std::erase(wanted, line), 1U) << line;
    wanted.insert(wanted.end(), choice.comes.begin(), choice.comes.end());
    std::sort(wanted.begin(), wanted.end());
    EXPECT_TRUE(game.window.choose(choice.entry));
    EXPECT_EQ(everything(game), wanted) << "after " << choice.entry;
    const bool pace = choice.entry > velocita_0 && choice.entry <= velocita_3;
    const auto index = static_cast<float>(choice.entry - velocita_0);
    EXPECT_TRUE(!pace || game.s().ritardo_base == index / 2);
  }
  const Lines before = everything(game);
  Lines boxes = {"Uscire da Tombrello?"};
  EXPECT_EQ(game.window.choose(menu_replay), moment.replay);
  if (moment.replay) boxes.emplace_back("Nessuna mano è stata ancora giocata");
  EXPECT_EQ(game.window.boxes, boxes);
  EXPECT_EQ(game.window.enabled(menu_continue), moment.go_on);
  EXPECT_TRUE(moment.go_on || !game.window.choose(menu_continue));
  EXPECT_EQ(everything(game), before);
  EXPECT_EQ(game.window.choose(personalize_players), moment.names);
  EXPECT_EQ(everything(game) != before, moment.names);
  EXPECT_EQ(game.window.press_enter(TxtPlayer_0 + 1), moment.names);
  EXPECT_TRUE(moment.names || everything(game) == before);
}

TEST(Entries, DoWhatTheySayAndNothingElseInEveryMoment) {
  for (const Moment& moment : kMoments) {
    SCOPED_TRACE(moment.name);
    Game game(4);
    for (const char* tune : {"music/Aria.mid", "music/Ballo.mid"}) game.archive.files[tune];
    bool reached = false;
    game.window.on_pass = [&] {
      if (reached || !moment.is_now(game)) return;
      reached = true;
      game.window.boxes.clear();  // that of a tie
      game.window.answers = {Answer::no};
      choose_all(game, moment);
    };
    game.until([&] { return reached; }).play();
    EXPECT_TRUE(reached);
  }
}

}  // namespace
}  // namespace tombrello
