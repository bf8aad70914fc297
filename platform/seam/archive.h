#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tombrello {

/// The files of the program's folder. Names are relative to it, with '/' between folders.
/// Nothing here throws or reports: what can't be done isn't done.
class Archive {
 public:
  virtual ~Archive() = default;

  /// At most `most` bytes from the start of a plain file; nothing if there is no such file or
  /// it can't be read. Where the program's folder can't be written, what an earlier `replace`
  /// put into the user's own folder is read first.
  virtual std::optional<std::string> read(const std::string& name, std::size_t most) = 0;

  /// Puts a file in the place of the old one, whole or not at all, also if the power fails.
  /// Where the program's folder can't be written, it goes into the user's own data folder.
  virtual bool replace(const std::string& name, const std::string& content) = 0;

  /// The names of the plain files in a folder, by name; none if there is no such folder.
  virtual std::vector<std::string> list(const std::string& folder) = 0;
};

}  // namespace tombrello
