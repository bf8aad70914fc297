#pragma once

namespace tombrello {

/// The capital of a letter of any alphabet, which only the system knows; the letter itself where
/// it has none, or none that is one letter.
using Capital = char32_t (*)(char32_t letter);

}  // namespace tombrello
