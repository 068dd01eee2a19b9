#!/usr/bin/env bash
# Installs the package into a bare Debian, solves a task there as an ordinary user without a network, and purges it.
# Usage: packaging/test_install.sh BUILD_DIRECTORY, after packaging/make.sh
# The bare system comes from this machine's own apt sources and is kept for a week, with the packages it took, in
# build/package/bare; mmdebstrap mounts and unmounts what a system needs, with root's rights or a user namespace's.
# Ends with 77 where no bare system can be had.
set -euo pipefail


# Called back by mmdebstrap, as root and with the bare system's folder.
if [[ ${1:-} == --inside ]]; then
  build=$2 kept=$3 root=$4
  as_root() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
  }
  as_pupil() {
    unshare --net chroot --userspec=1000:1000 "$root" \
      env -i PATH=/usr/bin HOME=/home/pupil XDG_RUNTIME_DIR=/home/pupil LC_ALL=C.UTF-8 \
      QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*.info=false' "$@"
  }
  # Nothing here outlives the test, so dpkg need not wait for the disk.
  install_packages() {
    as_root apt-get install -y -qq --no-install-recommends -o Dpkg::Options::=--force-unsafe-io "$@" >/dev/null
  }

  cp "$kept"/*.deb "$root/var/cache/apt/archives" 2>/dev/null || true
  install -d -m 700 -o 1000 -g 1000 "$root/home/pupil"
  cp "$kept"/../tavi_*.deb "$root/home/tavi.deb"
  install_packages /home/tavi.deb

  as_pupil tavi-cli solve power -2 3/2 | grep -F '\frac{4}{9} \approx 0.44444'
  # The application has no end of its own: the time limit's is the right one.
  status=0
  as_pupil timeout 5 tavi 2>"$root/home/complaints" || status=$?
  cat "$root/home/complaints"
  [[ $status == 124 && ! -s $root/home/complaints && -s $root/home/pupil/.local/share/tavi/preferences.sqlite ]]
  echo "tavi started without a complaint and stored its preferences"

  # The tour is no part of the package, nor is the one library that it needs beyond the application.
  install "$build/bin/tavi-tour" "$root/home"
  install_packages libqt6test6
  as_pupil /home/tavi-tour /home/pupil/tour --only 02-power
  cp "$root/home/pupil/tour/02-power.png" "$kept"
  cp -u "$root"/var/cache/apt/archives/*.deb "$kept"

  as_root apt-get purge -y -qq tavi >/dev/null
  left=$(as_root find / -xdev -name '*tavi*' -not -path '/home/*')
  [[ ! $left ]] || { echo "Left behind: $left" && exit 1; }
  echo "purged without a trace"
  exit
fi

build=$(realpath "$1")
script=$(realpath "$0")
cd "$(dirname "$0")/.."
kept=$PWD/build/package/bare
bare=$kept/bare.tar
command -v mmdebstrap >/dev/null || { echo "Skipped: no mmdebstrap; ./dev package --test installs it" && exit 77; }

if [[ ! $(find "$bare" -mtime -7 2>/dev/null) ]]; then
  rm -rf "$kept" && mkdir -p "$kept"
  # shellcheck disable=SC2016  # apt's own placeholders
  apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
    mmdebstrap --quiet --variant=apt --skip=cleanup --dpkgopt=force-unsafe-io bookworm "$bare" - ||
    { echo "Skipped: no bare system without rights or mirrors" && exit 77; }
fi
mmdebstrap --quiet --variant=custom --skip=update,cleanup --format=null \
  --setup-hook="mmtarfilter '--path-exclude=/dev/*' <'$bare' | tar -x -C \"\$1\"" \
  --customize-hook="'$script' --inside '$build' '$kept' \"\$1\"" '' /dev/null
