#include "output/localized_string.h"

#include <utility>

namespace tavi {

namespace {

TextLookup& installedLookup() {
  static TextLookup lookup;
  return lookup;
}

}  // namespace

void LocalizedText::installLookup(TextLookup lookup) {
  installedLookup() = std::move(lookup);
}

const std::string& LocalizedText::text() const {
  std::call_once(isLookedUp_, [this] {
    const TextLookup& lookup = installedLookup();
    text_ = lookup ? lookup(key_, comment_) : std::string(key_);
  });
  return *text_;
}

}  // namespace tavi
