#include "sound/music.h"

#include <utility>

namespace tombrello {
namespace {

constexpr std::uint8_t kSequence = 101;

// In a menu a single ampersand would mark a key instead of showing.
std::string caption_of(const std::string& name) {
  std::string caption;
  for (const char c : name) caption.append(c == '&' ? 2 : 1, c);
  return caption;
}

}  // namespace

Music::Music(MediaControl& MMC1, Window& window, std::uint8_t& brano, Entries entries,
             std::function<void()> Set_Write)
    : MMC1_(MMC1),
      window_(window),
      brano_(brano),
      entries_(entries),
      Set_Write_(std::move(Set_Write)) {}

void Music::scan(Archive& archive) {
  for (const std::string& file : archive.list("music", kMostTunes)) {
    const auto extension = file.find(".mid");
    if (extension == file.npos) return;
    canzoni_.push_back(file.substr(0, extension));
    window_.add_entry(entries_.canzoni_0 + tunes(), entries_.menu, caption_of(canzoni_.back()));
  }
}

void Music::start() {
  if (brano_ == 0) window_.set_checked(entries_.nomusic, true);
  if (brano_ != kSequence) return;
  window_.set_checked(entries_.all, true);
  brano_ = 0;
  MMC1_Done(kEnded);
}

void Music::close() {
  MMC1_.command(MediaControl::Command::close);
}

void Music::canzoni_Click(int index) {
  if (index < 1 || index > tunes()) return;
  uncheck_tunes();
  check_tune(index, true);
  window_.set_checked(entries_.nomusic, false);
  window_.set_checked(entries_.all, false);
  brano_ = 0;
  open(index);
  MMC1_.set_blocking(false);
  MMC1_.command(MediaControl::Command::play);
}

void Music::all_Click() {
  uncheck_tunes();
  window_.set_checked(entries_.nomusic, false);
  window_.set_checked(entries_.all, true);
  brano_ = kSequence;
  failures_ = 0;
  Set_Write_();
  brano_ = 0;
  MMC1_Done(kEnded);
}

void Music::nomusic_Click() {
  uncheck_tunes();
  window_.set_checked(entries_.nomusic, true);
  window_.set_checked(entries_.all, false);
  brano_ = 0;
  Set_Write_();
  MMC1_.command(MediaControl::Command::close);
}

void Music::MMC1_Done(int code) {
  if (code != kEnded || !window_.checked(entries_.all) || canzoni_.empty()) return;
  if (brano_ == tunes()) brano_ = 0;
  ++brano_;
  check_tune(brano_ == 1 ? tunes() : brano_ - 1, false);
  check_tune(brano_, true);
  open(brano_);
  MMC1_.command(MediaControl::Command::play);
}

void Music::media_done(int code) {
  if (code == kEnded) failures_ = 0;
  if (code == kFailed && ++failures_ < tunes()) code = kEnded;
  MMC1_Done(code);
}

void Music::check_tune(int index, bool checked) {
  window_.set_checked(entries_.canzoni_0 + index, checked);
}

void Music::uncheck_tunes() {
  for (int index = 1; index <= tunes(); ++index) check_tune(index, false);
}

void Music::open(int index) {
  MMC1_.command(MediaControl::Command::close);
  MMC1_.set_file_name("music/" + canzoni_[static_cast<std::size_t>(index - 1)] + ".mid");
  MMC1_.command(MediaControl::Command::open);
}

}  // namespace tombrello
