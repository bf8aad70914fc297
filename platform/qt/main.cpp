#include "pictures/pictures.h"
#include "qt/desktop.h"
#include "shell/program.h"
#include "shell/system_clock.h"

int main(int argc, char** argv) {
  using namespace tombrello;
  qt::Desktop desktop(argc, argv, art::draw_picture, art::draw_icon());
  SystemClock clock;
  Program program({desktop.window(), desktop.timer(), desktop.archive(), clock, desktop.wave(),
                   desktop.sequencer(), desktop.beeper(), qt::capital});
  desktop.set_media_events(&program);
  program.run();
  return 0;
}
