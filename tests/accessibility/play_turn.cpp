// As play_turn.py, by Active Accessibility: plays a turn of the game that runs on this desktop,
// where every place is found by its name, and acted upon there.

#include <windows.h>

#include <oleacc.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <string>
#include <utility>

#include "windows/strings.h"

namespace {

void check(bool holds, const std::string& what) {
  if (holds) return;
  std::printf("%s\n", what.c_str());
  std::exit(1);
}

void wait_until(const std::string& what, const std::function<bool()>& holds) {
  for (int tries = 0; tries < 400; ++tries) {
    if (holds()) return;
    MSG next;
    while (PeekMessageW(&next, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&next);  // news come so
    Sleep(100);
  }
  check(false, "in vain waited for " + what);
}

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != text.npos;
}

HWND child_of_the_frame(const wchar_t* kind) {
  return FindWindowExW(FindWindowW(L"Tombrello", nullptr), nullptr, kind, nullptr);
}

// The line below the table is a window, with a text of its own.
void wait_for_line(const std::string& part) {
  wait_until(part, [&] {
    wchar_t told[300] = {};
    GetWindowTextW(child_of_the_frame(L"TombrelloLine"), told, 300);
    return has(tombrello::windows::utf8(told), part);
  });
}

std::set<std::pair<DWORD, LONG>> news;  // of windows of the game: what happened to which child

void CALLBACK note(HWINEVENTHOOK, DWORD event, HWND, LONG, LONG child, DWORD, DWORD) {
  news.insert({event, child});
}

VARIANT number(LONG value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

/// The table's object, as any client gets it, and its places by their numbers.
class Table {
 public:
  Table() {
    wait_until("the table", [this] {
      return AccessibleObjectFromWindow(child_of_the_frame(L"TombrelloTable"),
                                        static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        reinterpret_cast<void**>(&object_)) == S_OK;
    });
  }

  std::string name(LONG place) const {
    BSTR name = nullptr;
    object_->get_accName(number(place), &name);
    const std::string told = tombrello::windows::utf8({name, SysStringLen(name)});
    SysFreeString(name);
    return told;
  }
  /// Waits for a place whose name holds that.
  LONG find(const std::string& part) const {
    LONG place = 0;
    wait_until(part, [&] {
      LONG count = 0;
      object_->get_accChildCount(&count);
      for (place = 1; place <= count; ++place) {
        if (has(name(place), part)) return true;
      }
      return false;
    });
    return place;
  }
  void press(LONG place) const {
    VARIANT role = number(0);
    object_->get_accRole(number(place), &role);
    check(role.lVal == ROLE_SYSTEM_PUSHBUTTON, name(place) + " is no button");
    check(object_->accDoDefaultAction(number(place)) == S_OK, name(place) + " can't be pressed");
  }
  void select(LONG place, LONG how) const {
    check(object_->accSelect(how, number(place)) == S_OK, name(place) + " can't be selected");
  }
  bool selected(LONG place) const {
    VARIANT state = number(0);
    object_->get_accState(number(place), &state);
    return (state.lVal & STATE_SYSTEM_SELECTED) != 0;
  }
  /// What lies at the middle of a place is that place.
  bool is_hit(LONG place) const {
    LONG x = 0, y = 0, width = 0, height = 0;
    object_->accLocation(&x, &y, &width, &height, number(place));
    VARIANT hit = number(-1);
    object_->accHitTest(x + width / 2, y + height / 2, &hit);
    return width > 10 && height > 10 && hit.vt == VT_I4 && hit.lVal == place;
  }

 private:
  IAccessible* object_ = nullptr;
};

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const Table table;
  SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, note, 0, 0, WINEVENT_OUTOFCONTEXT);
  check(table.name(CHILDID_SELF) == "Tavolo", "the table has no name");
  table.press(table.find("Tombrello: fai clic"));
  for (const char* whose : {"carta di OVEST", "carta di NORD", "carta di EST", "tua carta"}) {
    wait_for_line(whose);
    table.press(table.find("Mazzo"));
  }
  wait_for_line("Tocca a te");
  check(table.is_hit(table.find("Tallone")), "the stock lies elsewhere");
  table.press(table.find("Tallone"));
  table.find("quattordicesima della tua mano");
  const LONG third = table.find("terza della tua mano");
  const std::string name = table.name(third);
  table.select(third, SELFLAG_ADDSELECTION);
  wait_until("its selection", [&] { return table.name(third) == name + ", scelta"; });
  check(table.selected(third), "it isn't selected");
  wait_until("word of its selection", [&] {
    return news.contains({EVENT_OBJECT_STATECHANGE, third});
  });
  table.select(third, SELFLAG_REMOVESELECTION);
  wait_until("its lowering", [&] { return table.name(third) == name; });
  check(!table.selected(third), "it is selected");
  news.clear();
  table.press(third);
  wait_for_line("OVEST");
  wait_until("word of the line", [] { return news.contains({EVENT_SYSTEM_ALERT, 0}); });
  std::printf("drawn, selected, lowered, discarded: %s\n", name.c_str());
}
