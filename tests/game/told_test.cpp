#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

#include "tests/game/game.h"
#include "tests/rules/cards.h"
#include "told/refusals.h"

namespace tombrello {
namespace {

std::vector<std::int16_t> some(const std::string& names) {
  const auto codes = test::cards(names);
  return {codes.begin(), codes.end()};
}

class ChronicleTest : public testing::Test {
 protected:
  ChronicleTest() {
    s_.nomi = {"TU", "OVEST", "NORD", "EST"};
    s_.squadre = {"TU-NORD", "OVEST-EST"};
    s_.phase = Phase::hand;
    s_.di_turno = 2;
  }
  std::string now() {
    chronicle_.show(false);
    return window_.told_now;
  }
  std::string then() {
    chronicle_.show(false);
    return window_.told_then;
  }

  State s_;
  HeadlessTimer timer_;
  HeadlessWindow window_{timer_};
  Chronicle chronicle_{s_, window_};
};

TEST_F(ChronicleTest, TellsWhatTheOthersDidSinceTheOwnDiscard) {
  chronicle_.drew(4, 0);
  chronicle_.discarded(4, 1);
  chronicle_.drew(1, 0);
  chronicle_.laid(1, 1, some("2h 3h 4h"));
  chronicle_.discarded(1, 5);
  EXPECT_EQ(then(), "") << "the player's own deeds are known";
  s_.di_turno = 1;
  s_.n_mano[1] = 13;
  EXPECT_EQ(now(), "Gioca OVEST") << "with the discard the own turn is over";
  chronicle_.drew(2, 35);
  chronicle_.laid(2, 2, some("6h 7h 8h"));
  chronicle_.discarded(2, 35);
  chronicle_.drew(3, 0);
  chronicle_.discarded(3, 1);
  chronicle_.reshuffled();
  chronicle_.drew(4, 0);
  chronicle_.added(4, 2, 43);
  chronicle_.discarded(4, 15);
  EXPECT_EQ(then(),
            "OVEST: Pozzo, cala 6♥ 7♥ 8♥, scarta 9♣ · NORD: Tallone, scarta A♥ · il Pozzo si "
            "rimescola · EST: Tallone, attacca 4♠, scarta 2♦");
  chronicle_.reshuffled();
  chronicle_.drew(4, 0);
  EXPECT_TRUE(then().ends_with(" · il Pozzo si rimescola · EST: Tallone"));
  chronicle_.discarded(1, 5);
  chronicle_.drew(4, 0);
  EXPECT_EQ(then(), "EST: Tallone");
  chronicle_.went_out(4);
  chronicle_.counted_double(2);
  EXPECT_TRUE(then().ends_with(" · EST chiude · punti raddoppiati per OVEST-EST"));
}

TEST_F(ChronicleTest, TellsWhatCanBeDoneNow) {
  EXPECT_EQ(now(), "Gioca OVEST");
  s_.di_turno = 1;
  s_.n_mano = {0, 1, 3, 3, 3};
  s_.tallone = kCards;
  s_.mazzo[kCards] = 1;
  for (auto& hand : s_.mano) hand.fill(2);
  EXPECT_EQ(now(),
            "Tocca a te: prendi la carta scoperta (Pozzo) o pesca dal Tallone (nessuno può più "
            "chiudere)");
  s_.mano = {};
  s_.n_mano[1] = 13;
  EXPECT_EQ(now(), "Tocca a te: prendi la carta scoperta (Pozzo) o pesca dal Tallone");
  s_.ha_pescato = true;
  EXPECT_EQ(now(), "Scarta (clic) o seleziona le carte da calare (tasto destro)");
  s_.mano[1][1] = 1 + kSelected;
  EXPECT_EQ(now(), "Selezionane almeno altre due per calare");
  s_.mano[1][2] = 2 + kSelected;
  EXPECT_EQ(now(), "Selezionane almeno un'altra per calare");
  s_.mano[1][3] = 3 + kSelected;
  EXPECT_EQ(now(),
            "Cala: fai clic sopra la tua mano, dove appare la freccia, o davanti al compagno");
  s_.n_calate[3] = 4;
  s_.mano[1][2] = s_.mano[1][3] = 2;
  EXPECT_EQ(now(), "Attaccala (clic sulla metà bassa di una combinazione) o selezionane altre due");
  s_.mano = {};
  s_.n_mano[1] = 1;
  EXPECT_EQ(now(), "Ultima carta: fai clic per scartarla e chiudere");
  s_.phase = Phase::draw;
  s_.azione = kDealerDraw;
  s_.di_turno = 3;
  EXPECT_EQ(now(), "Scelta del cartaro: fai clic sul mazzo per la carta di NORD");
  s_.di_turno = 1;
  EXPECT_EQ(now(), "Scelta del cartaro: fai clic sul mazzo per la tua carta");
  s_.azione = kNoAction;
  s_.cartaro = 1;
  s_.di_turno = 2;
  EXPECT_EQ(now(), "Il cartaro sei tu");
  s_.phase = Phase::deal;
  EXPECT_EQ(now(), "Dai tu le carte");
  s_.di_turno = 1;
  s_.cartaro = 4;
  EXPECT_EQ(now(), "EST dà le carte");
}

TEST_F(ChronicleTest, TellsTheCountAndWhoHasWon) {
  s_.phase = Phase::count;
  s_.punti_totali = {0, 340, -25};
  EXPECT_EQ(now(), "TU-NORD 340 · OVEST-EST -25. Per continuare: Invio, o Partita, Continua");
  s_.phase = Phase::match_over;
  s_.punti_totali = {0, 1540, 1600};
  EXPECT_EQ(now(), "La partita va a OVEST-EST. TU-NORD 1540 · OVEST-EST 1600");
  s_.numero_mano = 2;
  s_.punti_totali = {0, 1540, 900};
  EXPECT_EQ(now(), "Avete vinto la partita! TU-NORD 1540 · OVEST-EST 900");
}

TEST_F(ChronicleTest, ARemarkGoesWithItsMoment) {
  s_.di_turno = 1;
  s_.ha_pescato = true;
  s_.n_mano[1] = 14;
  s_.mano[1][1] = 1 + kSelected;
  now();
  s_.mano[1][1] = 1;
  chronicle_.refused(Refusal::two_cards, some("Ah 2h"), {});
  const std::string refusal = now();
  EXPECT_TRUE(refusal.starts_with("Due carte da sole")) << refusal;
  EXPECT_EQ(now(), refusal);
  s_.mano[1][1] = 1 + kSelected;
  EXPECT_NE(now(), refusal);
}

TEST(Tie, IsSaidWhileItsBoxStands) {
  Game game(1);
  std::string said;
  game.window.on_box = [&] { said = game.window.told_now + " " + game.window.told_then; };
  game.dismiss().press_deck(4).then([&] {
    EXPECT_TRUE(game.window.told_now.starts_with("Scelta del cartaro")) << game.window.told_now;
  });
  game.play();
  EXPECT_TRUE(said.starts_with("Parità")) << said;
  EXPECT_NE(said.find(" · TU "), said.npos) << said;
}

TEST(Refusals, SayWhyCardsDropBack) {
  const auto said = [](Refusal why, const char* names, const char* meld = "") {
    return sentence_of(why, some(names), some(meld));
  };
  EXPECT_EQ(said(Refusal::does_not_fit, "10s", "6c 7c 8c"), "10♠ non si attacca a 6♣ 7♣ 8♣");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 8h 9h"), "Quasi una scala: manca 7♥");
  EXPECT_EQ(said(Refusal::not_a_meld, "Qh Kh 2h"), "Quasi una scala: manca A♥");
  EXPECT_EQ(said(Refusal::not_a_meld, "2h 6h 9h"), "Non è una scala: le carte non sono in fila");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 7h 8d"), "Quasi una scala: 8♦ è di un altro seme");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 7h 8h Jd"), "Quasi una scala: J♦ è di troppo");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 6h 7h 8h"), "Quasi una scala: 6♥ c'è due volte");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 6d 7s"), "Quasi un tris: 7♠ è di un altro valore");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 6d 6d"),
            "Tris e poker vogliono semi diversi: qui un seme c'è due volte");
  EXPECT_EQ(said(Refusal::not_a_meld, "6h 6d 6s 7h"), "Quasi un poker: 7♥ è di un altro valore");
  for (const char* none : {"6h 9d 10s", "6h 7h Jd", "6h 9h 8d", "6h 6h 7d"}) {
    EXPECT_EQ(said(Refusal::not_a_meld, none), "Non è né un tris, né un poker, né una scala");
  }
  for (const char* good : {"6h 7h 8h", "6h 6d 6s", "Qh Kh Ah"}) {
    EXPECT_EQ(said(Refusal::not_a_meld, good),
              "La combinazione è buona, ma una già calata qui non ne ammette altre");
  }
}

