#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tombrello {

/// Why a file can't be kept.
enum class Trouble {
  none,
  full,     ///< no room is left, or none is given
  refused,  ///< nobody may write there
  broken,   ///< anything else, a damaged disk for one
};

/// The files of the program's folder. Names are relative to it, with '/' between folders.
/// Nothing here throws: what can't be done isn't done.
class Archive {
 public:
  virtual ~Archive() = default;

  /// At most `most` bytes from the start of a plain file; nothing if there is no such file or
  /// it can't be read. What `replace` put into the user's own folder is read first where the
  /// program's folder can't be written, or where it is the newer of two.
  virtual std::optional<std::string> read(const std::string& name, std::size_t most) = 0;

  /// Puts a file in the place of the old one, whole or not at all, also if the power fails.
  /// Where that fails beside the program, it goes into the user's own data folder. True if it
  /// was kept in either.
  virtual bool replace(const std::string& name, const std::string& content) = 0;

  /// Why the last `replace` failed; `none` if it didn't.
  virtual Trouble trouble() const = 0;

  /// The names of the plain files in a folder, by name and without hidden ones, the first `most`
  /// of them; none if there is no such folder.
  virtual std::vector<std::string> list(const std::string& folder, std::size_t most) = 0;
};

}  // namespace tombrello
