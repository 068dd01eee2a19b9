#pragma once

namespace tavi::tour {

/// The first argument of a tour that measures, for `measure`.
inline constexpr const char* measureArgument = "--measure";

/// Measures the running application in the user's own folders and prints lines such as "key=3.10": after the
/// argument comes what, which is "use", "sharing", "frames" or "rest". In milliseconds, of the processor for
/// the longest frames; seconds of the processor for the rest of a minute. The process's exit code.
int measure(int argumentCount, char** arguments);

}  // namespace tavi::tour
