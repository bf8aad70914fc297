// tombrello-first-paint PROGRAM: starts a program on the display, waits until the pixel in the
// middle of the screen changes, and prints how many milliseconds that took. The program is left
// running; its process number is printed too.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace {

unsigned long middle_pixel(Display* display) {
  const int screen = DefaultScreen(display);
  XImage* image = XGetImage(display, DefaultRootWindow(display), DisplayWidth(display, screen) / 2,
                            DisplayHeight(display, screen) / 2, 1, 1, AllPlanes, ZPixmap);
  const unsigned long pixel = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return pixel;
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = argc == 2 ? XOpenDisplay(nullptr) : nullptr;
  if (display == nullptr) {
    std::fputs("usage: tombrello-first-paint PROGRAM, on a display\n", stderr);
    return 2;
  }
  const unsigned long before = middle_pixel(display);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(126);  // a reader of ours waits
    execl(argv[1], argv[1], static_cast<char*>(nullptr));
    _exit(127);
  }
  const auto passed = [&] { return std::chrono::steady_clock::now() - start; };
  while (middle_pixel(display) == before && passed() < std::chrono::seconds(10)) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  const std::chrono::duration<double, std::milli> took = passed();
  std::printf("%.0f ms, process %d\n", took.count(), static_cast<int>(child));
  XCloseDisplay(display);
  return 0;
}
