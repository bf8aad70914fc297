#include "windows/question.h"

#include <commctrl.h>

#include "windows/strings.h"

namespace tombrello::windows {

HRESULT CALLBACK Question::follow(HWND box, UINT what, WPARAM, LPARAM, LONG_PTR self) {
  auto& question = *reinterpret_cast<Question*>(self);
  if (what == TDN_CREATED) question.box_ = box;
  if (what == TDN_DESTROYED) question.box_ = nullptr;
  return S_OK;
}

// The buttons are named here: the system's own would speak the system's language. The one that the
// box's closing stands for has the number for that.
Answer Question::ask(HWND frame, const std::string& text, Buttons buttons) {
  const std::wstring words = wide(text);
  const TASKDIALOG_BUTTON answers[] = {{IDYES, L"Sì"}, {IDCANCEL, L"No"}};
  const TASKDIALOG_BUTTON agreement[] = {{IDCANCEL, L"OK"}};
  const bool asks = buttons == Buttons::yes_no;
  TASKDIALOGCONFIG config{};
  config.cbSize = sizeof config;
  config.hwndParent = frame;
  config.dwFlags =
      TDF_ALLOW_DIALOG_CANCELLATION | TDF_POSITION_RELATIVE_TO_WINDOW | TDF_SIZE_TO_CONTENT;
  config.pszWindowTitle = L"Tombrello";
  config.pszContent = words.c_str();
  config.cButtons = asks ? 2 : 1;
  config.pButtons = asks ? answers : agreement;
  config.nDefaultButton = asks ? IDYES : IDCANCEL;
  config.pfCallback = follow;
  config.lpCallbackData = reinterpret_cast<LONG_PTR>(this);
  int pressed = IDCANCEL;
  TaskDialogIndirect(&config, &pressed, nullptr, nullptr);
  box_ = nullptr;
  if (!asks) return Answer::ok;
  return pressed == IDYES ? Answer::yes : Answer::no;
}

void Question::take_down() {
  if (box_ != nullptr) SendMessageW(box_, TDM_CLICK_BUTTON, IDCANCEL, 0);
}

}  // namespace tombrello::windows
