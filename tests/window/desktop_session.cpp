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

// The build of the program for Windows, if that is the one to be played, under wine.
const char* const kWindows = std::getenv("TOMBRELLO_WINDOWS");

#ifdef __SANITIZE_ADDRESS__
constexpr int kPatience = 5;
#else
const int kPatience = kWindows == nullptr ? 1 : 3;
#endif

constexpr const char* kScreenSize = "1024x768x24";

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
  std::istringstream words(line);
  std::string kind;
  std::getline(words, kind, '\t');
  Told told;
  for (std::string word; std::getline(words, word, '\t');) {
    const auto equals = word.find('=');
    told[word.substr(0, equals)] = word.substr(equals + 1);
  }
  told_[kind] = told;
}

const std::string* View::find(const std::string& key) const {
  for (const auto& [kind, told] : told_) {
    if (const auto found = told.find(key); found != told.end()) return &found->second;
  }
  return nullptr;
}

std::string View::text(const std::string& key) const {
  const std::string* found = find(key);
  return found == nullptr ? "" : *found;
}

std::vector<int> View::numbers(const std::string& key) const {
  std::vector<int> list;
  std::istringstream words(text(key));
  for (std::string word; std::getline(words, word, ',');) list.push_back(std::stoi(word));
  return list;
}

std::string View::everything() const {
  std::string all;
  for (const auto& [kind, told] : told_) {
    for (const auto& [key, value] : told) {
      if (key != "deck") all += key + '=' + value + ' ';
    }
  }
  return all;
}

int Shot::pixel(int x, int y) const {
  const auto at = static_cast<std::size_t>(y * width + x) * 3;
  auto byte = [&](std::size_t k) { return static_cast<unsigned char>(rgb.at(at + k)); };
  return byte(0) << 16 | byte(1) << 8 | byte(2);
}

// It goes with the test program, however that ends.
std::unique_ptr<QProcess> DesktopSession::launch(const std::vector<std::string>& words) {
  auto process = std::make_unique<QProcess>();
  process->setProcessEnvironment(environment);
  process->setChildProcessModifier([] {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    signal(SIGINT, SIG_DFL);  // ignored by whatever a script starts in the background
  });
  QStringList arguments;
  for (const auto& word : words) arguments << QString::fromStdString(word);
  const QString program = arguments.takeFirst();
  process->start(program, arguments);
  if (process->waitForStarted(20000)) return process;
  throw std::runtime_error(words[0] + " can't be run; tools/setup.sh check installs the tools");
}

