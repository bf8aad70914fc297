#include "pictures/pictures.h"
#include "shell/program.h"
#include "shell/system_clock.h"
#include "windows/desktop.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  using namespace tombrello;
  windows::Desktop desktop(art::draw_picture);
  SystemClock clock;
  Program program({desktop.window(), desktop.timer(), desktop.archive(), clock, desktop.wave(),
                   desktop.sequencer(), desktop.beeper(), windows::capital});
  desktop.set_media_events(&program);
  program.run();
  return 0;
}
