#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/window.h"

namespace tombrello {

/// A window of which only the menu is there.
class MenuWindow : public Window {
 public:
  struct Entry {
    EntryId id;
    EntryId parent;
    std::string caption;
    bool operator==(const Entry&) const = default;
  };
  std::vector<Entry> entries;
  std::map<EntryId, bool> checks;

  void add_entry(EntryId entry, EntryId parent, const std::string& caption) override {
    entries.push_back({entry, parent, caption});
  }
  void set_checked(EntryId entry, bool checked) override { checks[entry] = checked; }
  bool checked(EntryId entry) const override {
    const auto found = checks.find(entry);
    return found != checks.end() && found->second;
  }
  /// The entries that carry a check, in order.
  std::vector<EntryId> checked_entries() const {
    std::vector<EntryId> all;
    for (const auto& [entry, checked] : checks)
      if (checked) all.push_back(entry);
    return all;
  }

  void set_events(WindowEvents*) override {}
  Surface& surface() override { throw std::logic_error("no surface"); }
  void set_caption(const std::string&) override {}
  void show_maximised() override {}
  void serve_events() override {}
  void show_now(int) override {}
  bool closing() const override { return false; }
  void close() override {}
  void set_pointer(PointerShape) override {}
  PointerShape pointer() const override { return PointerShape::arrow; }
  Answer message_box(const std::string&, Buttons) override { return Answer::ok; }
  void set_enabled(EntryId, bool) override {}
  bool enabled(EntryId) const override { return true; }
  void add_panel(ControlId, const std::string&, const Font&, long, long) override {}
  void add_field(ControlId, int, const Font&) override {}
  void add_shape(ControlId, Colour) override {}
  void add_picture(ControlId, Picture) override {}
  void place(ControlId, const Area&) override {}
  void set_visible(ControlId, bool) override {}
  bool visible(ControlId) const override { return false; }
  void bring_to_front(ControlId) override {}
  void set_text(ControlId, const std::string&) override {}
};

}  // namespace tombrello
