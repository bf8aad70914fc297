#include "desktop_session.h"

#include <signal.h>
#include <sys/prctl.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tombrello {
namespace {

using Clock = std::chrono::steady_clock;
namespace files = std::filesystem;

constexpr auto kPatience = std::chrono::minutes(1);
constexpr const char* kScreenSize = "1024x768x24";
constexpr const char* kCaption = "^Frassivo - Tombrello$";

// Sound that goes nowhere.
constexpr const char* kSilence = "pcm.!default {type null}\nctl.!default {type null}\n";

// Two keys, and nothing else of the window manager's own. By its own lights it would take each
// press first, to give the window focus, and on a busy machine hand it on after the keys that
// were struck behind it.
constexpr const char* kManagerFile = R"(<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew></focus>
<mouse></mouse>
<keyboard>
<keybind key="A-F4"><action name="Close"/></keybind>
<keybind key="A-F10"><action name="ToggleMaximize"/></keybind>
</keyboard>
</openbox_config>
)";

}  // namespace

void View::take(const std::string& line) {
  told_.clear();
  std::istringstream words(line);
  for (std::string word; std::getline(words, word, '\t');) {
    const auto equals = word.find('=');
    told_[word.substr(0, equals)] = word.substr(equals + 1);
  }
}

std::vector<int> View::numbers(const std::string& key) const {
  std::vector<int> list;
  std::istringstream words(text(key));
  for (std::string word; std::getline(words, word, ',');) list.push_back(std::stoi(word));
  return list;
}

bool View::shows(const std::string& on_table) const {
  return text("texts").find(on_table) != std::string::npos;
}

int Shot::pixel(int x, int y) const {
  const auto at = static_cast<std::size_t>(y * width + x) * 3;
  auto byte = [&](std::size_t k) { return static_cast<unsigned char>(rgb.at(at + k)); };
  return byte(0) << 16 | byte(1) << 8 | byte(2);
}

// It goes with the test program, however that ends.
std::unique_ptr<QProcess> DesktopSession::launch(const Words& words) {
  auto process = std::make_unique<QProcess>();
  process->setProcessEnvironment(environment);
  process->setChildProcessModifier([] {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Ignored by whatever a script starts in the background, or nohup.
    signal(SIGINT, SIG_DFL);
    signal(SIGHUP, SIG_DFL);
  });
  QStringList arguments;
  for (const auto& word : words) arguments << QString::fromStdString(word);
  const QString program = arguments.takeFirst();
  process->start(program, arguments);
  if (process->waitForStarted(60000)) return process;
  throw std::runtime_error(words[0] + " can't be run; tools/setup.sh check installs the tools");
}

Outcome DesktopSession::run(const Words& words, const std::string& input) {
  const auto process = launch(words);
  process->write(input.data(), static_cast<qint64>(input.size()));
  process->closeWriteChannel();
  if (!process->waitForFinished(120000)) throw std::runtime_error(words[0] + " takes too long");
  return {process->exitStatus() == QProcess::NormalExit ? process->exitCode() : 128,
          process->readAllStandardOutput().toStdString(),
          process->readAllStandardError().toStdString()};
}

std::unique_ptr<QProcess> DesktopSession::serve(const Words& words, std::string& printed) {
  auto server = launch(words);
  while (!server->canReadLine()) {
    if (!server->waitForReadyRead(60000)) throw std::runtime_error(words[0] + " doesn't start");
  }
  printed = server->readLine().trimmed().toStdString();
  return server;
}

// The program's own ways alone decide: nothing of the machine's session reaches it.
void DesktopSession::SetUp() {
  std::string pattern = (files::temp_directory_path() / "tombrello-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for the test");
  folder = pattern;
  environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "WAYLAND_DISPLAY",
                           "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM"}) {
    environment.remove(name);
  }
  for (const char* name : {"HOME", "XDG_RUNTIME_DIR"}) {
    environment.insert(name, QString::fromStdString(pattern));
  }
  files::create_directory_symlink(files::path(TOMBRELLO).parent_path() / "music", folder / "music");
  environment.insert("LC_ALL", "C.UTF-8");
  environment.insert("SDL_AUDIODRIVER", "dummy");
  if (kWindows != nullptr) prepare_wine();
  start_screen();
}

// Its world stays where it is; only the screen and the sound are the test's own.
void DesktopSession::prepare_wine() {
  const QString home = qEnvironmentVariable("HOME") + "/.cache/tombrello/wine";
  environment.insert("WINEPREFIX", qEnvironmentVariable("WINEPREFIX", home));
  environment.insert("ALSA_CONFIG_PATH", QString::fromStdString(folder / "silence"));
  std::ofstream(folder / "silence") << kSilence;
}

DesktopSession::Words DesktopSession::under_wine(Words words) {
  words.insert(words.begin(), TOMBRELLO_ROOT "/tools/windows/wine.sh");
  return words;
}

