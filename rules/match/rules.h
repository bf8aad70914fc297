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
        meld_decision(state, deck, hands, outside),
        lay_off(state, deck, hands, melds, outside),
        discard(state, random, deck, hands, outside),
        computer(state, deck, hands, meld_decision, lay_off, discard, outside),
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
  MeldDecision meld_decision;
  LayOff lay_off;
  Discard discard;
  Computer computer;
  PersonTurn person;
  DealerDraw draw;
  Scoring scoring;
  Match match;
};

}  // namespace tombrello