Outcome DesktopSession::run(const std::vector<std::string>& words, const std::string& input) {
  const auto process = launch(words);
  process->write(input.data(), static_cast<qint64>(input.size()));
  process->closeWriteChannel();
  if (!process->waitForFinished(30000)) throw std::runtime_error(words[0] + " takes too long");
  return {process->exitStatus() == QProcess::NormalExit ? process->exitCode() : 128,
          process->readAllStandardOutput().toStdString(),
          process->readAllStandardError().toStdString()};
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

std::vector<std::string> DesktopSession::under_wine(std::vector<std::string> words) {
  words.insert(words.begin(), TOMBRELLO_WINE);
  return words;
}

void DesktopSession::start_screen() {
  screen_ = launch(
      {"Xvfb", "-displayfd", "1", "-screen", "0", kScreenSize, "-nolisten", "tcp", "-noreset"});
  while (!screen_->canReadLine()) {
    if (!screen_->waitForReadyRead(20000)) throw std::runtime_error("Xvfb doesn't start");
  }
  environment.insert("DISPLAY", ":" + QString(screen_->readLine()).trimmed());
  std::ofstream(folder / "rc.xml") << kManagerFile;
  manager_ = launch({"openbox", "--config-file", folder / "rc.xml"});
  const auto end = Clock::now() + Milliseconds(20000);
  while (xdo({"get_desktop"}).status != 0) {
    if (Clock::now() > end) throw std::runtime_error("openbox doesn't start");
  }
}

void DesktopSession::TearDown() {
  if (HasFailure() && game) std::fputs((view.everything() + err + "\n").c_str(), stderr);
  if (kWindows != nullptr) run({"wineserver", "-k"});
  for (auto* process : {&game, &manager_, &screen_}) {
    if (!*process) continue;
    (*process)->kill();
    (*process)->waitForFinished(5000);
    process->reset();
  }
  std::error_code ignored;
  files::remove_all(folder, ignored);
}

void DesktopSession::start_quick(Quick quick) {
  std::vector<std::string> numbers = {folder, std::to_string(quick.clock),
                                      std::to_string(quick.deal), std::to_string(quick.turns)};
  if (quick.rare != 0) numbers.push_back(std::to_string(quick.rare));
  std::vector<std::string> words = {TOMBRELLO_QUICK};
  if (kWindows != nullptr) {
    words = under_wine({kWindows + std::string("/tests/window/tombrello-quick.exe")});
  }
  words.insert(words.end(), numbers.begin(), numbers.end());
  start(words);
  wait_until("the opening picture",
             [](const View& v) { return v.number("opening") == 1 && v.number("ready") == 1; });
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

void DesktopSession::start(const std::vector<std::string>& words) {
  view = {};
  read_ = 0;
  out.clear();
  err.clear();
  game = launch(words);
  const auto end = Clock::now() + kPatience * Milliseconds(20000);
  for (window.clear(); window.empty();) {
    if (Clock::now() > end) throw std::runtime_error("no window: " + err);
    window = xdo({"search", "--onlyvisible", "--name", "^Frassivo - Tombrello$"}).out;
    window = window.substr(0, window.find('\n'));
    read_view();
  }
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

bool DesktopSession::comes_true(const std::function<bool(const View&)>& holds, Milliseconds most) {
  const auto end = Clock::now() + kPatience * most;
  for (read_view(); !holds(view); read_view()) {
    if (game->state() == QProcess::NotRunning) throw std::runtime_error("it has ended: " + err);
    if (Clock::now() > end) return false;
  }
  return true;
}

void DesktopSession::wait_until(const std::string& what,
                                const std::function<bool(const View&)>& holds, Milliseconds most) {
  if (!comes_true(holds, most)) throw std::runtime_error("in vain waited for " + what);
}

void DesktopSession::wait_for(const std::string& key, int value) {
  wait_until(key + " " + std::to_string(value),
             [&](const View& v) { return v.has(key) && v.number(key) == value; });
}

Outcome DesktopSession::xdo(std::vector<std::string> words) {
  words.insert(words.begin(), "xdotool");
  return run(words);
}

void DesktopSession::find_size() {
  std::istringstream lines(xdo({"getwindowgeometry", "--shell", window}).out);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("WIDTH=")) width_ = std::stoi(line.substr(6));
    if (line.starts_with("HEIGHT=")) height_ = std::stoi(line.substr(7));
  }
  if (view.has("bar")) bar_ = view.number("bar");
  if (view.has("line")) line_ = view.number("line");
}

DesktopSession::Place DesktopSession::place_of(float x, float y) const {
  const double wide = width_;
  const double high = height_ - bar_ - line_;
  const double scale = std::min(wide / 800, high / 600);
  return {static_cast<int>(std::lround((wide - 800 * scale) / 2 + x * scale)),
          bar_ + static_cast<int>(std::lround((high - 600 * scale) / 2 + y * scale))};
}

// A press acts on what the pointer's last move found: it always comes from a little beside.
std::vector<std::string> DesktopSession::press_words(float x, float y, int button) {
  const Place place = place_of(x, y);
  const std::string row = std::to_string(place.y);
  return {"mousemove", "--window", window, std::to_string(place.x - 1), row,
          "mousemove", "--window", window, std::to_string(place.x),     row,
          "click",     "--delay",  "2",    std::to_string(button)};
}

void DesktopSession::press(float x, float y, int button) {
  find_size();
  xdo(press_words(x, y, button));
}

void DesktopSession::move(float x, float y) {
  find_size();
  auto words = press_words(x, y, 1);
  words.resize(words.size() - 4);
  xdo(words);
}

void DesktopSession::press_screen(const std::string& caption) {
  wait_until(caption, [&](const View& v) { return v.has(caption); });
  const auto place = view.numbers(caption);
  const std::string x = std::to_string(place.at(0));
  const std::string y = std::to_string(place.at(1));
  xdo({"mousemove", std::to_string(place.at(0) - 1), y, "mousemove", x, y, "click", "--delay", "2",
       "1"});
}

void DesktopSession::key(const std::string& keys) {
  xdo({"key", keys});
}

void DesktopSession::type(const std::string& text) {
  xdo({"type", "--delay", "4", text});
}

void DesktopSession::paste(const std::string& text) {
  run({"xclip", "-selection", "clipboard"}, text);
  // Under wine it takes its way through another process.
  if (kWindows != nullptr) comes_true([](const View&) { return false; }, Milliseconds(100));
  key("ctrl+v");
}

// The window manager's own key: one that comes while it still moves the focus is lost on it.
void DesktopSession::maximise_or_not() {
  const int width = view.number("width");
  for (int tries = 0; tries < 3; ++tries) {
    key("alt+F10");
    if (comes_true([&](const View& v) { return v.number("width") != width; }, Milliseconds(3000))) {
      return;
    }
  }
}

void DesktopSession::resize(int width, int height) {
  xdo({"windowsize", window, std::to_string(width), std::to_string(height)});
  wait_for("width", width);
  wait_for("height", height);
}

void DesktopSession::dismiss_opening() {
  press(400, 300);
  wait_for("opening", 0);
  wait_for("action", 7);
}

// A window that is just being shown again has no picture yet.
Shot DesktopSession::shot() {
  Outcome grabbed;
  for (int tries = 0; tries < 20 && !grabbed.out.starts_with("P6"); ++tries) {
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
  Shot before = shot();
  for (int tries = 0; tries < 40; ++tries) {
    Shot after = shot();
    if (after == before) return after;
    before = std::move(after);
  }
  throw std::runtime_error("the picture never settles");
}

int DesktopSession::pixel(const Shot& picture, float x, float y) {
  find_size();
  const Place place = place_of(x, y);
  return picture.pixel(place.x, place.y);
}

// Under wine what asks the program to end is the end of the session.
void DesktopSession::send(int signal) {
  if (kWindows != nullptr) {
    run(under_wine({"wineboot", "--end-session"}));
    return;
  }
  kill(static_cast<pid_t>(game->processId()), signal);
}

void DesktopSession::freeze_screen() const {
  kill(static_cast<pid_t>(screen_->processId()), SIGSTOP);
}

void DesktopSession::lose_screen() {
  screen_->kill();
  screen_->waitForFinished(5000);
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

void DesktopSession::expect_quiet_end(Milliseconds most) {
  const auto asked = Clock::now();
  ASSERT_TRUE(game->waitForFinished(kPatience * 10000)) << "it goes on";
  const auto took = std::chrono::duration_cast<Milliseconds>(Clock::now() - asked);
  RecordProperty("ended_after_ms", static_cast<int>(took.count()));
  EXPECT_LT(took, kPatience * most);
  EXPECT_EQ(game->exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(game->exitCode(), 0);
  listen(0);
  EXPECT_EQ(said(), "");
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    EXPECT_NE(line.find('\t'), std::string::npos) << line;
  }
}

void DesktopSession::expect_still_running() {
  listen(0);
  EXPECT_EQ(game->state(), QProcess::Running);
  EXPECT_EQ(said(), "");
}

std::string DesktopSession::file(const std::string& name) const {
  std::ifstream stream(folder / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tombrello
