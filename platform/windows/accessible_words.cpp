#include "windows/accessible_words.h"

#include <oleacc.h>

namespace tombrello::windows {

void describe(HWND window, const std::wstring& name, LONG role) {
  constexpr auto kClient = static_cast<DWORD>(OBJID_CLIENT);
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  void* object = nullptr;
  if (SUCCEEDED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                 IID_IAccPropServices, &object))) {
    auto* services = static_cast<IAccPropServices*>(object);
    if (!name.empty()) {
      services->SetHwndPropStr(window, kClient, CHILDID_SELF, PROPID_ACC_NAME, name.c_str());
    }
    VARIANT number{};
    number.vt = VT_I4;
    number.lVal = role;
    if (role != 0) services->SetHwndProp(window, kClient, CHILDID_SELF, PROPID_ACC_ROLE, number);
    services->Release();
  }
  if (SUCCEEDED(com)) CoUninitialize();
}

}  // namespace tombrello::windows
