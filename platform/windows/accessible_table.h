#pragma once

#include <windows.h>

#include <oleacc.h>

#include <vector>

#include "painting/geometry.h"
#include "seam/window.h"

namespace tombrello::windows {

/// The table as assistive technology reads it, by Active Accessibility: a group whose children are
/// the places, numbered from 1, and behind them the windows that lie over the table. It outlives
/// the table where a client still holds it, and answers nothing any more.
class AccessibleTable final : public IAccessible {
 public:
  /// Held by whoever makes it, until it calls `leave`. Needs COM on this thread.
  AccessibleTable(HWND table, const painting::TableGeometry& geometry, WindowEvents& events)
      : table_(table), geometry_(geometry), events_(events) {}
  void leave();
  /// Tells clients what has changed since the last call.
  void set_places(const std::vector<TablePlace>& places, int focus);

  STDMETHODIMP QueryInterface(REFIID kind, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++holders_; }
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(LONG* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accFocus(VARIANT* child) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;
  /// Selecting is what the right button does.
  STDMETHODIMP accSelect(LONG how, VARIANT child) override;
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                           VARIANT child) override;
  STDMETHODIMP accHitTest(LONG x, LONG y, VARIANT* child) override;

  // What a table hasn't got.
  STDMETHODIMP get_accValue(VARIANT, BSTR* text) override { return none(text); }
  STDMETHODIMP get_accDescription(VARIANT, BSTR* text) override { return none(text); }
  STDMETHODIMP get_accHelp(VARIANT, BSTR* text) override { return none(text); }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return none(file); }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT, BSTR* text) override { return none(text); }
  STDMETHODIMP get_accSelection(VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP accNavigate(LONG, VARIANT, VARIANT*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    return E_NOTIMPL;
  }

 private:
  ~AccessibleTable() = default;

  static HRESULT none(BSTR* text) { return *text = nullptr, S_FALSE; }
  bool answers(const VARIANT& child) const;  ///< it is the table or a place
  bool is_under_a_box() const;               ///< which takes all presses
  const TablePlace* place(const VARIANT& child) const;
  RECT area_of(const TablePlace& place) const;  ///< on the screen
  void tell(DWORD event, std::size_t place) const;

  HWND table_;  ///< null once it has gone
  const painting::TableGeometry& geometry_;
  WindowEvents& events_;
  std::vector<TablePlace> places_;
  int focus_ = -1;
  ULONG holders_ = 1;
};

}  // namespace tombrello::windows
