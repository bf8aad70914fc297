#include <algorithm>
#include <random>

#include "tools/music/arrange.h"

namespace tombrello::music {
namespace {

int around_zero(std::minstd_rand& chance, int most) {
  return static_cast<int>(chance() % static_cast<unsigned>(2 * most + 1)) - most;
}

int tempo_at(const Arrangement& tune, int start) {
  int tempo = tune.tempos.front().tempo;
  for (const TempoMark& mark : tune.tempos)
    if (mark.start <= start) tempo = mark.tempo;
  return tempo;
}

/// The strings of a chord follow each other by 8 ms, from the lowest up.
int spread(const Arrangement& tune, int start) {
  return tempo_at(tune, start) * kQuarter * 8 / 60'000;
}

/// `notes` are in order of start, and of pitch where they start together: one hand strikes those.
void play_instrument(const Arrangement& tune, bool spreads, std::vector<Played>& notes,
                     std::minstd_rand& chance) {
  int start = -1, late = 0;
  for (Played& note : notes) {
    const bool same_hand = note.start == start;
    if (!same_hand) late = around_zero(chance, 8);
    if (same_hand && spreads) late += spread(tune, start);
    start = note.start;
    note.start = std::max(0, start + late);
    note.velocity = std::clamp(note.velocity + around_zero(chance, 3), 1, 127);
  }
}

}  // namespace

void play_by_hand(Arrangement& tune) {
  std::minstd_rand chance(1);
  for (auto& [name, notes] : tune.instruments)
    play_instrument(tune, name == "guitar", notes, chance);
}

}  // namespace tombrello::music
