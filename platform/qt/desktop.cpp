#include "qt/desktop.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "qt/audio/loaded_system.h"
#include "qt/audio/sound_module.h"
#include "qt/session_bus.h"
#include "qt/style.h"

namespace tombrello::qt {
namespace {

[[noreturn]] void end_without_screen() {
  std::fputs(
      "tombrello: no screen can be reached; DISPLAY must name one, or WAYLAND_DISPLAY with the "
      "package qt6-wayland\n",
      stderr);
  std::_Exit(1);
}

// While the application object is made, a fatal message means that Qt found no screen. The
// warnings before it say the same in many lines.
void at_start(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type == QtFatalMsg) end_without_screen();
}

QtMessageHandler before_start() {
  const bool any = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                   !qEnvironmentVariableIsEmpty("DISPLAY") ||
                   !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  if (!any) end_without_screen();
  // Where files may not grow, a save fails, and no more.
  std::signal(SIGXFSZ, SIG_IGN);
  leave_silent_bus();
  // The bar belongs into the window, and a desktop's own would be asked for on the bus.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  return qInstallMessageHandler(at_start);
}

std::filesystem::path path_of(const QString& folder) {
  return QFile::encodeName(folder).toStdString();
}

// A program that was installed finds its sounds and tunes in a data folder of its own; one that
// carries them beside itself is at home there, whatever else is installed.
bool is_installed() {
  const QString beside = QCoreApplication::applicationDirPath() + "/sounds";
  return TOMBRELLO_DATA[0] != '\0' && !QFileInfo(beside).isDir();
}

std::filesystem::path program_folder() {
  return is_installed() ? TOMBRELLO_DATA : path_of(QCoreApplication::applicationDirPath());
}

std::filesystem::path sound_module() {
  return (is_installed() ? TOMBRELLO_LIBRARIES : program_folder()) / kSoundModule;
}

// A folder that was moved has a desktop entry beside the program that is to hear of it.
void tell_desktop_entry() {
  const QString script = QCoreApplication::applicationDirPath() + "/desktop-entry.sh";
  if (!is_installed() && QFileInfo(script).isExecutable()) QProcess::startDetached(script, {});
}

std::filesystem::path user_folder() {
  return path_of(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

}  // namespace

Desktop::Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName("tombrello");
  setApplicationDisplayName("Tombrello");
  setDesktopFileName("tombrello");
  setStyle(new Style);
  // Qt takes over the user's locale; numbers in files keep their point.
  std::setlocale(LC_NUMERIC, "C");
}

Desktop::Desktop(int& argc, char** argv, painting::PictureSource pictures, IconSource icon)
    : messages_(before_start()),
      application_(argc, argv),
      window_(std::move(pictures)),
      timer_(window_.events()),
      archive_(program_folder(), user_folder(),
               is_installed() ? DiskArchive::Keep::with_user : DiskArchive::Keep::beside_program),
      audio_(
          loaded_system(sound_module(), program_folder(), QApplication::beep),
          [this] { wake_for_audio(); }, std::random_device()()) {
  qInstallMessageHandler(messages_);
  window_.after_first_paint([this, shown = drawn_icon(std::move(icon))] {
    window_.frame().setWindowIcon(shown);
    audio_.start();
    tell_desktop_entry();
  });
  stop_signal_.listen([this] { window_.stop(); });
}

// Called on another thread.
void Desktop::wake_for_audio() {
  QMetaObject::invokeMethod(
      &application_, [this] { audio_.deliver(); }, Qt::QueuedConnection);
}

}  // namespace tombrello::qt
