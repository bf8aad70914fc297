#pragma once

#include <string>

#include "seam/window.h"
#include "windows/control.h"
#include "windows/strings.h"

namespace tombrello::windows {

/// The system's own field for one line of text.
class Field : public Control {
 public:
  Field(ControlId id, FieldRule rule, const Font& font, TableView& table, WindowEvents& events);
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;
  ~Field() override;

  void fit(const Area& area) override;
  void bring_to_front() override;
  void set_text(const std::string& text) override;
  void set_name(const std::string& name) override { name_ = wide(name); }

 protected:
  HWND window() const override { return edit_; }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                    DWORD_PTR self);
  void edited();
  void to_next_field();
  void put(const std::wstring& text);
  std::wstring allowed(const std::wstring& raw, int characters_already) const;

  ControlId id_;
  FieldRule rule_;
  Font font_;
  WindowEvents& events_;
  HWND edit_;
  bool putting_ = false;
  std::wstring name_;  ///< what assistive technology calls it
  bool described_ = false;
};

}  // namespace tombrello::windows
