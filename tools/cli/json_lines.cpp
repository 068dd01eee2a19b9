#include "json_lines.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <vector>

#include <nlohmann/json.hpp>
#include <poll.h>
#include <unistd.h>

#include "commands.h"

namespace tavi::cli {
namespace {

// What is read at once, and what answers come together to before they are written.
constexpr std::size_t blockSize = 64UL * 1024;

// What an answer to one line may leave behind in the buffer for the next ones.
constexpr std::size_t keptCapacity = 1024UL * 1024;

// After a read or a write that did nothing: whether it is worth another try, which is awaited where others
// made the stream one that does not wait.
bool isToRepeat(int stream, short event) {
  if (errno == EAGAIN) {
    pollfd awaited{.fd = stream, .events = event, .revents = 0};
    poll(&awaited, 1, -1);
    return true;
  }
  return errno == EINTR;
}

// Writes the answers that came together so far and empties them. False from the first time on that the output
// cannot be written, for which standard error tells the reason once.
bool writeOut(std::string& out) {
  static bool isBroken = false;
  std::string_view rest = out;
  while (!rest.empty() && !isBroken) {
    const ssize_t written = write(STDOUT_FILENO, rest.data(), rest.size());
    if (written >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(written));
    } else if (!isToRepeat(STDOUT_FILENO, POLLOUT)) {
      std::cerr << "tavi-cli: cannot write: " << std::strerror(errno) << '\n';
      isBroken = true;
    }
  }
  if (isBroken) return false;
  out.clear();
  if (out.capacity() > keptCapacity) out.shrink_to_fit();
  return true;
}

// Cuts a stream of blocks into lines. A line that lies in one block is never copied.
class LineFilter {
 public:
  LineFilter(const LineAnswer& answer, const LineRules& rules) : answer_(answer), rules_(rules) {}

  // False when the output cannot be written.
  bool take(std::string_view block) {
    for (std::size_t end = 0; (end = block.find('\n')) != std::string_view::npos;
         block.remove_prefix(end + 1)) {
      if (begun_.empty()) {
        reply(block.substr(0, end));
      } else {
        keep(block.substr(0, end));
        finish();
      }
      if (!writeBlock(out_)) return false;
    }
    keep(block);
    return writeOut(out_);
  }

  // The last line needs no line end.
  bool close() {
    if (!begun_.empty()) finish();
    return writeOut(out_);
  }

 private:
  // One byte beyond the limit tells that the line is too long; more is not kept.
  void keep(std::string_view piece) { begun_ += piece.substr(0, rules_.longest + 1 - begun_.size()); }

  void finish() {
    reply(begun_);
    begun_.clear();
  }

  void reply(std::string_view line) {
    if (line.size() > rules_.longest || !answer_(line, out_)) out_ += rules_.malformed;
    out_ += '\n';
  }

  const LineAnswer& answer_;
  const LineRules& rules_;
  std::string begun_;
  std::string out_;
};

// How a byte is written in a JSON text: with how many bytes, or by the library.
enum Writing : unsigned char { asItStands = 1, escaped = 2, byLibrary = 4 };

constexpr std::array<Writing, 256> writings = [] {
  std::array<Writing, 256> kinds{};
  kinds.fill(asItStands);
  std::fill(kinds.begin(), kinds.begin() + ' ', byLibrary);
  std::fill(kinds.begin() + 128, kinds.end(), byLibrary);
  kinds['"'] = escaped;
  kinds['\\'] = escaped;
  return kinds;
}();

}  // namespace

int answerLines(const LineAnswer& answer, const LineRules& rules) {
  LineFilter filter(answer, rules);
  std::vector<char> block(blockSize);
  while (true) {
    const ssize_t size = read(STDIN_FILENO, block.data(), block.size());
    if (size == 0) return filter.close() ? success : ioError;
    if (size < 0 && isToRepeat(STDIN_FILENO, POLLIN)) continue;
    if (size < 0) {
      std::cerr << "tavi-cli: cannot read: " << std::strerror(errno) << '\n';
      return ioError;
    }
    if (!filter.take({block.data(), static_cast<std::size_t>(size)})) return ioError;
  }
}

bool writeBlock(std::string& out) {
  return out.size() < blockSize || writeOut(out);
}

void appendJsonText(std::string& out, std::string_view text) {
  const std::size_t begin = out.size();
  out.resize(begin + text.size() * 2 + 2);
  char* at = &out[begin];
  *at++ = '"';
  unsigned seen = 0;
  // Without a branch, as no one can foretell where the next backslash is: the character takes the place of
  // the backslash that is not needed.
  for (const char character : text) {
    const unsigned writing = writings[static_cast<unsigned char>(character)];
    seen |= writing;
    *at = '\\';
    at += writing & (asItStands | escaped);
    at[-1] = character;
  }
  *at++ = '"';
  out.resize(static_cast<std::size_t>(at - out.data()));
  if ((seen & byLibrary) == 0) return;
  // Control characters, and what may be no UTF-8 and is repaired then.
  using nlohmann::json;
  out.resize(begin);
  out += json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace tavi::cli
