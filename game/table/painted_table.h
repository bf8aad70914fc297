#pragma once

#include "cards/metrics.h"
#include "cards/outside.h"
#include "cards/state.h"
#include "seam/window.h"

namespace tombrello {

/// Paints the state on the window's surface. Each call paints just the part that it changes, and
/// nothing is kept here between calls. Erasing is a filled box in felt green.
class PaintedTable : public Table {
 public:
  PaintedTable(const State& state, const Metrics& metrics, Window& window)
      : s_(state), m_(metrics), window_(window), surface_(window.surface()) {}

  void clear() override { surface_.clear(); }
  void default_pointer() override { window_.set_pointer(PointerShape::arrow); }
  void hourglass() override { window_.set_pointer(PointerShape::hourglass); }

  void Posiziona_Players() override;
  void ridisegno_carte() override;
  void ridisegno_dorsi(int seat) override;
  void calo_carte(int seat) override;
  void scopro_carte() override;

  void pile_shows(int card) override;
  void pile_empty() override;
  void stock_shows(int back) override;
  void stock_empty() override;

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
  /// Clears the table and paints it anew from the state of the running hand, or of the deal;
  /// once the seat on turn holds no card, with open hands.
  void repaint_hand();
  /// The same for a hand that has been counted: open cards, panel and scores.
  void repaint_score();

 private:
  void repaint_deal();
  void erase(float x1, float y1, float x2, float y2);
  void paint_upright(Picture picture, float x, float y);
  void paint_lying(Picture picture, float x, float y);
  void paint_half_turned(Picture picture, float x, float y);
  void paint_back(int seat, int k, int back);
  void paint_strip(int seat);
  void paint_strip_cards_in(int seat, const Area& box);
  Area strip_area(int seat) const;
  Area strip_card_area(int seat, int k) const;
  void open_card(int seat, int k);
  float panel_top() const { return m_.mezza_altezza - 130; }
  void panel_box(float x1, float x2);
  void print_name(int seat);
  void print_name_downward(const std::string& name, float x);
  void print_score_line(const std::string& left, const std::string& right);

  const State& s_;
  const Metrics& m_;
  Window& window_;
  Surface& surface_;
};

}  // namespace tombrello