void DesktopSession::end(std::unique_ptr<QProcess>& process) {
  if (!process) return;
  process->kill();
  process->waitForFinished(60000);
  process.reset();
}

void DesktopSession::start_screen() {
  end(manager_);
  end(screen_);
  std::string number;
  screen_ = serve(
      {"Xvfb", "-displayfd", "1", "-screen", "0", kScreenSize, "-nolisten", "tcp", "-noreset"},
      number);
  environment.insert("DISPLAY", QString::fromStdString(":" + number));
  std::ofstream(folder / "rc.xml") << kManagerFile;
  manager_ = launch({"openbox", "--config-file", folder / "rc.xml"});
  const auto end = Clock::now() + kPatience;
  while (xdo({"get_desktop"}).status != 0) {
    if (Clock::now() > end) throw std::runtime_error("openbox doesn't start");
  }
}

void DesktopSession::TearDown() {
  if (HasFailure()) {
    const std::string last = out.substr(out.size() - std::min<std::size_t>(out.size(), 1500));
    std::fputs((last + err + "\n").c_str(), stderr);
  }
  if (kWindows != nullptr) run({"wineserver", "-k"});
  for (auto* process : {&game, &manager_, &screen_}) end(*process);
  std::error_code ignored;
  files::remove_all(folder, ignored);
}

void DesktopSession::start_quick(Quick quick, const files::path& program, Words before) {
  Words words = {program};
  if (kWindows != nullptr) {
    words = under_wine({kWindows + std::string("/tests/window/tombrello-quick.exe")});
  }
  words.insert(words.begin(), before.begin(), before.end());
  words.push_back(program == TOMBRELLO_QUICK ? folder : program.parent_path());
  for (const int number : {quick.clock, quick.deal, quick.turns, quick.rare}) {
    words.push_back(std::to_string(number));
  }
  start(words);
  wait_until("the opening picture", [](const View& v) {
    return v.number("opening") == 1 && v.number("front") == 1 && v.number("maximised") == 1;
  });
}

// Nobody tells when it is ready for keys: the window manager does.
void DesktopSession::start_shipped(const files::path& within) {
  const files::path home = folder / within;
  const std::string name = kWindows == nullptr ? "tombrello" : "Tombrello.exe";
  files::create_directories(home);
  files::copy_file(kWindows == nullptr ? TOMBRELLO : kWindows + ('/' + name), home / name,
                   files::copy_options::overwrite_existing);
  kWindows == nullptr ? start({home / name}) : start(under_wine({home / name}));
  wait_until("the keyboard",
             [&](const View&) { return xdo({"getactivewindow"}).out == window + '\n'; });
}

void DesktopSession::start(const Words& words) {
  view = {};
  read_ = 0;
  out.clear();
  err.clear();
  game = launch(words);
  wait_until("a window", [&](const View&) {
    window = xdo({"search", "--onlyvisible", "--name", kCaption}).out;
    window = window.substr(0, window.find('\n'));
    return !window.empty();
  });
}

void DesktopSession::listen(int milliseconds) {
  game->waitForReadyRead(milliseconds);
  out += game->readAllStandardOutput().toStdString();
  err += game->readAllStandardError().toStdString();
}

void DesktopSession::read_view() {
  listen(10);
  for (std::size_t end; (end = out.find('\n', read_)) != std::string::npos;) {
    view.take(out.substr(read_, end - read_));
    read_ = end + 1;
    if (!view.text("fault").empty()) throw std::runtime_error(view.text("fault"));
  }
}

bool DesktopSession::comes_true(const Condition& holds, Milliseconds most) {
  const auto end = Clock::now() + most;
  for (read_view(); !holds(view); read_view()) {
    if (game->state() == QProcess::NotRunning) throw std::runtime_error("it has ended: " + err);
    if (Clock::now() > end) return false;
  }
  return true;
}

void DesktopSession::wait_until(const std::string& what, const Condition& holds) {
  if (!comes_true(holds, kPatience)) throw std::runtime_error("in vain waited for " + what);
}

void DesktopSession::wait_for(const std::string& key, int value) {
  wait_until(key + " " + std::to_string(value),
             [&](const View& v) { return v.has(key) && v.number(key) == value; });
}

Outcome DesktopSession::xdo(Words words) {
  words.insert(words.begin(), "xdotool");
  return run(words);
}

DesktopSession::Place DesktopSession::place_of(float x, float y) {
  std::string told = xdo({"getwindowgeometry", "--shell", window}).out;
  std::replace(told.begin(), told.end(), '\n', '\t');
  View size;
  size.take(told);
  const int bar = view.has("bar") ? view.number("bar") : 20;     // the menu bar above the table
  const int line = view.has("line") ? view.number("line") : 24;  // the chronicle line below it
  const double wide = size.number("WIDTH");
  const double high = size.number("HEIGHT") - bar - line;
  const double scale = std::min(wide / 800, high / 600);
  return {static_cast<int>(std::lround((wide - 800 * scale) / 2 + x * scale)),
          bar + static_cast<int>(std::lround((high - 600 * scale) / 2 + y * scale))};
}

