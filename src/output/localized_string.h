#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

/// The words for a key; the comment is for translators. What the application installs asks its translations.
using TextLookup = std::function<std::string(std::string_view key, std::string_view comment)>;

/// A fixed text of the system. It is looked up once, on first use, and kept for the life of the process, so
/// that a change of language takes effect at the next start. With no lookup installed the key is the text.
class LocalizedText {
 public:
  // Constant expressions, so that no text is read before it is made.
  explicit constexpr LocalizedText(std::string_view key) : LocalizedText(key, key) {}
  constexpr LocalizedText(std::string_view key, std::string_view comment) : key_(key), comment_(comment) {}

  /// Installs the one lookup of all texts; to be called before the first text is read.
  static void installLookup(TextLookup lookup);

  std::string_view key() const { return key_; }
  const std::string& text() const;

 private:
  std::string_view key_;
  std::string_view comment_;
  mutable std::once_flag isLookedUp_;
  mutable std::optional<std::string> text_;
};

/// The texts that more than one place uses or that the working is written with.
struct LocalizedString {
  LocalizedString() = delete;

  inline static constinit const LocalizedText fillInYourGivenNumbers{"Fill in your given numbers:"};
  inline static constinit const LocalizedText yourInput{"Your Input", "The input title in solution view"};
  inline static constinit const LocalizedText expand{"Expand"};
  inline static constinit const LocalizedText modifiedInput{"Modified Input"};
  inline static constinit const LocalizedText step{"Step", "The input title in solution view"};
  inline static constinit const LocalizedText result{"Result", "The final result in solution view"};
  inline static constinit const LocalizedText noSolution{"noSolution", ""};
  inline static constinit const LocalizedText recommendedVideoIfUnclear{"recommendedVideoIfUnclear",
                                                                        "Recommended video if unclear"};
  inline static constinit const LocalizedText touchTounlock{"touchTounlock", "Touch to unlock"};
  inline static constinit const LocalizedText cancel{"Cancel"};
  inline static constinit const LocalizedText convert{"Convert", "to convert the formula"};
  inline static constinit const LocalizedText rate{"Rate"};
  inline static constinit const LocalizedText send{"Send"};
  inline static constinit const LocalizedText close{"Close"};
  inline static constinit const LocalizedText thanks{"Thanks"};
  inline static constinit const LocalizedText error{"error", "Error"};
  inline static constinit const LocalizedText cancelMath{
      "Cancel (math)"};  ///< The arithmetic sense: of a fraction.
  inline static constinit const LocalizedText extractARoot{"Extract a root"};
  inline static constinit const LocalizedText calculatePower{"Calculate power"};
  inline static constinit const LocalizedText reciprocal{"Reciprocal"};
  inline static constinit const LocalizedText taviSolver{"Tavi Solver"};
};

}  // namespace tavi
