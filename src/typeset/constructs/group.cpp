#include <array>
#include <utility>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"
#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

std::optional<std::uint8_t> hexDigit(char32_t character) {
  if (character >= U'0' && character <= U'9') return static_cast<std::uint8_t>(character - U'0');
  if (character >= U'a' && character <= U'f') return static_cast<std::uint8_t>(character - U'a' + 10);
  if (character >= U'A' && character <= U'F') return static_cast<std::uint8_t>(character - U'A' + 10);
  return std::nullopt;
}

// `#rgb`, `#rrggbb`, black, red, green, blue or gray.
std::optional<Rgb> colorFor(std::u32string_view text) {
  if (text == U"black") return Rgb{};
  if (text == U"red") return Rgb{.red = 0xff};
  if (text == U"green") return Rgb{.green = 0xff};
  if (text == U"blue") return Rgb{.blue = 0xff};
  if (text == U"gray") return Rgb{0x80, 0x80, 0x80};
  if ((text.size() != 4 && text.size() != 7) || text[0] != U'#') return std::nullopt;
  const std::size_t width = text.size() / 3;
  std::array<std::uint8_t, 3> channels{};
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const auto high = hexDigit(text[1 + channel * width]);
    const auto low = hexDigit(text[channel * width + width]);
    if (!high || !low) return std::nullopt;
    channels[channel] = static_cast<std::uint8_t>(*high * 16 + *low);
  }
  return Rgb{channels[0], channels[1], channels[2]};
}

}  // namespace

void Group::readUpright(Reader& reader, const CommandInLine& command, List& into) {
  const bool wasUpright = reader.isUpright();
  reader.setUpright(true);
  auto content = reader.argument();
  reader.setUpright(wasUpright);
  if (!content) return reader.unreadable(into, command.start, command.end, "\\mathrm needs an argument");
  into.emplace_back().content = Group{.content = *std::move(content)};
}

void Group::readColored(Reader& reader, const CommandInLine& command, List& into) {
  const auto name = reader.rawArgument();
  const auto nameEnd = reader.position();
  const auto fail = [&](std::string message) {
    reader.unreadable(into, command.start, nameEnd, std::move(message));
  };
  if (!name) return fail("\\color needs a colour in braces");
  const auto color = colorFor(*name);
  if (!color) return fail("unknown colour " + encodeUtf8(*name));
  auto content = reader.argument();
  if (!content) return fail("\\color needs something to colour");
  into.emplace_back().content = Group{.content = *std::move(content), .color = color};
}

Extent Group::set(Compositor& compositor, Style style) const {
  const Color outer = compositor.color();
  if (color) compositor.setColor(color);
  const Extent box = compositor.list(content, style);
  compositor.setColor(outer);
  return box;
}

std::string Group::say(const Speaker& speaker) const {
  return speaker.list(content);
}

std::string Group::mathml() const {
  if (!color) return mathmlRow(content);
  constexpr std::string_view digits = "0123456789abcdef";
  std::string attribute = R"( mathcolor="#)";
  for (const std::uint8_t part : {color->red, color->green, color->blue}) {
    attribute += digits[part >> 4];
    attribute += digits[part & 15];
  }
  return element("mstyle", mathmlRow(content), attribute + '"');
}

}  // namespace tavi::typeset