// Chance presses anywhere, turn by turn: where there is a mark a press acts, elsewhere none does.
TEST(Marked, APressActsJustWhereThereIsAMark) {
  Game game(5);
  std::minstd_rand chance(3);
  int marked = 0;
  int unmarked = 0;
  std::function<void()> press = [&] {
    if (game.is_own_turn() && game.s().phase == Phase::hand) {
      const auto x = static_cast<float>(chance() % 800);
      const auto y = static_cast<float>(chance() % 600);
      game.window.move(x, y);
      const bool mark = game.window.mark.has_value();
      const bool drawn = game.s().ha_pescato;
      const bool right = drawn && chance() % 2 == 0 && game.s().n_mano[1] > 1;
      const bool none_selected = std::none_of(game.s().mano[1].begin(), game.s().mano[1].end(),
                                              [](int card) { return card > kSelected; });
      game.window.press(x, y, right ? Button::right : Button::left);
      const int code = game.s().azione;
      const bool lays = code == kLayOwnSide || code == kLayPartnerSide;
      const bool acts = code != kNoAction && !lays;
      EXPECT_TRUE(mark || !acts) << x << "," << y;
      // On the fan under the up arrow a left press lays nothing, and a right one selects.
      const bool either = right || !drawn;
      EXPECT_TRUE(!mark || acts || !none_selected || !either) << x << "," << y;
      ++(mark ? marked : unmarked);
    } else {
      game.act();
    }
    if (marked + unmarked < 4000) game.window.script.push_back(press);
  };
  game.then(press).play();
  EXPECT_GT(marked, 100);
  EXPECT_GT(unmarked, 100);
}

