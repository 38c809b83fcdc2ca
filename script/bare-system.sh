# A bare Debian in a temporary folder, with processes, mounts and a network of its own that end with
# the script; and a private display beside it. Sourced by script/try-fresh and script/try-package.
# shellcheck shell=bash

me=$(basename "$0")
fail() {
  echo "$me: $*" >&2
  exit 1
}

own_suite=$(. /etc/os-release && echo "$VERSION_CODENAME")

# What the exit status says when a mirror gave no answer: nothing was tried.
no_mirror=75

# Runs the script once more with root's rights, in namespaces of its own: what it starts, mounts and
# listens on is seen by nobody else and is gone when it ends, however it ends. Abstract sockets
# belong to a network, and so do displays' numbers. Returns in that second run, with a folder for
# its files.
alone() {
  scratch=${BARE_SYSTEM_SCRATCH:-}
  root=$scratch/debian
  [ -z "$scratch" ] || return 0
  script/setup screen fresh
  local asRoot=()
  [ "$(id -u)" -eq 0 ] || asRoot=(sudo)
  # shellcheck disable=SC2016  # the words are the second shell's
  exec "${asRoot[@]}" env ${CXXFLAGS:+"CXXFLAGS=$CXXFLAGS"} bash -c '
    BARE_SYSTEM_SCRATCH=$(mktemp -d -p /var/tmp) || exit  # where device files may be, unlike /tmp
    export BARE_SYSTEM_SCRATCH
    cleanUp() {
      kill -KILL $script $network  # unshare hears no other signal; all that it holds goes with it
      wait
      rm -rf --one-file-system "$BARE_SYSTEM_SCRATCH"
    }
    trap "cleanUp 2>/dev/null" EXIT
    trap "exit 143" INT TERM HUP
    unshare --net --uts --mount --pid --fork --mount-proc --kill-child "$0" "$@" &
    script=$!
    while [ /proc/$script/ns/net -ef /proc/self/ns/net ]; do sleep 0.05; done
    slirp4netns --configure --mtu=65520 $script tap0 >/dev/null 2>&1 &
    network=$!
    wait $script' "$PWD/script/$me" "$@"
}

waitFor() {
  local try
  for try in $(seq "${patience:-150}"); do
    if "$@"; then return; fi
    sleep 0.1
  done
  fail "waited in vain: $* (try $try)"
}

inside() {
  chroot "$root" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    DEBIAN_FRONTEND=noninteractive "$@"
}

aptInside() {
  inside apt-get -qq -y -o Dpkg::Use-Pty=0 "$@" >"$scratch/apt" 2>&1 && return
  cat "$scratch/apt" >&2
  giveUpWithoutMirror
  fail "apt-get $*"
}

isSuite() { [[ $1 == bookworm || $1 == trixie ]]; }

# Ends the script where the mirror is the cause of what failed.
giveUpWithoutMirror() {
  local try
  for try in 1 2 3; do
    inside apt-get -qq -o APT::Update::Error-Mode=any update >/dev/null 2>&1 && return
    sleep "$try"
  done
  echo "$me: THE MIRROR GAVE NO ANSWER" >&2
  exit $no_mirror
}

# Of this suite, from where this machine has its own packages, and reached in the same way.
makeBareSystem() {
  local suite=$1 mirror try
  # shellcheck disable=SC2016  # the words are apt's
  mirror=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' |
    awk -v own="$own_suite" \
      '$2 == own && $3 == "main" && !mirror { print mirror = $1 }')
  [ -n "$mirror" ] || fail "apt knows no mirror of its own"
  waitFor grep -q tap0 /proc/net/route
  hostname bare
  # The network's own name server.
  echo "nameserver 10.0.2.3" >"$scratch/resolv.conf"
  mount --bind "$scratch/resolv.conf" /etc/resolv.conf
  for try in 1 2 3; do
    debootstrap --variant=minbase "$suite" "$root" "$mirror" >"$scratch/debootstrap" 2>&1 && break
    rm -rf --one-file-system "$root"
    [ "$try" -eq 3 ] || continue
    tail -n 3 "$scratch/debootstrap" >&2
    grep -qE "^E: (Failed getting release file|Couldn't download)" "$scratch/debootstrap" ||
      fail "debootstrap"
    echo "$me: THE MIRROR GAVE NO ANSWER" >&2
    exit $no_mirror
  done
  apt-config dump | grep -E '^Acquire::(http|https|Check)' \
    >"$root/etc/apt/apt.conf.d/90machine" || true
  echo 'Acquire::Retries "3";' >"$root/etc/apt/apt.conf.d/91retries"
  printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"  # no services here
  chmod +x "$root/usr/sbin/policy-rc.d"
  echo "127.0.0.1 localhost bare" >"$root/etc/hosts"
  mount -t proc proc "$root/proc"
  mount -t devpts devpts "$root/dev/pts"
  mount -t tmpfs tmpfs "$root/dev/shm"
  aptInside update
  inside useradd --create-home --shell /bin/bash child
}

# ---------------------------------------------------------------------- a child at a display

# A display with a window manager, for this script and for the bare system.
startDisplay() {
  local number
  mkfifo "$scratch/number"
  mkdir -p "$root/tmp/.X11-unix" "$scratch/frame"
  [ -d /tmp/.X11-unix ] || mkdir -m 1777 /tmp/.X11-unix
  mount -t tmpfs tmpfs /tmp/.X11-unix
  mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
  # Without a lock in the machine's own folder: nobody else is in this network.
  Xvfb -displayfd 3 -nolock -screen 0 1024x768x24 -nolisten tcp -noreset -ac -fbdir "$scratch/frame" \
    3>"$scratch/number" 2>"$scratch/errors" &
  read -r -t 20 number <"$scratch/number" || fail "no display: $(cat "$scratch/errors")"
  export DISPLAY=:$number
  openbox >/dev/null 2>&1 &
  waitFor hasWindowManager
}

hasWindowManager() { xdotool get_desktop >/dev/null 2>&1; }
isGone() { ! xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }
isActive() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
# A picture of paper and wood has more colours than an empty screen.
isPainted() {
  isActive "$1" && [ "$(od -An -v -t x4 -w4 "$scratch/frame/Xvfb_screen0" | sort -u | wc -l)" -gt 300 ]
}
