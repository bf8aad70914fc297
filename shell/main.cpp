#include "platform/desktop/desktop.h"
#include "shell/program.h"
#include "table/pictures/pictures.h"

int main(int argc, char** argv) {
  tombrello::Desktop desktop(argc, argv, tombrello::draw_picture, tombrello::draw_icon());
  tombrello::Program program({desktop.window(), desktop.timer(), desktop.archive(), desktop.clock(),
                              desktop.wave(), desktop.sequencer(), desktop.beeper()});
  desktop.set_media_events(&program);
  program.run();
  return 0;
}
