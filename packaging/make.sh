#!/usr/bin/env bash
# Builds the Debian package from a built tree into build/package and checks it.
# Usage: packaging/make.sh BUILD_DIRECTORY
# Ends with 77, CTest's word for a skipped test, where a tool is missing.
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "$0")"

for tool in rsvg-convert dpkg-shlibdeps desktop-file-validate appstreamcli lintian file; do
  command -v "$tool" >/dev/null || { echo "Skipped: no $tool; ./dev package installs it" && exit 77; }
done

desktop-file-validate ./*.desktop
appstreamcli validate --no-net ./*.metainfo.xml
# The pictures that the metainfo names come from the tour.
pictures=../build/package/screenshots
rm -rf "$pictures"
while IFS='|' read -r width height station; do
  "$build/bin/tavi-tour" "$pictures" --only "$station"
  file "$pictures/$station.png" | grep --quiet " $width x $height," ||
    { echo "The metainfo says that $station is $width x $height" && exit 1; }
done < <(sed --quiet 's/.*width="\(.*\)" height="\(.*\)">.*\/\(.*\)\.png.*/\1|\2|\3/p' ./*.metainfo.xml)
cmake --build "$build" --target tavi_package_files -- --quiet
rm -f ../build/package/*.deb
cpack --config "$build/CPackConfig.cmake"
package=$(echo ../build/package/*.deb)

version=$(dpkg-deb --field "$package" Version)
logged=$(dpkg-parsechangelog --file changelog --show-field Version)
released=$(grep --only-matching --max-count=1 '<release version="[^"]*' ./*.metainfo.xml | cut -d'"' -f2)
[[ $version == "$logged" && $version == "$released" ]] ||
  { echo "Version $version, but $logged in the changelog and $released in the metainfo" && exit 1; }
lintian --allow-root --fail-on error,warning "$package"