// A press acts on what the pointer's last move found: it always comes from a little beside.
void DesktopSession::point(const std::string& origin, Place to, int button) {
  Words words;
  for (const int beside : {1, 0}) {
    words.push_back("mousemove");
    if (!origin.empty()) words.insert(words.end(), {"--window", origin});
    words.insert(words.end(), {std::to_string(to.x - beside), std::to_string(to.y)});
  }
  if (button != 0) words.insert(words.end(), {"click", "--delay", "2", std::to_string(button)});
  xdo(words);
}

void DesktopSession::press_screen(const std::string& caption) {
  wait_until(caption, [&](const View& v) { return v.has(caption); });
  const auto place = view.numbers(caption);
  point("", {place.at(0), place.at(1)}, 1);
}

void DesktopSession::keys(const Words& each) {
  Words words = {"key", "--delay", "10"};
  words.insert(words.end(), each.begin(), each.end());
  xdo(words);
}

void DesktopSession::paste(const std::string& text) {
  run({"xclip", "-selection", "clipboard"}, text);
  wait_until("the clipboard", [&](const View&) {
    return run({"xclip", "-o", "-selection", "clipboard"}).out == text;
  });
  key("ctrl+v");
}

void DesktopSession::maximise_or_not() {
  const int before = view.number("maximised");
  run({"wmctrl", "-i", "-r", window, "-b", "toggle,maximized_vert,maximized_horz"});
  wait_until("another size", [&](const View& v) { return v.number("maximised") != before; });
}

void DesktopSession::resize(int width, int height) {
  xdo({"windowsize", window, std::to_string(width), std::to_string(height)});
  wait_for("width", width);
  wait_for("height", height);
}

// They take keys and the frame's close first.
void DesktopSession::clear_the_way() {
  const auto clear = [](const View& v) {
    return v.text("box").empty() && v.number("popup") == 0 && v.number("front") == 1;
  };
  wait_until("a clear way", [&](const View& v) {
    if (clear(v)) return true;
    key("Escape");
    return comes_true(clear, Milliseconds(1000));
  });
}

void DesktopSession::dismiss_opening() {
  press(400, 300);
  wait_for("opening", 0);
  wait_for("action", 7);
}

// A window that is just being shown again has no picture yet.
Shot DesktopSession::shot() {
  Outcome grabbed;
  for (int tries = 0; tries < 100 && !grabbed.out.starts_with("P6"); ++tries) {
    grabbed = run({"import", "-window", window, "-depth", "8", "ppm:-"});
  }
  Shot result;
  std::istringstream picture(grabbed.out);
  std::string magic;
  int most = 0;
  picture >> magic >> result.width >> result.height >> most;
  if (magic != "P6" || most != 255) throw std::runtime_error("no picture: " + grabbed.err);
  picture.get();
  result.rgb = grabbed.out.substr(static_cast<std::size_t>(picture.tellg()));
  return result;
}

Shot DesktopSession::settled_shot() {
  Shot settled;
  int same = 0;
  wait_until("a picture that settles", [&](const View&) {
    Shot now = shot();
    same = now == settled ? same + 1 : 0;
    settled = std::move(now);
    return same == 2;
  });
  return settled;
}

int DesktopSession::pixel(const Shot& picture, float x, float y) {
  const Place place = place_of(x, y);
  return picture.pixel(place.x, place.y);
}

void DesktopSession::wait_for_colour(float x, float y, int colour) {
  wait_until("a colour", [&](const View&) { return pixel(shot(), x, y) == colour; });
}

// Under wine what asks the program to end is the end of the session.
void DesktopSession::send(int signal) {
  if (kWindows != nullptr) {
    run(under_wine({"wineboot", "--end-session"}));
    return;
  }
  kill(static_cast<pid_t>(game->processId()), signal);
}

void DesktopSession::signal_screen(int signal) const {
  kill(static_cast<pid_t>(screen_->processId()), signal);
}

// Wine itself complains of a computer without a sequencer.
std::string DesktopSession::said() const {
  std::string all;
  std::istringstream lines(err);
  for (std::string line; std::getline(lines, line);) {
    if (kWindows == nullptr || !line.starts_with("ALSA lib seq.c")) all += line + '\n';
  }
  return all;
}

void DesktopSession::expect_quiet_end() {
  const auto asked = Clock::now();
  ASSERT_TRUE(game->waitForFinished(60000)) << "it goes on";
  const auto took = std::chrono::duration_cast<Milliseconds>(Clock::now() - asked);
  RecordProperty("ended_after_ms", static_cast<int>(took.count()));
  EXPECT_EQ(game->exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(game->exitCode(), 0);
  listen(0);
  EXPECT_EQ(said(), "");
}

std::string DesktopSession::file(const std::string& name) const {
  std::ifstream stream(folder / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tombrello
