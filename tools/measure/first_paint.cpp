// tombrello-first-paint PROGRAM: starts a program on the display, waits until the pixel in the
// middle of its window changes, and prints how many milliseconds that took. The program is left
// running; its process number is printed too.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace {

constexpr int kLeastWidth = 300;  // smaller windows are not a program's own

struct Spot {
  int x = 0;
  int y = 0;
};

unsigned long pixel(Display* display, Spot at) {
  XImage* image =
      XGetImage(display, DefaultRootWindow(display), at.x, at.y, 1, 1, AllPlanes, ZPixmap);
  const unsigned long value = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return value;
}

// The middle of the widest window, with its frame, that stands on the screen; of the screen while
// there is none.
Spot middle(Display* display) {
  const int screen = DefaultScreen(display);
  Spot spot{DisplayWidth(display, screen) / 2, DisplayHeight(display, screen) / 2};
  Window root = 0;
  Window parent = 0;
  Window* windows = nullptr;
  unsigned count = 0;
  XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count);
  int widest = kLeastWidth;
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes window{};
    if (XGetWindowAttributes(display, windows[i], &window) == 0) continue;
    if (window.map_state != IsViewable || window.width < widest) continue;
    widest = window.width;
    spot = {window.x + window.width / 2, window.y + window.height / 2};
  }
  if (windows != nullptr) XFree(windows);
  return spot;
}

// A window may go while it is asked about.
int ignore_error(Display*, XErrorEvent*) {
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = argc == 2 ? XOpenDisplay(nullptr) : nullptr;
  if (display == nullptr) {
    std::fputs("usage: tombrello-first-paint PROGRAM, on an empty display\n", stderr);
    return 2;
  }
  XSetErrorHandler(ignore_error);
  const unsigned long before = pixel(display, middle(display));
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    // A reader of ours waits.
    if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(126);
    if (std::freopen("/dev/null", "w", stderr) == nullptr) _exit(126);
    execl(argv[1], argv[1], static_cast<char*>(nullptr));
    _exit(127);
  }
  const auto passed = [&] { return std::chrono::steady_clock::now() - start; };
  while (pixel(display, middle(display)) == before && passed() < std::chrono::seconds(10)) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  const std::chrono::duration<double, std::milli> took = passed();
  std::printf("%.0f ms, process %d\n", took.count(), static_cast<int>(child));
  XCloseDisplay(display);
  return 0;
}
