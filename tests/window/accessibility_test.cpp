#include "player.h"

namespace tombrello {
namespace {

using Accessibility = DesktopSession;

// A turn through the tree of accessible objects alone, by a real client.
TEST_F(Accessibility, ATurnIsPlayedByNamesAlone) {
  constexpr const char* kClient = "/tests/accessibility/";
  std::string address;
  auto bus = serve({"dbus-daemon", "--session", "--nofork", "--print-address"}, address);
  environment.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromStdString(address));
  environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  start_quick({.clock = 27, .deal = 5, .turns = 5});
  const Outcome played =
      kWindows == nullptr
          ? run({"/usr/bin/python3", TOMBRELLO_ROOT + (kClient + std::string("play_turn.py"))})
          : run(under_wine({kWindows + (kClient + std::string("tombrello-turn.exe"))}));
  EXPECT_EQ(played.status, 0) << played.out << played.err;
  end(game);
  end(bus);
}

}  // namespace
}  // namespace tombrello
