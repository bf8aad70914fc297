#include "headless/headless_window.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace tombrello {
char32_t plain_capital(char32_t letter) {
  const bool has_one =
      (letter >= U'a' && letter <= U'z') || (letter >= U'à' && letter <= U'þ' && letter != U'÷');
  return has_one ? letter - 0x20 : letter;
}

void HeadlessTimer::start(int milliseconds) {
  running_ = true;
  period_ = milliseconds;
}

std::optional<std::string> MemoryArchive::read(const std::string& name, std::size_t most) {
  const auto found = files.find(name);
  if (found == files.end()) return std::nullopt;
  return found->second.substr(0, most);
}

bool MemoryArchive::replace(const std::string& name, const std::string& content) {
  trouble_ = to_come;
  if (trouble_ != Trouble::none) return false;
  files[name] = content;
  ++writes;
  return true;
}

std::vector<std::string> MemoryArchive::list(const std::string& folder, std::size_t most) {
  std::vector<std::string> names;
  const std::string start = folder + "/";
  for (const auto& [name, content] : files) {
    const bool inside = name.starts_with(start) && !name.substr(start.size()).starts_with('.') &&
                        name.find('/', start.size()) == std::string::npos;
    if (inside && names.size() < most) names.push_back(name.substr(start.size()));
  }
  return names;
}

void ScriptedPlayer::pass(Window& window, HeadlessTimer& timer, WindowEvents* events) {
  if (++passes_ > most_passes) window.close();
  if (on_pass && !window.closing()) on_pass();
  if (window.closing()) return;
  if (timer.running()) {
    timer.end();
    if (events != nullptr) events->timer_ticked();
  } else if (!script.empty()) {
    const Action action = std::move(script.front());
    script.pop_front();
    action();
  } else {
    window.close();
  }
}

Answer ScriptedPlayer::next_answer() {
  if (answers.empty()) return Answer::yes;
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

Answer HeadlessWindow::message_box(const std::string& text, Buttons buttons) {
  const Answer otherwise = buttons == Buttons::ok ? Answer::ok : Answer::no;
  if (closing_) return otherwise;
  boxes.push_back(text);
  in_box_ = true;
  if (on_box) on_box();
  in_box_ = false;
  return closing_ || buttons == Buttons::ok ? otherwise : next_answer();
}

// A box is modal: nothing else takes a press or a key while it stands.
void HeadlessWindow::press(float x, float y, Button button) {
  if (!in_box_ && events_ != nullptr) events_->pressed(button, x, y);
}

void HeadlessWindow::move(float x, float y) {
  if (!in_box_ && events_ != nullptr) events_->moved(x, y);
}

void HeadlessWindow::key(Key key) {
  hold(key, true);
  hold(key, false);
}

void HeadlessWindow::hold(Key key, bool down) {
  if (in_box_ || events_ == nullptr) return;
  if (down) {
    events_->key_pressed(key);
  } else {
    events_->key_released(key);
  }
}

bool HeadlessWindow::choose(EntryId entry) {
  if (in_box_ || events_ == nullptr || !entries_.contains(entry) || !enabled(entry)) return false;
  events_->entry_chosen(entry);
  return true;
}

bool HeadlessWindow::click(ControlId control) {
  if (in_box_ || events_ == nullptr || !visible(control)) return false;
  events_->control_clicked(control);
  return true;
}

bool HeadlessWindow::press_key(ControlId control) {
  if (in_box_ || events_ == nullptr || !visible(control)) return false;
  events_->control_key_pressed(control);
  return true;
}

bool HeadlessWindow::type(ControlId field, const std::string& text) {
  if (in_box_ || events_ == nullptr || !visible(field)) return false;
  Control& control = controls_.at(field);
  control.text = control.rule(text, 0);
  events_->field_changed(field, control.text);
  return true;
}

bool HeadlessWindow::press_enter(ControlId field) {
  if (in_box_ || events_ == nullptr || !visible(field)) return false;
  events_->field_confirmed(field);
  return true;
}

void HeadlessWindow::add_entry(EntryId entry, EntryId parent, const std::string& caption) {
  const int place = static_cast<int>(entries_.size());
  entries_.insert_or_assign(entry, Entry{parent, caption, false, true, place});
}

std::vector<EntryId> HeadlessWindow::entries(EntryId parent) const {
  std::vector<EntryId> children;
  for (const auto& [id, entry] : entries_) {
    if (entry.parent == parent) children.push_back(id);
  }
  std::sort(children.begin(), children.end(),
            [this](EntryId a, EntryId b) { return entries_.at(a).place < entries_.at(b).place; });
  return children;
}

namespace {

std::string letters(const Font& font) {
  char size[16];
  std::snprintf(size, sizeof size, " %g", font.size);
  return font.name + size;
}

}  // namespace

void HeadlessWindow::add_control(ControlId control, std::string text, std::string look,
                                 FieldRule rule) {
  controls_.insert_or_assign(
      control, Control{{}, std::move(text), rule, "", std::move(look), false, ++highest_});
}

void HeadlessWindow::add_panel(ControlId panel, const std::string& text, const Font& font,
                               long text_colour, long back_colour) {
  add_control(
      panel, text,
      letters(font) + ' ' + std::to_string(text_colour) + " on " + std::to_string(back_colour));
}

void HeadlessWindow::add_field(ControlId field, FieldRule rule, const Font& font) {
  add_control(field, "", letters(font), rule);
}

void HeadlessWindow::add_shape(ControlId shape, Colour colour) {
  add_control(shape, "", std::to_string(colour));
}

void HeadlessWindow::add_picture(ControlId control, Picture) {
  add_control(control, "", "");
}

void HeadlessWindow::set_visible(ControlId control, bool visible) {
  controls_.at(control).visible = visible;
}

bool HeadlessWindow::visible(ControlId control) const {
  const auto found = controls_.find(control);
  return found != controls_.end() && found->second.visible;
}

void HeadlessWindow::set_text(ControlId field, const std::string& text) {
  controls_.at(field).text = text;
}

ControlId HeadlessWindow::front() const {
  ControlId front = 0;
  int height = 0;
  for (const auto& [id, control] : controls_) {
    if (!control.visible || control.height <= height) continue;
    front = id;
    height = control.height;
  }
  return front;
}

}  // namespace tombrello
