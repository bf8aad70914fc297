#include "windows/accessible_table.h"

#include <utility>

#include "windows/native_window.h"
#include "windows/strings.h"

namespace tombrello::windows {
namespace {

VARIANT number(LONG value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

BSTR text(const std::wstring& words) {
  return SysAllocStringLen(words.data(), static_cast<UINT>(words.size()));
}

// One of the windows that show over another, from 0.
HWND window_over(HWND below, LONG index) {
  HWND window = GetWindow(below, GW_CHILD);
  for (; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    if (IsWindowVisible(window) && index-- == 0) break;
  }
  return window;
}

HRESULT object_of(HWND window, IDispatch** object) {
  *object = nullptr;
  if (window == nullptr) return S_FALSE;
  return AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                    reinterpret_cast<void**>(object));
}

}  // namespace

void AccessibleTable::leave() {
  table_ = nullptr;
  Release();
}

void AccessibleTable::tell(DWORD event, std::size_t place) const {
  NotifyWinEvent(event, table_, OBJID_CLIENT, static_cast<LONG>(place) + 1);
}

void AccessibleTable::set_places(const std::vector<TablePlace>& places, int focus) {
  const std::vector<TablePlace> before = std::exchange(places_, places);
  const int focus_before = std::exchange(focus_, focus);
  if (places.size() != before.size()) {
    NotifyWinEvent(EVENT_OBJECT_REORDER, table_, OBJID_CLIENT, CHILDID_SELF);
  }
  for (std::size_t i = 0; i < places.size() && i < before.size(); ++i) {
    if (places[i].name != before[i].name) tell(EVENT_OBJECT_NAMECHANGE, i);
    if (places[i].selected != before[i].selected) tell(EVENT_OBJECT_STATECHANGE, i);
  }
  if (focus >= 0 && focus != focus_before && GetFocus() == table_) {
    tell(EVENT_OBJECT_FOCUS, static_cast<std::size_t>(focus));
  }
}

HRESULT AccessibleTable::QueryInterface(REFIID kind, void** object) {
  const bool known = kind == IID_IUnknown || kind == IID_IDispatch || kind == IID_IAccessible;
  *object = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

ULONG AccessibleTable::Release() {
  const ULONG left = --holders_;
  if (left == 0) delete this;
  return left;
}

const TablePlace* AccessibleTable::place(const VARIANT& child) const {
  if (table_ == nullptr || child.vt != VT_I4 || child.lVal < 1) return nullptr;
  const auto index = static_cast<std::size_t>(child.lVal) - 1;
  return index < places_.size() ? &places_[index] : nullptr;
}

bool AccessibleTable::answers(const VARIANT& child) const {
  const bool self = table_ != nullptr && child.vt == VT_I4 && child.lVal == CHILDID_SELF;
  return self || place(child) != nullptr;
}

RECT AccessibleTable::area_of(const TablePlace& place) const {
  RECT area = to_rect(geometry_.pixels(place.area));
  MapWindowPoints(table_, nullptr, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

HRESULT AccessibleTable::get_accParent(IDispatch** parent) {
  return object_of(table_, parent);
}

HRESULT AccessibleTable::get_accChildCount(LONG* count) {
  *count = static_cast<LONG>(places_.size());
  if (table_ == nullptr) return RPC_E_DISCONNECTED;
  for (LONG i = 0; window_over(table_, i) != nullptr; ++i) ++*count;
  return S_OK;
}

// Places have no object of their own: they are asked for here.
HRESULT AccessibleTable::get_accChild(VARIANT child, IDispatch** object) {
  *object = nullptr;
  if (table_ == nullptr) return RPC_E_DISCONNECTED;
  if (place(child) != nullptr) return S_FALSE;
  if (child.vt != VT_I4 || child.lVal < 1) return E_INVALIDARG;
  return object_of(window_over(table_, child.lVal - 1 - static_cast<LONG>(places_.size())), object);
}

HRESULT AccessibleTable::get_accName(VARIANT child, BSTR* name) {
  *name = nullptr;
  if (!answers(child)) return E_INVALIDARG;
  const TablePlace* const here = place(child);
  *name = text(here == nullptr ? L"Tavolo" : wide(here->name));
  return S_OK;
}

HRESULT AccessibleTable::get_accRole(VARIANT child, VARIANT* role) {
  if (!answers(child)) return E_INVALIDARG;
  const TablePlace* const here = place(child);
  const bool acts = here != nullptr && (here->can_press || here->can_select);
  *role = number(here == nullptr ? ROLE_SYSTEM_GROUPING
                 : acts          ? ROLE_SYSTEM_PUSHBUTTON
                                 : ROLE_SYSTEM_STATICTEXT);
  return S_OK;
}

HRESULT AccessibleTable::get_accState(VARIANT child, VARIANT* state) {
  if (!answers(child)) return E_INVALIDARG;
  const TablePlace* const here = place(child);
  const bool has_keyboard = GetFocus() == table_ && child.lVal == focus_ + 1;
  LONG flags = has_keyboard ? STATE_SYSTEM_FOCUSED : 0;
  if (here == nullptr || here->can_press || here->can_select) flags |= STATE_SYSTEM_FOCUSABLE;
  if (here != nullptr && here->can_select) flags |= STATE_SYSTEM_SELECTABLE;
  if (here != nullptr && here->selected) flags |= STATE_SYSTEM_SELECTED;
  *state = number(flags);
  return S_OK;
}

HRESULT AccessibleTable::get_accFocus(VARIANT* child) {
  VariantInit(child);
  if (table_ == nullptr || GetFocus() != table_) return S_FALSE;
  *child = number(focus_ + 1);  // the table itself, where no place is marked
  return S_OK;
}

HRESULT AccessibleTable::get_accDefaultAction(VARIANT child, BSTR* action) {
  *action = nullptr;
  const TablePlace* const here = place(child);
  if (here == nullptr || !(here->can_press || here->can_select)) return S_FALSE;
  *action = text(here->can_press ? L"Premi" : L"Scegli");
  return S_OK;
}

bool AccessibleTable::is_under_a_box() const {
  return IsWindowEnabled(GetAncestor(table_, GA_ROOT)) == FALSE;
}

HRESULT AccessibleTable::accDoDefaultAction(VARIANT child) {
  const TablePlace* const here = place(child);
  if (here == nullptr || !(here->can_press || here->can_select)) return DISP_E_MEMBERNOTFOUND;
  if (is_under_a_box()) return E_ACCESSDENIED;
  events_.place_pressed(static_cast<int>(child.lVal) - 1,
                        here->can_press ? Button::left : Button::right);
  return S_OK;
}

HRESULT AccessibleTable::accSelect(LONG how, VARIANT child) {
  const TablePlace* const here = place(child);
  const bool adds = how == SELFLAG_ADDSELECTION;
  if (here == nullptr || (!adds && how != SELFLAG_REMOVESELECTION)) return E_INVALIDARG;
  if (here->selected == adds) return S_OK;
  if (is_under_a_box()) return E_ACCESSDENIED;
  if (!here->can_select) return DISP_E_MEMBERNOTFOUND;
  events_.place_pressed(static_cast<int>(child.lVal) - 1, Button::right);
  return S_OK;
}

HRESULT AccessibleTable::accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                     VARIANT child) {
  if (!answers(child)) return E_INVALIDARG;
  RECT area{};
  const TablePlace* const here = place(child);
  if (here == nullptr)
    GetWindowRect(table_, &area);
  else
    area = area_of(*here);
  *left = area.left;
  *top = area.top;
  *width = area.right - area.left;
  *height = area.bottom - area.top;
  return S_OK;
}

// Of places that overlap the later one lies above.
HRESULT AccessibleTable::accHitTest(LONG x, LONG y, VARIANT* child) {
  VariantInit(child);
  RECT all{};
  if (table_ == nullptr || !GetWindowRect(table_, &all)) return RPC_E_DISCONNECTED;
  if (!PtInRect(&all, {x, y})) return S_FALSE;
  *child = number(CHILDID_SELF);
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const RECT area = area_of(places_[i]);
    if (PtInRect(&area, {x, y})) *child = number(static_cast<LONG>(i) + 1);
  }
  return S_OK;
}

}  // namespace tombrello::windows
