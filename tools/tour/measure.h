#pragma once

namespace tavi::tour {

/// Prints start times, memory and the cost of a full history as a table; false if a launch fails.
bool measure();

/// One launch for `measure`: says when the first frame is there, solves a task, adds a record, tells on the
/// standard output what that took, and ends. The exit code.
int probe(int argumentCount, char** arguments);

/// The argument that makes a process a probe; the environment says where its store lies.
inline constexpr const char* probeArgument = "--probe";

}  // namespace tavi::tour