// The mark comes into the hand at the card just drawn, and stays on a card that rises and sinks.
TEST(Keys, MarkTheCardDrawnAndStayOnACard) {
  Game game(7, kept_deal());
  HeadlessWindow& window = game.window;
  const auto key = [&](Key struck) { game.then([&, struck] { window.key(struck); }); };
  game.until_own_turn();
  game.then([&] { window.move(400, 300); });
  window.listening = true;
  for (const Key each : {Key::left, Key::enter, Key::left, Key::left, Key::left}) key(each);
  for (const Key each : {Key::right, Key::space}) key(each);
  game.then([&] {
    EXPECT_GT(game.s().mano[1][12], kSelected) << "two to the left of the last";
    Lines places;
    for (const TablePlace& place : window.places) places.push_back(place.name);
    for (const char* hand : {"ADA, 13 carte", "PIA, 13 carte", "UGO, 10 carte",
                             "Scala di quadri dal 7 al 9, di UGO, 3 carte"}) {
      EXPECT_TRUE(has(places, hand)) << testing::PrintToString(places);
    }
    EXPECT_EQ(window.told_now, "Selezionane almeno altre due per calare");
    window.key(Key::enter);
  });
  game.then([&] {
    EXPECT_TRUE(window.told_now.starts_with("Le carte selezionate sono tornate giù"));
    window.key(Key::space);
  });
  key(Key::space);
  key(Key::help);
  key(Key::enter);
  game.then([&] {
    EXPECT_EQ(window.visible(TxtHelp), false);
    EXPECT_EQ(game.s().n_mano[1], 14) << "the panel took the key, and no card went";
    EXPECT_LT(game.s().mano[1][12], kSelected);
    EXPECT_EQ(window.told_now, "Scarta (Invio) o seleziona le carte da calare (barra spaziatrice)");
  });
  game.play_to_end();
}

