// What each entry does in each moment of a match: tests/game/entries.txt tells what it changes.

#include <algorithm>
#include <functional>

#include "tests/game/game.h"

namespace tombrello {
namespace {

struct Moment {
  const char* name;
  std::function<bool(Game&)> is_now;
};

const std::vector<Moment> kMoments = {
    {"opening", [](Game& g) { return g.window.visible(quadro); }},
    {"draw", [](Game& g) { return g.wait() == "draw"; }},
    {"first card", [](Game& g) { return g.s().indice_estrazione == 2; }},
    {"deal", [](Game& g) { return g.is_dealing() && g.s().mano[2][5] != 0; }},
    {"selected", [](Game& g) { return g.s().n_selezionate == 2; }},
    {"others", [](Game& g) { return g.s().phase == Phase::hand && g.s().di_turno == 3; }},
    {"count", [](Game& g) { return g.is_over(); }},
    {"next hand", [](Game& g) { return g.s().numero_mano == 2 && g.is_own_turn(); }},
    {"end", [](Game& g) { return g.is_over() && g.s().phase == Phase::match_over; }}};

// The last two change the game itself.
const std::vector<std::pair<EntryId, const char*>> kEntries = {
    {istruzioni, "Regole"},
    {menu_help, "Help"},
    {menu_about, "Info"},
    {menu_card_rustle_0, "Fruscio, No"},
    {menu_card_rustle_1, "Fruscio, Si"},
    {velocita_0 + 2, "Media"},
    {velocita_3, "Alta"},
    {velocita_0 + 1, "Bassa"},
    {canzoni_0 + 1, "Aria"},
    {canzoni_0 + 2, "Ballo"},
    {all_0, "Modo sequenziale"},
    {nomusic_0, "Nessuna"},
    {nomusic_0, "Nessuna"},
    {istruzioni, "Regole"},
    {istruzioni, "Regole"},
    {esci, "Esci, no"},
    {menu_replay, "Ripeti ultima mano"},
    {personalize_players, "Nomi dei giocatori"},
    {menu_continue, "Continua"}};

/// All that stands in the window and in the game.
Lines everything(Game& game) {
  Lines lines = view(game);
  for (const auto& [entry, name] : kEntries) {
    if (game.window.checked(entry)) lines.push_back(std::string("checked ") + name);
    if (game.window.enabled(entry)) lines.push_back(std::string("enabled ") + name);
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
  lines.push_back("pace " + std::to_string(s.ritardo_base));
  if (s.continua) lines.emplace_back("goes on");
  for (const auto& box : game.window.boxes) lines.push_back("box \"" + box + "\"");
  for (const auto& [name, content] : game.archive.files) {
    std::string options = content.substr(0, content.find(" 100 "));  // the deal stands behind
    std::replace_if(options.begin(), options.end(), ::iscntrl, '|');
    lines.push_back(name + " " + options);
  }
  return lines;
}

std::string changes_of_all(Game& game) {
  std::string text;
  for (const auto& [entry, name] : kEntries) {
    const Lines before = everything(game);
    text += std::string("  ") + name + (game.window.choose(entry) ? "\n" : " is disabled\n");
    text += changes(before, everything(game), "    ");
  }
  return text;
}

TEST(Entries, DoWhatTheySayAndNothingElseInEveryMoment) {
  std::string text;
  for (const Moment& moment : kMoments) {
    Game game(4);
    for (const char* tune : {"music/Aria.mid", "music/Ballo.mid"}) game.archive.files[tune];
    bool reached = false;
    game.window.on_pass = [&] {
      if (reached || !moment.is_now(game)) return;
      reached = true;
      game.window.boxes.clear();  // that of a tie
      game.window.answers = {Answer::no};
      text += std::string(moment.name) + "\n" + changes_of_all(game);
    };
    game.until([&] { return reached; }).play();
  }
  expect_golden("entries.txt", text);
}

}  // namespace
}  // namespace tombrello
