#include "qt/session_bus.h"

#include <dbus/dbus.h>

#include <QDeadlineTimer>
#include <QtGlobal>

namespace tombrello::qt {
namespace {

constexpr int kPatience = 500;  // milliseconds
constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";

QByteArray bus_address() {
  if (qEnvironmentVariableIsSet(kAddress)) return qgetenv(kAddress);
  return "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus";
}

// It is spoken to until it knows who we are.
bool is_silent(DBusConnection& bus) {
  const QDeadlineTimer patience(kPatience);
  while (dbus_connection_get_is_connected(&bus) && !dbus_connection_get_is_authenticated(&bus)) {
    if (patience.hasExpired()) return true;
    dbus_connection_read_write(&bus, static_cast<int>(patience.remainingTime()));
  }
  return false;
}

}  // namespace

// One that can't be reached refuses at once, Qt too.
void leave_silent_bus() {
  DBusConnection* const bus = dbus_connection_open_private(bus_address().constData(), nullptr);
  if (bus == nullptr) return;
  dbus_connection_set_exit_on_disconnect(bus, false);
  if (is_silent(*bus)) qputenv(kAddress, "disabled:");
  dbus_connection_close(bus);
  dbus_connection_unref(bus);
}

}  // namespace tombrello::qt
