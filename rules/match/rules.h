#pragma once

#include "match/match.h"

namespace tombrello {

/// The whole rules engine, put together on one state. Engines don't know of one another.
struct Rules {
  Rules(State& state, const Geometry& geometry, Clock& clock, Outside outside)
      : random(clock),
        deck(state, random, outside),
        hands(state),
        melds(state, geometry),
        computer(state, random, deck, hands, melds, outside),
        person(state, geometry, deck, hands, melds, outside),
        draw(state, geometry, deck, outside),
        scoring(state, outside),
        match(state, deck, draw, person, computer, scoring, outside) {}
  Rules(const Rules&) = delete;
  Rules& operator=(const Rules&) = delete;

  Random random;
  Deck deck;
  Hands hands;
  Melds melds;
  Computer computer;
  PersonTurn person;
  DealerDraw draw;
  Scoring scoring;
  Match match;
};

}  // namespace tombrello
