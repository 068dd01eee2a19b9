#!/usr/bin/env bash
# Use goes one way: a file includes only what stands in its own room or in one listed above it. Prints what does not.
set -euo pipefail
cd "$(dirname "$0")/../.."

# From below to above; rooms of one line use each other.
rooms='number output
charts
platform
remote
appearance
typeset
input solver
charts/view
exact
measurement
shell/frame
remote/introduction remote/manual remote/consent remote/videos remote/ads remote/rating
solution solution/rows solution/share
shell
shell/history shell/menu shell/settings
shell/launch'

git grep -n '^#include "' -- 'src/*/*.h' 'src/*/*.cpp' | awk -F'[:"]' -v rooms="$rooms" '
  function room(path) { sub(/^src\//, "", path); sub(/\/[^\/]*$/, "", path); return path }
  # A folder that is not listed, such as typeset/constructs, belongs to the room around it.
  function rank(name) { while (!(name in ranks) && name ~ /\//) sub(/\/[^\/]*$/, "", name); return ranks[name] }
  BEGIN {
    lines = split(rooms, row, "\n")
    for (line = 1; line <= lines; ++line) {
      count = split(row[line], names, " ")
      for (i = 1; i <= count; ++i) ranks[names[i]] = line
    }
  }
  $4 ~ /\// {
    if (!rank(room($1)) || !rank(room($4))) { print $1 ":" $2 ": no room is listed for it or for " $4; failed = 1 }
    else if (rank(room($4)) > rank(room($1))) { print $1 ":" $2 ": reaches up to " $4; failed = 1 }
  }
  END { exit failed }'