// Enter once more where three cards were refused would otherwise throw one away.
TEST(Keys, MarkNothingAfterAProposal) {
  Game game(7, kept_deal());
  HeadlessWindow& window = game.window;
  game.until_own_turn().then([&] { window.press(430, 300); });
  for (const float x : {260.0F, 300.0F, 340.0F}) {
    game.then([&, x] { window.press(x, 530, Button::right); });
  }
  game.then([&] { window.move(400, 470); }).then([&] { window.key(Key::up); });
  game.then([&] {
    EXPECT_TRUE(window.mark.has_value());
    window.key(Key::enter);
  });
  game.then([&] {
    EXPECT_FALSE(window.mark.has_value()) << window.told_now;
    window.key(Key::enter);
  });
  game.then([&] {
    EXPECT_EQ(game.s().n_mano[1], 14);
    window.key(Key::next);
    EXPECT_TRUE(window.mark.has_value());
  });
  game.play_to_end();
}

// A press that the player may well mean, and for which there is no zone.
TEST(Line, TellsWhyAPressDoesNothing) {
  Game game(7, kept_deal());
  const auto said = [&](float x, float y, const char* sentence) {
    game.then([=, &game] { game.window.press(x, y); });
    game.then([=, &game] { EXPECT_EQ(game.window.told_now, sentence); });
  };
  game.until_own_turn();
  said(300, 540, "Prima pesca: fai clic sul Pozzo o sul Tallone");
  game.then([&] { game.window.press(430, 300); });
  said(430, 300, "Hai già pescato: ora cala o scarta");
  for (const float x : {260.0F, 300.0F}) {
    game.then([&game, x] { game.window.press(x, 530, Button::right); });
  }
  game.then([&] { game.window.move(400, 440); });
  said(400, 440, "Due carte da sole non si calano: ne servono almeno tre, o una per attaccarla");
  said(565, 540, "Dell'ultima carta risponde la parte sinistra: fai clic lì");
  game.play_to_end();
}

// With keys alone: the opening, the draw, cards drawn, selected, discarded, "Continua".
TEST(Keys, PlayHandsWithoutTheMouse) {
  Game game(7);
  std::minstd_rand chance(1);
  int selected = 0;
  std::function<void()> press = [&] {
    game.window.key(chance() % 2 == 0 ? Key::next : Key::up);
    const bool own = game.s().phase == Phase::hand && game.s().ha_pescato;
    const bool select = own && chance() % 4 == 0;
    game.window.key(select ? Key::space : Key::enter);
    if (game.s().azione == kSelect) ++selected;
    if (game.s().numero_mano < 3) game.window.script.push_back(press);
  };
  game.then(press).play();
  EXPECT_EQ(game.s().numero_mano, 3);
  EXPECT_GT(selected, 5);
}

// A pause passes at once while the space bar is down, the one that runs too.
TEST(Keys, SpaceHurriesTheOthers) {
  Game game;
  int pauses = 0;
  int slow = 0;
  int quick = 0;
  game.window.on_pass = [&] {
    if (!game.timer.running() || game.s().phase != Phase::deal) return;
    const bool held = ++pauses > 10 && pauses < 40;
    game.window.hold(Key::space, held);
    if (held && game.timer.period() == 0) ++quick;
    if (!held && game.timer.period() > 0) ++slow;
  };
  game.dismiss().press_deck(4).until_own_turn().play();
  EXPECT_GT(quick, 12);
  EXPECT_GT(slow, 10);
}

}  // namespace
}  // namespace tombrello
