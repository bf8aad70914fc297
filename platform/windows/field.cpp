#include "windows/field.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "windows/accessible_words.h"

namespace tombrello::windows {
namespace {

// Far more than any name, and little enough to be looked through at once whatever was pasted.
constexpr int kMostTyped = 512;

bool opens_pair(wchar_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

bool closes_pair(wchar_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

int characters(const std::wstring& text) {
  return static_cast<int>(
      std::count_if(text.begin(), text.end(), [](wchar_t unit) { return !closes_pair(unit); }));
}

std::wstring text_of(HWND edit) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace

Field::Field(ControlId id, FieldRule rule, const Font& font, TableView& table, WindowEvents& events)
    : Control(table), id_(id), rule_(rule), font_(font), events_(events) {
  edit_ = CreateWindowExW(0, L"EDIT", L"", kControlStyle | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
                          0, 0, 0, 0, table.handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(edit_, EM_SETLIMITTEXT, kMostTyped, 0);
  SetWindowSubclass(edit_, procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

Field::~Field() {
  if (IsWindow(edit_)) DestroyWindow(edit_);
}

// Letters are measured in points, but never higher than the field.
void Field::fit(const Area& area) {
  const painting::PixelRect place = table_.geometry().pixels(area);
  const int room = place.height() - 2 * GetSystemMetrics(SM_CYBORDER);
  int pixels = table_.geometry().letter_pixels(font_);
  while (pixels > 4 && table_.letters().style(font_, pixels, false).height > room) --pixels;
  const HFONT font = table_.letters().style(font_, pixels, false).font.get();
  SendMessageW(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  move_to(edit_, place);
}

void Field::bring_to_front() {
  Control::bring_to_front();
  take_keyboard();
}

std::wstring Field::allowed(const std::wstring& raw, int characters_already) const {
  return wide(rule_(utf8(raw), characters_already));
}

void Field::put(const std::wstring& text) {
  putting_ = true;
  SetWindowTextW(edit_, text.c_str());
  putting_ = false;
}

void Field::set_text(const std::string& text) {
  put(allowed(wide(text).substr(0, kMostTyped), 0));
}

// What is typed into a full field is what doesn't fit, wherever it was typed.
void Field::edited() {
  if (putting_) return;
  const std::wstring raw = text_of(edit_);
  DWORD cursor = 0;
  SendMessageW(edit_, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&cursor));
  const std::size_t at = std::min<std::size_t>(cursor, raw.size());
  // A character beyond the first 65536 is typed in two halves.
  if (at > 0 && opens_pair(raw[at - 1]) && (at == raw.size() || !closes_pair(raw[at]))) return;
  const std::wstring behind = allowed(raw.substr(at), 0);
  const std::wstring before = allowed(raw.substr(0, at), characters(behind));
  if (before + behind != raw) {
    put(before + behind);
    SendMessageW(edit_, EM_SETSEL, before.size(), static_cast<LPARAM>(before.size()));
  }
  events_.field_changed(id_, utf8(before + behind));
}

void Field::to_next_field() {
  const HWND next = GetNextDlgTabItem(table_.handle(), edit_, GetKeyState(VK_SHIFT) < 0);
  if (next == nullptr || next == edit_) return;
  SetFocus(next);
  SendMessageW(next, EM_SETSEL, 0, -1);
}

LRESULT CALLBACK Field::procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                  DWORD_PTR self) {
  auto& field = *reinterpret_cast<Field*>(self);
  switch (message) {
    case kTextChanged:
      field.edited();
      return 0;
    case WM_CHAR:  // the system would beep
      if (w == VK_RETURN) field.events_.field_confirmed(field.id_);
      if (w == VK_RETURN || w == VK_TAB || w == VK_ESCAPE) return 0;
      break;
    case WM_KEYDOWN:
      if (w == 'A' && GetKeyState(VK_CONTROL) < 0) SendMessageW(window, EM_SETSEL, 0, -1);
      if (w == VK_TAB) field.to_next_field();
      if (field.table_.take_key_from_elsewhere(w)) return 0;
      break;
    case WM_CONTEXTMENU:
      return 0;
    case WM_GETOBJECT:
      if (static_cast<LONG>(l) == OBJID_CLIENT && !std::exchange(field.described_, true)) {
        describe(window, field.name_, 0);
      }
      break;
    default:
      break;
  }
  return DefSubclassProc(window, message, w, l);
}

}  // namespace tombrello::windows
