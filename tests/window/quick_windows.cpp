// tombrello-quick for Windows: as quick_game.cpp tells.

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "pictures/pictures.h"
#include "telling.h"
#include "windows/desktop.h"

namespace tombrello {
namespace {

using namespace windows;

constexpr UINT kMenuOf = 0x01E1;  // asks a window of the system's own for the menu that it shows

std::wstring without_key(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

std::wstring text_of(HWND window) {
  wchar_t text[1000] = {};
  GetWindowTextW(window, text, 1000);
  return text;
}

std::wstring class_of(HWND window) {
  wchar_t name[40] = {};
  GetClassNameW(window, name, 40);
  return name;
}

std::wstring caption_of(HMENU menu, int i) {
  wchar_t caption[200] = {};
  GetMenuStringW(menu, static_cast<UINT>(i), caption, 200, MF_BYPOSITION);
  return without_key(caption);
}

// Checked entries from left to right, each with a blank behind it.
std::string checks(HMENU menu) {
  std::string captions;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
    if (const HMENU below = GetSubMenu(menu, i)) {
      captions += checks(below);
    } else if ((state & MF_CHECKED) != 0) {
      captions += utf8(caption_of(menu, i)) + ' ';
    }
  }
  return captions;
}

void add_middle(Line& line, const std::wstring& caption, const RECT& place) {
  line.add(utf8(caption), std::to_string((place.left + place.right) / 2) + ',' +
                              std::to_string((place.top + place.bottom) / 2));
}

void add_entries(Line& line, HWND window, HMENU menu) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    RECT place{};
    if (GetMenuItemRect(window, menu, static_cast<UINT>(i), &place)) {
      add_middle(line, caption_of(menu, i), place);
    }
  }
}

// The windows that show, but for the frame: boxes and menus.
struct Shown {
  HWND box = nullptr;
  std::vector<HWND> menus;
};

BOOL CALLBACK note_window(HWND window, LPARAM shown) {
  auto& all = *reinterpret_cast<Shown*>(shown);
  if (!IsWindowVisible(window)) return TRUE;
  if (class_of(window) == L"#32770") all.box = window;
  if (class_of(window) == L"#32768") all.menus.push_back(window);
  return TRUE;
}

void add_box(Line& line, HWND box) {
  std::string words;
  for (HWND child = nullptr; (child = FindWindowExW(box, child, nullptr, nullptr)) != nullptr;) {
    RECT place{};
    GetWindowRect(child, &place);
    if (class_of(child) == L"Button" && IsWindowVisible(child)) {
      add_middle(line, without_key(text_of(child)), place);
    } else if (words.empty()) {
      words = utf8(text_of(child));
    }
  }
  line.add("box", words.substr(0, words.find('\n')));
}

void add_screen(Line& line, DesktopWindow& window) {
  const HWND frame = window.handle();
  const HWND chronicle = window.line().handle();
  Shown shown;
  EnumThreadWindows(GetCurrentThreadId(), note_window, reinterpret_cast<LPARAM>(&shown));
  if (shown.box != nullptr && GetForegroundWindow() == shown.box) {
    add_box(line, shown.box);
  } else {
    line.add("box", "");
  }
  line.add("popup", !shown.menus.empty());
  MENUBARINFO bar{};
  bar.cbSize = sizeof bar;
  GetMenuBarInfo(frame, OBJID_MENU, 0, &bar);
  if (!IsIconic(frame)) {
    const painting::PixelRect inside = client_pixels(frame);
    POINT corner{};
    ClientToScreen(frame, &corner);
    const int bar_height = static_cast<int>(corner.y - bar.rcBar.top) + 1;  // and its line
    line.add("width", inside.width()).add("height", inside.height() + bar_height);
    line.add("bar", bar_height).add("line", client_pixels(chronicle).height());
  }
  line.add("chronicle", utf8(text_of(chronicle)));
  line.add("minimised", IsIconic(frame) != 0);
  line.add("front", GetForegroundWindow() == frame).add("maximised", IsZoomed(frame) != 0);
  add_entries(line, frame, GetMenu(frame));
  line.add("checks", checks(GetMenu(frame)));
  for (const HWND popup : shown.menus) {
    const LRESULT menu = SendMessageW(popup, kMenuOf, 0, 0);
    add_entries(line, popup, reinterpret_cast<HMENU>(menu));
  }
}

std::wstring whole_path(const wchar_t* path) {
  wchar_t whole[MAX_PATH] = {};
  GetFullPathNameW(path, MAX_PATH, whole, nullptr);
  return whole;
}

std::function<void()> look;

void CALLBACK on_time(HWND, UINT, UINT_PTR, DWORD) {
  if (look) look();
}

}  // namespace
}  // namespace tombrello

int wmain(int argc, wchar_t** argv) {
  using namespace tombrello;
  if (argc < 5 || argc > 6) return 2;
  _setmode(_fileno(stdout), _O_BINARY);
  windows::Desktop desktop(art::draw_picture);
  const std::wstring folder = whole_path(argv[1]);
  windows::DiskArchive archive(folder, folder + L"\\user");
  QuickGame::Numbers numbers{};
  std::transform(argv + 2, argv + argc, numbers.begin(), _wtoi);
  QuickGame game(desktop, archive, windows::capital, numbers);
  look = [&] { game.tell([&](Line& line) { add_screen(line, desktop.window()); }); };
  const UINT_PTR looks = SetTimer(nullptr, 0, 15, on_time);
  game.run();
  KillTimer(nullptr, looks);
  look = nullptr;
  return 0;
}
