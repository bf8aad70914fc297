#pragma once

#include "cards/geometry.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "seam/window.h"

namespace tombrello {

inline Area area_of(const Place& place) {
  return {place.left, place.top, place.right, place.bottom};
}

/// Paints the state on the window's surface. Each call paints just the part that it changes, and
/// nothing is kept here between calls. Erasing is a filled box in felt green.
class PaintedTable : public Table {
 public:
  PaintedTable(const State& state, const Geometry& geometry, Window& window)
      : s_(state), g_(geometry), window_(window), surface_(window.surface()) {}

  void clear() override { surface_.clear(); }
  void default_pointer() override { window_.set_pointer(PointerShape::arrow); }
  void hourglass() override { window_.set_pointer(PointerShape::hourglass); }

  void Posiziona_Players() override;
  void ridisegno_carte() override;
  void ridisegno_dorsi(int seat) override;
  void calo_carte(int seat) override;
  void scopro_carte() override;

  void pile_shows(int card) override;
  void pile_empty() override { erase(g_.pile()); }
  void stock_shows(int back) override;
  void stock_empty() override { erase(g_.stock()); }

  void card_dealt(int seat, int k, int card) override;
  void card_drawn(int card) override;
  void card_landed(int seat, int card) override;

  void dealer_screen() override;
  void dealer_deck(int back) override;
  void dealer_card(int seat, int card) override;

  void reshuffle_message() override;
  void reshuffle_begins() override;
  void reshuffle_ends() override;

  void panel_line() override;
  void panel_opens() override;
  void scoreboard() override;

  /// The names and the prompt of the dealer screen, as they are printed last of all there.
  void dealer_texts();
  /// Clears the table and paints anew what stands on it after the draw for dealer, by the phase.
  void repaint();

 private:
  void repaint_deal();
  void repaint_hand();
  void erase(const Place& place);
  void erase_under_strips(const Place& place, int but_of_seat = 0);
  bool is_strip_card(const PictureItem& item, int but_of_seat) const;
  void paint_upright(Picture picture, const Place& place);
  void paint_lying(Picture picture, const Place& place);
  void paint_half_turned(Picture picture, const Place& place);
  void paint_back(int seat, int k, int back);
  void paint_backs(int seat, int cards);
  void paint_strip(int seat);
  void open_card(int seat, int k);
  void panel_box(float x1, float x2);
  void print_name(int seat);
  void print_name_downward(const std::string& name, float x);
  void print_score_line(const std::string& left, const std::string& right);

  const State& s_;
  const Geometry& g_;
  Window& window_;
  Surface& surface_;
};

}  // namespace tombrello
